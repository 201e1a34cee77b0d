// vtyconf sort CONFIG: the top-level commands in device order, with their
// modes, as a merge would write them.
#include <iostream>

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "config/SortedText.h"

namespace vtycli {
namespace {

CommandRegistration registration{CommandSpec{
    "sort", "the commands of a configuration in device order",
    [](CLI::App& sub, const GlobalOptions&) -> std::function<int()> {
      auto config = std::make_shared<std::string>();
      sub.add_option("CONFIG", *config, "the configuration ('-' for standard input)")->required();
      sub.footer("Example: vtyconf sort router1.cfg");
      return [config]() {
        std::string text;
        if (!readInput(*config, text)) return 2;
        if (!loadResources()) return 2;
        const std::string out = qxparser::sortedConfigText(text);
        std::cout << out;
        return 0;
      };
    }}};

}  // namespace
}  // namespace vtycli
