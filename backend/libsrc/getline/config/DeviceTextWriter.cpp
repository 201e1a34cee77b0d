// Device text of configuration records.
#include "config/DeviceTextWriter.h"

#include <algorithm>
#include <deque>

#include "config/DeviceSpelling.h"

namespace qxparser {

namespace {

bool isNew(const CiscoCommandLine& record) {
  return record.hasFlags(CMDBIT_FROM_CHANGES) || record.getLineNo() < 1;
}

// A mode's exit line kept with its block (a comment record).
bool isExitLine(const CiscoCommandLine& record) {
  if (record.getFlag() != CMD_TEXT) return false;
  const std::string& text = record.getRawText().empty() ? record.getOriginalStr() : record.getRawText();
  const size_t lead = text.find_first_not_of(" \t\n");
  return lead != std::string::npos && text.compare(lead, 5, "exit-") == 0;
}

// An address family that the change set brought in.
bool isNewAddressFamily(const CiscoCommandLine& record, const std::string& line, bool anyAddressFamily = false) {
  if ((!anyAddressFamily && !isNew(record)) || !record.hasFlags(CMDBIT_OPENS_MODE) || record.hasFlags(CMDBIT_NO)) {
    return false;
  }
  const size_t lead = line.find_first_not_of(' ');
  return lead != std::string::npos && line.compare(lead, 15, "address-family ") == 0;
}

// A new address family closes with "exit-address-family" on the device,
// whether or not the change set said so.
// Written with kCloseEveryBlock (a rollback, a sorted text), every address
// family closes so: the lines behind it are pasted at the level above.
bool needsExitLine(const CiscoCommandLine& record, const std::string& line, bool everyBlock) {
  if (!isNewAddressFamily(record, line, everyBlock)) return false;
  for (const CiscoCommandLine* child : record.getChildCommands()) {
    if (child->getOriginalCmd().compare(0, 19, "exit-address-family") == 0) return false;
    // An exit line read with the block stays with it (a comment record).
    const std::string& raw = child->getRawText();
    if (child->getFlag() == CMD_TEXT && raw.find("exit-address-family") != std::string::npos) return false;
  }
  return true;
}

bool endsWithLine(const std::string& text, const std::string& line) {
  return text.size() >= line.size() && text.compare(text.size() - line.size(), line.size(), line) == 0 &&
         (text.size() == line.size() || text[text.size() - line.size() - 1] == '\n');
}

// Comment records wait in line order and are written ahead of the first record
// read after them.
class Layout {
 public:
  Layout(std::deque<const CiscoCommandLine*> comments, unsigned int options)
      : mComments(std::move(comments)), mOptions(options) {
    // Where the "end" lines stand among the comments, found once: comments
    // only leave from the front.
    for (size_t i = 0; i < mComments.size(); ++i) {
      const std::string& text = mComments[i]->getOriginalStr();
      const size_t lead = text.find_first_not_of(" \t");
      if (lead != std::string::npos && text.compare(lead, 3, "end") == 0) mEnds.push_back(i);
      if (text.compare(0, 3, "end") == 0 && text.find_first_not_of(" \t\r", 3) == std::string::npos) {
        mTopEnds.push_back(i);
      }
    }
  }

  void writeLevel(const std::vector<CiscoCommandLine*>& given, int depth) {
    // A mode's exit line ("exit-address-family") closes its block: commands
    // the merge added behind it still go ahead of it.
    std::vector<CiscoCommandLine*> records(given);
    if (depth > 0) std::stable_partition(records.begin(), records.end(), [](const CiscoCommandLine* r) {
      return !isExitLine(*r);
    });
    for (size_t i = 0; i < records.size(); ++i) {
      const CiscoCommandLine* record = records[i];
      if (depth == 0 && record->getFlag() == CMD_TEXT) continue;
      if (record->getLineNo() >= 1) {
        flushBefore(record->getLineNo());
      } else if (depth == 0) {
        // A new block goes behind the comments that close the block before;
        // behind the last block read, ahead of a closing "end".
        // Lines read after an "end" are no configuration: never behind them.
        const int next = nextReadLine(records, i + 1);
        const int end = firstEndLine();
        const int limit = next > 0 ? next : endLine();
        flushBefore(end > 0 && (limit < 0 || limit > end) ? end : limit);
      }
      std::string line = DeviceTextWriter::writeLine(*record, depth, mOptions);
      // A banner's text and closing delimiter stand at the start of the line.
      if (mInBanner && record->getRawText().empty()) line.erase(0, line.find_first_not_of(' '));
      // The device sets an address family apart from what stands before it.
      const std::string separator = std::string(static_cast<size_t>(depth), ' ') + "!\n";
      if (depth > 0 && isNewAddressFamily(*record, line) && !endsWithLine(mOut, separator)) mOut += separator;
      mOut += line;
      const bool outer = mInBanner;
      mInBanner = record->getOriginalCmd().compare(0, 7, "banner ") == 0;
      writeLevel(record->getChildCommands(), depth + 1);
      mInBanner = outer;
      if (needsExitLine(*record, line, (mOptions & DeviceTextWriter::kCloseEveryBlock) != 0)) {
        mOut += std::string(static_cast<size_t>(depth), ' ') + "exit-address-family\n";
      }
      // A block that the merge added (a copy: no line number) is closed as the
      // device closes it; one read keeps the comment lines that followed it.
      if (depth == 0 && record->hasFlags(CMDBIT_OPENS_MODE) && !record->hasFlags(CMDBIT_NO) &&
          (record->getLineNo() < 1 || (mOptions & DeviceTextWriter::kCloseEveryBlock) != 0)) {
        mOut += "!\n";
      }
    }
  }

