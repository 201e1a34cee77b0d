// LineDiff: a line-by-line difference of two texts for people to read.
//
// unifiedDiff() writes the lines only in `before` with "-", the lines only in
// `after` with "+", and up to `context` unchanged lines around each change
// with two blanks; "..." stands for unchanged lines left out. The alignment
// is a longest common subsequence of whole lines (quadratic: meant for
// configurations of a few thousand lines, not for bulk work). Pure function.
#pragma once

#include <string>

namespace vtycli {

std::string unifiedDiff(const std::string& before, const std::string& after, int context);

}  // namespace vtycli
