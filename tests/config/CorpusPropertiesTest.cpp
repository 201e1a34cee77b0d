// Properties of merge and fallback over the public corpus, with the shipped
// definition files.
#include <random>
#include <set>

#include "ConfigFixture.h"
#include "ShippedGrammar.h"
#include "support/CaseFile.h"

namespace qxparser {
namespace {

// A configuration as a merge writes it: read, then written back.
std::string normalised(const std::string& text) {
  TopLevel records(text);
  return QxParserUtilPeer::expand(records.get(), 0);
}

// A text as the command line prints it: the NUL bytes that the merge writer
// puts into the indent of deeper levels shown as blanks.
std::string asPrinted(std::string text) {
  std::replace(text.begin(), text.end(), '\0', ' ');
  return text;
}

std::vector<std::string> withoutHostname(std::vector<std::string> lines) {
  lines.erase(std::remove_if(lines.begin(), lines.end(),
                             [](const std::string& line) { return line.rfind("hostname ", 0) == 0; }),
              lines.end());
  return lines;
}

class CorpusPropertiesTest : public ShippedGrammarTest {
 protected:
  void SetUp() override {
    files_ = corpusFiles();
    if (files_.empty()) GTEST_SKIP() << "no corpus at " << corpusFolder();
  }
  std::vector<CorpusFile> files_;
};

TEST_F(CorpusPropertiesTest, MergingAHostnameLosesNoOtherLine) {
  for (const CorpusFile& file : files_) {
    const std::string merged = QxParserUtil::mergeConfigCmds("hostname probe\n", file.text);
    const std::vector<std::string> lines = sortedLines(merged);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "hostname probe "), 1) << file.name;
    EXPECT_EQ(withoutHostname(lines), withoutHostname(sortedLines(normalised(file.text)))) << file.name;
  }
}

// Files whose fallback to themselves is not empty, and why. File mode
// compares a command with the first comparable command of the other side
// only. These two files hold an interface line the device refuses
// (`interface Ge0/0`: Ge abbreviates no interface type), so the lines below
// it stay in the interface before and set its address and description a
// second time; the second value is compared with the first, differs, and the
// first is written back. Every other file reads back to itself: additive
// commands of one setting must stand in one run (or differ in a key word),
// and a mergeable command must have no other comparable command ahead of it.
const std::set<std::string> kNotEmptyByARefusedModeLine = {"config2spec__Atlanta.cfg", "config2spec__Brussels.cfg"};

TEST_F(CorpusPropertiesTest, FallbackOfAConfigurationToItselfIsEmptyButAfterARefusedModeLineIntended) {
  std::set<std::string> notEmpty;
  std::set<std::string> expected;
  for (const CorpusFile& file : files_) {
    // Read as the device reads pasted text, so short interface types
    // (Fa1/1) name their interfaces and only the refused mode line is left.
    if (!QxParserUtil::fallbackConfigCmdsTyped(file.text, file.text, 1, nullptr, nullptr).empty()) {
      notEmpty.insert(file.name);
    }
    // Over every level each file compares empty with itself, those two too.
    if (!QxParserUtil::fallbackConfigCmdsAllLevels(file.text, file.text, 1).empty()) notEmpty.insert("all levels: " + file.name);
    if (kNotEmptyByARefusedModeLine.count(file.name)) expected.insert(file.name);
  }
  EXPECT_EQ(notEmpty, expected);
}

// The text of a line without the carriage return and blanks at its end.
std::string trimmedEnd(std::string line) {
  while (!line.empty() && (line.back() == '\r' || line.back() == ' ')) line.pop_back();
  return line;
}

// The line with its last number raised by one; empty when it has none.
std::string changedValue(const std::string& line) {
  const std::string digits = "0123456789";
  size_t end = line.find_last_of(digits);
  if (end == std::string::npos) return "";
  size_t start = line.find_last_not_of(digits, end);
  start = start == std::string::npos ? 0 : start + 1;
  const std::string number = line.substr(start, end - start + 1);
  const unsigned long value = std::stoul(number.substr(0, 9)) + 1;
  return line.substr(0, start) + std::to_string(value) + line.substr(end + 1);
}

