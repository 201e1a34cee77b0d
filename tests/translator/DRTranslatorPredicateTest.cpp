// isempty, not, is_in_samenet and print.
#include <gtest/gtest.h>

#include "TranslatorTestSupport.h"

using translatortest::expectMessages;
using translatortest::translate;
using translatortest::validBody;

namespace {
struct Row {
  std::string script;
  std::string expected;
};
}  // namespace

TEST(DRTranslatorPredicate, ComputesSetsOfConditionsAheadOfTheStatement) {
  const Row rows[] = {
      {"if (isempty(#a + #b - #c)) {\n}\n",
       "@temp3 = ();\r\n\n@temp3 = combineLines(\\@temp3, \\@a);\r\n\n@temp3 = combineLines(\\@temp3, \\@b);\r\n\n"
       "@temp3 = removeLines(\\@temp3, \\@c);\r\n\nif (isEmpty(\\@temp3)) {\n}\n"},
      {"x;\nif (not( #A\n-\n#b )) {\n}\n",
       "x;\n@temp2 = ();\r\n\n@temp2 = combineLines(\\@temp2, \\@a);\r\n\n@temp2 = removeLines(\\@temp2, \\@b);\r\n\n"
       "if (excludeLines(\\@temp2)) {\n}\n"},
      {"if (isempty(@UI_NATList)) {\n}\n",
       "@temp3 = ();\r\n\n@temp3 = combineLines(\\@temp3, \\@UI_NATList);\r\n\nif (isEmpty(\\@temp3)) {\n}\n"},
      {"if (isempty($List)) {\n}\n",
       "@temp3 = ();\r\n\n@temp3 = combineLines(\\@temp3, \\@list);\r\n\nif (isEmpty(\\@temp3)) {\n}\n"},
      // Both sets are computed first and share the array: both calls test the last.
      {"if (isempty(#a) && isempty(#b)) {\n}\n",
       "@temp3 = ();\r\n\n@temp3 = combineLines(\\@temp3, \\@a);\r\n\n@temp3 = ();\r\n\n"
       "@temp3 = combineLines(\\@temp3, \\@b);\r\n\nif (isEmpty(\\@temp3) && isEmpty(\\@temp3)) {\n}\n"},
  };
  for (const Row& row : rows) EXPECT_EQ(validBody(row.script), row.expected) << row.script;
}

TEST(DRTranslatorPredicate, RefusesBadConditionsWithTheirOwnWording) {
  expectMessages({
      {"if (isempty #a) {}", "Function lacks left bracket  on code line1.\r\n"},
      {"if (not #a) {}", "Function lacks left bracket  on code line1.\r\n"},
      {"if (isempty(x)) {}", "Function isEmpty's argument is wrong on code line1.\r\n"},
      {"if (isempty(#a +\n@UI_NATList)) {}", "Function isEmpty's argument is wrong  on code line2.\r\n"},
      {"if (isempty(#a #b)) {}", "Function isEmpty' argument is wrong  on code line1.\r\n"},
      {"x = isempty(#a)", "Function isEmpty's format is wrong on code line1.\r\n"},
      {"x = isempty(#a + ", "Function isEmpty's format is wrong on code line1.\r\n"},
      {"x = isempty(", "Function isEmpty's format is wrong on code line1.\r\n"},
      {"if (not(@UI_NATList)) {}", "Not variable is wrong on code line1.\r\n"},
      {"if (not(#a - x)) {}", "Not variable is wrong on code line1.\r\n"},
      {"if (not(#a x)) {}", "Not variable is wrong on code line1.\r\n"},
      {"x = not(#a)", "Not format is wrong on code line1.\r\n"},
  });
}

TEST(DRTranslatorPredicate, PassesSubnetArgumentsOn) {
  const Row rows[] = {
      {"if (is_in_samenet(#a, #b, #c, #d)) {}\n", "if (is_in_samenet(\\@a,\\@b,\\@c,\\@d,\"\")) {}\n"},
      {"if (is_in_samenet($ip, $Mask, @o, #Set, Name)) {}\n",
       "if (is_in_samenet(\\@ip,\\@Mask,\\@o,\\@Set,\"name\")) {}\n"},
      // A sixth argument drops the name.
      {"if (is_in_samenet($i, $m, $o, x, n, y)) {}\n", "if (is_in_samenet(\\@i,\\@m,\\@o,x,\"\")) {}\n"},
  };
  for (const Row& row : rows) EXPECT_EQ(validBody(row.script), row.expected) << row.script;
  // Quotes of the name are kept, and so come out doubled.
  EXPECT_EQ(validBody("if (is_in_samenet($i, $m, $o, #s, \"N\")) {}\n", false),
            "if (is_in_samenet(\\@i,\\@m,\\@o,\\@s,\"\"n\"\")) {}\n");
  expectMessages({
      {"if (is_in_samenet(#a, #b, #c)) {}", "Function is_in_samenet has wrong argument number on code line 1.\r\n"},
      {"if (is_in_samenet #a) {}", "Function lacks left bracket on code line 1.\r\n"},
  });
}

TEST(DRTranslatorPredicate, PrintsTextListsAndLineSets) {
  const Row rows[] = {
      {"print \"Found: \";", "print OUTFILE \"Found: \";"},
      {"print $ip;", "print OUTFILE (@ip);\r\nprint OUTFILE \"\\n\";"},
      {"print #L;", "printToFile (\\@l);"},
      // A list name keeps its case after print, unlike anywhere else.
      {"print $Lines;", "print OUTFILE (@Lines);\r\nprint OUTFILE \"\\n\";"},
      {"print @UI_NATList;", "print OUTFILE (@UI_NATList);\r\nprint OUTFILE \"\\n\";"},
      // "$" and "#" in printed text both reach Perl as "@"; handlers do not run.
      {"print \"A #b $c + !d\";", "print OUTFILE \"A @b @c + !d\";"},
      {"x;\n  print\n\"y\";", "x;\n  print OUTFILE \"y\";"},
  };
  for (const Row& row : rows) EXPECT_EQ(validBody(row.script), row.expected) << row.script;
  EXPECT_EQ(validBody("x; print \"a", false), "x; print OUTFILE \"a");
  expectMessages({
      {"print (#a);", "Print information format is wrong on codeline 1.\r\n"},
      {"x;\nprint", "Print information format is wrong on codeline 2.\r\n"},
      {"print x;", "Print information format is wrong on codeline 1.\r\n"},
      {"x print #a;", "There is an illegal expression on/before code line 1.\r\n"},
  });
}
