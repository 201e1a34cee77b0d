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

TEST(IsValidInputTest, DecimalRanges) {
  expectRows({{"<1-10>", "10", true},
              {"<1-10>", "11", false},
              {"<1-10>", "010", true},  // leading zeros of the value are dropped
              {"<1-10>", "1", true},
              {"<5-10>", "4", false},
              {"<1-10>", "1.1.1.1", false},
              {"<1-10>", "abc", false},
              {"<1-10>", "-5", false},
              {"<1-10>", "<1-10>", true},  // the token itself
              {"<1-10>", "<5>", false},    // a placeholder is never a value
              {"<0-100>", "100", true},
              {"<1-010>", "9", true},  // the high text keeps its zeros for the length test
              {"<1-4294967295>", "4294967295", true},
              {"<1-4294967295>", "3000000000", true},
              {"<1-4294967295>", "4294967296", false},
              {"<1-4294967295>", "10000000000", false}},
             ParserToolCase::isValidInput);
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

TEST(IsValidInputTest, HexadecimalRanges) {
  expectRows({{"<0-ffff>", "beef", true},
              {"<0-ffff>", "BEEF", false},
              {"<0-ffff>", "ffff", true},
              {"<0-ffff>", "10000", false},
              {"<0-ffff>", "fffg", false},
              {"<a-ff>", "9", false},  // below the low bound
              {"<a-ff>", "b", true}},
             ParserToolCase::isValidInput);
}

TEST(IsValidInputTest, HyphenMakesEveryTokenARange) {
  // Unknown hyphenated placeholders refuse everything by way of the ranges.
  expectRows({{"<foo-bar>", "x", false},
              {"<foo-bar>", "12", false},
              {"<foo-bar>", "bar", false},
              {"<word-x>", "hello", false}},
             ParserToolCase::isValidInput);
}

TEST(IsValidInputTest, NamedPlaceholders) {
  expectRows({{"<hh:mm>", "24:60", true},  // the bounds are inclusive on purpose
              {"<hh:mm>", "25:00", false},
              {"<hh:mm>", "12:61", false},
              {"<hh:mm>", "7", false},
              {"<hh:mm>", "12.30", true},     // any separator
              {"<hh:mm>", "12:30xyz", true},  // the tail is ignored
              {"<hh:mm>", " 3 : 5", true},
              {"<hh:mm>", "-1:00", false},
              {"<hh:mm>", "1:-1", false},
              {"<hh:mm>", "99999999999:1", false},
              {"<day>", "31", true},
              {"<day>", "1", true},
              {"<day>", "0", false},
              {"<day>", "32", false},
              {"<day>", "5th", true},
              {"<day>", "x", false},
              {"<day>", "99999999999", false},
              {"<month>", "12", true},
              {"<month>", "13", false},
              {"<month>", "jan", false},
              {"<a.b.c.d>", "1.2.3.4", true},
              {"<a.b.c.d>", "1.2.3", false},
              {"<hostname or a.b.c.d>", "anything", true},
              {"<word>", "anything at all", true},
              {"<line>", "", true},
              {"<h.h.h>", "a", true},
              {"<h.h.h>", "zz", false}},
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

TEST(IsNewValidInputTest, BarePlaceholders) {
  expectRows({{"a.b.c.d", "1.2.3.4", true},
              {"a.b.c.d", "1.2.3.256", false},
              {"a.b.c.d", "\n", false},
              {"\n", "\n", false},  // the end of a line is never a value, not even its own token
              {"word", "word", true},
              {"word", "anything", false},  // unknown bare tokens accept nothing
              {"a.b.c.d/<1-32>", "10.0.0.0/8", true},
              {"a.b.c.d/<1-32>", "10.0.0.0", false},
              {"oui:vpn-index", "16777216:1", false},
              {"oui:vpn-index", "16777215:4294967295", true},
              {"oui:vpn-index", "16777215:4294967296", false},
              {"oui:vpn-index", "12", true},
              {"oui:vpn-index", "16777216", false},
              {"oui:vpn-index", ":", true},
              {"oui:vpn-index", "1:x", false},
              {"aa:nn", "1.2.3.4:100", true},
              {"aa:nn", "65000:100", true},
              {"aa:nn", "a:100", false},
              {"aa:nn", "65000:1x", false},
              {"aa:nn", "4294967296:1", false},
              {"aa:nn", "100", true},
              {"aa:nn", "1.2.3.4", false},
              {"aa:nn", ":5", true},
              {"asn:nn or ip-address:nn", "10.1.1.1:7", true},
              {"rt:other", "5:5", true},
              {"id", "4294967295", true},
              {"id", "4294967296", false},
              {"id", "12a", false},
              {"h.h.h", "a", true},
              {"h.h.h", "zz", false}},
             ParserToolCase::isNewValidInput);
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

TEST(IsAnyValidInputTest, CatchAllWords) {
  expectRows({{"word", "x", true},
              {"line", "", true},
              {"hostname or a.b.c.d", "r1", true},
              {"word", "\n", false},
              {"hostname", "x", false},
              {"<word>", "x", false}},
             ParserToolCase::isAnyValidInput);
}

TEST(PartialMatchedTest, Abbreviations) {
  expectRows({{"interface", "INT", true},
              {"Interface", "iNTERFACE", true},
              {"interface", "interface", true},
              {"interface", "", true},
              {"interface", "interfaces", false},
              {"interface", "inx", false},
              {"word", "wo", false},
              {"word", "", false},
              {"line", "", false},
              {"hostname or a.b.c.d", "", false}},
             ParserToolCase::partialMatched);
}

TEST(IsValidNumberTest, TextComparison) {
  expectRows({{"000", "0", true},
              {"0", "000", true},
              {"", "0", true},
              {"007", "7", true},
              {"8", "007", false},
              {"10", "9", false},
              {"9", "10", true},
              {"g", "1", false},
              {"1", "g", false},
              {"ff", "100", true},  // the base is never told to the comparison
              {"beef", "beee", false},
              {"BEEF", "ffff", false},
              {"123456789012345678901", "123456789012345678902", true},
              {"123456789012345678903", "123456789012345678902", false}},
             ParserToolCase::isValidNumber);
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
