// The rows of tests/data/toolkit/calls.tsv: each call of a parser helper
// gives the result its row names.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "support/CaseFile.h"
#include "toolkit/ParserToolCase.h"

namespace {

using qxparser::ParserToolCase;
using Args = std::vector<std::string>;

std::string yesNo(bool answer) { return answer ? "true" : "false"; }

std::function<std::string(const Args&)> twoWords(bool (*check)(const std::string&, const std::string&)) {
  return [check](const Args& a) { return yesNo(check(a.at(0), a.at(1))); };
}

std::function<std::string(const Args&)> oneText(std::string (*op)(const std::string&)) {
  return [op](const Args& a) { return op(a.at(0)); };
}

TEST(ParserToolCaseTable, CallsGiveTheirRowsResult) {
  const std::map<std::string, std::function<std::string(const Args&)>> calls = {
      {"cleanLine", oneText(ParserToolCase::cleanLine)},
      {"getFirstKey", oneText(ParserToolCase::getFirstKey)},
      {"string2CutSpace", oneText(ParserToolCase::string2CutSpace)},
      {"isValidInput", twoWords(ParserToolCase::isValidInput)},
      {"isNewValidInput", twoWords(ParserToolCase::isNewValidInput)},
      {"isAnyValidInput", twoWords(ParserToolCase::isAnyValidInput)},
      {"isValidNumber", twoWords(ParserToolCase::isValidNumber)},
      {"partialMatched", twoWords(ParserToolCase::partialMatched)},
      {"strInCmd", twoWords(ParserToolCase::strInCmd)},
      {"isTheSameCmd",
       [](const Args& a) { return yesNo(ParserToolCase::isTheSameCmd(a.at(0), a.at(1), a.at(2) == "true")); }},
      {"removeMore",
       [](const Args& a) {
         std::string text = a.at(0);
         ParserToolCase::removeMore(text);
         return text;
       }},
  };
  size_t rows = 0;
  for (const std::string& line : testsupport::dataLines(testsupport::readDataFile("toolkit/calls.tsv"))) {
    Args fields;
    for (const std::string& field : testsupport::splitFields(line)) fields.push_back(testsupport::unescaped(field));
    const auto call = calls.find(fields.front());
    ASSERT_NE(call, calls.end()) << line;
    const std::string expected = fields.back();
    EXPECT_EQ(call->second(Args(fields.begin() + 1, fields.end() - 1)), expected) << line;
    ++rows;
  }
  EXPECT_GT(rows, 100u);
}

}  // namespace
