// vtyconf diff FIRST SECOND [--color[=WHEN]] [--json]: two configurations
// compared as the device shows them; each changed line under the head lines
// of its section (ConfigDiff). Exit 0 when they are the same, 1 when they
// differ, 2 when a file cannot be read.
#include <iostream>
#include <nlohmann/json.hpp>

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "config/ConfigDiff.h"
#include "platform/PlatformOs.h"

namespace vtycli {
namespace {

struct DiffOptions {
  std::string first;
  std::string second;
  std::string color = "auto";
  bool json = false;
};

nlohmann::json toJson(const std::vector<qxparser::ConfigDiff::Change>& changes) {
  nlohmann::json out = nlohmann::json::array();
  for (const auto& change : changes) {
    out.push_back(
        {{"change", std::string(1, change.mark)}, {"sections", change.sections}, {"line", change.line}});
  }
  return out;
}

CommandRegistration registration{CommandSpec{
    "diff", "two configurations compared as the device shows them, section by section",
    [](CLI::App& sub, const GlobalOptions&) -> std::function<int()> {
      auto options = std::make_shared<DiffOptions>();
      sub.add_option("FIRST", options->first, "the configuration before ('-' for standard input)")
          ->required();
      sub.add_option("SECOND", options->second, "the configuration after ('-' for standard input)")
          ->required();
      sub.add_flag(
             "--color{always}", options->color,
             "colour the marks: --color or --color=always, --color=never; by default on a terminal only")
          ->check(CLI::IsMember({"auto", "always", "never"}));
      sub.add_flag("--json", options->json, "print an array of {change, sections, line}");
      sub.footer("Example: vtyconf diff router1.cfg merged.cfg");
      return [options]() {
        std::string first;
        std::string second;
        if (!readInput(options->first, first) || !readInput(options->second, second)) return 2;
        if (!loadResources()) return 2;
        const auto changes = qxparser::ConfigDiff::compare(first, second);
        if (options->json) {
          std::cout << toJson(changes).dump(2) << "\n";
        } else {
          const std::string& when = options->color;
          const bool color = when == "always" || (when == "auto" && platform::isTerminal(1));
          std::cout << qxparser::ConfigDiff::unified(changes, options->first, options->second, color);
        }
        return changes.empty() ? 0 : 1;
      };
    }}};

}  // namespace
}  // namespace vtycli
