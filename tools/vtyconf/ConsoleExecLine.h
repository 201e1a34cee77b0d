// ConsoleExecLine: an exec command given through `do` in a configuration
// mode, answered by the terminal as it would answer it at the privileged
// prompt.
//
// Each line gets a terminal of its own, brought to the privileged prompt,
// so that no line (not even a `configure terminal` behind a `do`) changes
// the mode of the next one or of the console's own terminal. Plain function.
#pragma once

#include <string>

namespace vtycli {

struct ExecAnswer {
  std::string text;  // the terminal's answer, possibly empty
  bool refused = false;
  size_t errorOffset = 0;  // in the line, where the walk stopped when refused
};

// Runs `line` (the exec command, without its `do`) at the privileged prompt.
ExecAnswer answerExecLine(const std::string& line);

}  // namespace vtycli
