// The sessions of tests/data/terminal/sessions.txt, each on a fresh
// terminal, and the texts it reads into records.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "config/CiscoCommandLine.h"
#include "config/QxParserUtil.h"

#include "support/CaseFile.h"
#include "support/TerminalFixture.h"
#include "terminal/VTY.h"

namespace {

using SessionTest = testsupport::TerminalFixture;

// One line per record: line, level, text (or "text:" and the free text) and
// the context of its modes.
std::string dump(const std::vector<qxparser::CiscoCommandLine*>& records) {
  std::string out;
  for (const qxparser::CiscoCommandLine* r : records) {
    std::string text = r->getFlag() == qxparser::CMD_TEXT ? "text:" + r->getOriginalStr() : r->getOriginalCmd();
    if (!text.empty() && text.back() == '\n') text.pop_back();
    std::string context;
    r->getMajorCmdStr(context);
    std::replace(context.begin(), context.end(), '\n', '|');
    out += std::to_string(r->getLineNo()) + " L" + std::to_string(r->getLevel()) + " [" + text + "] {" + context +
           "} nodes=" + std::to_string(r->getTreeNodeSize()) + "\n";
  }
  return out;
}

// The records of `text` read by a replay terminal in configuration mode,
// dumped, and the line of the first refused one.
std::string readAtConfiguration(const std::string& text) {
  qxparser::VTY vty("R1", false);
  vty.parse("enable\n", true, nullptr);
  vty.parse("configure terminal \n", true, nullptr);
  std::vector<qxparser::CiscoCommandLine*> records;
  std::string error;
  int errorLine = 0;
  vty.getComLineInfo(text, records, error, errorLine, true);
  const std::string out = dump(records) + "error line " + std::to_string(errorLine) + "\n";
  qxparser::QxParserUtil::deleteCommands(records);
  return out;
}

// The terminal after a line and the record it filled: levels, complete line,
// last error; nodes, nested commands, "no" and the rebuilt text of the record.
std::string state(const qxparser::VTY& vty, qxparser::CiscoCommandLine& record) {
  std::string complete;
  vty.getCompleteLine(complete);
  return "levels=" + std::to_string(vty.levelCount()) + " line=" + complete + " error=" + vty.lastError() +
         " nodes=" + std::to_string(record.getTreeNodeSize()) + " subs=" +
         std::to_string(record.getSubCommands().size()) + (record.hasFlags(qxparser::CMDBIT_NO) ? " no" : "") +
         " text=" + record.genCommandStr();
}

TEST_F(SessionTest, StepsAnswerAsTheirCaseSays) {
  for (const testsupport::Case& c : testsupport::readCases("terminal/sessions.txt")) {
    if (c.has("read")) {
      EXPECT_EQ(readAtConfiguration(c["read"]), c["records"]) << c.where();
      continue;
    }
    qxparser::VTY vty("R1", c.get("replay") != "yes");
    std::string action, expected;
    auto record = std::make_unique<qxparser::CiscoCommandLine>();
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
      } else if (step[0] == '&') {
        EXPECT_EQ(state(vty, *record), text) << c.where() << " after " << action;
      } else {
        if (!action.empty()) checkOutput();
        action = step;
        if (step[0] == '?') {
          vty.hook(text);
        } else {
          record = std::make_unique<qxparser::CiscoCommandLine>();
          const bool withRecord = step[0] == '*' || step[0] == '/';
          EXPECT_EQ(vty.parse(text, true, withRecord ? record.get() : nullptr), step[0] == '+' || step[0] == '*')
              << c.where() << ": " << step;
        }
      }
    }
    if (!action.empty()) checkOutput();
  }
}

}  // namespace
