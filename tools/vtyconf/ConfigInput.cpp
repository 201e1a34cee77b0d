#include "ConfigInput.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <regex>
#include <sstream>
#include <utility>

#include "config/CiscoCommandLine.h"
#include "config/QxParserUtil.h"

namespace vtycli {

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

bool isShowCommand(const std::string& afterPrompt) {
  std::string word;
  for (char c : afterPrompt) {
    if (std::isspace(static_cast<unsigned char>(c))) {
      if (!word.empty()) break;
      continue;
    }
    word += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  return word.size() >= 2 && std::string("show").compare(0, word.size(), word) == 0;
}

// A line that closes a banner with text before its delimiter.
bool closesWithText(const std::string& line, char delimiter) {
  const size_t mark = delimiter == '\0' ? std::string::npos : line.find(delimiter);
  return mark != std::string::npos && line.find_first_not_of(" \t") < mark;
}

}  // namespace

bool looksBinary(const std::string& text) {
  // Control bytes other than the blanks of text (and the escape sequences of
  // a terminal capture) in more than one byte of twenty of the first 64 KiB;
  // a stray NUL byte in a text is reported by the reader, not taken for this.
  const size_t sample = std::min<size_t>(text.size(), 65536);
  size_t control = 0;
  for (size_t i = 0; i < sample; ++i) {
    const unsigned char c = static_cast<unsigned char>(text[i]);
    if (c < 0x20 && c != '\t' && c != '\n' && c != '\r' && c != '\f' && c != '\v' && c != 0x1b && c != '\b') {
      ++control;
    }
  }
  return control > 8 && control * 20 > sample;
}

bool gQuietInput = false;

void setQuietInput(bool quiet) { gQuietInput = quiet; }

void cleanCapture(std::string& text, std::vector<std::string>& leftOut) {
  if (text.compare(0, 3, "\xEF\xBB\xBF") == 0) {
    text.erase(0, 3);
    leftOut.push_back("1: byte-order mark");
  }
  std::vector<std::string> lines = splitLines(text);
  static const std::regex current(R"(^Current configuration\s*:\s*\d+\s*bytes$)");
  size_t lastContent = lines.size();
  while (lastContent > 0 && trimmed(lines[lastContent - 1]).empty()) --lastContent;
  for (size_t i = 0; i < lines.size(); ++i) {
    const std::string line = trimmed(lines[i]);
    if (line.empty()) continue;
    bool drop = false;
    if (line == "Building configuration...") {
      drop = true;
    } else if (std::regex_match(line, current)) {
      drop = true;
    } else if (std::regex_match(line, promptPattern())) {
      size_t mark = line.find_first_of("#>");
      const std::string rest = trimmed(line.substr(mark + 1));
      // A prompt that asks for a configuration, or the prompt left at the end.
      if ((!rest.empty() && isShowCommand(rest)) || (rest.empty() && i + 1 == lastContent)) drop = true;
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

int ConfigInput::fileLineOf(int number) const {
  if (number < 1 || static_cast<size_t>(number) > fileLines.size()) return 0;
  return fileLines[static_cast<size_t>(number) - 1];
}

bool ConfigInput::isBannerText(int number) const {
  if (number < 1 || static_cast<size_t>(number) > bannerText.size()) return false;
  return bannerText[static_cast<size_t>(number) - 1];
}

std::string ConfigInput::displayName() const {
  if (path == "-") return "<stdin>";
  size_t slash = path.find_last_of("/\\");
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

bool readConfigInput(const std::string& path, bool keepCapture, ConfigInput& out, std::string& error) {
  out = ConfigInput();
  out.path = path;
  if (path == "-") {
    out.text.assign(std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>());
  } else {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) {
      error = path + ": is a folder, not a configuration";
      return false;
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
      error = path + ": " + (std::filesystem::exists(path, ignored) ? "cannot read" : "no such file");
      return false;
    }
    std::stringstream buffer;
    buffer << in.rdbuf();
    if (in.bad()) {
      error = path + ": cannot read";
      return false;
    }
    out.text = buffer.str();
  }
  if (looksBinary(out.text)) {
    error = out.displayName() + ": not configuration text (binary data)";
    return false;
  }
  if (!keepCapture) cleanCapture(out.text, out.leftOut);

  // The reader cuts the text at every carriage return and line feed and
  // skips empty pieces; follow it to know where each of its lines stands.
  int fileLine = 1;
  std::string piece;
  auto flush = [&]() {
    if (!piece.empty()) {
      out.fileLines.push_back(fileLine);
      out.readerLines.push_back(piece);
      piece.clear();
    }
  };
  for (char c : out.text) {
    if (c == '\r') {
      flush();
    } else if (c == '\n') {
      flush();
      ++fileLine;
    } else {
      piece += c;
    }
  }
  flush();

  // Banner text, followed the way the terminal does: a line that begins with
  // "bann" names the delimiter (the character behind its second blank); a
  // line inside a banner without the delimiter is text. So is the closing
  // line when text stands before its delimiter ("*****^C"): the device ends
  // the banner there and keeps the text, while the terminal hands the line to
  // the grammar, which cannot take it.
  char delimiter = '\0';
  bool inside = false;
  for (const std::string& line : out.readerLines) {
    size_t lead = line.find_first_not_of(" \t");
    if (lead != std::string::npos && line.compare(lead, 4, "bann") == 0) {
      size_t first = line.find(' ');
      size_t second = first == std::string::npos ? std::string::npos : line.find(' ', first + 1);
      if (second != std::string::npos && second + 1 < line.size()) delimiter = line[second + 1];
    }
    if (inside && (delimiter == '\0' || line.find(delimiter) == std::string::npos)) {
      out.bannerText.push_back(true);
      continue;
    }
    out.bannerText.push_back(inside && closesWithText(line, delimiter));
    for (char c : line) {
      if (delimiter != '\0' && c == delimiter) inside = !inside;
    }
  }
  return true;
}

bool readInput(const std::string& path, ConfigInput& input, bool keepCapture) {
  std::string error;
  if (!readConfigInput(path, keepCapture, input, error)) {
    std::cerr << "vtyconf: " << error << "\n";
    return false;
  }
  if (!gQuietInput) {
    for (const std::string& left : input.leftOut)
      std::cerr << "vtyconf: " << input.displayName() << ":" << left << " (left out of the capture)\n";
  }
  return true;
}

bool readInput(const std::string& path, std::string& text, bool keepCapture) {
  ConfigInput input;
  if (!readInput(path, input, keepCapture)) return false;
  text = std::move(input.text);
  return true;
}

bool isRefusedRecord(const qxparser::CiscoCommandLine& record) {
  if (record.getFlag() == qxparser::CMD_TEXT) return false;
  if (record.getTreeNodeSize() == 0) return true;
  for (const auto& entry : record.getTreeNodes()) {
    if (entry.words.count("\n") != 0) return false;
  }
  // A "no" line may stop early where the grammar allows it; where it does
  // not, the device answered "% Incomplete command.".
  return !record.hasFlags(qxparser::CMDBIT_NO) || record.hasFlags(qxparser::CMDBIT_NO_COMPLETE);
}

bool loadResources() {
  try {
    qxparser::QxParserUtil::createNewParserResource();
    return true;
  } catch (const std::exception& e) {
    std::cerr << "vtyconf: " << e.what() << "\n";
    return false;
  }
}

}  // namespace vtycli
