#include <gtest/gtest.h>

#include <memory>

#include "main.h"
#include "support/CaseFile.h"
#include "support/TerminalFixture.h"
#include "terminal/VTY.h"

using qxparser::VTY;

namespace {

class ConsoleLoopTest : public testsupport::TerminalFixture {
 protected:
  void SetUp() override {
    TerminalFixture::SetUp();
    editor_ = std::make_unique<GetLineData>();
    first_ = vtysh_console_init(vty_.get(), editor_.get(), 80, "-");
  }
  // Feeds the keys one by one; returns everything shown.
  std::string type(const std::string& keys) {
    std::string shown;
    for (char key : keys) {
      char buffer[2] = {key, '\0'};
      std::string output;
      parser_main(vty_.get(), editor_.get(), buffer, output, &delta_);
      shown += output;
    }
    return shown;
  }
  std::unique_ptr<GetLineData> editor_;
  std::string delta_;
  std::string first_;
};

// The cases of tests/data/console/keys.txt, each on a fresh console.
TEST_F(ConsoleLoopTest, KeysShowTheirAnswersAndCollectTheDelta) {
  EXPECT_EQ(first_, "R1>");
  for (const testsupport::Case& c : testsupport::readCases("console/keys.txt")) {
    delta_.clear();
    SetUp();
    type(c.get("before"));
    testsupport::expectSection(c, "shown", type(c["keys"]));
    testsupport::expectSection(c, "line", editor_->getLine());
    testsupport::expectSection(c, "delta", delta_);
    testsupport::expectSection(c, "prompt", vtysh_prompt(vty_.get()));
  }
}

TEST_F(ConsoleLoopTest, NullDeltaIsAcceptedInConfigurationMode) {
  type("enable\rconf t\r");
  for (char key : std::string("hostname R9\r")) {
    char buffer[2] = {key, '\0'};
    std::string output;
    parser_main(vty_.get(), editor_.get(), buffer, output, nullptr);
  }
  EXPECT_EQ(vty_->getAllConfigCmds(), "");
  EXPECT_STREQ(vtysh_prompt(vty_.get()), "R1(config)#");
}

TEST_F(ConsoleLoopTest, OverflowShowsTheErrorAndKeepsTheLine) {
  std::string output;
  char key[2] = {'a', '\0'};
  for (int i = 0; i < GetLineData::kMaxInput; ++i)
    parser_main(vty_.get(), editor_.get(), key, output, &delta_);
  EXPECT_EQ(std::string(editor_->getLine()).size(), static_cast<size_t>(GetLineData::kMaxInput));
  parser_main(vty_.get(), editor_.get(), key, output, &delta_);
  EXPECT_NE(output.find("*** Error: Getline(): input buffer overflow"), std::string::npos);
  EXPECT_EQ(std::string(editor_->getLine()).size(), static_cast<size_t>(GetLineData::kMaxInput));
  std::string shown = type(
      "\x15"
      "enable\r");
  EXPECT_EQ(shown.substr(shown.size() - 10), "enable\nR1#") << "the console goes on after the error";
  EXPECT_EQ(vty_->currentMode(), qxparser::EXEC_MODE);
}

TEST_F(ConsoleLoopTest, PromptHoldsHostNameAndSuffixWithinTheBuffer) {
  VTY plain("R7", true);
  EXPECT_STREQ(vtysh_prompt(&plain), "R7>");
  VTY longName(std::string(2000, 'h'), true);
  EXPECT_EQ(std::string(vtysh_prompt(&longName)), std::string(1023, 'h')) << "at most 1023 characters";
  EXPECT_STREQ(vtysh_prompt(nullptr), "");

  VTY banner("R7", true);
  banner.parse("enable", true, nullptr);
  banner.parse("configure terminal", true, nullptr);
  banner.parse("banner motd ^C", true, nullptr);
  EXPECT_STREQ(vtysh_prompt(&banner), "(config)#") << "no host name while a banner is open";

  GetLineData editor;
  editor.Gl_setconsole(1);
  char key[2] = {'x', '\0'};
  editor.vtysh_rl_gets(key, &plain);
  EXPECT_STREQ(editor.getPrompt(), "R7>") << "one key takes the terminal's prompt";
}

}  // namespace
