// ConsoleCaret: the caret line a device draws under a refused line, so the
// person sees the word at which the line stopped making sense.
//
// The terminal answers a refused line with its message ("% Invalid input
// detected at ^"); the console puts a line of blanks and a "^" above it,
// the "^" under the column where the walk of the line stopped. Plain
// functions.
#pragma once

#include <string>

namespace vtycli {

// `shown` (what a finished line drew: its end, the terminal's answer, the
// next prompt) with the caret line put above the first invalid-input
// message, the "^" in `column` (counted from the start of the prompt).
// Unchanged when it holds no such message, or when `column` is npos.
std::string withCaretLine(const std::string& shown, size_t column);

// The caret line itself: `column` blanks and a "^", ended by a newline.
std::string caretLine(size_t column);

}  // namespace vtycli