  std::string finish() {
    flushBefore(-1);
    return std::move(mOut);
  }

 private:
  static int nextReadLine(const std::vector<CiscoCommandLine*>& records, size_t from) {
    for (size_t i = from; i < records.size(); ++i) {
      if (records[i]->getFlag() != CMD_TEXT && records[i]->getLineNo() >= 1) return records[i]->getLineNo();
    }
    return 0;
  }

  // The line number of the last waiting "end" line (-1: none waits).
  int endLine() const {
    if (mEnds.empty() || mEnds.back() < mFlushed) return -1;
    return mComments[mEnds.back() - mFlushed]->getLineNo();
  }

  // The line number of the first waiting "end" line of the top level (-1: none).
  int firstEndLine() const {
    const auto first = std::lower_bound(mTopEnds.begin(), mTopEnds.end(), mFlushed);
    return first == mTopEnds.end() ? -1 : mComments[*first - mFlushed]->getLineNo();
  }

  // Writes the waiting comments read before line `limit` (all for -1).
  void flushBefore(int limit) {
    while (!mComments.empty() && (limit < 0 || mComments.front()->getLineNo() < limit)) {
      mOut += DeviceTextWriter::writeLine(*mComments.front(), 0, mOptions);
      mComments.pop_front();
      ++mFlushed;
    }
  }

  std::deque<const CiscoCommandLine*> mComments;
  // The places of the "end" lines among the comments as given, any indent
  // and at the top level, and how many comments have been written.
  std::vector<size_t> mEnds;
  std::vector<size_t> mTopEnds;
  size_t mFlushed = 0;
  bool mInBanner = false;
  unsigned int mOptions;
  std::string mOut;
};

std::string trimmedRight(std::string text) {
  const size_t end = text.find_last_not_of(" \t");
  text.erase(end == std::string::npos ? 0 : end + 1);
  return text;
}

}  // namespace

std::string DeviceTextWriter::writeLine(const CiscoCommandLine& record, int depth, unsigned int options) {
  const bool spellAll = (options & kSpellAll) != 0;
  if (record.getFlag() == CMD_TEXT) {
    const std::string& text = record.getRawText().empty() ? record.getOriginalStr() : record.getRawText();
    std::string bare = text.substr(std::min(text.size(), text.find_first_not_of(" \t")));
    if (depth > 0 && bare.compare(0, 5, "exit-") == 0 && (spellAll || record.getLineNo() < 1)) {
      // "exit-address-family" and its kind stand at the level of the mode head.
      bare.erase(bare.find_last_not_of(" \t") + 1);
      return std::string(static_cast<size_t>(depth - 1), ' ') + bare + "\n";
    }
    return text + "\n";
  }
  if (record.getTreeNodeSize() == 0) {
    // Banner text, certificate data, a refused line: as it was read.
    if (!record.getRawText().empty()) return record.getRawText() + "\n";
    return std::string(static_cast<size_t>(depth), ' ') +
           trimmedRight(record.getOriginalCmd().substr(0, record.getOriginalCmd().find('\n'))) + "\n";
  }
  if (!spellAll && record.isAsRead() && !record.hasFlags(CMDBIT_FROM_CHANGES))
    return record.getRawText() + "\n";
  const std::string text = DeviceSpelling::spell(record);
  // The device writes "exit-address-family" and its kind at the level of the
  // mode head, though the grammar reads them inside the mode.
  const int indent = (depth > 0 && text.compare(0, 5, "exit-") == 0) ? depth - 1 : depth;
  return std::string(static_cast<size_t>(indent), ' ') + text + "\n";
}

std::string DeviceTextWriter::write(const std::vector<CiscoCommandLine*>& commands, unsigned int options) {
  std::vector<const CiscoCommandLine*> comments;
  for (const CiscoCommandLine* record : commands) {
    if (record->getFlag() == CMD_TEXT) comments.push_back(record);
  }
  std::stable_sort(
      comments.begin(), comments.end(),
      [](const CiscoCommandLine* a, const CiscoCommandLine* b) { return a->getLineNo() < b->getLineNo(); });
  Layout layout(std::deque<const CiscoCommandLine*>(comments.begin(), comments.end()), options);
  layout.writeLevel(commands, 0);
  return layout.finish();
}

void DeviceTextWriter::markFromChanges(const std::vector<CiscoCommandLine*>& commands) {
  for (CiscoCommandLine* record : commands) {
    record->setFlags(CMDBIT_FROM_CHANGES, true);
    markFromChanges(record->getChildCommands());
  }
}

}  // namespace qxparser
