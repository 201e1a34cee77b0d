// The keywords that stand inside conditions (isempty, not, is_in_samenet) and
// the print statement. The message texts, with their double blanks and odd
// spellings, are the system's own and stay as they are.
#include "toolkit/ParserToolCase.h"
#include "translator/DRTranslator.h"
#include "translator/DRTranslatorInternal.h"

namespace {

struct SetPredicateTexts {
  const char* keyword;
  const char* array;  // the generated array, spelled with "#"
  const char* result;  // the entry left where the keyword stood
  const char* firstOperandWrong;
  const char* laterOperandWrong;
  const char* wordBetweenWrong;
  const char* formatWrong;
  bool firstMayBeList;  // a first operand may also start with "@"
};

const SetPredicateTexts kIsEmptyTexts = {"isempty",
                                         "#temp3",
                                         "isEmpty(\\#temp3)",
                                         "Function isEmpty's argument is wrong on code line",
                                         "Function isEmpty's argument is wrong  on code line",
                                         "Function isEmpty' argument is wrong  on code line",
                                         "Function isEmpty's format is wrong on code line",
                                         true};
const SetPredicateTexts kNotTexts = {"not",
                                     "#temp2",
                                     "excludeLines(\\#temp2)",
                                     "Not variable is wrong on code line",
                                     "Not variable is wrong on code line",
                                     "Not variable is wrong on code line",
                                     "Not format is wrong on code line",
                                     false};

}  // namespace

int DRTranslator::processIsEmpty(WordList& list) { return processSetPredicate(list, true); }

int DRTranslator::processNot(WordList& list) { return processSetPredicate(list, false); }

int DRTranslator::processSetPredicate(WordList& list, bool isEmptyForm) {
  const SetPredicateTexts& texts = isEmptyForm ? kIsEmptyTexts : kNotTexts;
  if (list.empty() || list.back() != texts.keyword) return -1;
  list.pop_back();
  const std::string array(texts.array);

  // Whether the text ended is asked after each read; a read that ran into the
  // end is not checked, and the format message follows below.
  std::string word = getUnSpaceWord();
  if (!isFileEnd() && (word.empty() || word[0] != '(')) {
    reportMessage("Function lacks left bracket  on code line");
    return -1;
  }

  std::string operand = getUnSpaceWord();
  if (!isFileEnd()) {
    operand = drtranslator::storedWord(operand);
    if (operand.empty() || !(operand[0] == '#' || (texts.firstMayBeList && operand[0] == '@'))) {
      reportMessage(texts.firstOperandWrong);
      return -1;
    }
  }
  insertPreLine(array + " = ();\r\n", list);
  insertPreLine(array + " = combineLines(\\" + array + ", \\" + operand + ");\r\n", list);

  while (!isFileEnd()) {
    word = getWord();
    if (isSpaceWord(word)) continue;
    if (!word.empty() && word[0] == ')') break;
    if (word != "+" && word != "-") {
      reportMessage(texts.wordBetweenWrong);
      return -1;
    }
    if (isFileEnd()) continue;
    operand = getUnSpaceWord();
    if (isFileEnd()) continue;
    operand = drtranslator::storedWord(operand);
    if (operand.empty() || operand[0] != '#') {
      reportMessage(texts.laterOperandWrong);
      return -1;
    }
    insertPreLine(array + (word == "+" ? " = combineLines(\\" : " = removeLines(\\") + array + ", \\" + operand +
                      ");\r\n",
                  list);
  }

  // Also taken when the closing bracket is the last character of the script.
  if (isFileEnd()) {
    reportMessage(texts.formatWrong);
    return -1;
  }
  list.push_back(texts.result);
  return 0;
}

int DRTranslator::processIsInSameNet(WordList& list) {
  if (list.empty() || list.back() != "is_in_samenet") return -1;
  list.pop_back();
  std::vector<std::string> arguments;
  if (getFunVariables(arguments) != 0) return -1;
  if (arguments.size() < 4) {
    reportMessage("Function is_in_samenet has wrong argument number on code line ");
    return -1;
  }
  std::string fourth = arguments[3];
  if (!fourth.empty() && fourth[0] == '#') fourth.replace(0, 1, "\\@");
  // Quotes of the fifth argument stay, so they come out doubled; a sixth
  // argument and beyond drops the name altogether.
  std::string fifth = "\"\"";
  if (arguments.size() == 5) fifth = "\"" + qxparser::ParserToolCase::string2Lower(arguments[4]) + "\"";
  list.push_back("is_in_samenet(\\" + arguments[0] + ",\\" + arguments[1] + ",\\" + arguments[2] + "," + fourth + "," +
                 fifth + ")");
  return 0;
}

int DRTranslator::processPrint(WordList& list) {
  if (list.empty() || list.back() != "print") return -1;
  list.pop_back();
  std::string word = getUnSpaceWord();
  char first = word.empty() ? '\0' : word[0];
  if (first == '"') {
    // No escape: the next word that starts with a quote ends the text, and an
    // unclosed text ends with the script, without a message.
    std::string quoted = word;
    while (!isFileEnd()) {
      std::string next = getWord();
      quoted += next;
      if (!next.empty() && next[0] == '"') break;
    }
    list.push_back("print");
    list.push_back(" ");
    list.push_back("OUTFILE ");
    list.push_back(quoted);
  } else if (first == '#') {
    list.push_back("printToFile (\\");
    list.push_back(qxparser::ParserToolCase::string2Lower(word));
    list.push_back(")");
  } else if (first == '@') {
    // The name keeps its case here, unlike everywhere else in the main text.
    list.push_back("print OUTFILE (");
    list.push_back(word);
    list.push_back(");\r\n");
    list.push_back("print OUTFILE \"\\n\"");
  } else {
    reportMessage("Print information format is wrong on codeline ");
    return -1;
  }
  return 0;
}
