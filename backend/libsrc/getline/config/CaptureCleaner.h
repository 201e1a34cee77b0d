// CaptureCleaner: the lines of a terminal capture that are no configuration.
//
// A configuration saved from a terminal may carry a byte-order mark, the
// prompt line that asked for it ("R1#show running-config"), the "Building
// configuration..." and "Current configuration : N bytes" lines, and a prompt
// left at the end. cleanCapture blanks those lines in place (so that the
// file's own line numbers stay valid) and reports each as "LINE: text".
// A pure function; no shared state.
#pragma once

#include <string>
#include <vector>

#include "platform/Export.h"

namespace qxparser {

VTYCONF_API void cleanCapture(std::string& text, std::vector<std::string>& leftOut);

}  // namespace qxparser
