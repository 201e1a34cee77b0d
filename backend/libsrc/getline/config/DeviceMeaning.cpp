// Rollback lines that the comparison by grammar path leaves out.
#include "config/DeviceMeaning.h"

#include <algorithm>
#include <set>
#include <sstream>

#include "config/DeviceTextReader.h"
#include "config/QxParserUtil.h"

namespace qxparser {

namespace {

std::string trimmed(std::string text) {
  text.erase(text.find_last_not_of(" \r\n") + 1);
  return text;
}

const CiscoCommandLine* sameCommand(const std::vector<CiscoCommandLine*>& records,
                                    const CiscoCommandLine& wanted) {
  for (const CiscoCommandLine* record : records) {
    if (record->getTreeNodeSize() > 0 && record->getCurrentCommand() == wanted.getCurrentCommand())
      return record;
  }
  return nullptr;
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
  for (CiscoCommandLine* command : to) {
    if (command->getTreeNodeSize() == 0 || command->hasFlags(CMDBIT_NO) ||
        !command->hasFlags(CMDBIT_STORED)) {
      continue;
    }
    const CiscoCommandLine* same = sameCommand(from, *command);
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
    if (record->hasFlags(CMDBIT_OPENS_MODE) && record->getOriginalCmd() == head.getOriginalCmd())
      return record;
  }
  return nullptr;
}

bool startsWith(const std::string& text, const std::string& lead) {
  return text.compare(0, lead.size(), lead) == 0;
}

void freeRecord(CiscoCommandLine* record) {
  std::vector<CiscoCommandLine*> alone{record};
  QxParserUtil::deleteCommands(alone);
}

}  // namespace

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
  for (size_t i = 0; i < records.size(); ++i) {
    CiscoCommandLine* record = records[i];
    std::vector<long> own;
    if (!isAdded(*record) || record->hasFlags(CMDBIT_NO)) continue;
    const std::string kind = numberedKind(*record, own);
    if (kind.empty()) continue;
    for (size_t to = 0; to < records.size(); ++to) {
      std::vector<long> other;
      if (to == i || isAdded(*records[to]) || numberedKind(*records[to], other) != kind || !(own < other))
        continue;
      if (to < i) {
        records.erase(records.begin() + static_cast<long>(i));
        records.insert(records.begin() + static_cast<long>(to), record);
      }
      break;
    }
  }
}

namespace {

void keysOf(const std::vector<CiscoCommandLine*>& records, const std::string& mode,
            std::set<std::string>& keys) {
  for (const CiscoCommandLine* record : records) {
    if (record->getTreeNodeSize() == 0) continue;
    const std::string key = mode + trimmed(record->getOriginalCmd());
    keys.insert(key);
    keysOf(record->getChildCommands(), key + "\n", keys);
  }
}

void dropIn(std::vector<CiscoCommandLine*>& records, const std::string& mode,
            const std::set<std::string>& before, const std::set<std::string>& after) {
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
