// Section-aware comparison of two configurations.
#include "config/ConfigDiff.h"

#include <algorithm>
#include <map>

#include "config/DeviceTextReader.h"
#include "config/DeviceTextWriter.h"
#include "config/QxParserUtil.h"

namespace qxparser {

namespace {

// A command: compared by its device spelling (and that of its heads), shown
// as it was read.
struct Entry {
  std::vector<std::string> sections;
  std::string line;
  std::vector<std::string> sectionKeys;
  std::string key;
  bool operator==(const Entry& other) const { return key == other.key && sectionKeys == other.sectionKeys; }
};

std::string withoutLineEnd(std::string text) {
  while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) text.pop_back();
  text.erase(text.find_last_not_of(" \t") + 1);
  return text;
}

void flatten(const std::vector<CiscoCommandLine*>& records, int depth, Entry& place,
             std::vector<Entry>& out) {
  for (const CiscoCommandLine* record : records) {
    if (record->getFlag() == CMD_TEXT) continue;
    Entry entry = place;
    entry.line = withoutLineEnd(DeviceTextWriter::writeLine(*record, depth));
    entry.key = withoutLineEnd(DeviceTextWriter::writeLine(*record, depth, DeviceTextWriter::kSpellAll));
    out.push_back(entry);
    if (record->getChildCommands().empty()) continue;
    place.sections.push_back(entry.line);
    place.sectionKeys.push_back(entry.key);
    flatten(record->getChildCommands(), depth + 1, place, out);
    place.sections.pop_back();
    place.sectionKeys.pop_back();
  }
}

std::vector<Entry> entriesOf(const std::string& text) {
  std::vector<CiscoCommandLine*> records;
  std::vector<Entry> entries;
  try {
    DeviceTextReader::read(text, records);
    Entry place;
    flatten(records, 0, place, entries);
  } catch (...) {
    QxParserUtil::deleteCommands(records);
    throw;
  }
  QxParserUtil::deleteCommands(records);
  return entries;
}

void add(std::vector<ConfigDiff::Change>& out, char mark, const Entry& entry) {
  out.push_back({mark, entry.sections, entry.line});
}

// How many heads (and the line itself, as the head of what follows) `entry`
// shares with the place after `last`.
size_t sharedDepth(const Entry* last, const Entry& entry) {
  if (last == nullptr) return 0;
  std::vector<std::string> place = last->sectionKeys;
  place.push_back(last->key);
  size_t depth = 0;
  while (depth < place.size() && depth < entry.sectionKeys.size() &&
         place[depth] == entry.sectionKeys[depth]) {
    ++depth;
  }
  return depth;
}

// Writes a run of removed and added entries between two equal ones, each side
// in its order; the one that stays deeper in the section at hand goes first,
// so that a line added at the end of a block is shown with its block.
void interleave(std::vector<const Entry*>& removed, std::vector<const Entry*>& added, const Entry*& last,
                std::vector<ConfigDiff::Change>& out) {
  size_t r = 0;
  size_t a = 0;
  while (r < removed.size() || a < added.size()) {
    const bool takeAdded = r == removed.size() || (a < added.size() && sharedDepth(last, *added[a]) >
                                                                           sharedDepth(last, *removed[r]));
    const Entry* entry = takeAdded ? added[a++] : removed[r++];
    add(out, takeAdded ? '+' : '-', *entry);
    last = entry;
  }
  removed.clear();
  added.clear();
}

// The longest common subsequence of `a` and `b`, written out as changes.
// Above this many cells the table of the alignment is not built.
constexpr size_t kMaxTableCells = size_t{1} << 24;

std::string identity(const Entry& entry) {
  std::string text;
  for (const std::string& head : entry.sectionKeys) text += head + '\n';
  return text + entry.key;
}

// For two long and different texts: an entry is kept when the other side has
// one like it that is not taken yet; each side's changes keep their order.
void alignByCount(const std::vector<Entry>& a, const std::vector<Entry>& b,
                  std::vector<ConfigDiff::Change>& out) {
  std::map<std::string, int> inA;
  std::map<std::string, int> inB;
  for (const Entry& entry : a) ++inA[identity(entry)];
  for (const Entry& entry : b) ++inB[identity(entry)];
  for (const Entry& entry : a) {
    if (inB[identity(entry)]-- <= 0) add(out, '-', entry);
  }
  for (const Entry& entry : b) {
    if (inA[identity(entry)]-- <= 0) add(out, '+', entry);
  }
}

void alignMiddle(const std::vector<Entry>& a, const std::vector<Entry>& b,
                 std::vector<ConfigDiff::Change>& out) {
  const size_t n = a.size();
  const size_t m = b.size();
  if ((n + 1) > kMaxTableCells / (m + 1)) {
    alignByCount(a, b, out);
    return;
  }
  std::vector<unsigned> common((n + 1) * (m + 1), 0);
  auto at = [m](size_t i, size_t j) { return i * (m + 1) + j; };
  for (size_t i = n; i-- > 0;) {
    for (size_t j = m; j-- > 0;) {
      common[at(i, j)] =
          a[i] == b[j] ? common[at(i + 1, j + 1)] + 1 : std::max(common[at(i + 1, j)], common[at(i, j + 1)]);
    }
  }
  size_t i = 0;
  size_t j = 0;
  std::vector<const Entry*> removed;
  std::vector<const Entry*> added;
  const Entry* last = nullptr;
  while (i < n || j < m) {
    if (i < n && j < m && a[i] == b[j]) {
      interleave(removed, added, last, out);
      last = &a[i];
      ++i;
      ++j;
    } else if (i < n && (j == m || common[at(i + 1, j)] >= common[at(i, j + 1)])) {
      removed.push_back(&a[i++]);
    } else {
      added.push_back(&b[j++]);
    }
  }
  interleave(removed, added, last, out);
}

}  // namespace

