// The rows of tests/data/toolkit/calls.tsv: each call of a parser helper
// gives the results its row names (the fields behind its arguments).
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

// A helper's call: how many fields of a row are its arguments, and its
// results joined by tabs.
struct Call {
  size_t arguments;
  std::function<std::string(const Args&)> call;
};

Call twoWords(bool (*check)(const std::string&, const std::string&)) {
  return {2, [check](const Args& a) { return yesNo(check(a.at(0), a.at(1))); }};
}

Call oneText(std::string (*op)(const std::string&)) {
  return {1, [op](const Args& a) { return op(a.at(0)); }};
}

std::string joined(const Args& words) { return testsupport::joinFields(words); }

TEST(ParserToolCaseTable, CallsGiveTheirRowsResult) {
  const std::map<std::string, Call> calls = {
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
       {3, [](const Args& a) { return yesNo(ParserToolCase::isTheSameCmd(a.at(0), a.at(1), a.at(2) == "true")); }}},
      {"removeMore",
       {1,
        [](const Args& a) {
          std::string text = a.at(0);
          ParserToolCase::removeMore(text);
          return text;
        }}},
      {"splitString",
       {2,
        [](const Args& a) {
          Args words = {"stale"};
          ParserToolCase::splitString(a.at(0), a.at(1), words);
          return joined(words);
        }}},
      {"divideString",
       {1,
        [](const Args& a) {
          std::string left = "stale", right = "unchanged";
          ParserToolCase::divideString(a.at(0), left, right);
          return joined({left, right});
        }}},
      {"parseCmdLine",
       {1,
        [](const Args& a) {
          Args f(5, "s");
          ParserToolCase::parseCmdLine(a.at(0), f[0], f[1], f[2], f[3], f[4]);
          return joined(f);
        }}},
      {"testOptionToken",
       {1,
        [](const Args& a) {
          std::string inner = "stale";
          bool open = false, close = false;
          ParserToolCase::testOptionToken(a.at(0), inner, open, close);
          return joined({inner, yesNo(open), yesNo(close)});
        }}},
  };
  size_t rows = 0;
  for (const std::string& line : testsupport::dataLines(testsupport::readDataFile("toolkit/calls.tsv"))) {
    Args fields;
    for (const std::string& field : testsupport::splitFields(line)) fields.push_back(testsupport::unescaped(field));
    const auto call = calls.find(fields.front());
    ASSERT_NE(call, calls.end()) << line;
    const size_t arguments = call->second.arguments;
    ASSERT_GE(fields.size(), arguments + 1) << line;
    std::string expected;
    for (size_t i = arguments + 1; i < fields.size(); ++i) expected += (i > arguments + 1 ? "\t" : "") + fields[i];
    EXPECT_EQ(call->second.call(Args(fields.begin() + 1, fields.begin() + 1 + arguments)), expected) << line;
    ++rows;
  }
  EXPECT_GT(rows, 100u);
}

}  // namespace
