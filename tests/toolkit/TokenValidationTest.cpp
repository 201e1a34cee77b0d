#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "ParserToolCasePeer.h"
#include "toolkit/ParserToolCase.h"

namespace {

using qxparser::ParserToolCase;
using qxparser::ParserToolCasePeer;

struct TokenRow {
  std::string token;
  std::string input;
  bool expected;
};

void expectRows(const std::vector<TokenRow>& rows, bool (*check)(const std::string&, const std::string&)) {
  for (const TokenRow& row : rows) {
    EXPECT_EQ(check(row.token, row.input), row.expected)
        << "token \"" << row.token << "\" input \"" << row.input << "\"";
  }
}

TEST(IsValidInputTest, DottedRangeTakesAnyDottedWordButAnAddressIntended) {
  expectRows({{"<1.0-9.5>", "3.7", true},
              {"<1.0-9.5>", "99.99", true},
              {"<1.0-9.5>", "x.y", true},
              {"<1.0-9.5>", "1.1.1.1", false},
              {"<1.0-9.5>", "7", false},
              {"<1.0-9.5>", "0", false}},  // no number is cut, so no error either
             ParserToolCase::isValidInput);
}

TEST(IsValidInputTest, MacChecksOnlyTheFirstNonBlankCharacterIntended) {
  expectRows({{"<h.h.h>", "00zz.yyyy.xxxx", true},
              {"<h.h.h>", "F", true},
              {"<h.h.h>", "  c-not-a-mac", true},
              {"<h.h.h>", "", true},  // no character: it defaults to a digit
              {"<h.h.h>", "   ", true},
              {"<h.h.h>", " g000.0000.0000", false}},
             ParserToolCase::isValidInput);
}

void expectInvalidPosition(const std::function<bool()>& call, const std::string& label) {
  try {
    call();
    ADD_FAILURE() << label << ": no exception";
  } catch (const std::out_of_range& e) {
    EXPECT_STREQ(e.what(), "invalid string position") << label;
  }
}

TEST(IsValidInputTest, ZeroOrEmptyValueInNumericRangeThrowsIntended) {
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"<1-10>", "0"}, {"<0-100>", "0"}, {"<0-100>", "000"}, {"<1-10>", ""}, {"<0-ffff>", "0"}};
  for (const auto& row : rows) {
    expectInvalidPosition([&] { return ParserToolCase::isValidInput(row.first, row.second); },
                          row.first + " with \"" + row.second + "\"");
  }
}

TEST(IsValidInputTest, EmptyTokenBoundCutThrowsIntended) {
  expectInvalidPosition([] { return ParserToolCasePeer::isValidRange("", "5"); }, "range");
  expectInvalidPosition([] { return ParserToolCasePeer::isValidHexRange("", "a"); }, "hex range");
  // Earlier refusals come first and throw nothing.
  EXPECT_FALSE(ParserToolCasePeer::isValidRange("", "x"));
  EXPECT_FALSE(ParserToolCasePeer::isValidHexRange("", "X"));
}

TEST(IsNewValidInputTest, MetricMayBeZeroAndDelayMayNotIntended) {
  expectRows({{"+/-<metric>", "-", true},
              {"+/-<metric>", "+0", true},
              {"+/-<metric>", "-4294967295", true},
              {"+/-<metric>", "+4294967296", false},
              {"+/-<metric>", "-x", false},
              {"+/-<metric>", "5", false},
              {"+/-<metric>", "", false},
              {"+/-<delay>", "+0", false},
              {"+/-<delay>", "+000", false},
              {"+/-<delay>", "+1", true},
              {"+/-<delay>", "-", true},
              {"+/-<delay>", "7", false}},
             ParserToolCase::isNewValidInput);
}

TEST(CharacterClassTest, OnlyHexStopsAtFirstLetterIntended) {
  struct Row {
    std::string text;
    bool num, hex, onlyHex;
  };
  const std::vector<Row> rows = {
      {"", true, true, false},
      {"123", true, true, false},
      {"12a", false, true, true},
      {"0a!!", false, false, true},  // nothing behind the first letter is looked at
      {"x1a", false, false, false},
      {"ABC", false, false, false},
      {std::string("12\0zz", 5), true, true, false},  // the classes end at the first NUL
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ParserToolCasePeer::isStringNum(row.text), row.num) << row.text;
    EXPECT_EQ(ParserToolCasePeer::isStringHexNum(row.text), row.hex) << row.text;
    EXPECT_EQ(ParserToolCasePeer::isStringOnlyHexNum(row.text), row.onlyHex) << row.text;
  }
}

}  // namespace
