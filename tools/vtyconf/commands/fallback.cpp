// vtyconf fallback FIRST SECOND [--delta|--file] [--cut-at-deep-levels]: the
// commands that lead back.
//
// Both configurations are compared in the form the merge writer gives them.
// That form indents a command two or more levels deep with NUL bytes, and the
// library's fallbackConfigCmds reads it back only up to the first of them.
// The program compares every level, reading both texts as the device reads
// pasted text (fallbackConfigCmdsDeviceText), unless asked
// for the library's own cut; then it names, on standard error, the line of
// each input from which nothing is compared.
#include <iostream>
#include <vector>

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "OutputForm.h"
#include "RefusedReport.h"
#include "config/CiscoCommandLine.h"
#include "config/QxParserUtil.h"

namespace vtycli {
namespace {

// The first stored command two or more levels deep, in line order; null if none.
const qxparser::CiscoCommandLine* firstDeepCommand(const std::vector<qxparser::CiscoCommandLine*>& records) {
  const qxparser::CiscoCommandLine* first = nullptr;
  std::vector<const qxparser::CiscoCommandLine*> pending(records.begin(), records.end());
  while (!pending.empty()) {
    const qxparser::CiscoCommandLine* record = pending.back();
    pending.pop_back();
    if (record == nullptr) continue;
    if (record->getLevel() >= 2 && (first == nullptr || record->getLineNo() < first->getLineNo())) first = record;
    for (const qxparser::CiscoCommandLine* child : record->getChildCommands()) pending.push_back(child);
  }
  return first;
}

// Warns when `input` holds a command that the comparison cannot see.
void warnAboutDeepCommands(const ConfigInput& input) {
  std::vector<qxparser::CiscoCommandLine*> records;
  std::string errorText;
  int errorLine = 0;
  qxparser::QxParserUtil::getCmdInfo(input.text, records, errorText, errorLine);
  if (const qxparser::CiscoCommandLine* deep = firstDeepCommand(records)) {
    std::cerr << "vtyconf: warning: " << input.displayName() << ":" << input.fileLineOf(deep->getLineNo())
              << ": fallback compares nothing from this line on (a command two levels inside a mode ends the "
                 "normalised text)\n";
  }
  qxparser::QxParserUtil::deleteCommands(records);
}

struct FallbackOptions {
  std::string first;
  std::string second;
  bool delta = false;
  bool file = false;
  bool cutAtDeepLevels = false;
  bool mergeForm = false;
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
      sub.add_flag("--cut-at-deep-levels", options->cutAtDeepLevels,
                   "compare as fallbackConfigCmds does: nothing from the first command two levels inside a mode on");
      addMergeFormFlag(sub, options->mergeForm);
      addReadingThreadsOption(sub);
      sub.footer("Example: vtyconf fallback changes.txt router1.cfg --delta");
      return [options]() {
        ConfigInput first;
        ConfigInput second;
        if (!readInputsAndLoad({options->first, options->second}, {&first, &second})) return 2;
        // One operation, then the process ends: its exit frees the records.
        qxparser::QxParserUtil::setFreeRecordsOnReturn(false);
        const unsigned int mode = options->delta ? 0u : 1u;
        if (options->cutAtDeepLevels) {
          warnAboutDeepCommands(first);
          warnAboutDeepCommands(second);
        }
        std::vector<qxparser::RefusedLine> firstRefused;
        std::vector<qxparser::RefusedLine> secondRefused;
        const std::string text = fallbackOutput(first.text, second.text, mode, options->cutAtDeepLevels,
                                                options->mergeForm, firstRefused, secondRefused);
        reportRefused(first, firstRefused);
        reportRefused(second, secondRefused);
        std::cout.write(text.data(), static_cast<std::streamsize>(text.size()));
        return firstRefused.empty() && secondRefused.empty() ? 0 : 1;
      };
    }}};

}  // namespace
}  // namespace vtycli
