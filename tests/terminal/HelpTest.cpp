// Hints at the end of a configuration: every level asked with its prompt.
#include <gtest/gtest.h>

#include "config/QxParserUtil.h"
#include "support/TerminalFixture.h"
#include "terminal/VTY.h"

using namespace qxparser;

namespace {

using HelpTest = testsupport::TerminalFixture;

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

  // Once a level answers "Unrecognized command", every level after it is
  // dropped too (intended); asked each on its own, the upper level answers.
  config = "interface Ethernet0\n description x\n";
  line = "hostn";
  hints.clear();
  QxParserUtil::hintCommand(config, line, hints);
  EXPECT_TRUE(hints.empty());
  QxParserUtil::hintCommandEachLevel(config, line, hints);
  ASSERT_EQ(hints.size(), 1u);
  EXPECT_EQ(hints[0].prompt, "(config)#");
  EXPECT_NE(hints[0].hintText.find("hostname"), std::string::npos);
}

}  // namespace
