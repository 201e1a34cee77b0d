#include "config/TypedTextReader.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <functional>
#include <memory>
#include <utility>

#include "config/CiscoCommandLine.h"
#include "config/ReaderLineMap.h"
#include "toolkit/TextWords.h"
#include "grammar/InterfaceTypeOrder.h"
#include "terminal/VTY.h"

namespace qxparser {

namespace {

const char* const kBlanks = " \t";
const std::string kInvalidInput = "% Invalid input detected at ^";
const std::string kEnable = "enable";
const std::string kEnd = "end";
const std::string kExit = "exit";
const std::string kDo = "do";
const std::string kExitPrefix = "exit-";



// The word at `span` of `line`, lower-cased, abbreviates `full` (at least
// `least` letters of it).
bool abbreviates(const std::string& line, const WordSpan& span, const std::string& full, size_t least) {
  if (span.length < least || span.length > full.size()) return false;
  for (size_t i = 0; i < span.length; ++i) {
    const char c = line[span.start + i];
    if ((c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c) != full[i]) return false;
  }
  return true;
}

// The first two words of a line (where they stand) and how many it holds,
// counted up to three (what the readers tell apart: none, one, two, more).
struct LineWords {
  explicit LineWords(const std::string& line) : count(wordSpans(line, spans, 2, 3)) {}
  std::string lowered(const std::string& line, size_t i) const {
    return loweredWord(line.substr(spans[i].start, spans[i].length));
  }

  WordSpan spans[2];
  size_t count;
};

bool isConfigureTerminal(const std::string& line, const LineWords& words) {
  if (words.count == 0 || words.count > 2 || !abbreviates(line, words.spans[0], "configure", 4)) return false;
  return words.count == 1 || abbreviates(line, words.spans[1], "terminal", 1);
}

// Hands `take` the non-empty pieces of a text cut at carriage returns and
// line feeds, numbered from 1 as the replaying reader numbers them; one piece
// at a time in one buffer, so that the text is not copied whole.
template <typename Take>
void forEachPiece(const std::string& text, Take take) {
  int number = 0;
  size_t start = 0;
  std::string piece;
  const size_t size = text.size();
  while (start <= size) {
    const size_t end = readerPieceEnd(text, start);
    if (end > start) {
      piece.assign(text, start, end - start);
      take(++number, piece);
    }
    start = end + 1;
  }
}

// Drops the record of a walk that is not kept. A walk may have linked it to
// the command of its mode before it failed; the link goes with it.
void discard(std::unique_ptr<CiscoCommandLine>& record) {
  if (!record) return;
  if (CiscoCommandLine* parent = record->getParentCommand()) {
    std::vector<CiscoCommandLine*>& siblings = parent->getChildCommands();
    siblings.erase(std::remove(siblings.begin(), siblings.end(), record.get()), siblings.end());
  }
  record.reset();
}

class Reading {
 public:
  Reading(const std::string& hostName, std::vector<CiscoCommandLine*>& commands, std::vector<RefusedLine>& refused,
          std::vector<std::string>* prompts)
      : mVty(hostName, true), mCommands(commands), mRefused(refused), mPrompts(prompts) {
    mVty.setLinkCommands(true);
    mVty.setRefuseRangeErrors(true);
    mVty.parse("enable\n", true, nullptr);
    mVty.parse("configure terminal \n", true, nullptr);
  }

  // `text` is the caller's buffer; the line may change it.
  void line(int number, std::string& text) {
    if (mPrompts) {
      std::string prompt;
      mVty.getPrompt(prompt);
      // "configure terminal" is typed at the privileged prompt: the reading
      // stands in configuration mode from its start, the person did not.
      const size_t mode = prompt.rfind("(config)#");
      if (mode != std::string::npos && mode + 9 == prompt.size() && isConfigureTerminal(text, LineWords(text))) {
        prompt = prompt.substr(0, mode) + "#";
      }
      mPrompts->push_back(prompt);
    }
    auto record = std::make_unique<CiscoCommandLine>();
    record->setLineNo(number);
    const size_t nul = text.find('\0');
    if (nul != std::string::npos) {
      refuse(number, text, nul, "% NUL byte, read as a blank");
      for (char& c : text) {
        if (c == '\0') c = ' ';
      }
    }
    if (mVty.inBanner()) {
      // Banner text, or the line that closes the banner. The device keeps
      // what stands before the closing delimiter as the banner's last line
      // ("*****^C"), which the grammar cannot read: it is text, not refused.
      if (!mVty.parseRecordLine(text, *record)) {
        discard(record);
        record = std::make_unique<CiscoCommandLine>();
        record->setLineNo(number);
        record->setFlag(CMD_TEXT);
        record->setOriginalStr(text);
        // Written back with the banner, so that the banner stays closed.
        record->setOriginalCmd(text + "\n");
      }
      mCommands.push_back(record.release());
      return;
    }
    const LineWords words(text);
    if (steers(text, words)) {
      record->setFlag(CMD_TEXT);
      record->setOriginalStr(text);
      mCommands.push_back(record.release());
      return;
    }
    if (mVty.currentMode() != CONFIG_MODE) {
      execLine(number, text, std::move(record));
      return;
    }
    if (mFollowIndent) leaveDeeperLevels(words.spans[0].start);
    command(number, text, std::move(record));
  }

