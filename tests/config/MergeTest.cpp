// The written form of a merge: deeper levels indented with NUL bytes.
#include <string>

#include "ConfigFixture.h"

namespace qxparser {
namespace {

class MergeTest : public ConfigFixture {};

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
