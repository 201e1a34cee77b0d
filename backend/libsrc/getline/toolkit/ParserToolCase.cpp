#include "toolkit/ParserToolCase.h"

#include <cctype>

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

}  // namespace qxparser