std::vector<ConfigDiff::Change> ConfigDiff::compare(const std::string& first, const std::string& second) {
  const std::vector<Entry> a = entriesOf(first);
  const std::vector<Entry> b = entriesOf(second);
  size_t begin = 0;
  while (begin < a.size() && begin < b.size() && a[begin] == b[begin]) ++begin;
  size_t endA = a.size();
  size_t endB = b.size();
  while (endA > begin && endB > begin && a[endA - 1] == b[endB - 1]) {
    --endA;
    --endB;
  }
  std::vector<Change> out;
  alignMiddle({a.begin() + static_cast<std::ptrdiff_t>(begin), a.begin() + static_cast<std::ptrdiff_t>(endA)},
              {b.begin() + static_cast<std::ptrdiff_t>(begin), b.begin() + static_cast<std::ptrdiff_t>(endB)},
              out);
  return out;
}

std::string ConfigDiff::unified(const std::vector<Change>& changes, const std::string& firstName,
                                const std::string& secondName, bool color) {
  const char* red = color ? "\033[31m" : "";
  const char* green = color ? "\033[32m" : "";
  const char* bold = color ? "\033[1m" : "";
  const char* reset = color ? "\033[0m" : "";
  std::string out;
  if (changes.empty()) return out;
  out += std::string(bold) + "--- " + firstName + reset + "\n";
  out += std::string(bold) + "+++ " + secondName + reset + "\n";
  // The heads written last, and the changed line itself: a change inside a
  // block that was just added or removed needs no head of its own.
  std::vector<std::string> shown;
  for (const Change& change : changes) {
    size_t same = 0;
    while (same < shown.size() && same < change.sections.size() && shown[same] == change.sections[same])
      ++same;
    for (size_t k = same; k < change.sections.size(); ++k) {
      out += std::string(bold) + "  " + change.sections[k] + reset + "\n";
    }
    out += std::string(change.mark == '-' ? red : green) + change.mark + " " + change.line + reset + "\n";
    shown = change.sections;
    shown.push_back(change.line);
  }
  return out;
}

}  // namespace qxparser
