// DRTranslator: turns the text of one design script into one Perl program.
//
// A hand-written source-to-source compiler with no syntax tree and no symbol
// table. The script is read once, word by word, into a list of text pieces;
// keywords and operators call handlers that rewrite the tail of that list,
// read further words, or insert text ahead of the current statement. When the
// whole script has passed, the list is joined, every "#" of it becomes "@", and
// the result is written between a fixed head and a tail that carries the Perl
// runtime (the resource script "DRFunctions").
//
// One object serves one translation: build it on the script text and the path
// of the program to write, call translateScriptFile once, then read errorText.
// An empty errorText means that no message was written, which is not the same
// as success: a comment or quoted text that runs into the end of the script
// stops the translation silently with an empty body. Messages have the form
// "<text><line number>.\r\n". The translator never throws on bad script text and
// owns nothing but its strings. Not for use from two threads at once.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "platform/Export.h"

class VTYCONF_API DRTranslator {
 public:
  DRTranslator(const std::string& scriptText, const std::string& programPath);
  DRTranslator(const DRTranslator&) = default;
  DRTranslator& operator=(const DRTranslator&) = default;
  ~DRTranslator() = default;

  // Deletes programPath, writes the head, the translated body (absent when the
  // translation failed) and the tail. Nothing is written when programPath cannot
  // be opened; the tail is left out when the runtime file cannot be read.
  void translateScriptFile();

  // The fixed text every program opens with, and the line that opens its tail
  // (the runtime follows that line).
  static std::string programHead();
  static std::string programCloseLine();

 private:
  using WordList = std::vector<std::string>;
  friend class DRTranslatorTestAccess;

  // ---- driver
  int translateScriptFile(std::ostream& out);
  void reportMessage(const std::string& text);

  // ---- lexer and statements
  char getChar();
  void ungetChar();
  bool isFileEnd() const;
  char charAt(std::uint32_t index) const;
  std::string getWord();
  std::string getUnSpaceWord();
  static bool isSimpleWord(char c);
  static bool isSpaceWord(const std::string& word);
  static int getWordType(const std::string& word);
  static std::string getString(int value);
  static void insertPreLine(const std::string& text, WordList& list);
  int processComment(WordList& list);
  int processQuo(WordList& list);

  // ---- expressions and patterns
  int checkIllegleExpression(WordList& list, std::string word);
  int checkIllegleMethod(WordList& list);
  int getFunVariables(std::vector<std::string>& arguments);
  static int solveRegular(std::string& pattern, std::vector<std::string>& groups,
                          std::vector<std::string>& variables, int flag);
  static int changeRegularFormate(std::string& pattern, int flag);
  int translateAdd(WordList& list);
  int translateReduce(WordList& list);
  int translateSetOperator(WordList& list, bool isAdd);

  // ---- searches
  int processSearchLine(WordList& list);
  int processSearchParagraph(WordList& list);
  int processSearchParagraphBegin(WordList& list);
  int processSearchParagraphBetween(WordList& list);
  int processSearch(WordList& list, const std::string& keyword, std::size_t patternCount);
  int emitSearch(WordList& list, const std::string& keyword, const std::vector<std::string>& patterns,
                 const std::vector<const std::vector<std::string>*>& groupLists,
                 const std::vector<std::string>& resultArrays, const std::vector<std::string>& variables,
                 const std::string& flag, const std::string& set, const std::string& name);
  int printSearchLine(WordList& list, const std::string& pattern, const std::vector<std::string>& groups,
                      const std::vector<std::string>& variables, const std::string& flag, const std::string& set,
                      std::string name);
  int printSearchParaGraphBegin(WordList& list, const std::string& pattern, const std::vector<std::string>& groups,
                                const std::vector<std::string>& variables, const std::string& flag,
                                const std::string& set, std::string name);
  int printSearchParaGraphBetween(WordList& list, const std::string& beginPattern,
                                  const std::vector<std::string>& beginGroups,
                                  const std::vector<std::string>& variables, const std::string& endPattern,
                                  const std::vector<std::string>& endGroups, const std::string& flag,
                                  const std::string& set, std::string name);
  int printSearchParaGraph(WordList& list, const std::string& beginPattern,
                           const std::vector<std::string>& beginGroups, const std::vector<std::string>& variables,
                           const std::string& endPattern, const std::vector<std::string>& endGroups,
                           const std::string& middlePattern, const std::vector<std::string>& middleGroups,
                           const std::string& flag, const std::string& set, std::string name);

  // ---- predicates and printing
  int processIsEmpty(WordList& list);
  int processNot(WordList& list);
  int processSetPredicate(WordList& list, bool isEmptyForm);
  int processIsInSameNet(WordList& list);
  int processPrint(WordList& list);

  std::string scriptText;
  std::string programPath;
  std::string sourceText;
  std::uint32_t cursor = 0;
  std::int32_t lineNumber = 1;

 public:
  // Messages of the translation; read directly after translateScriptFile.
  std::string errorText;
};
