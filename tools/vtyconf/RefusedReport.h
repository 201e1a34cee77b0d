// RefusedReport: the refused lines of a text, printed as a device marks them.
//
//   vtyconf: changes.txt:3: % Invalid input detected at '^' marker.
//       speed 1000x
//             ^
//
// The message names the file and its own line number, the terminal's answer,
// then the line again with a caret under the word where the walk stopped. A
// line is shown with at most 200 bytes (around the caret when it stands
// further in). Plain functions over values; no shared state.
#pragma once

#include <string>
#include <vector>

#include "config/TypedTextReader.h"

namespace vtycli {

struct ConfigInput;

// The caret block of one line: the line (cut to `width` bytes around
// `position`) and the caret line under it, each ending in a line feed.
std::string caretLines(const std::string& line, size_t position, size_t width = 200);

// Writes every refused line of `input` to standard error.
void reportRefused(const ConfigInput& input, const std::vector<qxparser::RefusedLine>& refused);

// JSON-free plain text of one refused line, as reportRefused writes it.
std::string refusedMessage(const ConfigInput& input, const qxparser::RefusedLine& line);

}  // namespace vtycli
