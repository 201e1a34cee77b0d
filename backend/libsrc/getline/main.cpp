// The console loop: parser_main, the prompt, the "?" and tab hooks.
#include "main.h"

#include <cstring>
#include <memory>

#include "config/CiscoCommandLine.h"
#include "platform/ILogger.h"
#include "terminal/VTY.h"

namespace {

constexpr std::size_t kPromptBufSize = 1024;
char gPromptBuf[kPromptBufSize];

// Copies `text` into the editor's line buffer, at most kMaxInput characters.
void setLine(char* line, const std::string& text) {
  std::size_t n = text.size();
  if (n > static_cast<std::size_t>(GetLineData::kMaxInput)) n = GetLineData::kMaxInput;
  std::memcpy(line, text.data(), n);
  line[n] = '\0';
}

// Runs a finished line through the terminal. The stored newline is replaced
// by " \n", the form the terminal reads; the record that the walk fills is
// dropped again, since a console line keeps none.
void runCompletedLine(const char* line, qxparser::VTY* vty, std::string& output) {
  std::string text(line);
  if (!text.empty()) text.pop_back();
  text += " \n";
  auto command = std::make_unique<qxparser::CiscoCommandLine>();
  vty->parse(text, true, command.get());
  std::string answer;
  vty->getOutputString(answer);
  output += answer;
}

}  // namespace

char* GetLineData::vtysh_rl_gets(char* buffer, qxparser::VTY* vty) {
  return vtysh_rl_gets(buffer, vtysh_prompt(vty), vty);
}

char* vtysh_prompt(qxparser::VTY* vty) {
  std::string suffix;
  std::string full;
  if (vty != nullptr) {
    vty->getPrompt(suffix);
    if (!suffix.empty()) full = vty->getHostName() + suffix;
  }
  std::size_t n = full.size() < kPromptBufSize - 1 ? full.size() : kPromptBufSize - 1;
  std::memcpy(gPromptBuf, full.data(), n);
  gPromptBuf[n] = '\0';
  return gPromptBuf;
}

int vtysh_help_hook(char* line, int /*promptLength*/, int& cursor, qxparser::VTY* vty, std::string& output) {
  if (vty == nullptr) return -1;
  vty->hook(line);
  std::string help;
  vty->getOutputString(help);
  output += "\n";
  output += help;
  // The "?" leaves the line again: it is cut at its length minus one.
  std::size_t length = std::strlen(line);
  std::size_t keep = length > 0 ? length - 1 : 0;
  if (keep > static_cast<std::size_t>(GetLineData::kMaxInput)) keep = GetLineData::kMaxInput;
  line[keep] = '\0';
  cursor = static_cast<int>(keep);
  return -2;
}

int vtysh_tab_hook(char* line, int /*promptLength*/, int& cursor, qxparser::VTY* vty, std::string& output) {
  if (vty == nullptr) return -1;
  std::string asked(line);
  asked += '\t';
  vty->hook(asked);
  output += "\n";
  std::string completed;
  vty->getOutputString(completed);
  std::memset(line, 0, GetLineData::kBufSize);
  setLine(line, completed);
  cursor = static_cast<int>(std::strlen(line));
  return -2;
}

void parser_main(qxparser::VTY* vty, GetLineData* editor, char* buffer, std::string& output,
                 std::string* delta) {
  editor->clearOutput();
  try {
    editor->vtysh_rl_gets(buffer, vty);
  } catch (const GetLineError&) {
    // The message is already in the output; the edit was not applied and
    // the line is drawn again below it.
    editor->gl_redraw();
  }
  if (editor->getNewLine()) {
    std::string prompt;
    vty->getPrompt(prompt);
    runCompletedLine(editor->getLine(), vty, editor->outputString());
    if (prompt.find("(config") != std::string::npos) {
      std::string complete;
      vty->getCompleteLine(complete);
      // A plain substring test: any command that holds these letters stays
      // out of the delta, "backend" as well as "exit".
      if (delta != nullptr && complete.find("exit") == std::string::npos &&
          complete.find("end") == std::string::npos) {
        if (delta->empty() && prompt.find("(config)") != std::string::npos) {
          *delta = complete;
        } else if (delta->empty()) {
          // The first command of a sub-mode brings the commands that opened it.
          std::string major;
          vty->getMajorCommands(major);
          *delta = major + complete;
        } else {
          *delta += complete;
        }
      }
      if (delta != nullptr) vty->registerDeltaCmd(*delta);
    }
    char* next = vtysh_prompt(vty);
    editor->gl_init();
    editor->setPrompt(next);
    editor->clearLine();
    editor->gl_fixup(next, -2, GetLineData::kBufSize);
  }
  output = editor->outputString();
  ILogger::GetInstance()->LogStr("", "EmulatedCLI", "backend\\libsrc\\getline\\main", "parser_main", 80,
                                 LOG_INFO, "After Parser Main Buf " + output);
}

std::string vtysh_console_init(qxparser::VTY* vty, GetLineData* editor, int width, const char* historyFile) {
  editor->Gl_setconsole(1);
  editor->Gl_setwidth(width);
  editor->parser_init(vtysh_help_hook, vtysh_tab_hook);
  editor->Gl_histinit(historyFile != nullptr ? historyFile : "-");
  editor->clearOutput();
  editor->gl_fixup(vtysh_prompt(vty), -2, GetLineData::kBufSize);
  std::string shown = editor->outputString();
  editor->clearOutput();
  return shown;
}
