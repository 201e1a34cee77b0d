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
  // One line per record: line, level, flag, order, text, and the context.
  static std::string dump(const std::vector<CiscoCommandLine*>& records) {
    std::string out;
    for (const CiscoCommandLine* r : records) {
      std::string text = r->getFlag() == CMD_TEXT ? "text:" + r->getOriginalStr() : r->getOriginalCmd();
      if (!text.empty() && text.back() == '\n') text.pop_back();
      std::string context;
      r->getMajorCmdStr(context);
      for (char& c : context) {
        if (c == '\n') c = '|';
      }
      out += std::to_string(r->getLineNo()) + " L" + std::to_string(r->getLevel()) + " [" + text + "] {" + context +
             "} nodes=" + std::to_string(r->getTreeNodeSize()) + "\n";
    }
    return out;
  }
};

TEST_F(VTYTest, ReplayClimbsLevelsAndLinksParents) {
  auto vty = configTerminal();
  std::vector<CiscoCommandLine*> records;
  std::string error;
  int errorLine = 0;
  EXPECT_TRUE(vty->getComLineInfo("hostname R1\n"
                                  "!\n"
                                  "interface Ethernet0/1\n"
                                  " description uplink to core\n"
                                  " ip address 10.0.0.1 255.255.255.0\n"
                                  "router bgp 65000\n"
                                  " neighbor 10.0.0.2 remote-as 65001\n"
                                  " address-family ipv4\n"
                                  "  network 10.1.0.0\n"
                                  "ip route 0.0.0.0 0.0.0.0 10.0.0.2\n"
                                  "end\n",
                                  records, error, errorLine, true));
  EXPECT_EQ(errorLine, 0);
  EXPECT_EQ(dump(records),
            "1 L0 [hostname R1 ] {} nodes=3\n"
            "2 L0 [text:!] {} nodes=0\n"
            "3 L0 [interface ethernet 0/1 ] {} nodes=4\n"
            "4 L1 [description uplink to core ] {interface ethernet 0/1 |} nodes=3\n"
            "5 L1 [ip address 10.0.0.1 255.255.255.0 ] {interface ethernet 0/1 |} nodes=5\n"
            "6 L0 [router bgp 65000 ] {} nodes=4\n"
            "7 L1 [neighbor 10.0.0.2 remote-as 65001 ] {router bgp 65000 |} nodes=5\n"
            "8 L1 [address-family ipv4 ] {router bgp 65000 |} nodes=3\n"
            "9 L2 [network 10.1.0.0 ] {router bgp 65000 |address-family ipv4 |} nodes=3\n"
            "10 L0 [ip route 0.0.0.0 0.0.0.0 10.0.0.2 ] {} nodes=6\n"
            "11 L0 [text:end] {} nodes=0\n")
      << "line 10 climbs two levels";
  EXPECT_EQ(records[2]->getChildCommands().size(), 2u);
  EXPECT_EQ(records[3]->getParentCommand(), records[2]);
  EXPECT_EQ(records[8]->getParentCommand(), records[7]);
  EXPECT_EQ(records[9]->getParentCommand(), nullptr);
  EXPECT_EQ(prompt(*vty), "R1(config)#");
  QxParserUtil::deleteCommands(records);
}

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

  std::vector<CiscoCommandLine*> records;
  std::string error;
  int errorLine = 0;
  auto fresh = configTerminal();
  fresh->getComLineInfo("interface Loopback0\n bogus words\n shutdown\n", records, error, errorLine, true);
  EXPECT_EQ(errorLine, 2);
  EXPECT_EQ(dump(records),
            "1 L0 [interface loopback 0 ] {} nodes=4\n"
            "2 L1 [bogus words] {interface loopback 0 |} nodes=0\n"
            "3 L1 [shutdown ] {interface loopback 0 |} nodes=2\n");
  QxParserUtil::deleteCommands(records);
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

TEST_F(VTYTest, BannerTextLinesPassWithoutTheGrammar) {
  auto vty = configTerminal();
  std::vector<CiscoCommandLine*> records;
  std::string error;
  int errorLine = 0;
  vty->getComLineInfo("banner motd ^C\nWelcome to R1\nauthorised use only\n^C\nhostname R2\n", records, error,
                      errorLine, true);
  EXPECT_EQ(errorLine, 0) << error;
  ASSERT_EQ(records.size(), 5u);
  EXPECT_EQ(records[1]->getOriginalCmd(), "Welcome to R1\n");
  EXPECT_EQ(records[2]->getOriginalCmd(), "authorised use only\n");
  EXPECT_EQ(records[4]->getOriginalCmd(), "hostname R2 \n");
  QxParserUtil::deleteCommands(records);
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
