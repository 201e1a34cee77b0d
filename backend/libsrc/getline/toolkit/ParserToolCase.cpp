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
  for (char& c : out) c = toolkit_detail::lowerChar(c);
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

namespace {

// `out` = text[begin, end) with tabs as blanks and, when asked, lower-cased;
// assigned in place so that a reused string costs no allocation.
void copyField(const std::string& text, std::size_t begin, std::size_t end, bool lower, std::string& out) {
  out.assign(text, begin, end - begin);
  for (char& ch : out) {
    if (ch == '\t') {
      ch = ' ';
    } else if (lower) {
      ch = toolkit_detail::lowerChar(ch);
    }
  }
}

}  // namespace

// The line is cut in one pass over the caller's text, as if it were done in
// these steps: tabs become blanks; leading blanks go; a blank is put between
// two bars that follow each other (strtok rules would swallow an empty field,
// which so keeps its place reading " "); the text after the last bar is the
// links field (a closing line, "!...", has none); the text up to it is
// lower-cased and cut at bars by strtok rules (ending at a NUL byte) into the
// first four fields.
void ParserToolCase::parseCmdLine(const std::string& line, std::string& a, std::string& b, std::string& c,
                                  std::string& d, std::string& e) {
  a.clear();
  b.clear();
  c.clear();
  d.clear();
  e.clear();

  const char* text = line.data();
  const std::size_t size = line.size();
  std::size_t start = 0;
  while (start < size && (text[start] == ' ' || text[start] == '\t')) ++start;
  if (start == size) return;

  std::size_t leftEnd = size;
  if (text[start] != '!') {
    std::size_t bar = size;
    while (bar > start && text[bar - 1] != '|') --bar;
    leftEnd = bar;  // just past the last bar, or `start` when there is none
    copyField(line, leftEnd, size, false, e);
  }

  std::string* targets[] = {&a, &b, &c, &d};
  std::size_t field = 0;
  std::size_t pos = start;
  while (field < 4 && pos < leftEnd) {
    std::size_t next = pos;
    while (next < leftEnd && text[next] != '|' && text[next] != '\0') ++next;
    if (next > pos) {
      copyField(line, pos, next, true, *targets[field++]);
    } else if (pos > start && next < leftEnd && text[next] == '|') {
      // An empty field between two bars.
      targets[field++]->assign(1, ' ');
    }
    if (next < leftEnd && text[next] == '\0') break;
    pos = next + 1;
  }
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
