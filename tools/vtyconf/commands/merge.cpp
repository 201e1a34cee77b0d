// vtyconf merge CHANGES CONFIG [-o FILE]: the configuration after the changes.
#include <fstream>
#include <iostream>

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "OutputForm.h"
#include "config/QxParserUtil.h"

namespace vtycli {
namespace {

struct MergeOptions {
  std::string changes;
  std::string config;
  std::string output;
  bool mergeForm = false;
};

CommandRegistration registration{CommandSpec{
    "merge", "the configuration after the changes, in device order",
    [](CLI::App& sub, const GlobalOptions&) -> std::function<int()> {
      auto options = std::make_shared<MergeOptions>();
      sub.add_option("CHANGES", options->changes, "changes in configuration language ('-' for standard input)")
          ->required();
      sub.add_option("CONFIG", options->config, "the configuration ('-' for standard input)")->required();
      sub.add_option("-o,--output", options->output, "write the result to FILE");
      addMergeFormFlag(sub, options->mergeForm);
      sub.footer("Example: vtyconf merge changes.txt router1.cfg -o merged.cfg");
      return [options]() {
        std::string changes;
        std::string config;
        if (!readInput(options->changes, changes) || !readInput(options->config, config)) return 2;
        if (!loadResources()) return 2;
        const std::string merged = mergeOutput(changes, config, options->mergeForm);
        if (options->output.empty()) {
          std::cout.write(merged.data(), static_cast<std::streamsize>(merged.size()));
          return 0;
        }
        std::ofstream out(options->output, std::ios::binary);
        if (!out) {
          std::cerr << "vtyconf: " << options->output << ": cannot write\n";
          return 2;
        }
        out.write(merged.data(), static_cast<std::streamsize>(merged.size()));
        return 0;
      };
    }}};

}  // namespace
}  // namespace vtycli
