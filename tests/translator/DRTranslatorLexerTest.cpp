// Words, line numbers, comments, quoted text and the insertion of lines.
#include <gtest/gtest.h>

#include "TranslatorTestSupport.h"

using translatortest::translate;
using translatortest::validBody;
using V = std::vector<std::string>;

TEST(DRTranslatorLexer, IntendedQuirkCharacterAfterTrailingBlanksIsLost) {
  // The character that ends a run of blanks is given back only when it is not
  // the last of the text.
  EXPECT_EQ(DRTranslatorTestAccess::words("} }"), (V{"}", " "}));
  EXPECT_EQ(DRTranslatorTestAccess::words("a  b"), (V{"a", "  "}));
  EXPECT_EQ(DRTranslatorTestAccess::words("a  bc"), (V{"a", "  ", "bc"}));
  EXPECT_EQ(validBody("{ }", false), "{ ");
}

TEST(DRTranslatorLexer, CountsLineFeedsOnly) {
  EXPECT_EQ(DRTranslatorTestAccess::lineAfterWords(""), 1);
  EXPECT_EQ(DRTranslatorTestAccess::lineAfterWords("a\r\nb\nc\r"), 3);
}

TEST(DRTranslatorLexer, ByteFFStartingAWordStopsTheTranslationSilently) {
  std::string rest;
  EXPECT_EQ(DRTranslatorTestAccess::words("ab \xFFzz", &rest), (V{"ab", " "}));
  EXPECT_EQ(rest, "zz");
  auto stopped = translate("x; \xFF y;");
  EXPECT_TRUE(stopped.wellFormed);
  EXPECT_EQ(stopped.body, "");
  EXPECT_EQ(stopped.message, "");
  // As the last character, or inside a word, it is harmless.
}

TEST(DRTranslatorLexer, IntendedQuirkFinalCommentEndedByLineFeedAloneGivesEmptyBody) {
  auto lf = translate("$a = $b;\n! last words\n");
  EXPECT_TRUE(lf.wellFormed);
  EXPECT_EQ(lf.body, "");
  EXPECT_EQ(lf.message, "");
  EXPECT_EQ(validBody("$a = $b;\n! last words\r\n"), "@a = @b;\n\n");
  auto unended = translate("$a = $b; ! no line end");
  EXPECT_EQ(unended.body, "");
  EXPECT_EQ(unended.message, "");
}

TEST(DRTranslatorLexer, QuotedTextLosesItsOpeningQuoteAndKeepsCase) {
  // Outside print and arguments quoted text is copied without handlers; the
  // result is not valid Perl, which is the script's affair.
  auto unclosed = translate("x \"abc");
  EXPECT_EQ(unclosed.body, "");
  EXPECT_EQ(unclosed.message, "");
  auto lastQuote = translate("x \"abc\"");
  EXPECT_EQ(lastQuote.body, "");
  EXPECT_EQ(lastQuote.message, "");
}

TEST(DRTranslatorLexer, InsertPreLinePlacesTextBehindTheLastStatementEnd) {
  struct Row {
    V list;
    std::string text;
    V expected;
  };
  const Row rows[] = {
      {{"a", ";", "b", " "}, "T", {"a", ";", "T", "\n", "b", " "}},
      {{"x", "\n", "y", "{", "z"}, "T", {"x", "\n", "y", "{", "T", "\n", "z"}},
      {{"if", " ", "("}, "T", {"T", "\n", "if", " ", "("}},
      // The first entry is never looked at.
      {{";", "a"}, "T", {"T", "\n", ";", "a"}},
      {{"a", "}"}, "T", {"a", "}", "T", "\n"}},
  };
  for (const Row& row : rows) {
    V list = row.list;
    DRTranslatorTestAccess::insertPreLine(row.text, list);
    EXPECT_EQ(list, row.expected) << row.text;
  }
  V list{"a", ";", "b"};
  DRTranslatorTestAccess::insertPreLine("1", list);
  DRTranslatorTestAccess::insertPreLine("2", list);
  EXPECT_EQ(list, (V{"a", ";", "1", "\n", "2", "\n", "b"}));
}

TEST(DRTranslatorLexer, IntendedQuirkFirstInsertIntoEmptyListIsDoubled) {
  V list;
  DRTranslatorTestAccess::insertPreLine("T", list);
  EXPECT_EQ(list, (V{"T", "\n", "T"}));
  // A search with no target as the very first thing of a script.
  EXPECT_EQ(validBody("search_line(\"x\", all);"),
            "@matchResults = (\"\") x 0;\r\n\n@matchResults = (\"\") x 0;\r\nsearch_line(\"x\",\"all\",\"\",\"\");\r\n;");
}
