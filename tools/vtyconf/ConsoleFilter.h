// ConsoleFilter: the output filters of a show line ("| include RE",
// "| exclude RE", "| begin RE", "| section RE") over configuration text.
//
// A regular expression matches anywhere in a line (ECMAScript syntax).
// `section` keeps every top-level block whose head line matches, whole, and
// of the other blocks the lines that match. Plain functions.
#pragma once

#include <string>

namespace vtycli {

// Applies the filter written after the "|" (such as "inc ^interface") to
// `text`; false with `error` set when the filter or its expression is not
// understood.
bool applyConsoleFilter(const std::string& filter, const std::string& text, std::string& out, std::string& error);

// True when `typed` abbreviates `keyword` with at least `least` letters
// (letters compared without case).
bool abbreviates(const std::string& typed, const std::string& keyword, size_t least);

}  // namespace vtycli
