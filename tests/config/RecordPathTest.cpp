// A record's path kept in its own block: grown, copied, assigned and cleared
// as the vector it replaced was.
#include <sstream>
#include <string>

#include "ConfigFixture.h"

namespace qxparser {
namespace {

class RecordPathTest : public ConfigFixture {};

std::string pathOf(const CiscoCommandLine& record) {
  std::ostringstream out;
  for (const CmdPathEntry& entry : record.getTreeNodes()) {
    out << entry.node << '{';
    for (std::string_view word : entry.words) out << word << ',';
    out << '}';
  }
  return out.str();
}

TEST_F(RecordPathTest, GrowsCopiesAndClearsLikeAVector) {
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

}  // namespace
}  // namespace qxparser
