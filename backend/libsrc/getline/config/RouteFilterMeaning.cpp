// Prefix-list numbers and route-map entry actions as the device gives them.
#include "config/RouteFilterMeaning.h"

#include <algorithm>
#include <map>
#include <string>

#include "config/DeviceTextReader.h"
#include "config/MeaningText.h"
#include "config/QxParserUtil.h"

namespace qxparser {

namespace {

using meaning::freeRecord;
using meaning::trimmed;
using meaning::wordsOf;

bool isNumber(const std::string& word) {
  return !word.empty() && word.size() < 10 && word.find_first_not_of("0123456789") == std::string::npos;
}

// The first command record of `text`, or nullptr.
CiscoCommandLine* recordOf(const std::string& text) {
  std::vector<CiscoCommandLine*> read;
  DeviceTextReader::read(text, read);
  CiscoCommandLine* found = nullptr;
  for (CiscoCommandLine* record : read) {
    if (!found && record->getFlag() != CMD_TEXT) {
      found = record;
    } else {
      freeRecord(record);
    }
  }
  return found;
}

// "ip|ipv6 prefix-list NAME": the words that name a list, and whether the
// line is an entry of it ("seq N permit|deny ..." or "permit|deny ...").
bool prefixEntry(const std::vector<std::string>& words, std::string& list, long& sequence) {
  if (words.size() < 5 || (words[0] != "ip" && words[0] != "ipv6") || words[1] != "prefix-list") return false;
  list = words[0] + " prefix-list " + words[2];
  if (words[3] == "seq" && isNumber(words[4])) {
    sequence = std::stol(words[4]);
    return true;
  }
  sequence = -1;
  return words[3] == "permit" || words[3] == "deny";
}

// The words of a prefix-list entry behind its list and sequence number.
std::string afterNumber(const std::vector<std::string>& words) {
  std::string text;
  for (size_t i = words[3] == "seq" ? 5 : 3; i < words.size(); ++i) text += " " + words[i];
  return text;
}

// The words of a "route-map NAME permit|deny SEQ" head, or none.
std::vector<std::string> routeMapHead(const CiscoCommandLine& record) {
  const std::string& text = record.getOriginalCmd();
  if (text.compare(0, 10, "route-map ") != 0) return {};
  std::vector<std::string> words = wordsOf(text);
  if (words.size() != 4 || !isNumber(words[3])) return {};
  return words;
}

bool numbersOff(const std::vector<CiscoCommandLine*>& config) {
  for (const CiscoCommandLine* record : config) {
    if (record->getOriginalCmd().find("sequence-number") == std::string::npos) continue;
    const std::string text = trimmed(record->getOriginalCmd());
    if (text == "no ip prefix-list sequence-number" || text == "no ipv6 prefix-list sequence-number")
      return true;
  }
  return false;
}

// Whether a line names a prefix list (only such lines are looked at word by
// word).
bool namesPrefixList(const CiscoCommandLine* record) {
  return record->getOriginalCmd().find("prefix-list") != std::string::npos;
}

// Whether `changes` hold a prefix-list entry without a sequence number: only
// such entries are numbered.
bool anyUnnumberedEntry(const std::vector<CiscoCommandLine*>& changes) {
  std::string list;
  long sequence = -1;
  return std::any_of(changes.begin(), changes.end(), [&](const CiscoCommandLine* record) {
    return namesPrefixList(record) && prefixEntry(wordsOf(record->getOriginalCmd()), list, sequence) && sequence < 0;
  });
}

}  // namespace

void RouteFilterMeaning::numberPrefixEntries(std::vector<CiscoCommandLine*>& changes,
                                             const std::vector<CiscoCommandLine*>& config) {
  if (numbersOff(config) || !anyUnnumberedEntry(changes)) return;
  std::map<std::string, long> highest;
  // The number of each entry by its list and what follows the number.
  std::map<std::string, long> numbered;
  std::string list;
  long sequence = -1;
  const auto note = [&](const std::vector<std::string>& words) {
    if (!prefixEntry(words, list, sequence) || sequence < 0) return;
    if (sequence > highest[list]) highest[list] = sequence;
    numbered.emplace(list + " " + afterNumber(words), sequence);
  };
  for (const CiscoCommandLine* record : config) {
    if (namesPrefixList(record)) note(wordsOf(record->getOriginalCmd()));
  }
  for (CiscoCommandLine*& record : changes) {
    if (!namesPrefixList(record)) continue;
    const std::vector<std::string> words = wordsOf(record->getOriginalCmd());
    if (!prefixEntry(words, list, sequence)) continue;
    if (sequence >= 0) {
      note(words);
      continue;
    }
    // An entry the list holds already keeps its number.
    const auto known = numbered.find(list + " " + afterNumber(words));
    const long number = known != numbered.end() ? known->second : (highest[list] += 5);
    std::string text = list + " seq " + std::to_string(number);
    for (size_t i = 3; i < words.size(); ++i) text += " " + words[i];
    CiscoCommandLine* renumbered = recordOf(text + "\n");
    if (!renumbered) continue;
    numbered.emplace(list + " " + afterNumber(words), number);
    renumbered->setLineNo(record->getLineNo());
    freeRecord(record);
    record = renumbered;
  }
}

void RouteFilterMeaning::changeEntryActions(const std::vector<CiscoCommandLine*>& changes,
                                            std::vector<CiscoCommandLine*>& config) {
  // Route-map heads of `config` by map and sequence number, made when a
  // change names one.
  std::map<std::string, size_t> heads;
  bool indexed = false;
  for (const CiscoCommandLine* change : changes) {
    const std::vector<std::string> wanted = routeMapHead(*change);
    if (wanted.empty()) continue;
    if (!indexed) {
      indexed = true;
      for (size_t i = 0; i < config.size(); ++i) {
        const std::vector<std::string> own = routeMapHead(*config[i]);
        if (!own.empty()) heads.emplace(own[1] + " " + own[3], i);
      }
    }
    const auto found = heads.find(wanted[1] + " " + wanted[3]);
    if (found == heads.end()) continue;
    CiscoCommandLine*& record = config[found->second];
    if (routeMapHead(*record)[2] == wanted[2]) continue;
    CiscoCommandLine* head = recordOf(trimmed(change->getOriginalCmd()) + "\n");
    if (!head) continue;
    head->setLineNo(record->getLineNo());
    head->getChildCommands().swap(record->getChildCommands());
    for (CiscoCommandLine* line : head->getChildCommands()) line->setParentCommand(head, false);
    freeRecord(record);
    record = head;
  }
}

void RouteFilterMeaning::removeExactEntries(std::vector<CiscoCommandLine*>& changes,
                                            std::vector<CiscoCommandLine*>& config) {
  for (auto change = changes.begin(); change != changes.end();) {
    const std::string text = trimmed((*change)->getOriginalCmd());
    const bool listEntry =
        text.rfind("no ip as-path access-list ", 0) == 0 || text.rfind("no ip community-list ", 0) == 0;
    if (!listEntry || !(*change)->hasFlags(CMDBIT_NO)) {
      ++change;
      continue;
    }
    const std::string entry = text.substr(3);
    const auto found = std::find_if(config.begin(), config.end(), [&entry](const CiscoCommandLine* record) {
      return trimmed(record->getOriginalCmd()) == entry;
    });
    if (found == config.end()) {
      ++change;
      continue;
    }
    freeRecord(*found);
    config.erase(found);
    freeRecord(*change);
    change = changes.erase(change);
  }
}

}  // namespace qxparser
