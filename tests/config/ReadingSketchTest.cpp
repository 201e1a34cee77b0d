// ReadingSketch against the reading it sketches: for every record, depth
// first, the same full and current text, the same typed line (of a record
// with a grammar path), the same path, "no", stored and mode flags and the
// same children; and the banners. On a typed text with abbreviations, tabs,
// carriage returns and a banner, and on every file of the public corpus; each
// sketched alone, beside the reading's merge form (whose texts it then holds
// as views), beside a form that holds a stranger line, and from the same
// reading settled without raw texts (its lines found in the text's lines).
#include "ConfigFixture.h"
#include "ShippedGrammar.h"
#include "config/DeviceMeaning.h"
#include "config/DeviceTextReader.h"
#include "config/ReadingSketch.h"
#include "config/TextLines.h"
#include "config/TypedTextReader.h"

namespace qxparser {
namespace {

// The last line of a raw text, trailing blanks and tabs cut: the typed line.
std::string typedLineOf(const std::string& raw) {
  const size_t cut = raw.rfind('\n');
  std::string line = cut == std::string::npos ? raw : raw.substr(cut + 1);
  line.erase(line.find_last_not_of(" \t") + 1);
  return line;
}

// Compares the records of one mode with the sketch entries from `at` on;
// returns the index behind them.
size_t compare(const std::vector<CiscoCommandLine*>& records, const ReadingSketch& sketch, size_t at,
               const std::string& where) {
  for (const CiscoCommandLine* record : records) {
    SCOPED_TRACE(where + " entry " + std::to_string(at) + ": " + record->getOriginalCmd());
    if (at >= sketch.size()) {
      ADD_FAILURE() << "sketch ends early";
      return at;
    }
    EXPECT_EQ(sketch.command(at), record->getOriginalCmd());
    EXPECT_EQ(sketch.currentCommand(at), record->getCurrentCommand());
    EXPECT_EQ(sketch.hasPath(at), record->getTreeNodeSize() > 0);
    EXPECT_EQ(sketch.isNegated(at), record->hasFlags(CMDBIT_NO));
    EXPECT_EQ(sketch.isStored(at), record->hasFlags(CMDBIT_STORED));
    EXPECT_EQ(sketch.opensMode(at), record->hasFlags(CMDBIT_OPENS_MODE));
    EXPECT_EQ(sketch.wasTyped(at), !record->getRawText().empty());
    const bool kept = record->getTreeNodeSize() > 0 && !record->getRawText().empty();
    EXPECT_EQ(sketch.typedLine(at), kept ? typedLineOf(record->getRawText()) : "");
    const size_t behind = compare(record->getChildCommands(), sketch, at + 1, where);
    EXPECT_EQ(sketch.end(at), behind);
    at = sketch.end(at);
  }
  return at;
}

// The length of the command texts of `records` and those below them.
size_t commandBytes(const std::vector<CiscoCommandLine*>& records) {
  size_t bytes = 0;
  for (const CiscoCommandLine* record : records) {
    bytes += record->getOriginalCmd().size() + commandBytes(record->getChildCommands());
  }
  return bytes;
}

// The sketch of `text` read as typed and settled without raw texts, each
// typed line found in the text's lines instead.
ReadingSketch sketchByLines(const std::string& text) {
  std::vector<CiscoCommandLine*> all;
  std::vector<RefusedLine> refused;
  TypedTextReader::read(text, all, refused);
  const TextLines lines(text);
  std::vector<CiscoCommandLine*> records;
  DeviceTextReader::settleByLines(lines, all, records);
  ReadingSketch sketch(records, nullptr, &lines);
  QxParserUtil::deleteCommands(records);
  return sketch;
}

void checkSketch(const std::string& text, const std::string& where) {
  std::vector<CiscoCommandLine*> records;
  DeviceTextReader::read(text, records);
  const std::string form = QxParserUtilPeer::expand(records, 0);
  const size_t half = form.find('\n', form.size() / 2) + 1;
  const std::string stranger = form.substr(0, half) + "stranger line\n" + form.substr(half);
  const ReadingSketch alone(records);
  const ReadingSketch beside(records, std::make_shared<const std::string>(form));
  const ReadingSketch besideStranger(records, std::make_shared<const std::string>(stranger));
  const ReadingSketch byLines = sketchByLines(text);
  for (const ReadingSketch* sketch : {&alone, &beside, &besideStranger, &byLines}) {
    EXPECT_EQ(compare(records, *sketch, 0, where), sketch->size()) << where;
    EXPECT_EQ(sketch->banners(), DeviceMeaning::bannersOf(records)) << where;
  }
  // Beside its own form, no command text is copied: the sketch holds only
  // the typed lines that differ from their commands.
  EXPECT_EQ(beside.ownTextBytes(), alone.ownTextBytes() - commandBytes(records)) << where;
  QxParserUtil::deleteCommands(records);
}

class ReadingSketchTest : public ShippedGrammarTest {};

TEST_F(ReadingSketchTest, HoldsWhatTheReadingHolds) {
  checkSketch(
      "hostname r1\n"
      "int Gi0/1\n"
      " desc uplink  \n"
      "\tip addr 10.0.0.1 255.255.255.0\r\n"
      " no shut\n"
      "interface GigabitEthernet0/2\n"
      " shutdown\n"
      "!\n"
      "banner motd ^C\n"
      "Authorised use only\n"
      "\n"
      "\r\n"
      "  Disconnect now\n"
      "^C\n"
      "\n"
      "router ospf 1\n"
      " network 10.0.0.0 0.0.0.255 area 0\n"
      "line vty 0 4\n"
      " transport input ssh\n"
      "end\n",
      "typed text");
  EXPECT_EQ(ReadingSketch().size(), 0u);
}

TEST_F(ReadingSketchTest, HoldsWhatTheReadingHoldsOverTheCorpus) {
  const std::vector<CorpusFile> files = corpusFiles();
  if (files.empty()) GTEST_SKIP() << "corpus folder " << corpusFolder() << " absent";
  for (const CorpusFile& file : files) checkSketch(file.text, file.name);
}

}  // namespace
}  // namespace qxparser