 private:
  // Lines that move the terminal between modes and levels, and lines that
  // hold no configuration. True when the line was taken here.
  bool steers(const std::string& text, const LineWords& words) {
    if (words.count == 0 || text[words.spans[0].start] == '!') return true;
    const WordSpan& first = words.spans[0];
    const bool configuring = mVty.currentMode() == CONFIG_MODE;
    if (isConfigureTerminal(text, words)) {
      if (!configuring) mVty.parse("configure terminal \n", true, nullptr);
      return true;
    }
    // A script written for the exec prompt begins with "enable": no
    // configuration, and no error where the reading already configures.
    if (words.count == 1 && wordIs(text, first, kEnable)) return true;
    if (!configuring) return false;
    if (wordIs(text, first, kEnd) || wordIs(text, first, kExit)) {
      mVty.parse(words.lowered(text, 0), true, nullptr);
      return true;
    }
    if (wordIs(text, first, kDo)) return true;
    if (first.length >= kExitPrefix.size() && wordIs(text, WordSpan{first.start, kExitPrefix.size()}, kExitPrefix)) {
      // exit-address-family and its kind leave the mode inside a mode that
      // they name (the last word: family, interface, topology, policy...).
      // Where that mode is not the innermost one (a line before it was
      // refused or left it), the next lines find their level as replayed
      // text does.
      const std::string lowered = words.lowered(text, 0);
      const std::string named = lowered.substr(lowered.rfind('-') + 1);
      if (mVty.levelCount() >= 3 && mVty.innermostLevelText().find(named) != std::string::npos) {
        mVty.parse("exit", true, nullptr);
      }
      return true;
    }
    return false;
  }

  // Whole words first, at this level and the levels above it, as a stored
  // configuration is replayed: a line the device prints reads as it does
  // there. Then abbreviations; then the preferred interface types.
  void command(int number, const std::string& text, std::unique_ptr<CiscoCommandLine> record) {
    if (!walk(text, false, *record) && !attempt(number, text, true, record)) {
      const size_t position = mVty.lastErrorOffset();
      const std::string message = mVty.lastError();
      const std::string preferred = InterfaceTypeOrder::withPreferredTypes(text);
      std::unique_ptr<CiscoCommandLine> retry;
      if (!preferred.empty() && attempt(number, preferred, true, retry)) {
        discard(record);
        record = std::move(retry);
      } else {
        refuse(number, text, position, message);
        // As getCmdInfo gives it: the line without a path, where it stood.
        auto refused = std::make_unique<CiscoCommandLine>();
        refused->setLineNo(number);
        refused->setLevel(record->getLevel());
        std::string context;
        record->getMajorCmdStr(context);
        refused->setMajorCommands(context);
        refused->setCommandTexts(record->getOriginalCmd());
        discard(record);
        record = std::move(refused);
      }
    }
    mCommands.push_back(record.release());
  }

  // One reading of the line into `record`, which no walk has touched.
  bool walk(const std::string& text, bool abbreviations, CiscoCommandLine& record) {
    mVty.setCliMode(abbreviations);
    const bool ok = mVty.parseRecordLine(text, record);
    mVty.setCliMode(true);
    return ok;
  }

  // One reading of the line into a fresh record (kept in `record` either way).
  bool attempt(int number, const std::string& text, bool abbreviations, std::unique_ptr<CiscoCommandLine>& record) {
    discard(record);
    record = std::make_unique<CiscoCommandLine>();
    record->setLineNo(number);
    return walk(text, abbreviations, *record);
  }

