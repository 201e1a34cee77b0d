// Access-list edits as the device makes them.
#include "config/AccessListMeaning.h"

#include <algorithm>
#include <map>
#include <memory>
#include <sstream>
#include <string_view>
#include <unordered_map>

#include "config/DeviceTextReader.h"
#include "config/MeaningText.h"
#include "config/QxParserUtil.h"
#include "config/ReadingSketch.h"

namespace qxparser {

namespace {

using meaning::freeRecord;
using meaning::startsWith;
using meaning::trimmed;

// The first command of a level that opens a mode, by its text: found
// without a scan of the level. The level's heads keep their texts while it
// is used.
class HeadIndex {
 public:
  explicit HeadIndex(const std::vector<CiscoCommandLine*>& records) {
    for (CiscoCommandLine* record : records) {
      if (record->hasFlags(CMDBIT_OPENS_MODE)) mHeads.emplace(record->getOriginalCmd(), record);
    }
  }
  CiscoCommandLine* sameHead(const CiscoCommandLine& head) const {
    const auto found = mHeads.find(head.getOriginalCmd());
    return found == mHeads.end() ? nullptr : found->second;
  }

 private:
  std::unordered_map<std::string_view, CiscoCommandLine*> mHeads;
};

bool isNamedList(std::string_view head) {
  return startsWith(head, "ip access-list ") || startsWith(head, "ipv6 access-list ");
}

// The number of a top-level "access-list N ..." line ("no " allowed), or "".
std::string listNumber(std::string_view line, bool negated) {
  const std::string_view lead = negated ? "no access-list " : "access-list ";
  if (line.compare(0, lead.size(), lead) != 0) return {};
  const size_t end = line.find_first_not_of("0123456789", lead.size());
  if (end == lead.size() || end == std::string_view::npos || line[end] != ' ') return {};
  return std::string(line.substr(lead.size(), end - lead.size()));
}

std::map<std::string, std::vector<std::string>> numberedLists(const std::string& text) {
  std::map<std::string, std::vector<std::string>> lists;
  meaning::forEachLine(text, [&lists](std::string_view line) {
    line = line.substr(0, line.find_last_not_of(" \t\r") + 1);
    const std::string number = listNumber(line, false);
    if (!number.empty()) lists[number].emplace_back(line);
  });
  return lists;
}

// The sequence number that begins an entry, or -1.
long sequenceOf(const CiscoCommandLine& entry) {
  const std::string& text = entry.getOriginalCmd();
  const size_t end = text.find_first_not_of("0123456789");
  if (end == 0 || end == std::string::npos || text[end] != ' ' || end > 9) return -1;
  return std::stol(text.substr(0, end));
}

void placeBySequence(std::vector<CiscoCommandLine*>& entries) {
  std::vector<long> numbers;
  long last = 0;
  for (const CiscoCommandLine* entry : entries) {
    const long own = sequenceOf(*entry);
    const bool added = entry->getLineNo() < 1 || entry->hasFlags(CMDBIT_FROM_CHANGES);
    if (entry->getTreeNodeSize() > 0 && !added) last = own >= 0 ? own : last + 10;
    numbers.push_back(own >= 0 ? own : last);
  }
  for (size_t i = 0; i < entries.size(); ++i) {
    CiscoCommandLine* entry = entries[i];
    const bool added = entry->getLineNo() < 1 || entry->hasFlags(CMDBIT_FROM_CHANGES);
    const long own = sequenceOf(*entry);
    if (!added || own < 0) continue;
    size_t to = 0;
    while (to < i && (numbers[to] <= own || entries[to]->getTreeNodeSize() == 0)) ++to;
    if (to == i) continue;
    entries.erase(entries.begin() + static_cast<long>(i));
    numbers.erase(numbers.begin() + static_cast<long>(i));
    entries.insert(entries.begin() + static_cast<long>(to), entry);
    numbers.insert(numbers.begin() + static_cast<long>(to), own);
  }
}

std::vector<std::string> entryTexts(const ReadingSketch& reading, size_t list) {
  std::vector<std::string> texts;
  for (size_t entry = list + 1; entry < reading.end(list); entry = reading.end(entry)) {
    if (reading.hasPath(entry)) texts.push_back(trimmed(std::string(reading.command(entry))));
  }
  return texts;
}

// One entry of a list: its sequence number and its text without the number.
struct Entry {
  long sequence;
  std::string text;
};

// The number of a list head "ip access-list standard|extended N", or "".
std::string numberedHead(const std::string& head) {
  for (const std::string lead : {"ip access-list standard ", "ip access-list extended "}) {
    if (!startsWith(head, lead)) continue;
    const std::string number = head.substr(lead.size());
    if (!number.empty() && number.find_first_not_of("0123456789") == std::string::npos) return number;
  }
  return {};
}

// numberedHead of a record's command (looked at only where it can be one).
std::string numberedHeadOf(const CiscoCommandLine& record) {
  const std::string& text = record.getOriginalCmd();
  return startsWith(text, "ip access-list ") ? numberedHead(trimmed(text)) : std::string();
}

// The entry text of a line, without a leading sequence number (whose value
// goes to `sequence`, -1 without one).
std::string entryText(const std::string& line, long& sequence) {
  const size_t end = line.find_first_not_of("0123456789");
  if (end == 0 || end == std::string::npos || line[end] != ' ' || end > 9) {
    sequence = -1;
    return line;
  }
  sequence = std::stol(line.substr(0, end));
  return line.substr(end + 1);
}

// One line of a named block applied to the entries of a list.
void applyEdit(std::vector<Entry>& entries, const std::string& line) {
  const bool negated = startsWith(line, "no ");
  long sequence = -1;
  const std::string text = entryText(negated ? line.substr(3) : line, sequence);
  const auto bySequence = [sequence](const Entry& e) { return e.sequence == sequence; };
  if (negated) {
    // "no N" names the entry by its number, "no <entry>" by its text.
    const bool byNumber =
        !text.empty() && text.size() < 10 && text.find_first_not_of("0123456789") == std::string::npos;
    const long number = byNumber ? std::stol(text) : -1;
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const Entry& e) {
      return byNumber ? e.sequence == number : e.text == text;
    });
    if (found != entries.end()) entries.erase(found);
    return;
  }
  if (sequence < 0) {
    entries.push_back({entries.empty() ? 10 : entries.back().sequence + 10, text});
    return;
  }
  if (std::find_if(entries.begin(), entries.end(), bySequence) != entries.end()) return;
  const auto at = std::find_if(entries.begin(), entries.end(),
                               [sequence](const Entry& e) { return e.sequence > sequence; });
  entries.insert(at, {sequence, text});
}

