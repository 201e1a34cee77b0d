// Helpers of the translator tests: reach into one translation (words, the
// insertion of lines, patterns) and translate whole scripts through the public
// entry, splitting the written program into head, body and tail.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/QXFileSystem.h"
#include "support/TestFiles.h"
#include "translator/DRTranslator.h"

// Befriended by DRTranslator.
class DRTranslatorTestAccess {
 public:
  // Every word getWord yields until the text ends or the empty word comes;
  // *rest is the text left unread.
  static std::vector<std::string> words(const std::string& script, std::string* rest = nullptr) {
    DRTranslator t(script, "");
    std::vector<std::string> out;
    for (std::string w; !t.isFileEnd() && !(w = t.getWord()).empty();) out.push_back(w);
    if (rest != nullptr) *rest = t.sourceText.substr(std::min<std::size_t>(t.cursor, t.sourceText.size()));
    return out;
  }
  // Line number after reading all words.
  static int lineAfterWords(const std::string& script) {
    DRTranslator t(script, "");
    while (!t.isFileEnd()) t.getWord();
    return t.lineNumber;
  }
  // translateAdd on `list`, reading the right operand from `rest`.
  static int translateAdd(std::vector<std::string>& list, const std::string& rest) {
    DRTranslator t(rest, "");
    return t.translateAdd(list);
  }
  static void insertPreLine(const std::string& text, std::vector<std::string>& list) {
    DRTranslator::insertPreLine(text, list);
  }
  struct Pattern {
    std::string pattern;
    std::vector<std::string> groups;
    std::vector<std::string> variables;
  };
  static Pattern solveRegular(const std::string& pattern, int flag) {
    Pattern p{pattern, {}, {}};
    EXPECT_EQ(DRTranslator::solveRegular(p.pattern, p.groups, p.variables, flag), 0);
    return p;
  }
  // Arguments of a call read from script (which starts at the bracket); the
  // message, if any, goes to *message.
  static std::vector<std::string> getFunVariables(const std::string& script, std::string* message) {
    DRTranslator t(script, "");
    std::vector<std::string> args;
    t.getFunVariables(args);
    *message = t.errorText;
    return args;
  }
};

namespace translatortest {

using testsupport::readFile;
using testsupport::writeFile;

// The fixed head of every program, the line that opens the tail, and the
// runtime text as it lies in the resource folder in use.
inline std::string head() { return DRTranslator::programHead(); }
inline std::string closeLine() { return DRTranslator::programCloseLine(); }
inline std::string runtimeText() { return readFile(QXFileSystem::GetScriptFilePath("DRFunctions")); }
inline std::string tempPath(const std::string& name) { return QXFileSystem::GetTempFolder() + name; }

struct Translation {
  std::string body;     // the text between head and tail
  std::string message;  // errorText
  std::string program;  // path of the written program
  bool wellFormed = false;  // head and tail were where they belong
};

// Translates through the public entry into a temporary program file.
inline Translation translate(const std::string& script) {
  static int counter = 0;
  Translation result;
  result.program = tempPath("translated" + std::to_string(++counter) + ".pl");
  DRTranslator translator(script, result.program);
  translator.translateScriptFile();
  result.message = translator.errorText;
  const std::string text = readFile(result.program);
  const std::string h = head(), tail = closeLine() + runtimeText();
  if (text.size() >= h.size() + tail.size() && text.compare(0, h.size(), h) == 0 &&
      text.compare(text.size() - tail.size(), tail.size(), tail) == 0) {
    result.wellFormed = true;
    result.body = text.substr(h.size(), text.size() - h.size() - tail.size());
  }
  return result;
}

// Runs "perl -c" over the program: empty when it compiled (or no perl is
// installed), else perl's output.
inline std::string perlCompile(const std::string& program) {
  const std::string perl = QXFileSystem::GetPerlExepath();
  if (perl.empty()) return std::string();
  const std::string log = program + ".log";
  // perl's own report goes to a file, so that a failure can be shown.
  const int rc = QXFileSystem::ExecuteArgv(
      {perl, "-e", "open(STDERR, '>', $ARGV[1]) or die; exec($^X, '-c', $ARGV[0]) or die", program, log});
  if (rc == 0) return std::string();
  const std::string out = readFile(log);
  return out.empty() ? "perl exited with " + std::to_string(rc) : out;
}

// Translates, expects no message, checks the program with perl unless told
// not to, and returns the body.
inline std::string validBody(const std::string& script, bool perlMustAccept = true) {
  const Translation t = translate(script);
  EXPECT_TRUE(t.wellFormed) << "program is not head + body + tail for: " << script;
  EXPECT_EQ(t.message, "") << "for: " << script;
  if (perlMustAccept && t.message.empty()) {
    EXPECT_EQ(perlCompile(t.program), "") << "perl refuses the program of: " << script << "\nbody:\n" << t.body;
  }
  return t.body;
}

// The script translates to exactly that message and, like a failed
// translation does, to the same file as an empty script.
inline void expectMessage(const std::string& script, const std::string& message) {
  const Translation t = translate(script);
  EXPECT_EQ(t.message, message) << script;
  EXPECT_TRUE(t.wellFormed) << script;
  EXPECT_EQ(t.body, "") << script;
}

}  // namespace translatortest
