#include "OutputForm.h"

#include "OutputText.h"
#include "config/QxParserUtil.h"

namespace vtycli {

using qxparser::QxParserUtil;

void addMergeFormFlag(CLI::App& sub, bool& mergeForm) {
  sub.add_flag(
      "--merge-form", mergeForm,
      "print the library's merge-writer form instead of device text (full lower-case words, no comments)");
}

void addReadingThreadsOption(CLI::App& sub) {
  sub.add_option_function<int>(
         "-j,--jobs", [](const int& jobs) { QxParserUtil::setReadingThreadsAllowed(jobs > 1); },
         "threads for reading the two texts: 1 or 2 (default: 2 where the machine has more than one processor)")
      ->check(CLI::Range(1, 2));
}

std::string mergeOutput(const std::string& changes, const std::string& config, bool mergeForm,
                        std::vector<qxparser::RefusedLine>& changesRefused,
                        std::vector<qxparser::RefusedLine>& configRefused) {
  if (mergeForm) return printable(QxParserUtil::mergeConfigCmds(changes, config));
  return QxParserUtil::mergeConfigCmdsDeviceText(changes, config, &changesRefused, &configRefused);
}

std::string fallbackOutput(const std::string& first, const std::string& second, unsigned int mode,
                           bool cutAtDeepLevels, bool mergeForm, std::vector<qxparser::RefusedLine>& firstRefused,
                           std::vector<qxparser::RefusedLine>& secondRefused) {
  if (cutAtDeepLevels) {
    const std::string text = QxParserUtil::fallbackConfigCmds(first, second, mode);
    return mergeForm ? printable(text) : QxParserUtil::deviceText(text);
  }
  if (mergeForm) return printable(QxParserUtil::fallbackConfigCmdsAllLevels(first, second, mode));
  return QxParserUtil::fallbackConfigCmdsDeviceText(first, second, mode, &firstRefused, &secondRefused);
}

std::string queryOutput(const std::string& answer, bool mergeForm) {
  return mergeForm ? answer : QxParserUtil::deviceText(answer);
}

}  // namespace vtycli
