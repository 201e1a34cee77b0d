// A record's compact storage: its path kept in a block of its own (grown,
// copied, assigned and cleared as the vector it replaced was), and its small
// members packed side by side without stepping on one another.
#include <sstream>
#include <stdexcept>
#include <string>

#include "ConfigFixture.h"

namespace qxparser {
namespace {

class RecordStorageTest : public ConfigFixture {};

std::string pathOf(const CiscoCommandLine& record) {
  std::ostringstream out;
  for (const CmdPathEntry& entry : record.getTreeNodes()) {
    out << entry.node << '{';
    for (std::string_view word : entry.words) out << word << ',';
    out << '}';
  }
  return out.str();
}

TEST_F(RecordStorageTest, GrowsCopiesAndClearsLikeAVector) {
  TopLevel top("ip route 10.0.0.0 255.0.0.0 1.1.1.1\nlogging host 1.1.1.1\n");
  ASSERT_EQ(top.get().size(), 2u);
  const CiscoCommandLine& route = *top[0];
  const std::string routePath = pathOf(route);
  ASSERT_GT(route.getTreeNodes().size(), 4u) << "longer than the room a path first takes";

  // Walked again word by word without a hint: the block grows past its first
  // room and keeps every element.
  CiscoCommandLine rebuilt;
  for (const CmdPathEntry& entry : route.getTreeNodes()) {
    for (std::string_view word : entry.words) rebuilt.addTreeNodes(entry.node, std::string(word), false);
  }
  EXPECT_EQ(pathOf(rebuilt), routePath);
  EXPECT_EQ(rebuilt.getTreeNodeSize(), static_cast<int>(route.getTreeNodes().size()));

  CiscoCommandLine copied(route);
  EXPECT_EQ(pathOf(copied), routePath);
  copied = *top[1];  // a shorter path replaces a longer one
  EXPECT_EQ(pathOf(copied), pathOf(*top[1]));
  copied = route;
  EXPECT_EQ(pathOf(copied), routePath);
  const CiscoCommandLine& same = copied;
  copied = same;
  EXPECT_EQ(pathOf(copied), routePath);

  copied.clearVisitedOption();
  EXPECT_TRUE(copied.getTreeNodes().empty());
  EXPECT_EQ(pathOf(route), routePath) << "the original keeps its own block";
}

TEST_F(RecordStorageTest, SmallMembersKeepTheirOwnValues) {
  CiscoCommandLine record;
  EXPECT_EQ(record.getFlag(), CMD_ADDITIVE);
  const unsigned int all = CMDBIT_NO | CMDBIT_STORED | CMDBIT_OPENS_MODE | CMDBIT_REMOVED | CMDBIT_NO_ENDS_ANYWHERE |
                           CMDBIT_NO_COMPLETE | CMDBIT_SUB | CMDBIT_CONFLICT | CMDBIT_FROM_CHANGES;
  record.setFlag(CMD_TEXT);
  record.setFlags(all, false);
  record.setLevel(-1);
  record.setCommandTexts("logging host 1.1.1.1 \n");
  EXPECT_EQ(record.getFlags(), all);
  EXPECT_EQ(record.getFlag(), CMD_TEXT);
  EXPECT_EQ(record.getLevel(), -1);
  record.clearFlags(all);
  EXPECT_EQ(record.getFlags(), 0u);
  EXPECT_EQ(record.getFlag(), CMD_TEXT) << "clearing the bits leaves the kind";
  EXPECT_EQ(record.getCurrentCommand(), "logging host 1.1.1.1 \n") << "and the one-text mark";
  record.setLevel(32767);
  EXPECT_EQ(record.getLevel(), 32767);
  EXPECT_THROW(record.setLevel(40000), std::out_of_range);
}

}  // namespace
}  // namespace qxparser
