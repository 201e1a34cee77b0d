#include "ConsoleFilter.h"

#include <cctype>
#include <regex>
#include <sstream>
#include <vector>

namespace vtycli {
namespace {

std::vector<std::string> lines(const std::string& text) {
  std::vector<std::string> out;
  std::istringstream in(text);
  std::string line;
  while (std::getline(in, line)) out.push_back(line);
  return out;
}

bool isHead(const std::string& line) { return !line.empty() && line[0] != ' '; }

std::string keepSections(const std::vector<std::string>& all, const std::regex& re) {
  std::string out;
  bool headMatched = false;
  for (const std::string& line : all) {
    if (isHead(line)) headMatched = std::regex_search(line, re);
    if (headMatched || std::regex_search(line, re)) out += line + "\n";
  }
  return out;
}

}  // namespace

bool abbreviates(const std::string& typed, const std::string& keyword, size_t least) {
  if (typed.size() < least || typed.size() > keyword.size()) return false;
  for (size_t i = 0; i < typed.size(); ++i) {
    if (std::tolower(static_cast<unsigned char>(typed[i])) != keyword[i]) return false;
  }
  return true;
}

bool applyConsoleFilter(const std::string& filter, const std::string& text, std::string& out, std::string& error) {
  std::istringstream words(filter);
  std::string kind;
  words >> kind;
  std::string expression;
  std::getline(words >> std::ws, expression);
  if (expression.empty()) {
    error = "% Incomplete command.";
    return false;
  }
  std::regex re;
  try {
    re = std::regex(expression);
  } catch (const std::regex_error&) {
    error = "% Invalid regular expression: " + expression;
    return false;
  }
  const std::vector<std::string> all = lines(text);
  out.clear();
  if (abbreviates(kind, "section", 1)) {
    out = keepSections(all, re);
    return true;
  }
  const bool include = abbreviates(kind, "include", 1), exclude = abbreviates(kind, "exclude", 1);
  const bool begin = abbreviates(kind, "begin", 1);
  if (!include && !exclude && !begin) {
    error = "% Invalid input detected at '^' marker.";
    return false;
  }
  bool begun = false;
  for (const std::string& line : all) {
    const bool match = std::regex_search(line, re);
    begun = begun || (begin && match);
    if ((include && match) || (exclude && !match) || begun) out += line + "\n";
  }
  return true;
}

}  // namespace vtycli