// The entries of numbered list `number` in `config`, numbered 10, 20, ...
std::vector<Entry> numberedEntries(const std::vector<CiscoCommandLine*>& config, const std::string& number) {
  std::vector<Entry> entries;
  const std::string lead = "access-list " + number + " ";
  for (const CiscoCommandLine* record : config) {
    const std::string text = trimmed(record->getOriginalCmd());
    if (startsWith(text, lead))
      entries.push_back({static_cast<long>(entries.size() + 1) * 10, text.substr(lead.size())});
  }
  return entries;
}

// The level-0 records of `text`, each given line number `lineNo`.
std::vector<CiscoCommandLine*> recordsOf(const std::string& text, int lineNo) {
  std::vector<CiscoCommandLine*> read;
  DeviceTextReader::read(text, read);
  for (auto it = read.begin(); it != read.end();) {
    if ((*it)->getFlag() == CMD_TEXT) {
      freeRecord(*it);
      it = read.erase(it);
    } else {
      (*it)->setLineNo(lineNo);
      ++it;
    }
  }
  return read;
}

// Puts `records` in place of `list[at]`, which is freed.
void replaceAt(std::vector<CiscoCommandLine*>& list, size_t at,
               const std::vector<CiscoCommandLine*>& records) {
  freeRecord(list[at]);
  list.erase(list.begin() + static_cast<long>(at));
  list.insert(list.begin() + static_cast<long>(at), records.begin(), records.end());
}

bool allNumbered(const std::vector<std::string>& entries) {
  long sequence = -1;
  for (const std::string& entry : entries) {
    entryText(entry, sequence);
    if (sequence < 0) return false;
  }
  return true;
}

// The lines that turn the entries `before` into `after` on the device: "no"
// for each entry that goes, and each entry that comes. An entry without a
// number goes to the end of its list, so where one must stand ahead of kept
// entries, those are taken away and written again behind it.
std::string entryEdits(const std::vector<std::string>& before, const std::vector<std::string>& after) {
  std::string lines;
  std::vector<std::string> kept;
  for (const std::string& entry : before) {
    if (std::find(after.begin(), after.end(), entry) == after.end()) {
      lines += " no " + entry + "\n";
    } else {
      kept.push_back(entry);
    }
  }
  size_t same = 0;
  if (allNumbered(before) && allNumbered(after)) {
    same = after.size();
    for (const std::string& entry : after) {
      if (std::find(before.begin(), before.end(), entry) == before.end()) lines += " " + entry + "\n";
    }
    return lines;
  }
  while (same < kept.size() && same < after.size() && kept[same] == after[same]) ++same;
  for (size_t i = same; i < kept.size(); ++i) lines += " no " + kept[i] + "\n";
  for (size_t i = same; i < after.size(); ++i) lines += " " + after[i] + "\n";
  return lines;
}

