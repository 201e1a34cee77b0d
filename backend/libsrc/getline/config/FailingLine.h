// FailingLine: which line makes the reading of a text raise an exception.
//
// getCmdInfo reads a whole text and, when a line raises (a numeric range
// checked against a zero), tells nothing of where. failingLine replays the
// reader's lines one at a time on a terminal of its own, brought into
// configuration mode as the reader's is, and gives the file line of the first
// one that raises; 0 when no single line does. Uses a VTY: the library's
// single-thread rule applies.
#pragma once

#include <string>

#include "config/ReaderLineMap.h"
#include "platform/Export.h"

namespace qxparser {

// `text` is the text `lines` was made from.
VTYCONF_API int failingLine(const ReaderLineMap& lines, const std::string& text);

}  // namespace qxparser