// Whether a top-level line reads as one command that a running
// configuration holds; with `additiveOnly`, also that it may stand beside
// another command of its kind (a second value of a one-value setting is no
// configuration the device would show, it keeps the last one).
bool readsAsStoredCommand(const std::string& line, bool additiveOnly) {
  TopLevel records(line + "\n");
  if (records.get().size() != 1) return false;
  const CiscoCommandLine* record = records[0];
  if (record->getTreeNodeSize() == 0 || !(record->getFlags() & CMDBIT_STORED)) return false;
  return !additiveOnly || record->getFlag() == CMD_ADDITIVE;
}

// A variant of a configuration: some lines removed, some values changed,
// some lines added (copies of existing top-level lines with a new value).
// Every variant is a configuration the device accepts and would show as it
// stands: a changed or added line must read as a stored command and must
// not repeat a line of the text (a repeated mode line would reopen that
// mode, a repeated command would show once).
std::string variant(const std::string& text, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_int_distribution<int> percent(0, 99);
  std::vector<std::string> lines;
  std::set<std::string> present;
  std::string line;
  std::istringstream in(text);
  while (std::getline(in, line)) {
    lines.push_back(line);
    present.insert(trimmedEnd(line));
  }
  auto fresh = [&](const std::string& candidate, bool additiveOnly) {
    return !candidate.empty() && !present.count(trimmedEnd(candidate)) &&
           readsAsStoredCommand(candidate, additiveOnly);
  };
  std::vector<std::string> out;
  std::vector<std::string> added;
  for (const std::string& current : lines) {
    const int roll = percent(random);
    const bool plain = !current.empty() && current[0] != ' ' && current[0] != '!';
    if (roll < 3 && current.rfind(" ", 0) == 0) continue;  // removed (inside a mode)
    if (roll < 6 && plain) {
      const std::string changed = changedValue(current);
      if (fresh(changed, false)) {
        present.insert(trimmedEnd(changed));
        out.push_back(changed);
        continue;
      }
    }
    if (roll >= 6 && roll < 8 && plain) {
      const std::string changed = changedValue(current);
      const std::string extra = changed.empty() ? "" : changedValue(changed);
      if (fresh(extra, true)) {
        present.insert(trimmedEnd(extra));
        added.push_back(extra);
      }
    }
    out.push_back(current);
  }
  std::string result;
  for (const std::string& kept : out) result += kept + "\n";
  for (const std::string& extra : added) result += extra + "\n";
  return result;
}

// What a configuration holds, as the command line prints it: each stored
// command at its indent, a mode closed by "!". Lines that are no command of
// a running configuration (defaults such as "ip proxy-arp" in a listing of
// all settings, refused lines, comments) are left out: a merge neither
// writes nor removes them, and the device shows them or not by itself.
void writeStored(const std::vector<CiscoCommandLine*>& commands, int depth, std::string& out) {
  const std::string indent(static_cast<size_t>(depth), ' ');
  for (const CiscoCommandLine* command : commands) {
    if (!(command->getFlags() & CMDBIT_STORED)) continue;
    out += indent + command->getOriginalCmd();
    writeStored(command->getChildCommands(), depth + 1, out);
    if (command->getFlags() & CMDBIT_OPENS_MODE) out += indent + "!\n";
  }
}

std::string storedView(const std::string& text) {
  TopLevel records(asPrinted(text));
  std::string out;
  writeStored(records.get(), 0, out);
  return out;
}

