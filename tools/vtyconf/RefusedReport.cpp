#include "RefusedReport.h"

#include <iostream>

#include "ConfigInput.h"

namespace vtycli {

std::string caretLines(const std::string& line, size_t position, size_t width) {
  size_t from = 0;
  if (line.size() > width && position >= width - 20) from = position - (width - 20);
  std::string shown = line.substr(from, width);
  for (char& c : shown) {
    if (c == '\0' || c == '\t') c = ' ';
  }
  const size_t column = position >= from ? position - from : 0;
  std::string text = "    " + shown + (from + width < line.size() ? " ..." : "") + "\n";
  text += std::string(4 + std::min(column, shown.size()), ' ') + "^\n";
  return text;
}

std::string refusedMessage(const ConfigInput& input, const qxparser::RefusedLine& line) {
  std::string message = line.message;
  // The device's own words for the marker that follows.
  if (message == "% Invalid input detected at ^") message = "% Invalid input detected at '^' marker.";
  return "vtyconf: " + input.displayName() + ":" + std::to_string(input.fileLineOf(line.lineNo)) + ": " + message +
         "\n" + caretLines(line.text, line.position);
}

void reportRefused(const ConfigInput& input, const std::vector<qxparser::RefusedLine>& refused) {
  for (const qxparser::RefusedLine& line : refused) std::cerr << refusedMessage(input, line);
}

}  // namespace vtycli
