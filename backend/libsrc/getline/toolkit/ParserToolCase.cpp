#include "toolkit/ParserToolCase.h"

#include <cctype>
#include <memory>
#include <stdexcept>

#include "toolkit/ToolkitText.h"

namespace qxparser {

long ParserToolCase::startTime = 0;
long ParserToolCase::stopTime = 0;

std::set<std::string>& ParserToolCase::overwriteCmds() {
  static std::set<std::string> commands;
  return commands;
}

bool ParserToolCase::isPvFormStr(const std::string& text) {
  return !text.empty() && text.front() == '<' && text.back() == '>';
}

void ParserToolCase::getVarFromPvFormStr(const std::string& text, std::string& out) {
  out = text.size() >= 2 ? text.substr(1, text.size() - 2) : std::string();
}

std::string ParserToolCase::string2Lower(const std::string& text) {
  std::string out(text);
  for (char& c : out) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return out;
}

// Both forms give the words that strtok would give on a copy of the text; the
// cutting itself is done without strtok so that no caller's strtok walk is
// disturbed.
void ParserToolCase::splitString(const std::string& text, const std::string& separators,
                                 std::vector<std::string>& out) {
  out.clear();
  toolkit_detail::forEachWord(text, separators.c_str(), [&out](const char* begin, std::size_t length) {
    out.emplace_back(begin, length);
  });
}

void ParserToolCase::splitString(const std::string& text, const std::string& separators,
                                 std::list<std::string*>& out) {
  toolkit_detail::forEachWord(text, separators.c_str(), [&out](const char* begin, std::size_t length) {
    if (out.size() >= out.max_size()) throw std::length_error("list<T> too long");
    auto word = std::make_unique<std::string>(begin, length);
    out.push_back(word.get());
    word.release();  // the list, and so the caller, owns it now
  });
}

void ParserToolCase::divideString(const std::string& text, std::string& left, std::string& right) {
  // A closing line ("!") may carry any text, bars included; it is never cut.
  if (!text.empty() && text[0] == '!') {
    left = text;
    return;
  }
  std::string::size_type bar = text.rfind('|');
  if (bar == std::string::npos) {
    left.clear();
    right = text;
    return;
  }
  left = text.substr(0, bar + 1);
  right = text.substr(bar + 1);
}

void ParserToolCase::parseCmdLine(const std::string& line, std::string& a, std::string& b, std::string& c,
                                  std::string& d, std::string& e) {
  a.clear();
  b.clear();
  c.clear();
  d.clear();
  e.clear();

  std::string work(line);
  for (char& ch : work) {
    if (ch == '\t') ch = ' ';
  }
  std::string::size_type start = work.find_first_not_of(' ');
  if (start == std::string::npos) return;
  work.erase(0, start);

  // The fields are cut with strtok rules, which would swallow an empty field;
  // a blank between two bars keeps its place (the field then reads " ").
  for (std::string::size_type i = 1; i < work.size(); ++i) {
    if (work[i] == '|' && work[i - 1] == '|') work.insert(i, 1, ' ');
  }

  std::string left;
  divideString(work, left, e);

  std::vector<std::string> fields;
  splitString(string2Lower(left), "|", fields);
  std::string* targets[] = {&a, &b, &c, &d};
  for (std::size_t i = 0; i < fields.size() && i < 4; ++i) *targets[i] = fields[i];
}

void ParserToolCase::testOptionToken(const std::string& token, std::string& inner, bool& open, bool& close) {
  std::string::size_type openPos = token.find('[');
  std::string::size_type closePos = token.find(']');
  open = openPos != std::string::npos;
  close = closePos != std::string::npos;
  std::string::size_type begin = open ? openPos + 1 : 0;
  std::string::size_type end = close ? closePos : token.size();
  inner = end > begin ? token.substr(begin, end - begin) : std::string();
}

}  // namespace qxparser
