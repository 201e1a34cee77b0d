// Look-back checks, argument lists, search patterns, and set expressions.
#include <gtest/gtest.h>

#include "TranslatorTestSupport.h"

using translatortest::translate;
using translatortest::validBody;
using V = std::vector<std::string>;

TEST(DRTranslatorExpression, RewritesPatternsIntoPerlPatternsWithInterpolatedVariables) {
  struct Row {
    std::string pattern;
    int flag;
    std::string result;
    V groups;
    V variables;
  };
  const Row rows[] = {
      {"\"ip address (@ip) @mask\"", 0, "\"ip address ([^ \\t\\r\\n]*) $mask[$index]\"", {"@ip"}, {"@mask"}},
      {"\"ip address (@ip) @mask\"", 1, "\"ip address ([^ \\t\\r\\n]*) $mask[0]\"", {"@ip"}, {"@mask"}},
      {"\"(abc) Keep\"", 0, "\"([^ \\t\\r\\n]*) Keep\"", {"abc"}, {}},
      {"\"a @\"", 0, "\"a $[$index]\"", {}, {"@"}},
      {"\"@a/24 x@a.\"", 1, "\"$a/24[0] x$a.[0]\"", {}, {"@a/24", "@a."}},
      {"\"@x (@g) @x\"", 0, "\"$x[$index] ([^ \\t\\r\\n]*) $x[$index]\"", {"@g"}, {"@x", "@x"}},
      {"\"no variables\"", 0, "\"no variables\"", {}, {}},
      // Unquoted, the name ends with the pattern.
      {"x @v", 0, "x $v[$index]", {}, {"@v"}},
      // A ")" before any "(" belongs to no group.
      {"\") (@a)\"", 0, "\") ([^ \\t\\r\\n]*)\"", {"@a"}, {}},
      {"\"(unclosed @v\"", 0, "\"(unclosed $v[$index]\"", {}, {"@v"}},
  };
  for (const Row& row : rows) {
    auto p = DRTranslatorTestAccess::solveRegular(row.pattern, row.flag);
    EXPECT_EQ(p.pattern, row.result) << row.pattern;
    EXPECT_EQ(p.groups, row.groups) << row.pattern;
    EXPECT_EQ(p.variables, row.variables) << row.pattern;
  }
}

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
