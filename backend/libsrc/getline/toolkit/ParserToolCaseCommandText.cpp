// Operations on the text of commands: keys and variables, the overwrite
// flag, the spellings of an access list, pager clean-up, and the timers.
//
// A command text may write its variable words in angle brackets; the words
// in brackets are its variables, all other words its keys. A text without
// brackets is all keys.
#include <algorithm>
#include <cctype>
#include <ctime>

#include "platform/StlHelper.h"
#include "toolkit/ParserToolCase.h"
#include "toolkit/ToolkitText.h"

namespace qxparser {

namespace {

const char kWordSeparators[] = " \t\r\n";

// The words of `text` cut at blank, tab, CR and LF, run together; `keep`
// decides word by word.
template <typename Keep>
std::string joinWords(const std::string& text, Keep keep) {
  std::string out;
  toolkit_detail::forEachWord(text, kWordSeparators, [&](const char* begin, std::size_t length) {
    if (keep(*begin)) out.append(begin, length);
  });
  return out;
}

}  // namespace

std::string ParserToolCase::cleanLine(const std::string& text) {
  std::string out;
  toolkit_detail::forEachWord(text, kWordSeparators, [&out](const char* begin, std::size_t length) {
    out.append(begin, length);
    out.push_back(' ');
  });
  out.push_back('\n');
  return out;
}

std::string ParserToolCase::getFirstKey(const std::string& text) {
  std::vector<std::string> words;
  splitString(text, kWordSeparators, words);
  return words.empty() ? std::string() : words.front();
}

std::string ParserToolCase::getKeyStr(const std::string& text) {
  return joinWords(text, [](char first) { return first != '<'; });
}

std::string ParserToolCase::getVariableStr(const std::string& text) {
  return joinWords(text, [](char first) { return first == '<'; });
}

std::string ParserToolCase::getWholeStr(const std::string& text) {
  return joinWords(text, [](char) { return true; });
}

void ParserToolCase::filterLines(const std::string& text, std::string& out) {
  // Comment lines and the version line of a configuration are dropped.
  toolkit_detail::forEachWord(text, "\r\n", [&out](const char* begin, std::size_t length) {
    const std::string line(begin, length);
    if (line.find('!') != std::string::npos || line.find("version") != std::string::npos) return;
    out += line;
    out += " \n";
  });
}

CiscoCommandLineFlag ParserToolCase::getCmdFlag(const std::string& text) {
  if (text.empty()) return CMD_ADDITIVE;
  // The key of a "no " text keeps its "no", so the overwrite set names each
  // form on its own.
  const bool found = overwriteCmds().count(getKeyStr(text)) != 0;
  const bool negated = text.compare(0, 3, "no ") == 0;
  if (negated) return found ? CMD_NEGATED_OVERWRITE : CMD_NEGATED;
  return found ? CMD_OVERWRITE : CMD_ADDITIVE;
}

bool ParserToolCase::isTheSameCmd(const std::string& a, const std::string& b, bool withNo) {
  const std::string keyA = getKeyStr(a);
  const std::string keyB = getKeyStr(b);
  if (!withNo) return keyA == keyB;
  return keyA == "no" + keyB || keyB == "no" + keyA;
}

void ParserToolCase::removeMore(std::string& text) {
  static const std::string kMore = "--More--";
  std::string::size_type more = text.find(kMore);
  if (more == std::string::npos) return;
  text.erase(0, more + kMore.size());
  // The pager wipes its prompt with control bytes; they go with everything
  // in front of the last of them.
  for (std::string::size_type i = text.size(); i > 0; --i) {
    if (!std::isprint(static_cast<unsigned char>(text[i - 1]))) {
      text.erase(0, i);
      return;
    }
  }
}

bool ParserToolCase::strInCmd(const std::string& text, const std::string& prefix) {
  auto isGap = [](char c) { return c == ' ' || c == '\t' || c == '\n'; };
  const char* t = text.c_str();
  const char* p = prefix.c_str();
  for (;;) {
    while (isGap(*p)) ++p;
    if (*p == '\0') break;
    while (isGap(*t)) ++t;
    // Word boundaries of the prefix are not required in the text: "a b"
    // walks through "ab". A text that ends first fails here too.
    for (; *p != '\0' && !isGap(*p); ++p, ++t) {
      if (*t != *p) return false;
    }
  }
  return *t == '\0' || isGap(*t);
}

std::string ParserToolCase::string2CutSpace(const std::string& text) {
  // Measured on the text as it stands, not repeated: a tail of blanks and
  // carriage returns mixed loses only its last run.
  const std::string::size_type lastNonBlank = text.find_last_not_of(' ');
  const std::string::size_type lastNonCr = text.find_last_not_of('\r');
  if (lastNonBlank == std::string::npos || lastNonCr == std::string::npos) return std::string();
  return text.substr(0, std::min(lastNonBlank, lastNonCr) + 1);
}

void ParserToolCase::getBothAclCmdsStr(std::string& first, std::string& second) {
  std::vector<std::string> words;
  splitString(first, " \t\n", words);
  if (words.empty()) return;

  if (words[0] == "access-list") {
    second = "ip access-list";
    if (words.size() > 1) {
      const int number = toolkit_detail::atoiSaturated(words[1]);
      if (number >= 1 && number <= 99) {
        second += " standard " + words[1];
      } else if (number >= 100 && number <= 199) {
        second += " extended " + words[1];
      } else {
        second.clear();
      }
    }
    return;
  }

  if (words[0] != "ip") return;

  // Where the named form has no numbered twin, `first` is cut off as a C
  // string would be: its first byte becomes NUL and its length stays. Callers
  // that read it through c_str() see an empty text; size() still counts the
  // old bytes. Kept as callers have always seen it.
  if (words.size() < 2 || words[1] != "access-list") {
    first[0] = '\0';
    second.clear();
    return;
  }
  second = first;
  if (words.size() < 3) {
    first = "access-list";
    return;
  }
  // The number is accepted from 1 to 199 whichever of the two kinds is named.
  if ((words[2] == "standard" || words[2] == "extended") && words.size() > 3 &&
      std::isdigit(static_cast<unsigned char>(words[3][0])) != 0) {
    const int number = toolkit_detail::atoiSaturated(words[3]);
    if (number >= 1 && number <= 199) {
      first = "access-list " + words[3];
      return;
    }
  }
  first[0] = '\0';
}

bool ParserToolCase::isIpACLWithNo(const std::string& text) {
  if (text.empty()) return false;
  std::string rest = string2Lower(text);
  if (StlHelper::GetFirstWord(rest) != "ip") return false;
  if (StlHelper::GetFirstWord(rest) != "access-list") return false;
  const std::string kind = StlHelper::GetFirstWord(rest);
  if (kind != "standard" && kind != "extended") return false;
  for (char c : StlHelper::GetFirstWord(rest)) {
    if (std::isdigit(static_cast<unsigned char>(c)) == 0) return false;
  }
  return true;
}

void ParserToolCase::timerStart() { startTime = static_cast<long>(std::clock()); }

void ParserToolCase::timerStop() { stopTime = static_cast<long>(std::clock()); }

double ParserToolCase::elapsedTime() { return static_cast<double>(stopTime - startTime) / 1000.0; }

}  // namespace qxparser
