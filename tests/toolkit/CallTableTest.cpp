// The rows of tests/data/toolkit/calls.tsv: each call of a parser helper
// gives the results its row names (the fields behind its arguments).
#include <gtest/gtest.h>

#include <functional>
#include <list>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/CallTable.h"
#include "toolkit/ParserToolCase.h"

namespace qxparser {
// Reaches the private checks of ParserToolCase.
struct ParserToolCasePeer {
  static bool range(const std::string& t, const std::string& i) { return ParserToolCase::isValidRange(t, i); }
  static bool hexRange(const std::string& t, const std::string& i) { return ParserToolCase::isValidHexRange(t, i); }
  static std::string classes(const std::string& t) {
    return testsupport::joinFields({ParserToolCase::isStringNum(t) ? "true" : "false",
                                    ParserToolCase::isStringHexNum(t) ? "true" : "false",
                                    ParserToolCase::isStringOnlyHexNum(t) ? "true" : "false"});
  }
};
}  // namespace qxparser

namespace {

using qxparser::ParserToolCase;
using qxparser::ParserToolCasePeer;
using testsupport::Args;

using testsupport::oneText;
using testsupport::oneWord;
using testsupport::twoWords;
using testsupport::yesNo;

// The flag getCmdFlag gives `text` with the overwrite set `set` ("|" between keys).
std::string flagOf(const std::string& set, const std::string& text) {
  static const char* const names[] = {"", "negated", "negated-overwrite", "additive", "overwrite", "mergeable", "text"};
  std::set<std::string> saved;
  saved.swap(ParserToolCase::overwriteCmds());
  if (!set.empty()) {
    for (const std::string& key : testsupport::splitFields(set, '|')) ParserToolCase::overwriteCmds().insert(key);
  }
  const std::string flag = names[ParserToolCase::getCmdFlag(text)];
  saved.swap(ParserToolCase::overwriteCmds());
  return flag;
}

// Both spellings of an access list; a first text that starts with a NUL is
// given whole, any other as a C string.
std::string aclTwins(const std::string& text) {
  std::string first = text, second = "untouched";
  ParserToolCase::getBothAclCmdsStr(first, second);
  return testsupport::joinFields({!first.empty() && first[0] == '\0' ? first : std::string(first.c_str()), second});
}

std::string joined(const Args& words) { return testsupport::joinFields(words); }

TEST(ParserToolCaseTable, CallsGiveTheirRowsResult) {
  const testsupport::Calls calls = {
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
      {"getKeyStr", oneText(ParserToolCase::getKeyStr)},
      {"getVariableStr", oneText(ParserToolCase::getVariableStr)},
      {"getWholeStr", oneText(ParserToolCase::getWholeStr)},
      {"string2Lower", oneText(ParserToolCase::string2Lower)},
      {"isIpACLWithNo", oneWord(ParserToolCase::isIpACLWithNo)},
      {"isPvFormStr", oneWord(ParserToolCase::isPvFormStr)},
      {"isValidRange", twoWords(ParserToolCasePeer::range)},
      {"isValidHexRange", twoWords(ParserToolCasePeer::hexRange)},
      {"charClasses", oneText(ParserToolCasePeer::classes)},
      {"getBothAclCmdsStr", oneText(aclTwins)},
      {"getCmdFlag", {2, [](const Args& a) { return flagOf(a.at(0), a.at(1)); }}},
      {"getVarFromPvFormStr",
       {1,
        [](const Args& a) {
          std::string out = "stale";
          ParserToolCase::getVarFromPvFormStr(a.at(0), out);
          return out;
        }}},
      {"filterLines",
       {1,
        [](const Args& a) {
          std::string out = "before\n";
          ParserToolCase::filterLines(a.at(0), out);
          return out;
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
  EXPECT_GT(testsupport::runCallTable("toolkit/calls.tsv", calls), 100u);
}

// The list form of splitString appends words that the caller then owns.
TEST(ParserToolCaseTable, SplitIntoAListAppendsOwnedWords) {
  std::list<std::string*> out{new std::string("kept")};
  ParserToolCase::splitString("k/o//mb", "/", out);
  ParserToolCase::splitString("", "/", out);
  Args words;
  for (std::string* w : out) {
    words.push_back(*w);
    delete w;
  }
  EXPECT_EQ(words, (Args{"kept", "k", "o", "mb"}));
}

TEST(ParserToolCaseTable, ElapsedTimeIsTheClockDifferenceInSeconds) {
  const long savedStart = ParserToolCase::startTime, savedStop = ParserToolCase::stopTime;
  ParserToolCase::startTime = 1000;
  ParserToolCase::stopTime = 3500;
  EXPECT_DOUBLE_EQ(ParserToolCase::elapsedTime(), 2.5);
  ParserToolCase::timerStart();
  ParserToolCase::timerStop();
  EXPECT_NE(ParserToolCase::startTime, 1000);
  EXPECT_GE(ParserToolCase::stopTime, ParserToolCase::startTime);
  ParserToolCase::startTime = savedStart;
  ParserToolCase::stopTime = savedStop;
}

}  // namespace
