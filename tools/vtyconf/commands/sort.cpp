// vtyconf sort CONFIG [--merge-form]: the top-level commands in device order,
// with their modes, as device text (banner text and certificate data with
// their command), or in the merge writer's words.
#include <iostream>

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "OutputForm.h"
#include "config/QxParserUtil.h"

namespace vtycli {
namespace {

// The records in device order, each written as the merge writer's words
// (originalCmd) indented by its level.
std::string mergeFormSort(const std::string& text) {
  std::vector<qxparser::CiscoCommandLine*> all;
  std::string errorText;
  int errorLine = 0;
  qxparser::QxParserUtil::getCmdInfo(text, all, errorText, errorLine);
  std::vector<qxparser::CiscoCommandLine*> top;
  for (qxparser::CiscoCommandLine* record : all) {
    if (record->getLevel() == 0) top.push_back(record);
  }
  // Device order of the configuration's own commands comes from the order
  // table, not from where they stood.
  for (qxparser::CiscoCommandLine* record : top) record->setLineNo(0);
  qxparser::QxParserUtil::SortCiscoCommands(top);
  std::string out;
  for (const qxparser::CiscoCommandLine* record : top) {
    out += record->getOriginalCmd();
    std::vector<qxparser::CiscoCommandLine*> below;
    record->getAllChildCommands(below);
    for (const qxparser::CiscoCommandLine* child : below) {
      out += std::string(static_cast<size_t>(child->getLevel()), ' ') + child->getOriginalCmd();
    }
  }
  qxparser::QxParserUtil::deleteCommands(all);
  return out;
}

CommandRegistration registration{CommandSpec{
    "sort", "the commands of a configuration in device order",
    [](CLI::App& sub, const GlobalOptions&) -> std::function<int()> {
      auto config = std::make_shared<std::string>();
      auto mergeForm = std::make_shared<bool>(false);
      sub.add_option("CONFIG", *config, "the configuration ('-' for standard input)")->required();
      addMergeFormFlag(sub, *mergeForm);
      sub.footer("Example: vtyconf sort router1.cfg");
      return [config, mergeForm]() {
        std::string text;
        if (!readInput(*config, text)) return 2;
        if (!loadResources()) return 2;
        // One operation, then the process ends: its exit frees the records.
        qxparser::QxParserUtil::setFreeRecordsOnReturn(false);
        if (*mergeForm) {
          std::cout << mergeFormSort(text);
          return 0;
        }
        const std::string out = qxparser::QxParserUtil::sortConfigDeviceText(text);
        std::cout << out;
        return 0;
      };
    }}};

}  // namespace
}  // namespace vtycli
