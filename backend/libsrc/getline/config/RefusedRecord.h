// RefusedRecord: whether the device refused the line a record was read from.
//
// A line is refused when its walk found no path, or a path that never
// reached the end of a command (a "no" line may stop early where the grammar
// allows it, and is refused where it does not). Comment records are never
// refused; banner text (see ReaderLineMap) is the caller's to leave out.
// refusalMessage gives the device's answer to such a line. Pure functions;
// records are only read.
#pragma once

#include <string>

#include "config/CiscoCommandLine.h"
#include "platform/Export.h"

namespace qxparser {

VTYCONF_API bool isRefusedRecord(const CiscoCommandLine& record);
// "% Invalid input detected at ^" when no word was taken, else
// "% Incomplete command.".
VTYCONF_API std::string refusalMessage(const CiscoCommandLine& record);

}  // namespace qxparser
