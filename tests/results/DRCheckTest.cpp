#include <gtest/gtest.h>

#include <string>

#include "results/DRCheck.h"
#include "results/DRCheckCounters.h"
#include "support/CaseFile.h"

namespace {


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

// The cases of tests/data/results/drcheck.txt.
TEST_F(DRCheckTest, MessagesByteForByte) {
  for (const testsupport::Case& c : testsupport::readCases("results/drcheck.txt")) {
    SetUp();
    EXPECT_EQ(check(c["text"]), c["messages"]) << c.where();
  }
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
