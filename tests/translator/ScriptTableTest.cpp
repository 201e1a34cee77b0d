// The scripts of tests/data/translator/scripts.txt: each translates to its
// body (a program perl accepts unless the case says "perl: no") or fails with
// its message and writes the program of an empty script.
#include <gtest/gtest.h>

#include "TranslatorTestSupport.h"
#include "support/CaseFile.h"

TEST(DRTranslatorTable, ScriptsTranslateToTheirBodyOrMessage) {
  for (const testsupport::Case& c : testsupport::readCases("translator/scripts.txt")) {
    SCOPED_TRACE(c.where());
    if (c.has("message")) {
      translatortest::expectMessage(c["script"], c["message"]);
    } else {
      EXPECT_EQ(translatortest::validBody(c["script"], c.get("perl") != "no"), c["body"]);
    }
  }
}

namespace {

// "a|b" as its parts; "" is none.
std::vector<std::string> parts(const std::string& joined) {
  std::vector<std::string> out;
  if (!joined.empty()) out = testsupport::splitFields(joined, '|');
  return out;
}

}  // namespace

// The cases of tests/data/translator/reading.txt: words of a text, arguments
// of a call, search patterns rewritten for perl.
TEST(DRTranslatorTable, TextsAreCutIntoTheirWordsAndArguments) {
  for (const testsupport::Case& c : testsupport::readCases("translator/reading.txt")) {
    if (c.has("words")) {
      std::string rest;
      EXPECT_EQ(DRTranslatorTestAccess::words(c["text"], &rest), parts(c["words"])) << c.where();
      testsupport::expectSection(c, "rest", rest);
      continue;
    }
    if (c.has("pattern")) {
      const auto rewritten = DRTranslatorTestAccess::solveRegular(c["pattern"], std::stoi(c["flag"]));
      EXPECT_EQ(rewritten.pattern, c["rewritten"]) << c.where();
      EXPECT_EQ(rewritten.groups, parts(c["groups"])) << c.where();
      EXPECT_EQ(rewritten.variables, parts(c["variables"])) << c.where();
      continue;
    }
    std::string message;
    const std::vector<std::string> arguments = DRTranslatorTestAccess::getFunVariables(c["call"], &message);
    testsupport::expectSection(c, "arguments", testsupport::joinFields(arguments, '|'));
    EXPECT_EQ(message, c["message"]) << c.where();
  }
}
