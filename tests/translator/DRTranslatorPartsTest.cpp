// Parts of one translation that no whole script shows: line counting, the
// insertion of lines, the operator of a set expression, the guards of a search.
#include <gtest/gtest.h>

#include "TranslatorTestSupport.h"

using translatortest::validBody;
using V = std::vector<std::string>;

TEST(DRTranslatorParts, CountsLineFeedsOnly) {
  EXPECT_EQ(DRTranslatorTestAccess::lineAfterWords(""), 1);
  EXPECT_EQ(DRTranslatorTestAccess::lineAfterWords("a\r\nb\nc\r"), 3);
}

TEST(DRTranslatorParts, InsertPreLinePlacesTextBehindTheLastStatementEnd) {
  struct Row {
    V list;
    V expected;
  };
  const Row rows[] = {
      {{"a", ";", "b", " "}, {"a", ";", "T", "\n", "b", " "}},
      {{"x", "\n", "y", "{", "z"}, {"x", "\n", "y", "{", "T", "\n", "z"}},
      {{"if", " ", "("}, {"T", "\n", "if", " ", "("}},
      {{";", "a"}, {"T", "\n", ";", "a"}},  // the first entry is never looked at
      {{"a", "}"}, {"a", "}", "T", "\n"}},
      {{}, {"T", "\n", "T"}},  // the first insert into an empty list is doubled: intended
  };
  for (const Row& row : rows) {
    V list = row.list;
    DRTranslatorTestAccess::insertPreLine("T", list);
    EXPECT_EQ(list, row.expected);
  }
  V list{"a", ";", "b"};
  DRTranslatorTestAccess::insertPreLine("1", list);
  DRTranslatorTestAccess::insertPreLine("2", list);
  EXPECT_EQ(list, (V{"a", ";", "1", "\n", "2", "\n", "b"}));
}

TEST(DRTranslatorParts, OperatorAcceptsAnyWordThatStartsWithEquals) {
  // Reached when the look back of the main loop is passed, as in a list built
  // by other means: "==" counts as the "=" and stands again as it stood.
  V list{"#x", " ", "==", " ", "#a", " ", "+"};
  EXPECT_EQ(DRTranslatorTestAccess::translateAdd(list, " #b;"), 0);
  EXPECT_EQ(list, (V{"#temp1 = ();\r\n", "#temp1 = combineLines(\\#a, \\#b);\r\n", "#x", " ", "==", " ", "#temp1"}));
}

TEST(DRTranslatorParts, RepeatedSearchVariableIsTestedOncePerOccurrence) {
  const std::string body = validBody("#a = search_line(\"$v x $v\", all);");
  EXPECT_NE(body.find("$tempSize = @v;\nif($tempSize != @v)\n{}\nelsif($tempSize != @v)\n{}\nelse\n{\n"),
            std::string::npos)
      << body;
}
