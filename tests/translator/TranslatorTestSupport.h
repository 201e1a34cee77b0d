// Helpers of the translator tests: reach into one translation (words, the
// insertion of lines, patterns) and translate whole scripts through the public
// entry, splitting the written program into head, body and tail.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/TestFiles.h"
#include "translator/DRTranslator.h"

// Befriended by DRTranslator.
class DRTranslatorTestAccess {
 public:
  // Every word getWord yields until the text ends or the empty word comes.
  static std::vector<std::string> words(const std::string& script, std::string* rest = nullptr);
  // Line number after reading all words.
  static int lineAfterWords(const std::string& script);
  // translateAdd on `list`, reading the right operand from `rest`.
  static int translateAdd(std::vector<std::string>& list, const std::string& rest);
  static void insertPreLine(const std::string& text, std::vector<std::string>& list);
  struct Pattern {
    std::string pattern;
    std::vector<std::string> groups;
    std::vector<std::string> variables;
  };
  static Pattern solveRegular(const std::string& pattern, int flag);
  // Arguments of a call read from script (which starts at the bracket); the
  // message, if any, goes to *message.
  static std::vector<std::string> getFunVariables(const std::string& script, std::string* message);
};

namespace translatortest {

// The fixed head of every program, and the line that opens the tail.
std::string head();
std::string closeLine();
// The runtime text as it lies in the resource folder in use.
std::string runtimeText();
using testsupport::readFile;
using testsupport::writeFile;
std::string tempPath(const std::string& name);

struct Translation {
  std::string body;     // the text between head and tail
  std::string message;  // errorText
  std::string program;  // path of the written program
  bool wellFormed = false;  // head and tail were where they belong
};

// Translates through the public entry into a temporary program file.
Translation translate(const std::string& script);

// Runs "perl -c" over the program. Empty when it compiled, else perl's output.
// Sets *skipped when no perl is installed.
std::string perlCompile(const std::string& program, bool* skipped);

// Shorthand for tests: translate, expect no message, check the program with
// perl unless told not to, and return the body.
std::string validBody(const std::string& script, bool perlMustAccept = true);

// Each {script, message} row translates to exactly that message and, like a
// failed translation does, to the same file as an empty script.
struct MessageRow {
  std::string script;
  std::string message;
};
void expectMessages(const std::vector<MessageRow>& rows);

}  // namespace translatortest
