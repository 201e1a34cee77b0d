// SortedText: a configuration's commands in device order, as text.
//
// sortedConfigText reads the text and writes its top-level commands in the
// order of the command-order table (not where they stood), each followed by
// the commands inside it, depth first, indented by one blank per level: the
// form a merge writes, with blanks for indent. The text is read as typed
// (getCmdInfoTyped). Reading uses a VTY: the library's single-thread rule
// applies.
#pragma once

#include <string>

#include "platform/Export.h"

namespace qxparser {

VTYCONF_API std::string sortedConfigText(const std::string& text);

}  // namespace qxparser
