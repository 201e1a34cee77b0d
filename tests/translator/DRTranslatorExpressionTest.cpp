// Look-back checks, argument lists, search patterns, and set expressions.
#include <gtest/gtest.h>

#include "TranslatorTestSupport.h"

using translatortest::translate;
using translatortest::validBody;
using V = std::vector<std::string>;

TEST(DRTranslatorExpression, IntendedQuirkAdjacentGroupKeepsItsBrackets) {
  auto p = DRTranslatorTestAccess::solveRegular("\"(@a)(@b) (@c)\"", 0);
  // The name runs to the next blank, so the closing bracket is part of it.
  EXPECT_EQ(p.pattern, "\"([^ \\t\\r\\n]*)($b)[$index] ([^ \\t\\r\\n]*)\"");
  EXPECT_EQ(p.groups, (V{"@a", "@b", "@c"}));
  EXPECT_EQ(p.variables, V{});
  // One character between the groups is enough.
  auto q = DRTranslatorTestAccess::solveRegular("\"(@a) (@b)\"", 0);
  EXPECT_EQ(q.pattern, "\"([^ \\t\\r\\n]*) ([^ \\t\\r\\n]*)\"");
}

TEST(DRTranslatorExpression, IntendedQuirkSubtractionWritesNoBlankBeforeEquals) {
  EXPECT_EQ(validBody("#a = #b - #c;"), "@temp1 = ();\r\n@temp1 = removeLines(\\@b, \\@c);\r\n@a= @temp1;");
  EXPECT_EQ(validBody("#a = #b + #c - #d;"),
            "@temp1 = ();\r\n@temp1 = combineLines(\\@b, \\@c);\r\n@temp1 = removeLines(\\@temp1, \\@d);\r\n"
            "@a= @temp1;");
}

TEST(DRTranslatorExpression, PlusAtTheEndOfTheTextHasAnEmptyRightOperand) {
  auto t = translate("#a = #b+");
  EXPECT_EQ(t.message, "");
  EXPECT_EQ(t.body, "@temp1 = ();\r\n@temp1 = combineLines(\\@b, \\);\r\n@a = @temp1");
}

TEST(DRTranslatorExpression, OperatorAcceptsAnyWordThatStartsWithEquals) {
  // Reached when the look back of the main loop is passed, as in a list built
  // by other means: "==" counts as the "=" and stands again as it stood.
  V list{"#x", " ", "==", " ", "#a", " ", "+"};
  EXPECT_EQ(DRTranslatorTestAccess::translateAdd(list, " #b;"), 0);
  EXPECT_EQ(list, (V{"#temp1 = ();\r\n", "#temp1 = combineLines(\\#a, \\#b);\r\n", "#x", " ", "==", " ", "#temp1"}));
}
