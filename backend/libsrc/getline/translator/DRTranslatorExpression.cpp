// Expressions: the look-back tests that stand in for a grammar, argument lists,
// search patterns turned into Perl patterns, and set addition and subtraction.
#include <cstring>

#include "toolkit/ParserToolCase.h"
#include "translator/DRTranslator.h"
#include "translator/DRTranslatorInternal.h"

using drtranslator::kNoWord;
using drtranslator::previousWord;

namespace {

// The end of a variable name in a pattern: the next blank or double quote, or
// the end of the pattern when it has neither.
std::size_t nameEnd(const std::string& pattern, std::size_t at) {
  std::size_t end = pattern.find_first_of(" \"", at);
  return end == std::string::npos ? pattern.size() : end;
}

// The next group from `from`: the first "(" and the first ")" behind it. A ")"
// that stands before the "(" belongs to no group and is passed over.
bool findGroup(const std::string& pattern, std::size_t from, std::size_t& open, std::size_t& close) {
  open = pattern.find('(', from);
  if (open == std::string::npos) return false;
  close = pattern.find(')', from);
  if (close == std::string::npos) return false;
  if (close < open) close = pattern.find(')', open);
  return close != std::string::npos;
}

}  // namespace

int DRTranslator::checkIllegleExpression(WordList& list, std::string word) {
  std::ptrdiff_t prev = previousWord(list, static_cast<std::ptrdiff_t>(list.size()) - 1);
  if (prev == kNoWord) return 0;
  const std::string& before = list[static_cast<std::size_t>(prev)];
  if ((!word.empty() && word[0] == '#') || word == "if") {
    if (before == ";" || before == "}" || before == "{" || before == "=" || before == "+" || before == "-" ||
        before == "(")
      return 0;
  } else if (word == "print") {
    if (before == ";" || before == "}" || before == "{") return 0;
  }
  reportMessage("There is an illegal expression on/before code line ");
  return -1;
}

int DRTranslator::checkIllegleMethod(WordList& list) {
  if (list.empty() || list.back() != "(") return -1;
  std::ptrdiff_t prev = previousWord(list, static_cast<std::ptrdiff_t>(list.size()) - 1);
  if (prev == kNoWord) return 0;
  const std::string& before = list[static_cast<std::size_t>(prev)];
  if (before == "if" || before == "=") return 0;
  reportMessage("\"" + before + "\" is an illegal method in expression on code line ");
  return -1;
}

int DRTranslator::getFunVariables(std::vector<std::string>& arguments) {
  if (getUnSpaceWord() != "(") {
    reportMessage("Function lacks left bracket on code line ");
    return -1;
  }
  std::string buffer;
  int depth = 1;
  while (!isFileEnd()) {
    std::string word = getWord();
    if (word == ")") {
      if (--depth == 0) break;
    } else if (word == "(") {
      ++depth;
    }
    buffer += word;
  }
  // Also taken when the closing bracket is the last character of the script.
  if (isFileEnd()) {
    reportMessage("Function lacks right bracket on code line ");
    return -1;
  }
  // Every comma cuts, also one inside quotes or brackets.
  std::size_t start = 0;
  while (true) {
    std::size_t comma = buffer.find(',', start);
    std::string piece = buffer.substr(start, comma == std::string::npos ? std::string::npos : comma - start);
    std::size_t first = piece.find_first_not_of(" \t\r\n");
    if (first == std::string::npos) {
      piece = "\"\"";
    } else {
      std::size_t last = piece.find_last_not_of(" \t\r\n");
      piece = piece.substr(first, last - first + 1);
    }
    arguments.push_back(piece);
    if (comma == std::string::npos) break;
    start = comma + 1;
  }
  return 0;
}

int DRTranslator::solveRegular(std::string& pattern, std::vector<std::string>& groups,
                               std::vector<std::string>& variables, int flag) {
  std::size_t pos = 0;
  std::size_t open = 0;
  std::size_t close = 0;
  while (pos < pattern.size() && findGroup(pattern, pos, open, close)) {
    groups.push_back(pattern.substr(open + 1, close - open - 1));
    pos = close + 1;
  }

  pos = 0;
  while (true) {
    std::size_t at = pattern.find('@', pos);
    if (at == std::string::npos) break;
    if (at > 0 && pattern[at - 1] == '(') {
      pos = at + 1;
      continue;
    }
    std::size_t end = nameEnd(pattern, at);
    variables.push_back(pattern.substr(at, end - at));
    pos = end;
  }
  return changeRegularFormate(pattern, flag);
}

