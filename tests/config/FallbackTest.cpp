// Fallback in delta and file mode, and the negation of one command.
#include <string>

#include "ConfigFixture.h"
#include "support/CaseFile.h"

namespace qxparser {
namespace {

class FallbackTest : public ConfigFixture {};

// The cases of tests/data/config/changes.txt.
TEST_F(FallbackTest, ChangesMergeAndFallBackAsTheirCaseSays) {
  for (const testsupport::Case& c : testsupport::readCases("config/changes.txt")) {
    const std::string& changes = c["changes"];
    const std::string& config = c["config"];
    testsupport::expectSection(c, "merged", QxParserUtil::mergeConfigCmds(changes, config));
    testsupport::expectSection(c, "delta", QxParserUtil::fallbackConfigCmds(changes, config, 0));
    testsupport::expectSection(c, "file", QxParserUtil::fallbackConfigCmds(changes, config, 1));
    testsupport::expectSection(c, "file", QxParserUtil::fallbackConfigCmds(changes, config, 2));
  }
}


TEST_F(FallbackTest, CreateNoCommandAddsOrCutsThePrefix) {
  TopLevel top("logging host 1.1.1.1\nno snmp trap 1.1.1.1\n");
  ASSERT_EQ(top.get().size(), 2u);
  std::unique_ptr<CiscoCommandLine> added(QxParserUtilPeer::no(top[0]));
  EXPECT_EQ(added->getOriginalCmd(), "no logging host 1.1.1.1 \n");
  EXPECT_TRUE(added->hasFlags(CMDBIT_NO));
  // The current command stays the line as read, though the record held it
  // once with the original command until the prefix came.
  EXPECT_EQ(added->getCurrentCommand(), top[0]->getCurrentCommand());
  EXPECT_EQ(added->getCurrentCommand(), "logging host 1.1.1.1 \n");
  // Copies keep the two texts apart too, and an assignment of a record that
  // holds one text makes both that text again.
  CiscoCommandLine copied(*added);
  EXPECT_EQ(copied.getCurrentCommand(), "logging host 1.1.1.1 \n");
  EXPECT_EQ(copied.getOriginalCmd(), "no logging host 1.1.1.1 \n");
  copied = *top[1];
  EXPECT_EQ(copied.getCurrentCommand(), "no snmp trap 1.1.1.1 \n");
  copied = *added;
  EXPECT_EQ(copied.getCurrentCommand(), "logging host 1.1.1.1 \n");
  std::unique_ptr<CiscoCommandLine> cut(QxParserUtilPeer::no(top[1]));
  EXPECT_EQ(cut->getOriginalCmd(), "snmp trap 1.1.1.1 \n");
  EXPECT_TRUE(cut->hasFlags(CMDBIT_NO)) << "the mark stays on a cut no form";
}

TEST_F(FallbackTest, RemoveInterfaceLeavesTheFileAlone) {
  const std::string path = writeConfig("remove.cfg", "interface loopback 0\n description a\n");
  EXPECT_TRUE(QxParserUtil::removeInterfaceFromConfigFile(path, "loopback 0"));
  EXPECT_EQ(testsupport::readFile(path), "interface loopback 0\n description a\n");
}

}  // namespace
}  // namespace qxparser
