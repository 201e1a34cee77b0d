// Rollback lines that the comparison by grammar path leaves out.
#include "config/DeviceMeaning.h"

#include <sstream>

#include <algorithm>
#include <map>
#include <set>
#include <unordered_map>

#include "config/DeviceTextReader.h"
#include "config/QxParserUtil.h"

namespace qxparser {

namespace {

std::string trimmed(std::string text) {
  text.erase(text.find_last_not_of(" \r\n") + 1);
  return text;
}

// The first record of `records` with a path, by its command; one look-up
// per record of the other side keeps a level's comparison linear.
std::unordered_map<std::string, const CiscoCommandLine*> byCommand(const std::vector<CiscoCommandLine*>& records) {
  std::unordered_map<std::string, const CiscoCommandLine*> index;
  index.reserve(records.size());
  for (const CiscoCommandLine* record : records) {
    if (record->getTreeNodeSize() > 0) index.emplace(record->getCurrentCommand(), record);
  }
  return index;
}

// A "no" form of `from` that the comparison takes for `command`.
bool onlyNegated(const std::vector<CiscoCommandLine*>& from, CiscoCommandLine& command) {
  for (CiscoCommandLine* record : from) {
    if (record->getTreeNodeSize() > 0 && record->hasFlags(CMDBIT_NO) && !record->hasFlags(CMDBIT_STORED) &&
        record->isComparable(&command) && command.isNoable(record)) {
      return true;
    }
  }
  return false;
}

void collect(const std::vector<CiscoCommandLine*>& from, const std::vector<CiscoCommandLine*>& to,
             const std::string& heads, int depth, std::string& out) {
  const std::string indent(static_cast<size_t>(depth), ' ');
  const auto fromByCommand = byCommand(from);
  for (CiscoCommandLine* command : to) {
    if (command->getTreeNodeSize() == 0 || command->hasFlags(CMDBIT_NO) || !command->hasFlags(CMDBIT_STORED)) {
      continue;
    }
    const auto found = fromByCommand.find(command->getCurrentCommand());
    const CiscoCommandLine* same = found == fromByCommand.end() ? nullptr : found->second;
    if (same) {
      if (command->hasFlags(CMDBIT_OPENS_MODE)) {
        collect(same->getChildCommands(), command->getChildCommands(),
                heads + indent + trimmed(command->getOriginalCmd()) + "\n", depth + 1, out);
      }
    } else if (!command->hasFlags(CMDBIT_OPENS_MODE) && onlyNegated(from, *command)) {
      out += heads + indent + trimmed(command->getOriginalCmd()) + "\n";
    }
  }
}

CiscoCommandLine* sameHead(const std::vector<CiscoCommandLine*>& records, const CiscoCommandLine& head) {
  for (CiscoCommandLine* record : records) {
    if (record->hasFlags(CMDBIT_OPENS_MODE) && record->getOriginalCmd() == head.getOriginalCmd()) return record;
  }
  return nullptr;
}

// The number of a top-level "access-list N ..." line ("no " allowed), or "".
std::string listNumber(const std::string& line, bool negated) {
  const std::string lead = negated ? "no access-list " : "access-list ";
  if (line.compare(0, lead.size(), lead) != 0) return {};
  const size_t end = line.find_first_not_of("0123456789", lead.size());
  if (end == lead.size() || end == std::string::npos || line[end] != ' ') return {};
  return line.substr(lead.size(), end - lead.size());
}

std::map<std::string, std::vector<std::string>> numberedLists(const std::string& text) {
  std::map<std::string, std::vector<std::string>> lists;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) {
    line.erase(line.find_last_not_of(" \t\r") + 1);
    const std::string number = listNumber(line, false);
    if (!number.empty()) lists[number].push_back(line);
  }
  return lists;
}

// The sequence number that begins an entry, or -1.
long sequenceOf(const CiscoCommandLine& entry) {
  const std::string& text = entry.getOriginalCmd();
  const size_t end = text.find_first_not_of("0123456789");
  if (end == 0 || end == std::string::npos || text[end] != ' ' || end > 9) return -1;
  return std::stol(text.substr(0, end));
}

bool startsWith(const std::string& text, const std::string& lead) { return text.compare(0, lead.size(), lead) == 0; }

// The neighbour of a "no neighbor X remote-as ..." line, or "".
std::string goneNeighbour(const CiscoCommandLine& record) {
  const std::string& text = record.getOriginalCmd();
  if (!startsWith(text, "no neighbor ")) return {};
  const size_t end = text.find(' ', 12);
  if (end == std::string::npos || text.compare(end, 11, " remote-as ") != 0) return {};
  return text.substr(12, end - 12);
}

void freeRecord(CiscoCommandLine* record) {
  std::vector<CiscoCommandLine*> alone{record};
  QxParserUtil::deleteCommands(alone);
}

// Drops every "no neighbor X ..." line of `records` and of the modes below.
void dropNeighbourLines(std::vector<CiscoCommandLine*>& records, const std::set<std::string>& gone) {
  for (auto it = records.begin(); it != records.end();) {
    const std::string& text = (*it)->getOriginalCmd();
    const size_t end = text.find(' ', 12);
    if (startsWith(text, "no neighbor ") && end != std::string::npos && gone.count(text.substr(12, end - 12))) {
      freeRecord(*it);
      it = records.erase(it);
      continue;
    }
    std::vector<CiscoCommandLine*>& inner = (*it)->getChildCommands();
    const bool had = !inner.empty();
    dropNeighbourLines(inner, gone);
    // A mode head that held only such lines has nothing left to say.
    if (had && inner.empty()) {
      freeRecord(*it);
      it = records.erase(it);
      continue;
    }
    ++it;
  }
}

size_t indentOf(const CiscoCommandLine& record) {
  const std::string& raw = record.getRawText();
  const size_t lead = raw.find_first_not_of(' ');
  return lead == std::string::npos ? 0 : lead;
}

// A line written at the level of the router behind an address family was read
// into the family (the device reads pasted text so too); it goes back up.
void liftOutdented(std::vector<CiscoCommandLine*>& children) {
  for (size_t i = 0; i < children.size(); ++i) {
    CiscoCommandLine* family = children[i];
    if (!family->hasFlags(CMDBIT_OPENS_MODE) || family->getRawText().empty()) continue;
    std::vector<CiscoCommandLine*>& inner = family->getChildCommands();
    const auto cut = std::find_if(inner.begin(), inner.end(), [family](const CiscoCommandLine* line) {
      return !line->getRawText().empty() && indentOf(*line) <= indentOf(*family);
    });
    std::vector<CiscoCommandLine*> lifted(cut, inner.end());
    inner.erase(cut, inner.end());
    for (CiscoCommandLine* line : lifted) line->setParentCommand(family->getParentCommand(), false);
    children.insert(children.begin() + static_cast<long>(i) + 1, lifted.begin(), lifted.end());
  }
}

void neighboursOf(CiscoCommandLine& router) {
  std::set<std::string> gone;
  for (const CiscoCommandLine* child : router.getChildCommands()) {
    const std::string neighbour = goneNeighbour(*child);
    if (!neighbour.empty()) gone.insert(neighbour);
  }
  std::vector<CiscoCommandLine*>& children = router.getChildCommands();
  if (!gone.empty()) {
    dropNeighbourLines(children, gone);
    std::string text = router.getOriginalCmd();
    text.erase(text.find_last_not_of(" \r\n") + 1);
    text += "\n";
    for (const std::string& neighbour : gone) text += " no neighbor " + neighbour + "\n";
    std::vector<CiscoCommandLine*> read;
    DeviceTextReader::read(text, read);
    for (CiscoCommandLine* head : read) {
      if (head->getFlag() == CMD_TEXT) continue;
      for (CiscoCommandLine* line : head->getChildCommands()) line->setParentCommand(&router, false);
      children.insert(children.begin(), head->getChildCommands().begin(), head->getChildCommands().end());
      head->getChildCommands().clear();
    }
    QxParserUtil::deleteCommands(read);
  }
  liftOutdented(children);
  std::stable_partition(children.begin(), children.end(),
                        [](const CiscoCommandLine* child) { return !child->hasFlags(CMDBIT_OPENS_MODE); });
}

}  // namespace

