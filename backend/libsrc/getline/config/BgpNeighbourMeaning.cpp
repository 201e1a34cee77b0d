// BGP neighbour edits as the device makes them.
#include "config/BgpNeighbourMeaning.h"

#include <algorithm>
#include <map>
#include <sstream>

#include "config/DeviceMeaning.h"
#include "config/DeviceTextReader.h"
#include "config/MeaningText.h"
#include "config/QxParserUtil.h"

namespace qxparser {

namespace {

using meaning::freeRecord;
using meaning::startsWith;

// The neighbour of a "no neighbor X remote-as ..." line, or "".
std::string goneNeighbour(const CiscoCommandLine& record) {
  const std::string& text = record.getOriginalCmd();
  if (!startsWith(text, "no neighbor ")) return {};
  const size_t end = text.find(' ', 12);
  if (end == std::string::npos || text.compare(end, 11, " remote-as ") != 0) return {};
  return text.substr(12, end - 12);
}

// Drops every "no neighbor X ..." line of `records` and of the modes below.
void dropNeighbourLines(std::vector<CiscoCommandLine*>& records, const std::set<std::string>& gone) {
  for (auto it = records.begin(); it != records.end();) {
    const std::string& text = (*it)->getOriginalCmd();
    const size_t end = text.find(' ', 12);
    if (startsWith(text, "no neighbor ") && end != std::string::npos &&
        gone.count(text.substr(12, end - 12))) {
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

// The neighbour that a "neighbor X ..." line configures, or "".
std::string neighbourOf(const std::string& text) {
  const size_t end = text.find(' ', 9);
  return startsWith(text, "neighbor ") && end != std::string::npos ? text.substr(9, end - 9) : std::string();
}

// Adds to `gone` the members of the peer groups it holds: the device takes
// them away with their group.
void addMembers(const CiscoCommandLine& router, std::set<std::string>& gone) {
  std::vector<const CiscoCommandLine*> lines(router.getChildCommands().begin(),
                                             router.getChildCommands().end());
  for (const CiscoCommandLine* family : router.getChildCommands()) {
    lines.insert(lines.end(), family->getChildCommands().begin(), family->getChildCommands().end());
  }
  for (const CiscoCommandLine* line : lines) {
    std::istringstream words(line->getOriginalCmd());
    std::string neighbor, who, peerGroup, group;
    words >> neighbor >> who >> peerGroup >> group;
    if (neighbor == "neighbor" && peerGroup == "peer-group" && gone.count(group)) gone.insert(who);
  }
}

bool hasCommands(const std::vector<CiscoCommandLine*>& lines) {
  return std::any_of(lines.begin(), lines.end(),
                     [](const CiscoCommandLine* line) { return line->getTreeNodeSize() > 0; });
}

// Takes the "neighbor X ..." lines of the `gone` neighbours out of `lines`.
void dropLinesOf(std::vector<CiscoCommandLine*>& lines, const std::set<std::string>& gone) {
  for (auto it = lines.begin(); it != lines.end();) {
    if (gone.count(neighbourOf((*it)->getOriginalCmd()))) {
      freeRecord(*it);
      it = lines.erase(it);
    } else {
      ++it;
    }
  }
}

bool isAdded(const CiscoCommandLine& record) {
  return record.getLineNo() < 1 || record.hasFlags(CMDBIT_FROM_CHANGES);
}

// The lines of `lines` that name a neighbour, grouped per neighbour in the
// order the neighbours first appear; other lines keep their places.
void groupLevel(std::vector<CiscoCommandLine*>& lines) {
  std::vector<size_t> places;
  std::vector<std::string> order;
  std::map<std::string, std::vector<CiscoCommandLine*>> byNeighbour;
  bool added = false;
  for (size_t i = 0; i < lines.size(); ++i) {
    const std::string who = neighbourOf(lines[i]->getOriginalCmd());
    if (who.empty()) continue;
    added = added || isAdded(*lines[i]);
    places.push_back(i);
    if (byNeighbour[who].empty()) order.push_back(who);
    byNeighbour[who].push_back(lines[i]);
  }
  if (!added) return;
  size_t next = 0;
  for (const std::string& who : order) {
    for (CiscoCommandLine* line : byNeighbour[who]) lines[places[next++]] = line;
  }
}

std::string trimmedText(std::string text) {
  text.erase(text.find_last_not_of(" \r\n") + 1);
  return text;
}

bool isFamilyLine(const std::string& text) {
  const std::string bare = startsWith(text, "no ") ? text.substr(3) : text;
  return startsWith(bare, "network ") || startsWith(bare, "aggregate-address ") ||
         startsWith(bare, "redistribute ");
}

// The head of the IPv4 unicast family of the router `head` in `config`, or "".
std::string ipv4FamilyOf(const std::vector<CiscoCommandLine*>& config, const std::string& head) {
  for (const CiscoCommandLine* router : config) {
    if (trimmedText(router->getOriginalCmd()) != head) continue;
    for (const CiscoCommandLine* family : router->getChildCommands()) {
      const std::string text = trimmedText(family->getOriginalCmd());
      if (text == "address-family ipv4" || text == "address-family ipv4 unicast") return text;
    }
  }
  return {};
}

}  // namespace

bool BgpNeighbourMeaning::wholeNeighbourChanges(const std::string& changes, std::set<std::string>& gone,
                                                std::string& out) {
  return meaning::rewriteLines(changes, out, [&gone](std::string_view view, std::string& piece) {
    // Only a "no" line that names a neighbour can take the neighbour away.
    if (view.find("neighbor") == std::string_view::npos || meaning::firstWord(view) != "no") {
      piece += view;
      return;
    }
    std::string line(view);
    std::istringstream words(line);
    std::string no, neighbor, who, what;
    words >> no >> neighbor >> who >> what;
    std::string more;
    words >> more;
    const bool group = what == "peer-group" && more.empty();
    if (no == "no" && neighbor == "neighbor" && !who.empty() &&
        (what.empty() || what == "remote-as" || group)) {
      gone.insert(who);
      line = line.substr(0, line.find_first_not_of(' ')) + "no neighbor " + who;
    }
    piece += line;
  });
}

void BgpNeighbourMeaning::dropGoneNeighbours(std::vector<CiscoCommandLine*>& config,
                                             const std::set<std::string>& gone) {
  if (gone.empty()) return;
  std::set<std::string> all(gone);
  for (CiscoCommandLine* record : config) {
    if (startsWith(record->getOriginalCmd(), "router bgp ")) addMembers(*record, all);
  }
  for (CiscoCommandLine* record : config) {
    if (!startsWith(record->getOriginalCmd(), "router bgp ")) continue;
    dropLinesOf(record->getChildCommands(), all);
    std::vector<CiscoCommandLine*>& families = record->getChildCommands();
    for (auto it = families.begin(); it != families.end();) {
      const bool had = (*it)->hasFlags(CMDBIT_OPENS_MODE) && hasCommands((*it)->getChildCommands());
      if (had) dropLinesOf((*it)->getChildCommands(), all);
      // A family that only the gone neighbours filled goes with them.
      if (had && !hasCommands((*it)->getChildCommands())) {
        freeRecord(*it);
        it = families.erase(it);
      } else {
        ++it;
      }
    }
  }
}

void BgpNeighbourMeaning::orderNeighbours(std::vector<CiscoCommandLine*>& out) {
  for (CiscoCommandLine* record : out) {
    if (startsWith(record->getOriginalCmd(), "router bgp ")) neighboursOf(*record);
  }
}

void BgpNeighbourMeaning::groupNeighbourLines(std::vector<CiscoCommandLine*>& config) {
  for (CiscoCommandLine* record : config) {
    if (!startsWith(record->getOriginalCmd(), "router bgp ")) continue;
    groupLevel(record->getChildCommands());
    for (CiscoCommandLine* family : record->getChildCommands()) {
      if (family->hasFlags(CMDBIT_OPENS_MODE)) groupLevel(family->getChildCommands());
    }
  }
}

void BgpNeighbourMeaning::intoIpv4Family(std::vector<CiscoCommandLine*>& changes,
                                         const std::vector<CiscoCommandLine*>& config) {
  for (CiscoCommandLine* router : changes) {
    const std::string head = trimmedText(router->getOriginalCmd());
    if (!startsWith(head, "router bgp ")) continue;
    const std::string family = ipv4FamilyOf(config, head);
    if (family.empty()) continue;
    std::string text = head + "\n " + family + "\n";
    std::vector<CiscoCommandLine*>& lines = router->getChildCommands();
    for (auto it = lines.begin(); it != lines.end();) {
      const std::string own = trimmedText((*it)->getOriginalCmd());
      if ((*it)->getTreeNodeSize() > 0 && isFamilyLine(own)) {
        text += "  " + own + "\n";
        freeRecord(*it);
        it = lines.erase(it);
      } else {
        ++it;
      }
    }
    if (text.size() == head.size() + family.size() + 3) continue;
    std::vector<CiscoCommandLine*> read;
    DeviceTextReader::read(text, read);
    for (CiscoCommandLine* record : read) {
      DeviceMeaning::graft(record->getChildCommands(), lines, router);
    }
    QxParserUtil::deleteCommands(read);
  }
}

}  // namespace qxparser
