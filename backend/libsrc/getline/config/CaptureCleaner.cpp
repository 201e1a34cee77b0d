#include "config/CaptureCleaner.h"

#include <cctype>
#include <regex>

namespace qxparser {

namespace {

std::vector<std::string> splitLines(const std::string& text) {
  std::vector<std::string> lines;
  std::string current;
  for (char c : text) {
    if (c == '\n') {
      lines.push_back(current);
      current.clear();
    } else {
      current += c;
    }
  }
  if (!current.empty()) lines.push_back(current);
  return lines;
}

std::string trimmed(const std::string& line) {
  size_t start = line.find_first_not_of(" \t\r");
  if (start == std::string::npos) return std::string();
  size_t end = line.find_last_not_of(" \t\r");
  return line.substr(start, end - start + 1);
}

// A device prompt, alone or followed by a command: "R1#", "R1#show run".
const std::regex& promptPattern() {
  static const std::regex pattern(R"(^[A-Za-z0-9][A-Za-z0-9._-]*(\([a-z-]+\))?[#>].*$)");
  return pattern;
}

}  // namespace

void cleanCapture(std::string& text, std::vector<std::string>& leftOut) {
  if (text.compare(0, 3, "\xEF\xBB\xBF") == 0) {
    text.erase(0, 3);
    leftOut.push_back("1: byte-order mark");
  }
  std::vector<std::string> lines = splitLines(text);
  static const std::regex current(R"(^Current configuration[^:]*:\s*\d+\s*bytes$)");
  // A console message of the device: "*Mar 27 13:49:48.771: %SYS-5-CONFIG_I: ...".
  static const std::regex logMessage(R"(^\*?[A-Z][a-z]{2}\s+\d{1,2}\s+\d\d:\d\d:\d\d(\.\d+)?:\s+%.*$)");
  size_t lastContent = lines.size();
  while (lastContent > 0 && trimmed(lines[lastContent - 1]).empty()) --lastContent;
  for (size_t i = 0; i < lines.size(); ++i) {
    const std::string line = trimmed(lines[i]);
    // Capture lines are short; a long line (pasted data) is none, and the
    // patterns below would recurse once per byte of it.
    if (line.empty() || line.size() > 1024) continue;
    bool drop = false;
    if (line == "Building configuration...") {
      drop = true;
    } else if (std::regex_match(line, current) || std::regex_match(line, logMessage)) {
      drop = true;
    } else if (std::regex_match(line, promptPattern())) {
      // A prompt, alone or with what was typed behind it ("R1#term len 0",
      // "R1(config)#do show run"): no configuration line looks like one.
      drop = true;
    }
    if (drop) {
      leftOut.push_back(std::to_string(i + 1) + ": " + line);
      lines[i].clear();
    }
  }
  std::string out;
  for (size_t i = 0; i < lines.size(); ++i) {
    out += lines[i];
    out += '\n';
  }
  text.swap(out);
}

}  // namespace qxparser
