// vtyconf fallback FIRST SECOND [--delta|--file]: the commands that lead back.
#include <iostream>

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "OutputText.h"
#include "config/QxParserUtil.h"

namespace vtycli {
namespace {

struct FallbackOptions {
  std::string first;
  std::string second;
  bool delta = false;
  bool file = false;
};

CommandRegistration registration{CommandSpec{
    "fallback", "the commands that lead back (delta: undo changes; file: from FIRST to SECOND)",
    [](CLI::App& sub, const GlobalOptions&) -> std::function<int()> {
      auto options = std::make_shared<FallbackOptions>();
      sub.add_option("FIRST", options->first, "changes (--delta) or the first configuration (--file)")->required();
      sub.add_option("SECOND", options->second, "the configuration the changes apply to, or the second one")
          ->required();
      auto* delta = sub.add_flag("--delta", options->delta, "undo the changes FIRST applied to SECOND");
      auto* file = sub.add_flag("--file", options->file, "turn configuration FIRST into SECOND (default)");
      delta->excludes(file);
      sub.footer("Example: vtyconf fallback changes.txt router1.cfg --delta");
      return [options]() {
        std::string first;
        std::string second;
        if (!readInput(options->first, first) || !readInput(options->second, second)) return 2;
        if (!loadResources()) return 2;
        const unsigned int mode = options->delta ? 0u : 1u;
        const std::string text = printable(qxparser::QxParserUtil::fallbackConfigCmds(first, second, mode));
        std::cout.write(text.data(), static_cast<std::streamsize>(text.size()));
        return 0;
      };
    }}};

}  // namespace
}  // namespace vtycli
