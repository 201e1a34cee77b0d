// Device text of configuration records.
#include "config/DeviceTextWriter.h"

#include <algorithm>
#include <deque>
#include <string_view>

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
bool isNewAddressFamily(const CiscoCommandLine& record, std::string_view line,
                        bool anyAddressFamily = false) {
  if ((!anyAddressFamily && !isNew(record)) || !record.hasFlags(CMDBIT_OPENS_MODE) ||
      record.hasFlags(CMDBIT_NO)) {
    return false;
  }
  const size_t lead = line.find_first_not_of(' ');
  return lead != std::string::npos && line.compare(lead, 15, "address-family ") == 0;
}

// A new address family closes with "exit-address-family" on the device,
// whether or not the change set said so.
// Written with kCloseEveryBlock (a rollback, a sorted text), every address
// family closes so: the lines behind it are pasted at the level above.
bool needsExitLine(const CiscoCommandLine& record, std::string_view line, bool everyBlock) {
  if (!isNewAddressFamily(record, line, everyBlock)) return false;
  for (const CiscoCommandLine* child : record.getChildCommands()) {
    if (child->getOriginalCmd().compare(0, 19, "exit-address-family") == 0) return false;
    // An exit line read with the block stays with it (a comment record).
    const std::string& raw = child->getRawText();
    if (child->getFlag() == CMD_TEXT && raw.find("exit-address-family") != std::string::npos) return false;
  }
  return true;
}

bool endsWithLine(std::string_view text, const std::string& line) {
  return text.size() >= line.size() && text.compare(text.size() - line.size(), line.size(), line) == 0 &&
         (text.size() == line.size() || text[text.size() - line.size() - 1] == '\n');
}