// The lines of the blocks of named list `name` that stand in `changes` before
// `before`; the blocks leave `changes` (the device applies them before a
// resequence that follows). `before` is moved back by the blocks that went.
std::vector<std::string> takeEarlierEdits(std::vector<CiscoCommandLine*>& changes, size_t& before,
                                          const std::string& name) {
  std::vector<std::string> lines;
  for (size_t at = 0; at < before;) {
    const std::string head = trimmed(changes[at]->getOriginalCmd());
    if (!isNamedList(head) || head.substr(head.rfind(' ') + 1) != name) {
      ++at;
      continue;
    }
    for (const CiscoCommandLine* line : changes[at]->getChildCommands()) {
      if (line->getTreeNodeSize() > 0) lines.push_back(trimmed(line->getOriginalCmd()));
    }
    freeRecord(changes[at]);
    changes.erase(changes.begin() + static_cast<long>(at));
    --before;
  }
  return lines;
}

// The entries of a named list, entries without a number counted 10 after the
// one before; `shown` tells whether they all show their numbers.
std::vector<Entry> namedEntries(const CiscoCommandLine& list, bool& shown) {
  std::vector<Entry> entries;
  shown = true;
  for (const CiscoCommandLine* line : list.getChildCommands()) {
    if (line->getTreeNodeSize() == 0) continue;
    long sequence = -1;
    const std::string text = entryText(trimmed(line->getOriginalCmd()), sequence);
    if (sequence < 0) {
      shown = false;
      sequence = entries.empty() ? 10 : entries.back().sequence + 10;
    }
    entries.push_back({sequence, text});
  }
  return entries;
}

}  // namespace

bool AccessListMeaning::wholeListChanges(const std::string& changes, std::string& out) {
  return meaning::rewriteLines(changes, out, [](std::string_view line, std::string& piece) {
    const std::string number = listNumber(line, true);
    if (number.empty()) {
      piece += line;
    } else {
      piece += "no access-list ";
      piece += number;
    }
  });
}

std::string AccessListMeaning::changedNumberedLists(const std::string& first, const std::string& second,
                                                    std::vector<std::string>& numbers) {
  const auto before = numberedLists(first);
  const auto after = numberedLists(second);
  std::string out;
  for (const auto& [number, entries] : before) {
    const auto found = after.find(number);
    if (found == after.end() || found->second == entries) continue;
    numbers.push_back(number);
    out += "no access-list " + number + "\n";
    for (const std::string& entry : found->second) out += entry + "\n";
  }
  return out;
}

void AccessListMeaning::entriesBySequence(std::vector<CiscoCommandLine*>& records) {
  for (CiscoCommandLine* record : records) {
    const std::string& text = record->getOriginalCmd();
    if (isNamedList(text)) {
      placeBySequence(record->getChildCommands());
    }
  }
}

void AccessListMeaning::removeNamedEntries(std::vector<CiscoCommandLine*>& changes,
                                           std::vector<CiscoCommandLine*>& config) {
  std::unique_ptr<HeadIndex> heads;
  for (CiscoCommandLine* change : changes) {
    const std::string& head = change->getOriginalCmd();
    if (!isNamedList(head)) continue;
    if (!heads) heads = std::make_unique<HeadIndex>(config);
    CiscoCommandLine* list = heads->sameHead(*change);
    if (!list) continue;
    std::vector<CiscoCommandLine*>& asked = change->getChildCommands();
    std::vector<CiscoCommandLine*>& entries = list->getChildCommands();
    for (auto it = asked.begin(); it != asked.end();) {
      const std::string text = trimmed((*it)->getOriginalCmd());
      if (!(*it)->hasFlags(CMDBIT_NO) || !startsWith(text, "no ") || sequenceOf(**it) >= 0 ||
          text.find_first_not_of("0123456789", 3) == std::string::npos) {
        ++it;
        continue;
      }
      const std::string entry = text.substr(3);
      const auto found = std::find_if(entries.begin(), entries.end(), [&entry](const CiscoCommandLine* line) {
        const std::string own = trimmed(line->getOriginalCmd());
        return own == entry || (sequenceOf(*line) >= 0 && own.substr(own.find(' ') + 1) == entry);
      });
      if (found == entries.end()) {
        ++it;
        continue;
      }
      freeRecord(*found);
      entries.erase(found);
      freeRecord(*it);
      it = asked.erase(it);
    }
  }
}

