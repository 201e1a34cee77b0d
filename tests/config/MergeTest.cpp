// Merge of changes into a configuration, sort and the written form.
#include <string>

#include "ConfigFixture.h"

namespace qxparser {
namespace {

class MergeTest : public ConfigFixture {};

// Records with only the keys that the sort reads.
std::unique_ptr<CiscoCommandLine> keyed(const char* text, int lineNo, int orderNo) {
  auto record = std::make_unique<CiscoCommandLine>();
  record->setOriginalCmd(text);
  record->setLineNo(lineNo);
  record->setOrderNo(orderNo);
  return record;
}

std::string names(const std::vector<CiscoCommandLine*>& commands) {
  std::string out;
  for (const CiscoCommandLine* c : commands) out += c->getOriginalCmd();
  return out;
}

TEST_F(MergeTest, SelectionSortKeepsItsNonStrictOrderIntended) {
  struct Row {
    const char* name;
    std::vector<std::tuple<const char*, int, int>> input;
    const char* expected;
  };
  const Row rows[] = {
      {"line numbers order the old commands", {{"c", 3, 0}, {"a", 1, 0}, {"b", 2, 0}}, "abc"},
      {"order numbers place a new command", {{"x", 0, 5}, {"y", 0, 2}}, "yx"},
      {"mixed keys: line number beats order number only pairwise",
       {{"a", 2, 9}, {"n", 0, 1}, {"b", 1, 9}},
       // i=0: candidate a; vs n (no line) order 9>1 -> n; vs b (n has no
       // line) order 1<9 stays n. i=1: a vs b by line 2>1 -> b.
       "nba"},
      {"neither key keeps the candidate found first", {{"p", 0, 0}, {"q", 0, 0}, {"r", 1, 0}}, "pqr"},
      {"equal keys keep the first", {{"s", 0, 3}, {"t", 0, 3}}, "st"},
      {"a keyless command blocks nothing", {{"z", 0, 0}, {"b", 2, 0}, {"a", 1, 0}}, "zab"},
  };
  for (const Row& row : rows) {
    std::vector<std::unique_ptr<CiscoCommandLine>> owned;
    std::vector<CiscoCommandLine*> commands;
    for (const auto& [text, line, order] : row.input) {
      owned.push_back(keyed(text, line, order));
      commands.push_back(owned.back().get());
    }
    QxParserUtil::SortCiscoCommands(commands);
    EXPECT_EQ(names(commands), row.expected) << row.name;
  }
}

TEST_F(MergeTest, IndentKeepsNulBytesIntended) {
  TopLevel top("router ospf 1\n network 10.0.0.0 0.0.0.255 area 0\n");
  ASSERT_EQ(top.get().size(), 1u);
  const std::string depth0 = QxParserUtilPeer::expand(top.get(), 0);
  EXPECT_EQ(depth0, "router ospf 1 \n network 10.0.0.0 0.0.0.255 area 0 \n!\n");
  const std::string depth1 = QxParserUtilPeer::expand(top.get(), 1);
  EXPECT_EQ(depth1, std::string(" router ospf 1 \n \0network 10.0.0.0 0.0.0.255 area 0 \n !\n", 56));
  const std::string depth3 = QxParserUtilPeer::expand(top.get(), 3);
  EXPECT_EQ(depth3.substr(0, 4), std::string(" \0\0r", 4));
  EXPECT_EQ(depth3.substr(depth3.size() - 5), std::string(" \0\0!\n", 5));
}

}  // namespace
}  // namespace qxparser
