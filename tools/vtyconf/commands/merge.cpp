// vtyconf merge CHANGES CONFIG [-o FILE]: the configuration after the changes.
// Both texts are read as the device reads text pasted at its console
// (abbreviations, mode exits); every refused line is reported with a caret
// and makes the exit code 1, the result still being written.
#include <fstream>
#include <iostream>

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "OutputForm.h"
#include "RefusedReport.h"
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
      addReadingThreadsOption(sub);
      sub.footer("Example: vtyconf merge changes.txt router1.cfg -o merged.cfg");
      return [options]() {
        ConfigInput changes;
        ConfigInput config;
        if (!readInputsAndLoad({options->changes, options->config}, {&changes, &config})) return 2;
        // One operation, then the process ends: its exit frees the records.
        qxparser::QxParserUtil::setFreeRecordsOnReturn(false);
        std::vector<qxparser::RefusedLine> changesRefused;
        std::vector<qxparser::RefusedLine> configRefused;
        const std::string merged =
            mergeOutput(changes.text, config.text, options->mergeForm, changesRefused, configRefused);
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