std::string DeviceMeaning::wholeNeighbourChanges(const std::string& changes, std::set<std::string>& gone) {
  std::istringstream in(changes);
  std::string out;
  for (std::string line; std::getline(in, line);) {
    std::istringstream words(line);
    std::string no, neighbor, who, what;
    words >> no >> neighbor >> who >> what;
    if (no == "no" && neighbor == "neighbor" && !who.empty() && (what.empty() || what == "remote-as")) {
      gone.insert(who);
      line = line.substr(0, line.find_first_not_of(' ')) + "no neighbor " + who;
    }
    out += line + "\n";
  }
  return out;
}

void DeviceMeaning::dropGoneNeighbours(std::vector<CiscoCommandLine*>& config, const std::set<std::string>& gone) {
  if (gone.empty()) return;
  for (CiscoCommandLine* record : config) {
    if (!startsWith(record->getOriginalCmd(), "router bgp ")) continue;
    for (CiscoCommandLine* family : record->getChildCommands()) {
      if (!family->hasFlags(CMDBIT_OPENS_MODE)) continue;
      std::vector<CiscoCommandLine*>& lines = family->getChildCommands();
      for (auto it = lines.begin(); it != lines.end();) {
        const std::string& text = (*it)->getOriginalCmd();
        const size_t end = text.find(' ', 9);
        if (startsWith(text, "neighbor ") && end != std::string::npos && gone.count(text.substr(9, end - 9))) {
          freeRecord(*it);
          it = lines.erase(it);
        } else {
          ++it;
        }
      }
    }
  }
}

