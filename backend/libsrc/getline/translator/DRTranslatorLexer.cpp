// The word readers of the translator, the insertion of text ahead of the
// current statement, and the two handlers that swallow text: comments and
// quoted text.
#include <cstring>

#include "translator/DRTranslator.h"

namespace {
// The 17 delimiters; blank is not one of them, and neither are "=", "$" or "#",
// so "#a=#b" is a single word.
const char kDelimiters[] = "+-{}()[]!,;'\"\t\r\n\\";
}  // namespace

char DRTranslator::charAt(std::uint32_t index) const {
  // The text ends at its first NUL, or at the end of the string.
  return index < sourceText.size() ? sourceText[index] : '\0';
}

char DRTranslator::getChar() {
  char c = charAt(cursor);
  ++cursor;
  return c;
}

void DRTranslator::ungetChar() {
  if (cursor > 0) --cursor;
}

bool DRTranslator::isFileEnd() const { return charAt(cursor) == '\0'; }

bool DRTranslator::isSimpleWord(char c) { return c != '\0' && std::strchr(kDelimiters, c) != nullptr; }

bool DRTranslator::isSpaceWord(const std::string& word) {
  if (word.empty()) return false;
  char c = word[0];
  return c == ' ' || c == '\r' || c == '\n' || c == '\t';
}

int DRTranslator::getWordType(const std::string& word) {
  if (word.empty()) return -1;
  switch (word[0]) {
    case ' ':
      return 1;
    case '+':
      return 2;
    case '-':
      return 3;
    case '=':
      return 4;
    case '@':
      return 5;
    case '#':
      return 6;
    default:
      return 0;
  }
}

std::string DRTranslator::getString(int value) { return std::to_string(value); }

std::string DRTranslator::getWord() {
  if (isFileEnd()) return std::string();
  char c = charAt(cursor++);
  if (c == '$') c = '@';
  // The cursor stays behind the 0xFF; the main loop sees the empty word.
  if (static_cast<unsigned char>(c) == 0xFF) return std::string();
  std::string word(1, c);

  if (isSimpleWord(c)) {
    if (c == '\n') ++lineNumber;
    return word;
  }

  if (c == ' ') {
    while (!isFileEnd()) {
      char next = charAt(cursor++);
      if (next != ' ') break;
      word += next;
    }
  } else {
    while (!isFileEnd()) {
      char next = charAt(cursor++);
      if (next == '$') next = '@';
      if (isSimpleWord(next) || next == ' ') {
        --cursor;
        return word;
      }
      word += next;
    }
  }
  // The character that ended a run of blanks is given back only when it is not
  // the last one of the text. Kept as it is: in "} }" at the very end of a
  // script, the second brace reaches nobody.
  if (!isFileEnd()) --cursor;
  return word;
}

std::string DRTranslator::getUnSpaceWord() {
  std::string word;
  while (!isFileEnd()) {
    word = getWord();
    if (!isSpaceWord(word)) break;
  }
  return word;
}

void DRTranslator::insertPreLine(const std::string& text, WordList& list) {
  // On an empty list the text goes in here and once more at the front below:
  // a first statement that inserts text emits its first line twice. Kept.
  if (list.empty()) list.push_back(text);
  for (std::size_t i = list.size() - 1; i >= 1; --i) {
    const std::string& entry = list[i];
    if (entry == ";" || entry == "\n" || entry == "}" || entry == "{") {
      list.insert(list.begin() + static_cast<std::ptrdiff_t>(i) + 1, text);
      list.insert(list.begin() + static_cast<std::ptrdiff_t>(i) + 2, "\n");
      return;
    }
  }
  list.insert(list.begin(), text);
  list.insert(list.begin() + 1, "\n");
}

int DRTranslator::processComment(WordList& list) {
  if (list.empty() || list.back() != "!") return -1;
  list.pop_back();
  while (!isFileEnd()) {
    std::string word = getWord();
    if (!word.empty() && (word[0] == '\r' || word[0] == '\n')) break;
  }
  // A comment whose line end is the last character of the script fails the
  // translation without a message (a final "\n" alone does; "\r\n" leaves the
  // "\n" to read). Kept.
  return isFileEnd() ? -1 : 0;
}

int DRTranslator::processQuo(WordList& list) {
  if (list.empty() || list.back() != "\"") return -1;
  list.pop_back();
  // The opening quote is dropped and the closing one kept.
  while (!isFileEnd()) {
    std::string word = getWord();
    list.push_back(word);
    if (!word.empty() && word[0] == '"') break;
  }
  return isFileEnd() ? -1 : 0;
}