// How many corpus files satisfy merge(fallback(A, B), A) == B up to order
// and normalisation (the stored commands, as printed), for one variant B of
// each; the figure may only grow. The pairs that fail, by cause:
//
// - A mode two levels deep (26 files). Its indent carries a NUL byte, and a
//   text read back ends at the first one. The fallback normalises both
//   configurations by writing and reading them again, so it sees nothing
//   behind the first such line, and a changed head whose mode holds one
//   loses the lines of that mode. Changes behind it never come back.
// - File mode writes a command of the second configuration only when no
//   command of the first is comparable with it: an additive command whose
//   value changed but whose keys did not is negated, and the new value is
//   never written (cisco-labs__SITE_A: a changed range of a local pool).
// - A setting shown in both forms: removing "login local" from a line makes
//   the fallback write "no login local", a stored form that the merge keeps
//   as a line, while the variant holds no line at all (cisco-ent-gns3__SW-
//   FLOOR-1; the device itself would show one of the two forms).
// - A refused mode line: config2spec__Brussels, see above; the interface
//   before it holds "duplex auto" twice, the variant drops one, and file
//   mode finds the remaining one equal and writes nothing.
constexpr size_t kRecordedRoundTrips = 30;

// The library's fallback compares nothing behind the first command two levels
// inside a mode; over every level the change there is found, also when the
// text is a merge result with its NUL indent bytes.
TEST_F(ShippedGrammarTest, FallbackOverAllLevelsSeesDeepChangesAndReadsMergeResultsWhole) {
  const std::string before =
      "router bgp 65000\n"
      " neighbor 192.0.2.2 remote-as 65001\n"
      " address-family ipv4\n"
      "  neighbor 192.0.2.2 activate\n"
      " exit-address-family\n"
      "ip route 0.0.0.0 0.0.0.0 192.0.2.254\n";
  const std::string changes = "ip route 10.0.0.0 255.0.0.0 192.0.2.9\n";
  const std::string after = QxParserUtil::mergeConfigCmds(changes, before);
  ASSERT_NE(after.find('\0'), std::string::npos) << "the merge writes the second level with a NUL";
  EXPECT_EQ(QxParserUtil::fallbackConfigCmds(after, before, 1).find("ip route 10.0.0.0"), std::string::npos)
      << "the library's cut hides everything behind the address family, intended";
  const std::string back = QxParserUtil::fallbackConfigCmdsAllLevels(after, before, 1);
  EXPECT_NE(back.find("no ip route 10.0.0.0 255.0.0.0 192.0.2.9"), std::string::npos) << back;
  EXPECT_EQ(back.find("activate"), std::string::npos) << "unchanged deep commands are not written: " << back;
  std::string deeper = before;
  deeper.replace(deeper.find("activate"), 8, "shutdown");
  EXPECT_NE(QxParserUtil::fallbackConfigCmdsAllLevels(before, deeper, 1).find("neighbor 192.0.2.2 shutdown"),
            std::string::npos);
}

// How many files give back their variant through `fallback` and a merge;
// the report names each failing file.
size_t countRoundTrips(const std::vector<CorpusFile>& files,
                       std::string (*fallback)(const std::string&, const std::string&, unsigned int),
                       std::string& report) {
  size_t holding = 0;
  for (size_t i = 0; i < files.size(); ++i) {
    const std::string& a = files[i].text;
    const std::string b = variant(a, static_cast<unsigned>(1000 + i));
    const std::string merged = QxParserUtil::mergeConfigCmds(fallback(a, b, 1), a);
    const bool holds = sortedLines(storedView(merged)) == sortedLines(storedView(b));
    const bool deep = normalised(a).find('\0') != std::string::npos;
    if (holds) ++holding;
    report += files[i].name + (holds ? ": holds\n" : deep ? ": fails (mode two levels deep)\n" : ": fails\n");
  }
  return holding;
}

TEST_F(CorpusPropertiesTest, FallbackMergedIntoTheFirstGivesTheSecond) {
  std::string report;
  const size_t holding = countRoundTrips(files_, &QxParserUtil::fallbackConfigCmds, report);
  RecordProperty("round_trips", static_cast<int>(holding));
  std::cout << "round trips holding: " << holding << " of " << files_.size() << "\n" << report;
  EXPECT_GE(holding, kRecordedRoundTrips);
}