void DeviceMeaning::exitLinesLast(std::vector<CiscoCommandLine*>& records) {
  for (CiscoCommandLine* record : records) {
    std::vector<CiscoCommandLine*>& inner = record->getChildCommands();
    std::stable_partition(inner.begin(), inner.end(), [](const CiscoCommandLine* line) {
      if (line->getFlag() != CMD_TEXT) return true;
      const std::string& raw = line->getRawText().empty() ? line->getOriginalStr() : line->getRawText();
      const size_t lead = raw.find_first_not_of(" \t");
      return lead == std::string::npos || raw.compare(lead, 5, "exit-") != 0;
    });
    exitLinesLast(inner);
  }
}

namespace {

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

}  // namespace

void DeviceMeaning::removeNamedEntries(std::vector<CiscoCommandLine*>& changes,
                                       std::vector<CiscoCommandLine*>& config) {
  // The first head of each mode of the configuration, by its text; the
  // configuration keeps its level-0 records while entries go.
  std::unordered_map<std::string, CiscoCommandLine*> heads;
  for (CiscoCommandLine* record : config) {
    if (record->hasFlags(CMDBIT_OPENS_MODE)) heads.emplace(record->getOriginalCmd(), record);
  }
  for (CiscoCommandLine* change : changes) {
    const std::string& head = change->getOriginalCmd();
    if (!startsWith(head, "ip access-list ") && !startsWith(head, "ipv6 access-list ")) continue;
    const auto same = heads.find(head);
    if (same == heads.end()) continue;
    CiscoCommandLine* list = same->second;
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

namespace {

std::vector<std::string> entryTexts(const CiscoCommandLine& list) {
  std::vector<std::string> texts;
  for (const CiscoCommandLine* entry : list.getChildCommands()) {
    if (entry->getTreeNodeSize() > 0) texts.push_back(trimmed(entry->getOriginalCmd()));
  }
  return texts;
}

}  // namespace

std::string DeviceMeaning::changedNamedLists(const std::vector<CiscoCommandLine*>& from,
                                             const std::vector<CiscoCommandLine*>& to,
                                             std::vector<std::string>& heads) {
  std::string out;
  // The first head of each mode of `to`, by its text.
  std::unordered_map<std::string, const CiscoCommandLine*> toHeads;
  for (const CiscoCommandLine* record : to) {
    if (record->hasFlags(CMDBIT_OPENS_MODE)) toHeads.emplace(record->getOriginalCmd(), record);
  }
  for (const CiscoCommandLine* list : from) {
    const std::string& head = list->getOriginalCmd();
    if (!startsWith(head, "ip access-list ") && !startsWith(head, "ipv6 access-list ")) continue;
    const auto same = toHeads.find(head);
    if (same == toHeads.end()) continue;
    const CiscoCommandLine* other = same->second;
    const auto before = entryTexts(*list);
    const auto after = entryTexts(*other);
    if (before == after) continue;
    heads.push_back(head);
    std::string lines;
    for (const std::string& entry : before) {
      if (std::find(after.begin(), after.end(), entry) == after.end()) lines += " no " + entry + "\n";
    }
    for (const std::string& entry : after) {
      if (std::find(before.begin(), before.end(), entry) == before.end()) lines += " " + entry + "\n";
    }
    if (!lines.empty()) out += trimmed(head) + "\n" + lines;
  }
  return out;
}

namespace {

// The kind of a numbered top-level command and the numbers that order it
// ("" when it has no such place).
std::string numberedKind(const CiscoCommandLine& record, std::vector<long>& numbers) {
  const std::string text = trimmed(record.getOriginalCmd());
  std::string kind;
  size_t from = 0;
  if (startsWith(text, "vlan ")) {
    kind = "vlan";
    from = 5;
  } else if (startsWith(text, "ip route ") && text.find(" vrf ") == std::string::npos) {
    kind = "ip route";
    from = 9;
  } else if (startsWith(text, "interface ")) {
    from = text.find_first_of("0123456789", 10);
    if (from == std::string::npos) return {};
    kind = text.substr(0, from);
  } else {
    return {};
  }
  const size_t end = kind == "ip route" ? text.find(' ', text.find(' ', from) + 1) : text.size();
  const std::string part = text.substr(from, end == std::string::npos ? std::string::npos : end - from);
  if (part.find_first_not_of("0123456789./: ") != std::string::npos) return {};
  long value = -1;
  for (char c : part) {
    if (c >= '0' && c <= '9') {
      value = (value < 0 ? 0 : value * 10) + (c - '0');
    } else if (value >= 0) {
      numbers.push_back(value);
      value = -1;
    }
  }
  if (value >= 0) numbers.push_back(value);
  return numbers.empty() ? std::string() : kind;
}

bool isAdded(const CiscoCommandLine& record) {
  return record.getLineNo() < 1 || record.hasFlags(CMDBIT_FROM_CHANGES);
}

}  // namespace

void DeviceMeaning::placeInNumberOrder(std::vector<CiscoCommandLine*>& records) {
  // Only added records move, and only towards the front, so the records that
  // stood before keep their order among themselves and each record is met at
  // its first position: the standing ones are listed once per kind, in order,
  // with their numbers.
  struct Standing {
    const CiscoCommandLine* record;
    std::vector<long> numbers;
  };
  std::map<std::string, std::vector<Standing>> standing;
  for (const CiscoCommandLine* record : records) {
    if (isAdded(*record)) continue;
    std::vector<long> numbers;
    const std::string kind = numberedKind(*record, numbers);
    if (!kind.empty()) standing[kind].push_back({record, std::move(numbers)});
  }
  const std::vector<CiscoCommandLine*> original(records);
  for (size_t i = 0; i < original.size(); ++i) {
    const CiscoCommandLine* record = original[i];
    if (!isAdded(*record) || record->hasFlags(CMDBIT_NO)) continue;
    std::vector<long> own;
    const auto kind = standing.find(numberedKind(*record, own));
    if (kind == standing.end()) continue;
    const auto first = std::find_if(kind->second.begin(), kind->second.end(),
                                    [&own](const Standing& other) { return own < other.numbers; });
    if (first == kind->second.end()) continue;
    // The records in front of this one only changed places among themselves.
    const auto at = records.begin() + static_cast<long>(i);
    const auto to = std::find(records.begin(), at, first->record);
    if (to != at) std::rotate(to, at, at + 1);
  }
}

namespace {

void keysOf(const std::vector<CiscoCommandLine*>& records, const std::string& mode, std::set<std::string>& keys) {
  for (const CiscoCommandLine* record : records) {
    if (record->getTreeNodeSize() == 0) continue;
    const std::string key = mode + trimmed(record->getOriginalCmd());
    keys.insert(key);
    keysOf(record->getChildCommands(), key + "\n", keys);
  }
}

void dropIn(std::vector<CiscoCommandLine*>& records, const std::string& mode, const std::set<std::string>& before,
            const std::set<std::string>& after) {
  for (auto it = records.begin(); it != records.end();) {
    const std::string own = trimmed((*it)->getOriginalCmd());
    if (startsWith(own, "no ") && (*it)->getChildCommands().empty()) {
      const std::string kept = mode + own.substr(3);
      if (before.count(kept) && after.count(kept) && !after.count(mode + own)) {
        freeRecord(*it);
        it = records.erase(it);
        continue;
      }
    }
    std::vector<CiscoCommandLine*>& inner = (*it)->getChildCommands();
    const bool had = !inner.empty();
    dropIn(inner, mode + own + "\n", before, after);
    if (had && inner.empty()) {
      freeRecord(*it);
      it = records.erase(it);
      continue;
    }
    ++it;
  }
}

}  // namespace

void DeviceMeaning::dropUnchangedNegations(std::vector<CiscoCommandLine*>& out,
                                           const std::vector<CiscoCommandLine*>& from,
                                           const std::vector<CiscoCommandLine*>& to) {
  std::set<std::string> before;
  std::set<std::string> after;
  keysOf(from, "", before);
  keysOf(to, "", after);
  dropIn(out, "", before, after);
}

void DeviceMeaning::entriesBySequence(std::vector<CiscoCommandLine*>& records) {
  for (CiscoCommandLine* record : records) {
    const std::string& text = record->getOriginalCmd();
    if (startsWith(text, "ip access-list ") || startsWith(text, "ipv6 access-list ")) {
      placeBySequence(record->getChildCommands());
    }
  }
}

void DeviceMeaning::orderNeighbours(std::vector<CiscoCommandLine*>& out) {
  for (CiscoCommandLine* record : out) {
    if (startsWith(record->getOriginalCmd(), "router bgp ")) neighboursOf(*record);
  }
}

std::string DeviceMeaning::wholeListChanges(const std::string& changes) {
  std::istringstream in(changes);
  std::string out;
  for (std::string line; std::getline(in, line);) {
    const std::string number = listNumber(line, true);
    out += number.empty() ? line : "no access-list " + number;
    out += "\n";
  }
  return out;
}

std::string DeviceMeaning::changedNumberedLists(const std::string& first, const std::string& second,
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

std::string DeviceMeaning::missedCommands(const std::vector<CiscoCommandLine*>& from,
                                          const std::vector<CiscoCommandLine*>& to) {
  std::string out;
  collect(from, to, "", 0, out);
  return out;
}

void DeviceMeaning::graft(std::vector<CiscoCommandLine*>& extra, std::vector<CiscoCommandLine*>& into,
                          CiscoCommandLine* parent) {
  for (CiscoCommandLine* record : extra) {
    if (record->getFlag() == CMD_TEXT) {
      std::vector<CiscoCommandLine*> alone{record};
      QxParserUtil::deleteCommands(alone);
      continue;
    }
    CiscoCommandLine* head = record->hasFlags(CMDBIT_OPENS_MODE) ? sameHead(into, *record) : nullptr;
    if (head) {
      graft(record->getChildCommands(), head->getChildCommands(), head);
      std::vector<CiscoCommandLine*> alone{record};
      QxParserUtil::deleteCommands(alone);
    } else {
      record->setParentCommand(parent, false);
      into.push_back(record);
    }
  }
  extra.clear();
}

}  // namespace qxparser
