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
      translatortest::expectMessages({{c["script"], c["message"]}});
    } else {
      EXPECT_EQ(translatortest::validBody(c["script"], c.get("perl") != "no"), c["body"]);
    }
  }
}