int DRTranslator::changeRegularFormate(std::string& pattern, int flag) {
  const std::string group(drtranslator::kGroupPattern);
  std::size_t pos = 0;
  std::size_t open = 0;
  std::size_t close = 0;
  while (pos < pattern.size() && findGroup(pattern, pos, open, close)) {
    pattern.replace(open, close - open + 1, group);
    // One character behind the group is left out of the next search, so a group
    // that follows directly on another keeps its brackets, and its variable is
    // rewritten like any other. Kept.
    pos = pattern.rfind(group) + group.size() + 1;
  }

  const std::string index = flag == 0 ? "[$index]" : "[0]";
  while (true) {
    std::size_t at = pattern.find('@');
    if (at == std::string::npos) break;
    std::size_t end = nameEnd(pattern, at);
    std::string name = "$" + pattern.substr(at + 1, end - at - 1) + index;
    pattern.replace(at, end - at, name);
  }
  return 0;
}

int DRTranslator::translateAdd(WordList& list) { return translateSetOperator(list, true); }

int DRTranslator::translateReduce(WordList& list) { return translateSetOperator(list, false); }

int DRTranslator::translateSetOperator(WordList& list, bool isAdd) {
  const char* op = isAdd ? "+" : "-";
  if (list.empty() || list.back() != op) return -1;
  const std::ptrdiff_t opIndex = static_cast<std::ptrdiff_t>(list.size()) - 1;

  std::ptrdiff_t leftIndex = previousWord(list, opIndex);
  if (leftIndex == kNoWord) {
    reportMessage("An illegal expression on code line ");
    return -1;
  }
  std::string left = list[static_cast<std::size_t>(leftIndex)];
  if (!isAdd) left = drtranslator::storedWord(left);
  if (getWordType(left) != 6) {
    reportMessage("\"" + left + "\" is an illegal variable in expression on code line ");
    return -1;
  }

  std::ptrdiff_t equalIndex = previousWord(list, leftIndex);
  if (equalIndex == kNoWord || list[static_cast<std::size_t>(equalIndex)].empty() ||
      list[static_cast<std::size_t>(equalIndex)][0] != '=') {
    reportMessage("An illegal expression on code line ");
    return -1;
  }
  const std::string equal = list[static_cast<std::size_t>(equalIndex)];

  std::ptrdiff_t targetIndex = previousWord(list, equalIndex);
  std::string target;
  if (targetIndex != kNoWord) {
    target = list[static_cast<std::size_t>(targetIndex)];
    if (target.empty() || target[0] != '#') {
      reportMessage("An illegal expression on code line ");
      return -1;
    }
  }

  std::string right;
  bool found = false;
  while (!isFileEnd()) {
    std::string word = getWord();
    if (!isSpaceWord(word)) {
      right = word;
      found = true;
      break;
    }
  }
  if (found) {
    right = drtranslator::storedWord(right);
    if (getWordType(right) != 6) {
      reportMessage("\"" + right + "\" is an illegal variable in expression on code line ");
      return -1;
    }
  }

  // With no target the white space in front of the "=" stays where it is.
  std::ptrdiff_t eraseFrom = targetIndex != kNoWord ? targetIndex : equalIndex;
  list.erase(list.begin() + eraseFrom, list.end());

  // "#temp1" as the left operand is the running result of this expression.
  if (left != "#temp1") list.push_back("#temp1 = ();\r\n");
  list.push_back(std::string(isAdd ? "#temp1 = combineLines(\\" : "#temp1 = removeLines(\\") + left + ", \\" +
                 right + ");\r\n");
  list.push_back(target);
  // Subtraction writes no blank between the target and "=": "@a= @temp1". Kept.
  if (isAdd) list.push_back(" ");
  list.push_back(equal);
  list.push_back(" ");
  list.push_back("#temp1");
  return 0;
}
