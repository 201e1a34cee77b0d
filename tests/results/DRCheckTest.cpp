#include <gtest/gtest.h>

#include <string>

#include "results/DRCheck.h"
#include "results/DRCheckCounters.h"

namespace {

const char kPossible[] = "Summary:\n\tPossible error(s), but no net delimiter imbalance.\n";

std::string check(const std::string& text) {
  DRCheck c(text);
  EXPECT_TRUE(c.syntaxCheck());
  return c.getErrStr();
}

class DRCheckTest : public ::testing::Test {
 protected:
  // The counts are process-wide and carry over between checks; every test
  // starts from the state of a fresh process.
  void SetUp() override {
    drcheck_detail::errorCount() = 0;
    drcheck_detail::warningCount() = 0;
  }
};

struct Row {
  const char* name;
  std::string text;
  std::string expected;
};

TEST_F(DRCheckTest, MessagesByteForByte) {
  const Row rows[] = {
      {"empty", "", ""},
      {"balanced", "#a = search_line(\"x\", all);\n{ [ ( ) ] }\n", ""},
      {"lone open brace", "{",
       "*Unclosed parenthesis at EOF: } opened on line 1.\nSummary:\n1 too few 1 braces.\n"},
      {"lone close brace", "}",
       "Muddle detected at unmatched closing } line 1.\nSummary:\n1 too few 0 braces.\n"},
      {"paren closed by square", "(]",
       "Muddle detected at unmatched closing ] line 1.\n*Unclosed parenthesis at EOF: ) opened on line 1.\n"
       "Summary:\n1 too few 0 square brackets.\n1 too few 1 parentheses.\n"},
      {"square closes over paren", "[(]",
       "Missing closers detected line 1.\n\tMissing closing ) opened line 1.\nSummary:\n1 too few 1 "
       "parentheses.\n"},
      {"line numbers count line ends", "a\n\n  b\n{\n",
       "*Unclosed parenthesis at EOF: } opened on line 4.\nSummary:\n1 too few 1 braces.\n"},
      {"two surplus closers", "x ) )",
       "Muddle detected at unmatched closing ) line 1.\nMuddle detected at unmatched closing ) line 1.\n"
       "Summary:\n2 too few 0 parentheses.\n"},
      {"assignment in condition", "x\nif (a = b) {\n}\n",
       std::string("Assignment instead of equals in conditional, line 2.\n") + kPossible},
      {"comparison in condition", "x\nif (a == b) {\n}\n", ""},
      {"less-or-equal is reported too", "x\nif (a <= b) {\n}\n",
       std::string("Assignment instead of equals in conditional, line 2.\n") + kPossible},
      {"assignment in nested parenthesis", "x\nif ((a = b)) {}\n", ""},
      {"bad if", "x\nif a\n", std::string("Bad if (no condition) line 2.\n") + kPossible},
      {"if with no blank in front is no statement", "x {if a}", ""},
      {"if at the very start is not seen", "if a", ""},
      {"if else with braces", "x\nif (a == b) {\n y;\n} else {\n z;\n}\n", ""},
      {"if else without braces", "x\nif (a == b) y; else z;\n", ""},
      {"nested ifs", "x\nif (a == b) if (c == d) y; else z;\nw;\n", ""},
      {"unclosed if body", "x\nif (a == b) {\n",
       "*Unclosed parenthesis at EOF: } opened on line 2.\n*Unclosed parenthesis at EOF: then opened on line "
       "2.\n"
       "*Unclosed parenthesis at EOF: if opened on line 2.\nSummary:\n1 too few 1 braces.\n"},
      {"delimiters in strings constants comments", "x \"({[\" '(' '\\'' '\\12' ! ({[\ny", ""},
      {"comment mark hides the rest of a line", "x\nif (a != b) {\n}\n",
       "Muddle detected at unmatched closing } line 3.\n"
       "*Unclosed parenthesis at EOF: ) opened on line 2.\n"
       "*Unclosed parenthesis at EOF: if-condition opened on line 2.\n"
       "*Unclosed parenthesis at EOF: if opened on line 2.\n"
       "Summary:\n1 too few 0 braces.\n1 too few 1 parentheses.\n"},
      {"string over lines told once", "x \"abc\ndef\nghi\" (",
       std::string("*Error: '\"' quoted string not ended by line 1.\n") +
           "*Unclosed parenthesis at EOF: ) opened on line 3.\nSummary:\n1 too few 1 parentheses.\n"},
      {"string to end of text", "x \"abc",
       std::string("*Error: '\"' quoted string not ended by end of file.\n") + kPossible},
      // The end of the text inside a comment, string or constant ends the scan.
      {"end in comment", "x ( ! ({",
       "*Unclosed parenthesis at EOF: ) opened on line 1.\nSummary:\n1 too few 1 parentheses.\n"},
      {"end in escape of string", "x \"ab\\",
       std::string("*Error: '\"' quoted string not ended by end of file.\n") + kPossible},
      {"end in constant", "x '\\", ""},
      {"end in digit constant", "x '\\1", ""},
      {"if at end", "x if", std::string("Bad if (no condition) line 1.\n") + kPossible},
      {"else at end", "x\nif (a == b) y;\nels", ""},
  };
  for (const Row& row : rows) {
    SetUp();
    EXPECT_EQ(check(row.text), row.expected) << row.name;
  }
}

TEST_F(DRCheckTest, StackOverflowIsWrittenWithoutLineEndAndScanGoesOn) {
  std::string expected = "***stack overflow*Unclosed parenthesis at EOF:  opened on line 0.\n";
  for (int i = 0; i < 63; ++i) expected += "*Unclosed parenthesis at EOF: ) opened on line 1.\n";
  expected += "Summary:\n63 too few 1 parentheses.\n";
  EXPECT_EQ(check(std::string(64, '(')), expected);
}

TEST_F(DRCheckTest, LevelsPastTheStackReadAsEmptyWhenClosed) {
  std::string text = std::string(70, '(') + std::string(70, ')');
  std::string out = check(text);
  // Seven overflows, then the levels above the stack close as nameless entries.
  std::string overflows;
  for (int i = 0; i < 7; ++i) overflows += "***stack overflow";
  EXPECT_EQ(out.compare(0, overflows.size() + 1, overflows + "M"), 0) << out;
  EXPECT_NE(out.find("\tMissing closing  opened line 0.\n"), std::string::npos);
  EXPECT_NE(out.find("Summary:\n"), std::string::npos);
}

// Ten errors show nine and the notice; the count carries over to the next
// check, which then shows one less.
TEST_F(DRCheckTest, CountCarriesOverToNextCheckIntended) {
  std::string text;
  for (int i = 0; i < 10; ++i) text += "}\n";
  auto expected = [](int shown) {
    std::string out;
    for (int i = 1; i <= shown; ++i) out += "Muddle detected at unmatched closing } line " + std::to_string(i) + ".\n";
    return out + "Other error messages being suppressed.\nSummary:\n10 too few 0 braces.\n";
  };
  EXPECT_EQ(check(text), expected(9));
  SetUp();
  EXPECT_NE(check("}"), "");
  EXPECT_EQ(drcheck_detail::errorCount(), 1);
  EXPECT_EQ(check(text), expected(8));
  // A clean check leaves the count where it stood.
  EXPECT_EQ(check(""), "");
  EXPECT_EQ(drcheck_detail::errorCount(), 1);
}

TEST_F(DRCheckTest, FatalMessagesAreNeverSuppressed) {
  std::string text;
  for (int i = 0; i < 12; ++i) text += "}\n";
  text += "\"open";
  std::string out = check(text);
  EXPECT_NE(out.find("Other error messages being suppressed.\n"), std::string::npos);
  EXPECT_NE(out.find("*Error: '\"' quoted string not ended by end of file.\n"), std::string::npos);
}

TEST_F(DRCheckTest, GetCharReducesWhiteSpaceAndComments) {
  DRCheck c("a  \t b\n \n\tc ! note\n  d!x");
  std::string seen;
  for (int ch = c.getChar(); ch != 0; ch = c.getChar()) seen += static_cast<char>(ch);
  EXPECT_EQ(seen, "a b\nc  d ");
  EXPECT_EQ(c.getChar(), 0);
}

TEST_F(DRCheckTest, UngetCharTurnsLineEndIntoBlankOnRequest) {
  DRCheck c("ab");
  EXPECT_EQ(c.getChar(), 'a');
  c.ungetChar('\n', true);
  EXPECT_EQ(c.getChar(), ' ');
  EXPECT_EQ(c.getChar(), 'b');
  c.ungetChar('x', false);
  EXPECT_EQ(c.getChar(), 'x');
  EXPECT_EQ(c.getChar(), 0);
}

// Texts made of the bytes the check reacts to, in random order: every read,
// pushback and stack access must stay in bounds (the sanitizer build checks),
// and every check must end with a message text that is empty or closed by a
// summary.
TEST_F(DRCheckTest, RandomTextsStayInBounds) {
  const std::string alphabet = "{}[]()\"'\\!=;ifelsx \t\n\r0";
  unsigned state = 12345;
  for (int round = 0; round < 2000; ++round) {
    state = state * 1103515245u + 12345u;
    size_t length = (state >> 16) % 200;
    std::string text;
    for (size_t i = 0; i < length; ++i) {
      state = state * 1103515245u + 12345u;
      text += alphabet[(state >> 16) % alphabet.size()];
    }
    std::string out = check(text);
    if (!out.empty()) {
      EXPECT_NE(out.find("Summary:\n"), std::string::npos) << text;
    }
  }
  EXPECT_EQ(check(std::string(5000, '{') + std::string(5000, '}')).find("***stack overflow"), 0u);
}

}  // namespace
