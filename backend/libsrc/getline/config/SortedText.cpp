#include "config/SortedText.h"

#include <memory>
#include <vector>

#include "config/QxParserUtil.h"

namespace qxparser {

std::string sortedConfigText(const std::string& text) {
  std::vector<CiscoCommandLine*> all;
  std::unique_ptr<std::vector<CiscoCommandLine*>, void (*)(std::vector<CiscoCommandLine*>*)> guard(
      &all, [](std::vector<CiscoCommandLine*>* records) { QxParserUtil::deleteCommands(*records); });
  std::vector<RefusedLine> refused;
  QxParserUtil::getCmdInfoTyped(text, all, refused);
  std::vector<CiscoCommandLine*> top;
  for (CiscoCommandLine* record : all) {
    if (record->getLevel() == 0) top.push_back(record);
  }
  // Device order of the configuration's own commands comes from the order
  // table, not from where they stood.
  for (CiscoCommandLine* record : top) record->setLineNo(0);
  QxParserUtil::SortCiscoCommands(top);
  std::string out;
  for (const CiscoCommandLine* record : top) {
    out += record->getOriginalCmd();
    std::vector<CiscoCommandLine*> below;
    record->getAllChildCommands(below);
    for (const CiscoCommandLine* child : below) {
      out += std::string(static_cast<size_t>(child->getLevel()), ' ') + child->getOriginalCmd();
    }
  }
  return out;
}

}  // namespace qxparser