// Compared over every level, the files with a mode two levels deep take part
// whole; what still fails is named by the rules above.
constexpr size_t kRecordedRoundTripsAllLevels = 38;

TEST_F(CorpusPropertiesTest, FallbackOverAllLevelsMergedIntoTheFirstGivesTheSecond) {
  std::string report;
  const size_t holding = countRoundTrips(files_, &QxParserUtil::fallbackConfigCmdsAllLevels, report);
  RecordProperty("round_trips_all_levels", static_cast<int>(holding));
  std::cout << "round trips over all levels holding: " << holding << " of " << files_.size() << "\n" << report;
  EXPECT_GE(holding, kRecordedRoundTripsAllLevels);
}

// Settings of which the device keeps one value, and "no" forms that name one
// entry among others of their kind (tests/data/config/one_value.txt).
TEST_F(CorpusPropertiesTest, OneValueSettingsAndSingleEntryNegationsMergeAsTheDevice) {
  for (const testsupport::Case& row : testsupport::readCases("config/one_value.txt")) {
    EXPECT_EQ(QxParserUtil::mergeConfigCmds(row["changes"], row["config"]), row["merged"]) << row.where();
    // The fallback from the merged configuration to the old one, merged
    // back, gives the old configuration. Not for a removed list entry
    // (intended): all entries of one list are one kind of setting, and file
    // mode writes only commands that no command of the first configuration
    // is comparable with, so the entry does not come back.
    const std::string back = QxParserUtil::fallbackConfigCmds(row["merged"], row["config"], 1);
    if (row.get("restored") == "no") {
      EXPECT_EQ(back, "") << row.where();
      continue;
    }
    EXPECT_EQ(sortedLines(storedView(QxParserUtil::mergeConfigCmds(back, row["merged"]))),
              sortedLines(storedView(row["config"])))
        << row.where();
  }
}

// What a reading says of each record, in reading order.
std::vector<std::string> described(const std::vector<CiscoCommandLine*>& records) {
  std::vector<std::string> out;
  for (const CiscoCommandLine* record : records) {
    out.push_back(std::to_string(record->getLineNo()) + " " + std::to_string(record->getLevel()) + " " +
                  std::to_string(record->getOrderNo()) + " " + std::to_string(record->getFlags()) + " " +
                  std::to_string(record->getChildCommands().size()) + " " +
                  (record->getParentCommand() ? record->getParentCommand()->getOriginalCmd() : "-") + " | " +
                  record->getOriginalCmd());
  }
  return out;
}

TEST_F(CorpusPropertiesTest, ReadingInBlocksHandsOverWhatOneReadingGives) {
  for (const CorpusFile& file : files_) {
    std::vector<CiscoCommandLine*> whole;
    std::vector<RefusedLine> refusedWhole;
    TypedTextReader::read(file.text, whole, refusedWhole);
    const std::vector<std::string> expected = described(whole);
    QxParserUtil::deleteCommands(whole);
    std::vector<std::string> inBlocks;
    std::vector<RefusedLine> refusedInBlocks;
    size_t blocks = 0;
    TypedTextReader::readInBlocks(file.text, refusedInBlocks, [&](const std::vector<CiscoCommandLine*>& block) {
      const std::vector<std::string> lines = described(block);
      inBlocks.insert(inBlocks.end(), lines.begin(), lines.end());
      ++blocks;
    });
    EXPECT_EQ(inBlocks, expected) << file.name;
    EXPECT_EQ(refusedInBlocks.size(), refusedWhole.size()) << file.name;
    // A configuration of more than a few blocks is not handed over whole.
    if (expected.size() > 50) {
      EXPECT_GT(blocks, 2u) << file.name;
    }
  }
}

}  // namespace
}  // namespace qxparser
