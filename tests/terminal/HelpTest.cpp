#include <gtest/gtest.h>

#include "config/QxParserUtil.h"
#include "support/TerminalFixture.h"
#include "terminal/VTY.h"

using namespace qxparser;

namespace {

class HelpTest : public testsupport::TerminalFixture {
 protected:
  void SetUp() override {
    TerminalFixture::SetUp();
    vty_->parse("enable", true, nullptr);
    vty_->parse("configure terminal", true, nullptr);
    take();
  }
  std::string ask(const std::string& line) {
    vty_->hook(line);
    return take();
  }
};

TEST_F(HelpTest, ListingIsSortedWithTabStopsSizedByTheLongestWord) {
  EXPECT_EQ(ask("?"),
            "^c\t\tend of banner text\n"
            "banner\t\tdefine a login banner\n"
            "hostname\tset system's network name\n"
            "interface\tselect an interface to configure\n"
            "ip\t\tglobal ip configuration subcommands\n"
            "logging\t\tmodify message logging facilities\n"
            "metric\t\tset a metric offset\n"
            "router\t\tenable a routing process\n");
}

TEST_F(HelpTest, PrefixFiltersAndCrComesFirst) {
  EXPECT_EQ(ask("i?"),
            "interface\tselect an interface to configure\n"
            "ip\t\tglobal ip configuration subcommands\n");
  EXPECT_EQ(ask("logging host 1.1.1.1 ?"),
            "<cr>\t\t \n"
            "transport\tspecify the transport protocol\n"
            "vrf\t\tset vrf option\n");
  EXPECT_EQ(ask("bogus ?"), "% Unrecognized command\n");
}

TEST_F(HelpTest, KeyTableWordsJoinTheListingAndLongHelpWraps) {
  EXPECT_EQ(ask("interface ?"),
            "ethernet\tieee 802.3\n"
            "gigabitethernet\tgigabitethernet ieee 802.3z\n"
            "loopback\tloopback interface\n");
  std::string banner = ask("banner motd ?");
  EXPECT_EQ(banner, "line\tc banner-text c, where c is a delimiting character\n");
}

TEST_F(HelpTest, SignedPrefixShowsTheMetricRange) {
  EXPECT_EQ(ask("metric +?"), "<0-4294967295>\tmetric offset\n");
}

TEST_F(HelpTest, UsedOptionIsNoLongerListed) {
  EXPECT_EQ(ask("logging host 1.1.1.1 transport udp ?"),
            "<cr>\t\t \n"
            "vrf\t\tset vrf option\n");
}

TEST_F(HelpTest, CompletionFillsOneCandidateOrTheCommonPrefix) {
  EXPECT_EQ(ask("hostn\t"), "hostname ");
  EXPECT_EQ(ask("i\t"), "i") << "interface and ip share only the i";
  EXPECT_EQ(ask("zz\t"), "") << "a word that matches nothing is erased";
  // The key of a value is the typed word, never a placeholder form, so a
  // value is completed like a keyword, with a blank behind it: intended.
  EXPECT_EQ(ask("hostname R\t"), "hostname R ");
  EXPECT_EQ(ask("interface gi\t"), "interface gigabitethernet ");
}

TEST_F(HelpTest, HintsAskEveryLevelWithItsPrompt) {
  std::string config = "interface Ethernet0\n description x\n";
  std::string line = "shut";
  std::vector<ConfigHint> hints;
  EXPECT_TRUE(QxParserUtil::hintCommand(config, line, hints));
  ASSERT_EQ(hints.size(), 1u) << "the top level knows no shut... and answers Unrecognized, which is dropped";
  EXPECT_EQ(hints[0].prompt, "(config-if)#");
  // Nothing takes the scratch terminal's output before the query, so the
  // answer keeps the text that "configure terminal" printed: intended.
  EXPECT_EQ(hints[0].hintText,
            "Enter configuration commands, one per line.\n"
            "shutdown\tshutdown the selected interface\n");

  hints.clear();
  line.clear();
  QxParserUtil::hintCommand(config, line, hints);
  ASSERT_EQ(hints.size(), 2u);
  EXPECT_EQ(hints[1].prompt, "(config)#");
  // Each pass reads the whole stream, so the second text begins with the
  // first: intended.
  EXPECT_EQ(hints[1].hintText.rfind(hints[0].hintText, 0), 0u);
  EXPECT_NE(hints[1].hintText.find("hostname"), std::string::npos);
}

}  // namespace
