// Key streams through the line editor. The first byte sets the screen width
// (a width below 21 must be refused with GetLineError), the second the
// options; every further byte is one key press, handed over as the console
// loop does. The "?" hook answers with a help text and a full redraw, the tab
// hook completes the word with a long text, so that the edits of a hook meet
// the end of the line buffer.
#include <algorithm>
#include <cstring>
#include <memory>

#include "FuzzSupport.h"
#include "editor/GetLineData.h"

namespace {

int helpHook(char* /*line*/, int /*promptLength*/, int& /*cursor*/, qxparser::VTY* /*vty*/, std::string& output) {
  output += "\n  interface  Select an interface to configure\n";
  return -2;
}

int tabHook(char* line, int /*promptLength*/, int& cursor, qxparser::VTY* /*vty*/, std::string& /*output*/) {
  static const char kCompletion[] = "GigabitEthernet0/0/0 ";
  const size_t length = std::strlen(line);
  const size_t room = static_cast<size_t>(GetLineData::kMaxInput) - length;
  const size_t add = std::min(room, sizeof(kCompletion) - 1);
  if (add == 0) return -1;
  std::memcpy(line + length, kCompletion, add);
  line[length + add] = '\0';
  cursor = static_cast<int>(length + add);
  return static_cast<int>(length);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 2) return 0;
  auto editor = std::make_unique<GetLineData>();
  editor->Gl_setconsole(1);
  editor->Gl_histinit("-");
  const int width = data[0];
  try {
    editor->Gl_setwidth(width);
    if (width < 21) fuzzsupport::fail("a width below 21 was taken");
  } catch (const GetLineError&) {
    if (width >= 21) fuzzsupport::fail("a width of 21 or more was refused");
  }
  const uint8_t options = data[1];
  editor->Gl_config("noecho", options & 1);
  editor->Gl_config("erase", (options >> 1) & 1);
  editor->parser_init((options & 4) ? helpHook : nullptr, (options & 8) ? tabHook : nullptr);
  const bool oneKeyMode = (options & 16) != 0;
  const char* prompt = (options & 32) ? "Router(config-router-af-topology)#" : "R1#";

  for (size_t i = 2; i < size; ++i) {
    char buffer[2] = {static_cast<char>(data[i]), 0};
    try {
      if (oneKeyMode) {
        editor->Getlinem(buffer, 1, prompt, nullptr);
      } else {
        editor->vtysh_rl_gets(buffer, prompt, nullptr);
      }
    } catch (const GetLineError&) {
      // The line is full; the editor stays usable.
    }
    if (std::strlen(editor->getLine()) > static_cast<size_t>(GetLineData::kMaxInput) + 1) {
      fuzzsupport::fail("the line passed the buffer");
    }
    // The screen only ever gets text, prompts and control keys: a NUL means
    // that the redraw read behind the end of the line.
    if (editor->outputString().find('\0') != std::string::npos) fuzzsupport::fail("the redraw drew a NUL");
    editor->clearOutput();
  }
  GetLineData::getline_init(nullptr, nullptr);
  return 0;
}
