// Lines typed at the emulated console: a terminal in CLI mode, brought into
// configuration mode, takes each line; a line with "?" or a tab in it goes to
// the help and completion hook, every other line is executed. Behind the split
// marker, a line asks for hints at the end of the configuration before it.
#include "FuzzSupport.h"

namespace {

void typeLines(const std::string& text) {
  qxparser::VTY vty("R1", true);
  vty.parse("enable", true, nullptr);
  vty.parse("configure terminal", true, nullptr);
  std::string output;
  size_t start = 0;
  while (start <= text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    const std::string line = text.substr(start, end - start);
    if (line.find('?') != std::string::npos || line.find('\t') != std::string::npos) {
      vty.hook(line);
    } else {
      vty.parse(line, true, nullptr);
    }
    // The answers are dropped line by line, as the console loop does.
    vty.getOutputString(output);
    start = end + 1;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzzsupport::loadShippedGrammar();
  std::vector<std::string> parts = fuzzsupport::splitInput(fuzzsupport::asText(data, size), 2);
  try {
    typeLines(parts[0]);
  } catch (const std::out_of_range& e) {
    fuzzsupport::expectRangeQuirk(e);
  }
  if (!parts[1].empty()) {
    std::vector<qxparser::ConfigHint> hints;
    try {
      qxparser::QxParserUtil::hintCommand(parts[0], parts[1], hints);
    } catch (const std::out_of_range& e) {
      fuzzsupport::expectRangeQuirk(e);
    }
  }
  return 0;
}
