// Allowed-vlan lists of trunk interfaces resolved the way the device does.
#include "config/VlanListMeaning.h"

#include <algorithm>
#include <cctype>
#include <sstream>

#include "config/MeaningText.h"
#include "config/QxParserUtil.h"

namespace qxparser {

namespace {

using meaning::startsWith;

const char kAllowed[] = "switchport trunk allowed vlan ";

std::string trimmed(std::string text) {
  text.erase(text.find_last_not_of(" \t\r\n") + 1);
  text.erase(0, text.find_first_not_of(" \t"));
  return text;
}

// A head in lower case without blanks: "interface FastEthernet0/1" and the
// stored "interface fastethernet 0/1" are one.
std::string folded(const std::string& head) {
  std::string out;
  for (char c : head) {
    if (c != ' ' && c != '\t' && c != '\r' && c != '\n') out += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  return out;
}

// The interface of `config` whose head reads `head`, or null.
CiscoCommandLine* interfaceOf(std::vector<CiscoCommandLine*>& config, const std::string& head) {
  const std::string wanted = folded(head);
  for (CiscoCommandLine* record : config) {
    if (record->hasFlags(CMDBIT_OPENS_MODE) && folded(record->getOriginalCmd()) == wanted) return record;
  }
  return nullptr;
}

// The list an interface allows now (all when it states none), its lines
// taken out of the interface when `take`.
std::set<int> allowedOf(CiscoCommandLine* interface, bool take) {
  std::set<int> numbers;
  bool stated = false;
  if (interface) {
    std::vector<CiscoCommandLine*>& lines = interface->getChildCommands();
    for (auto it = lines.begin(); it != lines.end();) {
      const std::string text = trimmed((*it)->getOriginalCmd());
      if (!startsWith(text, kAllowed)) {
        ++it;
        continue;
      }
      std::string list = text.substr(sizeof(kAllowed) - 1);
      if (startsWith(list, "add ")) list = list.substr(4);
      VlanListMeaning::parse(list, numbers);
      stated = true;
      if (take) {
        std::vector<CiscoCommandLine*> alone{*it};
        QxParserUtil::deleteCommands(alone);
        it = lines.erase(it);
      } else {
        ++it;
      }
    }
  }
  if (!stated) {
    for (int vlan = 1; vlan <= 4094; ++vlan) numbers.insert(vlan);
  }
  return numbers;
}

}  // namespace

bool VlanListMeaning::parse(const std::string& list, std::set<int>& numbers) {
  if (list == "none") return false;
  std::istringstream parts(list);
  for (std::string part; std::getline(parts, part, ',');) {
    const size_t dash = part.find('-');
    try {
      const int from = std::stoi(part.substr(0, dash));
      const int to = dash == std::string::npos ? from : std::stoi(part.substr(dash + 1));
      for (int vlan = from; vlan <= to && vlan <= 4094; ++vlan) numbers.insert(vlan);
    } catch (const std::exception&) {
      return false;
    }
  }
  return true;
}

std::string VlanListMeaning::written(const std::set<int>& numbers) {
  std::string out;
  for (auto it = numbers.begin(); it != numbers.end();) {
    int last = *it;
    auto next = std::next(it);
    while (next != numbers.end() && *next == last + 1) last = *next++;
    if (!out.empty()) out += ",";
    const int count = last - *it + 1;
    out += count >= 3 ? std::to_string(*it) + "-" + std::to_string(last)
                      : count == 2 ? std::to_string(*it) + "," + std::to_string(last) : std::to_string(*it);
    it = next;
  }
  return out.empty() ? "none" : out;
}

bool VlanListMeaning::needsConfig(const std::string& changes) { return changes.find(kAllowed) != std::string::npos; }

std::string VlanListMeaning::resolvedChanges(const std::string& changes, std::vector<CiscoCommandLine*>& config) {
  if (!needsConfig(changes)) return changes;
  std::istringstream in(changes);
  std::string out, head;
  for (std::string line; std::getline(in, line);) {
    const std::string text = trimmed(line);
    if (!line.empty() && line[0] != ' ' && line[0] != '\t') head = text;
    if (!startsWith(text, kAllowed) || !startsWith(head, "interface ")) {
      out += line + "\n";
      continue;
    }
    std::string list = text.substr(sizeof(kAllowed) - 1);
    std::set<int> numbers;
    const bool add = startsWith(list, "add "), remove = startsWith(list, "remove ");
    if (add || remove) {
      numbers = allowedOf(interfaceOf(config, head), false);
      std::set<int> given;
      if (!parse(list.substr(add ? 4 : 7), given)) {
        out += line + "\n";
        continue;
      }
      for (int vlan : given) {
        if (add) numbers.insert(vlan);
        if (remove) numbers.erase(vlan);
      }
    } else if (!parse(list, numbers) && list != "none") {
      out += line + "\n";
      continue;
    }
    allowedOf(interfaceOf(config, head), true);
    const std::string indent = line.substr(0, line.find_first_not_of(" \t"));
    if (numbers.size() < 4094) out += indent + kAllowed + written(numbers) + "\n";
  }
  return out;
}

void VlanListMeaning::dropReplacedLists(std::vector<CiscoCommandLine*>& out) {
  for (CiscoCommandLine* record : out) {
    if (!startsWith(trimmed(record->getOriginalCmd()), "interface ")) continue;
    std::vector<CiscoCommandLine*>& lines = record->getChildCommands();
    const bool setAnew = std::any_of(lines.begin(), lines.end(), [](const CiscoCommandLine* line) {
      const std::string text = trimmed(line->getOriginalCmd());
      return startsWith(text, kAllowed) && !startsWith(text.substr(sizeof(kAllowed) - 1), "remove ");
    });
    if (!setAnew) continue;
    for (auto it = lines.begin(); it != lines.end();) {
      if (startsWith(trimmed((*it)->getOriginalCmd()), std::string("no ") + kAllowed)) {
        std::vector<CiscoCommandLine*> alone{*it};
        QxParserUtil::deleteCommands(alone);
        it = lines.erase(it);
      } else {
        ++it;
      }
    }
  }
}

}  // namespace qxparser
