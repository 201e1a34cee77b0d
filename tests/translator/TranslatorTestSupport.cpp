#include "TranslatorTestSupport.h"

#include "platform/QXFileSystem.h"

std::vector<std::string> DRTranslatorTestAccess::words(const std::string& script, std::string* rest) {
  DRTranslator t(script, "");
  std::vector<std::string> out;
  while (!t.isFileEnd()) {
    std::string w = t.getWord();
    if (w.empty()) break;
    out.push_back(w);
  }
  if (rest != nullptr) *rest = t.sourceText.substr(std::min<std::size_t>(t.cursor, t.sourceText.size()));
  return out;
}

int DRTranslatorTestAccess::lineAfterWords(const std::string& script) {
  DRTranslator t(script, "");
  while (!t.isFileEnd()) t.getWord();
  return t.lineNumber;
}

int DRTranslatorTestAccess::translateAdd(std::vector<std::string>& list, const std::string& rest) {
  DRTranslator t(rest, "");
  return t.translateAdd(list);
}

void DRTranslatorTestAccess::insertPreLine(const std::string& text, std::vector<std::string>& list) {
  DRTranslator::insertPreLine(text, list);
}

DRTranslatorTestAccess::Pattern DRTranslatorTestAccess::solveRegular(const std::string& pattern, int flag) {
  Pattern p;
  p.pattern = pattern;
  EXPECT_EQ(DRTranslator::solveRegular(p.pattern, p.groups, p.variables, flag), 0);
  return p;
}

std::vector<std::string> DRTranslatorTestAccess::getFunVariables(const std::string& script, std::string* message) {
  DRTranslator t(script, "");
  std::vector<std::string> args;
  t.getFunVariables(args);
  if (message != nullptr) *message = t.errorText;
  return args;
}

namespace translatortest {

std::string head() { return DRTranslator::programHead(); }

std::string closeLine() { return DRTranslator::programCloseLine(); }

std::string runtimeText() { return readFile(QXFileSystem::GetScriptFilePath("DRFunctions")); }

std::string tempPath(const std::string& name) { return QXFileSystem::GetTempFolder() + name; }

Translation translate(const std::string& script) {
  static int counter = 0;
  Translation result;
  result.program = tempPath("translated" + std::to_string(++counter) + ".pl");
  DRTranslator translator(script, result.program);
  translator.translateScriptFile();
  result.message = translator.errorText;
  std::string text = readFile(result.program);
  std::string tail = closeLine() + runtimeText();
  const std::string h = head();
  if (text.size() >= h.size() + tail.size() && text.compare(0, h.size(), h) == 0 &&
      text.compare(text.size() - tail.size(), tail.size(), tail) == 0) {
    result.wellFormed = true;
    result.body = text.substr(h.size(), text.size() - h.size() - tail.size());
  }
  return result;
}

std::string perlCompile(const std::string& program, bool* skipped) {
  *skipped = false;
  std::string perl = QXFileSystem::GetPerlExepath();
  if (perl.empty()) {
    *skipped = true;
    return std::string();
  }
  std::string log = program + ".log";
  // perl's own report goes to a file, so that a failure can be shown.
  int rc = QXFileSystem::ExecuteArgv(
      {perl, "-e", "open(STDERR, '>', $ARGV[1]) or die; exec($^X, '-c', $ARGV[0]) or die", program, log});
  if (rc == 0) return std::string();
  std::string out = readFile(log);
  return out.empty() ? "perl exited with " + std::to_string(rc) : out;
}

std::string validBody(const std::string& script, bool perlMustAccept) {
  Translation t = translate(script);
  EXPECT_TRUE(t.wellFormed) << "program is not head + body + tail for: " << script;
  EXPECT_EQ(t.message, "") << "for: " << script;
  if (perlMustAccept && t.message.empty()) {
    bool skipped = false;
    std::string perlSays = perlCompile(t.program, &skipped);
    EXPECT_EQ(perlSays, "") << "perl refuses the program of: " << script << "\nbody:\n" << t.body;
  }
  return t.body;
}

void expectMessages(const std::vector<MessageRow>& rows) {
  for (const MessageRow& row : rows) {
    Translation t = translate(row.script);
    EXPECT_EQ(t.message, row.message) << row.script;
    EXPECT_TRUE(t.wellFormed) << row.script;
    EXPECT_EQ(t.body, "") << row.script;
  }
}

}  // namespace translatortest
