// UIVariableKind: the kinds of UIVariableType by the names people type.
//
// "interface", "protocol", "address" (or "ip"), "interface-name", "vrf",
// "route-map", "nat", in any case, or the kind's number "1" to "7". A pure
// function over a constant table.
#pragma once

#include <string>

#include "platform/Export.h"

// The UIVariableType kind called `name`; 0 when there is none.
VTYCONF_API int uiVariableKindNamed(std::string name);
