// vtyconf merge CHANGES CONFIG [-o FILE] [--replay]: the configuration after
// the changes. Both texts are read as the device reads text pasted at its
// console (abbreviations, mode exits); every refused line is reported and
// makes the exit code 1, the result still being written.
#include <fstream>
#include <iostream>

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "OutputText.h"
#include "RefusedReport.h"
#include "config/QxParserUtil.h"

namespace vtycli {
namespace {

struct MergeOptions {
  std::string changes;
  std::string config;
  std::string output;
  bool replay = false;
};

CommandRegistration registration{CommandSpec{
    "merge", "the configuration after the changes, in device order",
    [](CLI::App& sub, const GlobalOptions&) -> std::function<int()> {
      auto options = std::make_shared<MergeOptions>();
      sub.add_option("CHANGES", options->changes, "changes in configuration language ('-' for standard input)")
          ->required();
      sub.add_option("CONFIG", options->config, "the configuration ('-' for standard input)")->required();
      sub.add_option("-o,--output", options->output, "write the result to FILE");
      sub.add_flag("--replay", options->replay,
                   "read both texts as a stored configuration is replayed (whole words, no mode exits), "
                   "as mergeConfigCmds does");
      sub.footer("Example: vtyconf merge changes.txt router1.cfg -o merged.cfg");
      return [options]() {
        ConfigInput changes;
        ConfigInput config;
        if (!readInput(options->changes, changes) || !readInput(options->config, config)) return 2;
        if (!loadResources()) return 2;
        std::vector<qxparser::RefusedLine> changesRefused;
        std::vector<qxparser::RefusedLine> configRefused;
        std::string merged;
        if (options->replay) {
          merged = qxparser::QxParserUtil::mergeConfigCmds(changes.text, config.text);
        } else {
          merged = qxparser::QxParserUtil::mergeConfigCmdsTyped(changes.text, config.text, &changesRefused,
                                                                 &configRefused);
        }
        merged = printable(merged);
        reportRefused(changes, changesRefused);
        reportRefused(config, configRefused);
        const int status = changesRefused.empty() && configRefused.empty() ? 0 : 1;
        if (options->output.empty()) {
          std::cout.write(merged.data(), static_cast<std::streamsize>(merged.size()));
          return status;
        }
        std::ofstream out(options->output, std::ios::binary);
        if (!out) {
          std::cerr << "vtyconf: " << options->output << ": cannot write\n";
          return 2;
        }
        out.write(merged.data(), static_cast<std::streamsize>(merged.size()));
        return status;
      };
    }}};

}  // namespace
}  // namespace vtycli
