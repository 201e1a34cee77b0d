#include "config/CaptureCleaner.h"

#include <string_view>

namespace qxparser {

namespace {

// Capture lines are short; a longer line (pasted data) is none of them.
constexpr size_t kLongestCaptureLine = 1024;

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isUpper(char c) { return c >= 'A' && c <= 'Z'; }
bool isLower(char c) { return c >= 'a' && c <= 'z'; }
bool isAlnum(char c) { return isDigit(c) || isUpper(c) || isLower(c); }
bool isSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r'; }

// `line` without the blanks, tabs and carriage returns at its ends.
// (A character at a time: the library's searches look through the set for
// every character.)
bool isTrimmed(char c) { return c == ' ' || c == '\t' || c == '\r'; }

std::string_view trimmed(std::string_view line) {
  size_t start = 0;
  size_t end = line.size();
  while (start < end && isTrimmed(line[start])) ++start;
  if (start == end) return {};
  while (isTrimmed(line[end - 1])) --end;
  return line.substr(start, end - start);
}

// Steps over characters that `take` accepts from `at`; how many were taken.
template <typename Take>
size_t skip(std::string_view line, size_t& at, Take take) {
  const size_t from = at;
  while (at < line.size() && take(line[at])) ++at;
  return at - from;
}

// Whether line[at..] holds no line end: what a line's free text may be.
bool noLineEnd(std::string_view line, size_t at) {
  return line.find_first_of("\r\n", at) == std::string_view::npos;
}

// "Current configuration : 1234 bytes" (anything but a colon between the
// two words and the colon; blanks around the number optional).
bool isCurrentConfiguration(std::string_view line) {
  constexpr std::string_view head = "Current configuration";
  if (line.substr(0, head.size()) != head) return false;
  size_t at = line.find(':', head.size());
  if (at == std::string_view::npos) return false;
  ++at;
  skip(line, at, isSpace);
  if (skip(line, at, isDigit) == 0) return false;
  skip(line, at, isSpace);
  return line.substr(at) == "bytes";
}

// A console message of the device: "*Mar 27 13:49:48.771: %SYS-5-CONFIG_I: ...".
bool isLogMessage(std::string_view line) {
  size_t at = 0;
  if (at < line.size() && line[at] == '*') ++at;
  if (line.size() < at + 3 || !isUpper(line[at]) || !isLower(line[at + 1]) || !isLower(line[at + 2])) return false;
  at += 3;
  if (skip(line, at, isSpace) == 0) return false;
  const size_t day = skip(line, at, isDigit);
  if (day < 1 || day > 2) return false;
  if (skip(line, at, isSpace) == 0) return false;
  for (int part = 0; part < 3; ++part) {
    if (part > 0 && (at >= line.size() || line[at++] != ':')) return false;
    if (line.size() < at + 2 || !isDigit(line[at]) || !isDigit(line[at + 1])) return false;
    at += 2;
  }
  if (at < line.size() && line[at] == '.') {
    ++at;
    if (skip(line, at, isDigit) == 0) return false;
  }
  if (at >= line.size() || line[at++] != ':') return false;
  if (skip(line, at, isSpace) == 0) return false;
  return at < line.size() && line[at] == '%' && noLineEnd(line, at + 1);
}

// A device prompt, alone or followed by what was typed behind it: "R1#",
// "R1#term len 0", "R1(config)#do show run", "R1>".
bool isPrompt(std::string_view line) {
  if (line.empty() || !isAlnum(line[0])) return false;
  size_t at = 1;
  skip(line, at, [](char c) { return isAlnum(c) || c == '.' || c == '_' || c == '-'; });
  if (at < line.size() && line[at] == '(') {
    ++at;
    if (skip(line, at, [](char c) { return isLower(c) || c == '-'; }) == 0) return false;
    if (at >= line.size() || line[at] != ')') return false;
    ++at;
  }
  if (at >= line.size() || (line[at] != '#' && line[at] != '>')) return false;
  return noLineEnd(line, at + 1);
}

bool isCaptureLine(std::string_view line) {
  return line == "Building configuration..." || isCurrentConfiguration(line) || isLogMessage(line) ||
         isPrompt(line);
}

}  // namespace

void cleanCapture(std::string& text, std::vector<std::string>& leftOut) {
  if (text.compare(0, 3, "\xEF\xBB\xBF") == 0) {
    text.erase(0, 3);
    leftOut.push_back("1: byte-order mark");
  }
  // One pass over the lines; the text is written anew only from the first
  // line that goes (or for a last line without its line feed).
  std::string out;
  bool rewriting = false;
  size_t copied = 0;  // text[0, copied) is in `out` once rewriting
  size_t number = 0;
  for (size_t start = 0; start < text.size();) {
    size_t end = text.find('\n', start);
    const bool lastWithoutFeed = end == std::string::npos;
    if (lastWithoutFeed) end = text.size();
    ++number;
    const std::string_view line = trimmed(std::string_view(text).substr(start, end - start));
    const bool drop = !line.empty() && line.size() <= kLongestCaptureLine && isCaptureLine(line);
    if (drop || lastWithoutFeed) {
      if (!rewriting) out.reserve(text.size() + 1);
      rewriting = true;
      out.append(text, copied, start - copied);
      if (drop) leftOut.push_back(std::to_string(number) + ": " + std::string(line));
      if (!drop) out.append(text, start, end - start);
      out += '\n';
      copied = lastWithoutFeed ? end : end + 1;
    }
    start = end + 1;
  }
  if (!rewriting) return;
  out.append(text, copied, std::string::npos);
  text.swap(out);
}

}  // namespace qxparser
