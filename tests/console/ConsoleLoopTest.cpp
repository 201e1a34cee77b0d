#include <gtest/gtest.h>

#include <memory>

#include "main.h"
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

struct Step {
  const char* keys;
  const char* shown;
};

TEST_F(ConsoleLoopTest, PromptFollowsTheModeAndAnswersComeBeforeIt) {
  EXPECT_EQ(first_, "R1>");
  const Step steps[] = {
      {"enable\r", "enable\nR1#"},
      {"conf t\r", "conf t\nEnter configuration commands, one per line.\nR1(config)#"},
      {"int e0/1\r", "int e0/1\nR1(config-if)#"},
      {"bogus\r", "bogus\n% Invalid input detected at ^\nR1(config-if)#"},
      {"exit\r", "exit\nR1(config)#"},
      {"end\r", "end\nR1#"},
  };
  for (const Step& step : steps) {
    EXPECT_EQ(type(step.keys), step.shown) << step.keys;
    EXPECT_STREQ(editor_->getLine(), "") << "a new line starts empty after " << step.keys;
  }
  EXPECT_STREQ(vtysh_prompt(vty_.get()), "R1#");
}

TEST_F(ConsoleLoopTest, KeyThatDoesNotEndTheLineOnlyEchoes) {
  EXPECT_EQ(type("e"), "e");
  EXPECT_EQ(type("nabl"), "nabl");
  EXPECT_EQ(vty_->currentMode(), qxparser::VIEW_MODE) << "no line went to the terminal yet";
  EXPECT_EQ(type("e\r"), "e\nR1#");
  EXPECT_EQ(vty_->currentMode(), qxparser::EXEC_MODE);
}

TEST_F(ConsoleLoopTest, HelpListsBelowTheLineAndKeepsWhatWasTyped) {
  type("enable\rconf t\rint e0/1\r");
  const struct {
    const char* keys;
    const char* shown;
    const char* lineAfter;
  } rows[] = {
      {"ip ?", "ip ?\naddress\tset the ip address of an interface\nR1(config-if)#ip ", "ip "},
      {"\x15sh?", "\b\b\b   \b\b\bsh?\nshutdown\tshutdown the selected interface\nR1(config-if)#sh", "sh"},
      {"\x15zz?", "\b\b  \b\bzz?\n% Unrecognized command\nR1(config-if)#zz", "zz"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(type(row.keys), row.shown) << row.keys;
    EXPECT_STREQ(editor_->getLine(), row.lineAfter) << row.keys;
    EXPECT_EQ(editor_->getCursor(), static_cast<int>(std::string(row.lineAfter).size()));
  }
  EXPECT_EQ(vty_->levelCount(), 2u) << "help walks without consuming the line";
  EXPECT_EQ(type("\x15ip address 10.0.0.1 255.0.0.0\r"),
            "\b\b  \b\bip address 10.0.0.1 255.0.0.0\nR1(config-if)#");
}

TEST_F(ConsoleLoopTest, TabReplacesTheLineWithItsCompletion) {
  type("enable\rconf t\r");
  const struct {
    const char* keys;
    const char* lineAfter;
  } rows[] = {
      {"hostn\t", "hostname "},
      {"i\t", "i"},  // interface and ip: the common prefix only
      {"ip ro\t", "ip route "},
      {"interface gi\t", "interface gigabitethernet "},
      {"zz\t", ""},  // a word that matches nothing is erased
  };
  for (const auto& row : rows) {
    type("\x15");
    std::string shown = type(row.keys);
    EXPECT_STREQ(editor_->getLine(), row.lineAfter) << row.keys;
    EXPECT_EQ(editor_->getCursor(), static_cast<int>(std::string(row.lineAfter).size()));
    std::string redraw = std::string("\nR1(config)#") + row.lineAfter;
    ASSERT_GE(shown.size(), redraw.size());
    EXPECT_EQ(shown.substr(shown.size() - redraw.size()), redraw) << "prompt and line drawn on a new line";
  }
  type("\x15");
  EXPECT_EQ(type("hostn\tX\r"), "hostn\nR1(config)#hostname X\nR1(config)#");
}

TEST_F(ConsoleLoopTest, DeltaCollectsConfigurationCommandsOnly) {
  type("enable\rconf t\r");
  EXPECT_EQ(delta_, "") << "lines of the execution mode never go into the delta";
  type("hostname R9\r");
  EXPECT_EQ(delta_, "hostname R9 \n") << "top configuration level: no context";
  type("int e0/1\rshutdown\rexit\r");
  EXPECT_EQ(delta_, "hostname R9 \ninterface ethernet 0/1 \nshutdown \n");
  type("end\r");
  EXPECT_EQ(delta_, "hostname R9 \ninterface ethernet 0/1 \nshutdown \n") << "exit and end are left out";
  EXPECT_EQ(vty_->getAllConfigCmds(), delta_);
}

TEST_F(ConsoleLoopTest, FirstCommandOfASubModeBringsItsContext) {
  type("enable\rconf t\rint e0/1\r");
  delta_.clear();
  type("shutdown\r");
  EXPECT_EQ(delta_, "interface ethernet 0/1 \nshutdown \n");
  type("ip address 10.0.0.1 255.0.0.0\r");
  EXPECT_EQ(delta_, "interface ethernet 0/1 \nshutdown \nip address 10.0.0.1 255.0.0.0 \n");
  EXPECT_EQ(vty_->getAllConfigCmds(), delta_);
}

TEST_F(ConsoleLoopTest, CommandHoldingTheLettersOfEndIsLeftOutOfTheDeltaAsIntended) {
  type("enable\rconf t\rint e0/1\r");
  std::string before = delta_;
  EXPECT_EQ(type("description backend link\r"), "description backend link\nR1(config-if)#");
  EXPECT_EQ(delta_, before) << "a plain substring test on the whole command";
  type("description uplink\r");
  EXPECT_EQ(delta_, before + "description uplink \n");
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

TEST_F(ConsoleLoopTest, ConsoleArrowCodesRecallHistory) {
  type("enable\rconf t\rend\r");
  const struct {
    const char* keys;
    const char* lineAfter;
  } rows[] = {
      {"\xb8", "end"},                                       // previous
      {"\xb8", "conf t"}, {"\xb8", "enable"}, {"\xb8", ""},  // one step past the oldest: the free slot
      {"\xb8", ""},                                          // and no further, with a beep
      {"\xb0", "enable"},                                    // next
      {"\xb0", "conf t"}, {"\xb0", "end"},    {"\xb0", ""},  // the newest slot is the empty line
      {"\xb8", "end"},    {"\xb8", "conf t"},
  };
  for (const auto& row : rows) {
    type(row.keys);
    EXPECT_STREQ(editor_->getLine(), row.lineAfter);
  }
  EXPECT_EQ(type("\r"), "\nEnter configuration commands, one per line.\nR1(config)#");
  EXPECT_EQ(vty_->currentMode(), qxparser::CONFIG_MODE);
  EXPECT_EQ(type("\xb8"), "conf t") << "the recalled line is drawn after the prompt";
}

TEST_F(ConsoleLoopTest, CtrlDOnAnEmptyLineEndsItWithoutRunningIt) {
  EXPECT_EQ(type("\x04"), "\n");
  EXPECT_FALSE(editor_->getNewLine());
  EXPECT_EQ(vty_->currentMode(), qxparser::VIEW_MODE);
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
