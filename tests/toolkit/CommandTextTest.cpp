#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "toolkit/ParserToolCase.h"

namespace {

using qxparser::ParserToolCase;

struct TextRow {
  std::string input, expected;
};

void expectRows(const std::vector<TextRow>& rows, std::string (*op)(const std::string&)) {
  for (const TextRow& row : rows) EXPECT_EQ(op(row.input), row.expected) << "\"" << row.input << "\"";
}

TEST(CommandWordsTest, KeysAndVariables) {
  const std::string text = "ip address <1.1.1.1> <255.0.0.0>";
  EXPECT_EQ(ParserToolCase::getKeyStr(text), "ipaddress");
  EXPECT_EQ(ParserToolCase::getVariableStr(text), "<1.1.1.1><255.0.0.0>");
  EXPECT_EQ(ParserToolCase::getWholeStr(text), "ipaddress<1.1.1.1><255.0.0.0>");
  // Only the first character of a word decides.
  EXPECT_EQ(ParserToolCase::getKeyStr("a<b\t<c d>\r\n"), "a<bd>");
  EXPECT_EQ(ParserToolCase::getVariableStr("a<b\t<c d>\r\n"), "<c");
  EXPECT_EQ(ParserToolCase::getKeyStr(""), "");
}

TEST(FilterLinesTest, DropsCommentAndVersionLinesAndAppends) {
  std::string out = "before\n";
  ParserToolCase::filterLines(
      "hostname r1\r\n!\r\nversion 12.4\r\ninterface e0 ! x\r\n ip address\r\n\r\nno conversion\nend", out);
  EXPECT_EQ(out, "before\nhostname r1 \n ip address \nend \n");
}

class GetCmdFlagTest : public ::testing::Test {
 protected:
  void SetUp() override { saved_.swap(ParserToolCase::overwriteCmds()); }
  void TearDown() override { saved_.swap(ParserToolCase::overwriteCmds()); }
  std::set<std::string> saved_;
};

TEST_F(GetCmdFlagTest, NegationAndOverwriteSet) {
  using qxparser::CiscoCommandLineFlag;
  ParserToolCase::overwriteCmds() = {"hostname", "nologging", ""};
  const std::vector<std::pair<std::string, CiscoCommandLineFlag>> rows = {
      {"", qxparser::CMD_ADDITIVE},  // before any lookup, although "" is in the set
      {"<x>", qxparser::CMD_OVERWRITE},
      {"hostname <r1>", qxparser::CMD_OVERWRITE},
      {"hostname r1", qxparser::CMD_ADDITIVE},  // "r1" is a key too
      {"no hostname <r1>", qxparser::CMD_NEGATED},
      {"no logging", qxparser::CMD_NEGATED_OVERWRITE},
      {"no  logging", qxparser::CMD_NEGATED_OVERWRITE},
      {"nologging", qxparser::CMD_OVERWRITE},  // "no" without a blank is no negation
      {"NO logging", qxparser::CMD_ADDITIVE},
      {"no", qxparser::CMD_ADDITIVE},
      {"no shutdown", qxparser::CMD_NEGATED},
  };
  for (const auto& row : rows) EXPECT_EQ(ParserToolCase::getCmdFlag(row.first), row.second) << row.first;
}

TEST_F(GetCmdFlagTest, EmptySetFlagsNothingAsOverwrite) {
  EXPECT_EQ(ParserToolCase::getCmdFlag("hostname <r1>"), qxparser::CMD_ADDITIVE);
  EXPECT_EQ(ParserToolCase::getCmdFlag("no hostname <r1>"), qxparser::CMD_NEGATED);
}

TEST(StrInCmdTest, PrefixWordBoundaryNeedNotBeInTextIntended) {
  EXPECT_TRUE(ParserToolCase::strInCmd("ab", "a b"));
  EXPECT_TRUE(ParserToolCase::strInCmd("ipaccess-list x", "ip access-list"));
}

TEST(String2CutSpaceTest, MixedTailLosesOnlyItsLastRunIntended) {
  expectRows({{"abc \r", "abc "}, {"abc\r ", "abc\r"}, {"abc  \r\r", "abc  "}},
             ParserToolCase::string2CutSpace);
}

struct AclRow {
  std::string first;
  std::string firstOut;  // as a C string
  std::string secondOut;
};

void expectAclRows(const std::vector<AclRow>& rows) {
  for (const AclRow& row : rows) {
    std::string first = row.first;
    std::string second = "untouched";
    ParserToolCase::getBothAclCmdsStr(first, second);
    EXPECT_EQ(std::string(first.c_str()), row.firstOut) << row.first;
    EXPECT_EQ(second, row.secondOut) << row.first;
  }
}

TEST(GetBothAclCmdsStrTest, NumberedAndNamedSpellings) {
  expectAclRows({
      {"access-list 5", "access-list 5", "ip access-list standard 5"},
      {"access-list 99 permit any", "access-list 99 permit any", "ip access-list standard 99"},
      {"access-list 150", "access-list 150", "ip access-list extended 150"},
      {"access-list 199", "access-list 199", "ip access-list extended 199"},
      {"access-list 2000", "access-list 2000", ""},
      {"access-list 0", "access-list 0", ""},
      {"access-list abc", "access-list abc", ""},
      {"access-list", "access-list", "ip access-list"},
      {"ip access-list standard 5", "access-list 5", "ip access-list standard 5"},
      {"ip access-list extended 150", "access-list 150", "ip access-list extended 150"},
      {"ip access-list", "access-list", "ip access-list"},
      {"interface e0", "interface e0", "untouched"},
      {"", "", "untouched"},
      {" \t\n", " \t\n", "untouched"},
  });
}

TEST(GetBothAclCmdsStrTest, NamedNumberIsNotMatchedAgainstItsKindIntended) {
  expectAclRows({
      {"ip access-list standard 150", "access-list 150", "ip access-list standard 150"},
      {"ip access-list extended 5", "access-list 5", "ip access-list extended 5"},
  });
}

TEST(GetBothAclCmdsStrTest, NoTwinSetsFirstByteToNulAndKeepsLengthIntended) {
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"ip access-list standard NAME", "ip access-list standard NAME"},
      {"ip access-list standard 0", "ip access-list standard 0"},
      {"ip access-list extended 200", "ip access-list extended 200"},
      {"ip access-list standard", "ip access-list standard"},
      {"ip access-list foo 5", "ip access-list foo 5"},
      {"ip route 1.1.1.1", ""},
      {"ip", ""},
  };
  for (const auto& row : rows) {
    std::string first = row.first;
    std::string second = "untouched";
    ParserToolCase::getBothAclCmdsStr(first, second);
    ASSERT_EQ(first.size(), row.first.size()) << row.first;
    EXPECT_EQ(first[0], '\0') << row.first;
    EXPECT_EQ(first.substr(1), row.first.substr(1)) << row.first;
    EXPECT_EQ(second, row.second) << row.first;
  }
}

TEST(IsIpACLWithNoTest, NumberedNamedFormHeads) {
  struct Row {
    std::string text;
    bool expected;
  };
  const std::vector<Row> rows = {
      {"ip access-list standard 10", true},
      {"IP ACCESS-LIST STANDARD 10", true},
      {"ip  access-list\textended 150 extra", true},
      {"ip access-list standard", true},  // a missing number passes
      {"ip access-list extended NAME", false},
      {"ip access-list extended 1a", false},
      {"ip access-list foo 1", false},
      {"no ip access-list standard 1", false},
      {"ip access-list", false},
      {"", false},
  };
  for (const Row& row : rows) EXPECT_EQ(ParserToolCase::isIpACLWithNo(row.text), row.expected) << row.text;
}

TEST(TimerTest, ElapsedTimeIsClockDifferenceOverThousand) {
  const long savedStart = ParserToolCase::startTime;
  const long savedStop = ParserToolCase::stopTime;
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