std::string AccessListMeaning::changedNamedLists(const ReadingSketch& from, const ReadingSketch& to,
                                                 std::vector<std::string>& heads) {
  std::string out;
  // The top-level mode heads of `to` by their text, the first of each; made
  // at the first named list.
  std::unique_ptr<std::unordered_map<std::string_view, size_t>> toHeads;
  for (size_t list = 0; list < from.size(); list = from.end(list)) {
    const std::string_view head = from.command(list);
    if (!isNamedList(head)) continue;
    if (!toHeads) {
      toHeads = std::make_unique<std::unordered_map<std::string_view, size_t>>();
      for (size_t at = 0; at < to.size(); at = to.end(at)) {
        if (to.opensMode(at)) toHeads->emplace(to.command(at), at);
      }
    }
    const auto other = toHeads->find(head);
    if (other == toHeads->end()) continue;
    const auto before = entryTexts(from, list);
    const auto after = entryTexts(to, other->second);
    if (before == after) continue;
    heads.emplace_back(head);
    const std::string lines = entryEdits(before, after);
    if (!lines.empty()) out += trimmed(std::string(head)) + "\n" + lines;
  }
  return out;
}

void AccessListMeaning::numberedThroughNamed(std::vector<CiscoCommandLine*>& changes,
                                             const std::vector<CiscoCommandLine*>& config) {
  for (size_t i = 0; i < changes.size(); ++i) {
    const std::string number = numberedHeadOf(*changes[i]);
    if (number.empty() || !changes[i]->hasFlags(CMDBIT_OPENS_MODE)) continue;
    // A configuration that shows the list in its named form keeps it so.
    const bool shownNamed = std::any_of(config.begin(), config.end(), [&number](const CiscoCommandLine* record) {
      return record->hasFlags(CMDBIT_OPENS_MODE) && numberedHeadOf(*record) == number;
    });
    if (shownNamed) continue;
    std::vector<Entry> entries = numberedEntries(config, number);
    for (const CiscoCommandLine* line : changes[i]->getChildCommands()) {
      if (line->getTreeNodeSize() > 0) applyEdit(entries, trimmed(line->getOriginalCmd()));
    }
    std::string text = "no access-list " + number + "\n";
    for (const Entry& entry : entries) text += "access-list " + number + " " + entry.text + "\n";
    const std::vector<CiscoCommandLine*> records = recordsOf(text, changes[i]->getLineNo());
    replaceAt(changes, i, records);
    i += records.size() - 1;
  }
}

void AccessListMeaning::resequence(std::vector<CiscoCommandLine*>& changes,
                                   std::vector<CiscoCommandLine*>& config) {
  for (size_t i = 0; i < changes.size();) {
    // Only a line that holds the word is read word by word.
    if (changes[i]->getOriginalCmd().find("resequence") == std::string::npos) {
      ++i;
      continue;
    }
    std::istringstream words(trimmed(changes[i]->getOriginalCmd()));
    std::string ip, accessList, verb, name;
    long start = 10, step = 10;
    words >> ip >> accessList >> verb >> name;
    if (ip != "ip" || accessList != "access-list" || verb != "resequence" || name.empty()) {
      ++i;
      continue;
    }
    if (!(words >> start)) start = 10;
    if (!(words >> step)) step = 10;
    const std::vector<std::string> earlier = takeEarlierEdits(changes, i, name);
    for (size_t at = 0; at < config.size(); ++at) {
      const std::string head = trimmed(config[at]->getOriginalCmd());
      if (!isNamedList(head) || head.substr(head.rfind(' ') + 1) != name) continue;
      bool shown = true;
      std::vector<Entry> entries = namedEntries(*config[at], shown);
      for (const std::string& line : earlier) applyEdit(entries, line);
      std::string text = head + "\n";
      long next = start;
      for (const Entry& entry : entries) {
        text += " " + (shown ? std::to_string(next) + " " : std::string()) + entry.text + "\n";
        next += step;
      }
      replaceAt(config, at, recordsOf(text, config[at]->getLineNo()));
    }
    freeRecord(changes[i]);
    changes.erase(changes.begin() + static_cast<long>(i));
  }
}

}  // namespace qxparser
