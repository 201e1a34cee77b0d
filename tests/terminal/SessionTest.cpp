// The sessions of tests/data/terminal/sessions.txt, each on a fresh terminal.
#include <gtest/gtest.h>

#include "support/CaseFile.h"
#include "support/TerminalFixture.h"
#include "terminal/VTY.h"

namespace {

using SessionTest = testsupport::TerminalFixture;

TEST_F(SessionTest, StepsAnswerAsTheirCaseSays) {
  for (const testsupport::Case& c : testsupport::readCases("terminal/sessions.txt")) {
    qxparser::VTY vty("R1", c.get("replay") != "yes");
    std::string action, expected;
    auto checkOutput = [&] {
      std::string output;
      vty.getOutputString(output);
      EXPECT_EQ(output, expected) << c.where() << " after " << action;
      expected.clear();
    };
    for (const std::string& step : testsupport::dataLines(c["steps"])) {
      const std::string text = testsupport::unescaped(step.substr(std::min<size_t>(2, step.size())));
      if (step[0] == '>') {
        expected += text;
      } else if (step[0] == '=') {
        std::string prompt;
        vty.getPrompt(prompt);
        EXPECT_EQ(vty.getHostName() + prompt, text) << c.where() << " after " << action;
      } else {
        if (!action.empty()) checkOutput();
        action = step;
        if (step[0] == '?') {
          vty.hook(text);
        } else {
          EXPECT_EQ(vty.parse(text, true, nullptr), step[0] == '+') << c.where() << ": " << step;
        }
      }
    }
    if (!action.empty()) checkOutput();
  }
}

}  // namespace