  // At the exec prompt: `write memory`, `show ...` and the like are no
  // configuration; anything else is refused there, as on the device.
  void execLine(int number, const std::string& text, std::unique_ptr<CiscoCommandLine> record) {
    if (mVty.parse(text, true, nullptr)) {
      record->setFlag(CMD_TEXT);
      record->setOriginalStr(text);
    } else {
      refuse(number, text, mVty.lastErrorOffset(), mVty.lastError());
      size_t start = text.find_first_not_of(kBlanks);
      const std::string shown = (start == std::string::npos ? std::string() : text.substr(start)) + "\n";
      record->setCommandTexts(shown);
    }
    mCommands.push_back(record.release());
  }

  void refuse(int number, const std::string& text, size_t position, const std::string& message) {
    mRefused.push_back(RefusedLine{number, text, position, message.empty() ? kInvalidInput : message});
  }

  void leaveDeeperLevels(size_t indent) {
    while (mVty.levelCount() > indent + 1) {
      const size_t before = mVty.levelCount();
      mVty.parse("exit", true, nullptr);
      if (mVty.levelCount() >= before || mVty.currentMode() != CONFIG_MODE) break;
    }
  }

 public:
  bool mFollowIndent = false;

  // No mode is open and no banner text is being read: the records read so
  // far get no more children, and nothing refers to them any longer.
  bool betweenBlocks() const {
    return !mVty.inBanner() && (mVty.currentMode() != CONFIG_MODE || mVty.levelCount() <= 1);
  }

 private:
  VTY mVty;
  std::vector<CiscoCommandLine*>& mCommands;
  std::vector<RefusedLine>& mRefused;
  std::vector<std::string>* mPrompts;
};

}  // namespace

bool TypedTextReader::read(const std::string& text, std::vector<CiscoCommandLine*>& commands,
                           std::vector<RefusedLine>& refused) {
  const size_t before = refused.size();
  Reading reading("hostName", commands, refused, nullptr);
  forEachPiece(text, [&reading](int number, std::string& piece) { reading.line(number, piece); });
  return refused.size() == before;
}

bool TypedTextReader::readByIndent(const std::string& text, std::vector<CiscoCommandLine*>& commands,
                                   std::vector<RefusedLine>& refused) {
  const size_t before = refused.size();
  Reading reading("hostName", commands, refused, nullptr);
  reading.mFollowIndent = true;
  forEachPiece(text, [&reading](int number, std::string& piece) { reading.line(number, piece); });
  return refused.size() == before;
}

namespace {

// Frees records of all levels read together: each record without a parent
// with its children (a parent always stands among the records before them).
void freeBlock(std::vector<CiscoCommandLine*>& records) {
  // The records without a parent are found first: freeing one frees records
  // behind it in the list.
  std::vector<CiscoCommandLine*> roots;
  for (CiscoCommandLine* record : records) {
    if (record->getParentCommand() == nullptr) roots.push_back(record);
  }
  for (CiscoCommandLine* record : roots) {
    record->delOnlyChildCmds();
    delete record;
  }
  records.clear();
}

}  // namespace

bool TypedTextReader::readInBlocks(const std::string& text, std::vector<RefusedLine>& refused,
                                   const std::function<void(const std::vector<CiscoCommandLine*>&)>& take) {
  const size_t before = refused.size();
  std::vector<CiscoCommandLine*> block;
  try {
    Reading reading("hostName", block, refused, nullptr);
    forEachPiece(text, [&](int number, std::string& piece) {
      if (!block.empty() && reading.betweenBlocks()) {
        take(block);
        freeBlock(block);
      }
      reading.line(number, piece);
    });
    if (!block.empty()) take(block);
  } catch (...) {
    freeBlock(block);
    throw;
  }
  freeBlock(block);
  return refused.size() == before;
}

bool TypedTextReader::readWithPrompts(const std::string& text, const std::string& hostName,
                                      std::vector<CiscoCommandLine*>& commands, std::vector<RefusedLine>& refused,
                                      std::vector<std::string>& prompts) {
  const size_t before = refused.size();
  Reading reading(hostName, commands, refused, &prompts);
  forEachPiece(text, [&reading](int number, std::string& piece) { reading.line(number, piece); });
  return refused.size() == before;
}

}  // namespace qxparser