// Whether a level holds a mode's exit line in front of another record: only
// then does it need another order.
bool exitLineInFront(const std::vector<CiscoCommandLine*>& records) {
  bool exitSeen = false;
  for (const CiscoCommandLine* record : records) {
    const bool exit = isExitLine(*record);
    if (exitSeen && !exit) return true;
    exitSeen = exitSeen || exit;
  }
  return false;
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
    std::vector<CiscoCommandLine*> reordered;
    const bool reorder = depth > 0 && exitLineInFront(given);
    if (reorder) {
      reordered = given;
      std::stable_partition(reordered.begin(), reordered.end(),
                            [](const CiscoCommandLine* r) { return !isExitLine(*r); });
    }
    const std::vector<CiscoCommandLine*>& records = reorder ? reordered : given;
    // At the top level, the line number of the next record read behind each
    // place (0: none), worked out once from the back.
    std::vector<int> nextRead;
    if (depth == 0) nextRead = nextReadLines(records);
    for (size_t i = 0; i < records.size(); ++i) {
      const CiscoCommandLine* record = records[i];
      if (depth == 0 && record->getFlag() == CMD_TEXT) continue;
      if (record->getLineNo() >= 1) {
        flushBefore(record->getLineNo());
      } else if (depth == 0) {
        // A new block goes behind the comments that close the block before;
        // behind the last block read, ahead of a closing "end".
        // Lines read after an "end" are no configuration: never behind them.
        const int next = nextRead[i + 1];
        const int end = firstEndLine();
        const int limit = next > 0 ? next : endLine();
        flushBefore(end > 0 && (limit < 0 || limit > end) ? end : limit);
      }
      // The line is written in place; what follows looks at it there.
      const size_t lineStart = mOut.size();
      DeviceTextWriter::appendLine(mOut, *record, depth, mOptions);
      // A banner's text and closing delimiter stand at the start of the line.
      if (mInBanner && record->getRawText().empty()) {
        const size_t text = mOut.find_first_not_of(' ', lineStart);
        mOut.erase(lineStart, (text == std::string::npos ? mOut.size() : text) - lineStart);
      }
      const size_t lineLength = mOut.size() - lineStart;
      // The device sets an address family apart from what stands before it.
      if (depth > 0 && isNewAddressFamily(*record, std::string_view(mOut).substr(lineStart))) {
        const std::string separator = std::string(static_cast<size_t>(depth), ' ') + "!\n";
        if (!endsWithLine(std::string_view(mOut).substr(0, lineStart), separator))
          mOut.insert(lineStart, separator);
      }
      const bool exitLine = needsExitLine(*record, std::string_view(mOut).substr(mOut.size() - lineLength),
                                          (mOptions & DeviceTextWriter::kCloseEveryBlock) != 0);
      const bool outer = mInBanner;
      mInBanner = record->getOriginalCmd().compare(0, 7, "banner ") == 0;
      writeLevel(record->getChildCommands(), depth + 1);
      mInBanner = outer;
      if (exitLine) {
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
  // For each place of `records` (and one past the end), the line number of
  // the first record from there on that was read and is no comment (0: none).
  static std::vector<int> nextReadLines(const std::vector<CiscoCommandLine*>& records) {
    std::vector<int> next(records.size() + 1, 0);
    for (size_t i = records.size(); i-- > 0;) {
      const bool read = records[i]->getFlag() != CMD_TEXT && records[i]->getLineNo() >= 1;
      next[i] = read ? records[i]->getLineNo() : next[i + 1];
    }
    return next;
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
      DeviceTextWriter::appendLine(mOut, *mComments.front(), 0, mOptions);
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

}  // namespace

std::string DeviceTextWriter::writeLine(const CiscoCommandLine& record, int depth, unsigned int options) {
  std::string out;
  appendLine(out, record, depth, options);
  return out;
}

void DeviceTextWriter::appendLine(std::string& out, const CiscoCommandLine& record, int depth,
                                  unsigned int options) {
  const bool spellAll = (options & kSpellAll) != 0;
  if (record.getFlag() == CMD_TEXT) {
    const std::string& text = record.getRawText().empty() ? record.getOriginalStr() : record.getRawText();
    const std::string_view bare =
        std::string_view(text).substr(std::min(text.size(), text.find_first_not_of(" \t")));
    if (depth > 0 && bare.compare(0, 5, "exit-") == 0 && (spellAll || record.getLineNo() < 1)) {
      // "exit-address-family" and its kind stand at the level of the mode head.
      out.append(static_cast<size_t>(depth - 1), ' ');
      out.append(bare.substr(0, bare.find_last_not_of(" \t") + 1));
      out += '\n';
      return;
    }
    out.append(text);
    out += '\n';
    return;
  }
  if (record.getTreeNodeSize() == 0) {
    // Banner text, certificate data, a refused line: as it was read.
    if (!record.getRawText().empty()) {
      out.append(record.getRawText());
      out += '\n';
      return;
    }
    const std::string& typed = record.getOriginalCmd();
    const std::string_view first = std::string_view(typed).substr(0, typed.find('\n'));
    const size_t end = first.find_last_not_of(" \t");
    out.append(static_cast<size_t>(depth), ' ');
    out.append(first.substr(0, end == std::string_view::npos ? 0 : end + 1));
    out += '\n';
    return;
  }
  if (!spellAll && record.isAsRead() && !record.hasFlags(CMDBIT_FROM_CHANGES)) {
    out.append(record.getRawText());
    out += '\n';
    return;
  }
  const std::string text = DeviceSpelling::spell(record);
  // The device writes "exit-address-family" and its kind at the level of the
  // mode head, though the grammar reads them inside the mode.
  const int indent = (depth > 0 && text.compare(0, 5, "exit-") == 0) ? depth - 1 : depth;
  out.append(static_cast<size_t>(indent), ' ');
  out.append(text);
  out += '\n';
}

std::string DeviceTextWriter::write(const std::vector<CiscoCommandLine*>& commands, unsigned int options) {
  const DeviceSpelling::Batch batch;
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
