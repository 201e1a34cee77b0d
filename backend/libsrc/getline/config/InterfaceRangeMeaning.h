// InterfaceRangeMeaning: "interface range ..." and "default interface ..." in a
// change set, as the device applies them.
//
// The device applies every line of an "interface range" block to each
// interface of the range and shows them as blocks of their own; "default
// interface X" (or "default interface range ...") takes every setting out of
// the interface, which stays with no line below it. A range names interfaces
// by spans and lists: "GigabitEthernet0/1 - 3 , GigabitEthernet0/5". A member
// typed short (Gi0/1) takes the spelling of the configuration's interface of
// the same type and number. Works on records as DeviceTextReader returns them;
// the records it takes out of `changes` it frees. Same threading rule as
// every reading operation.
#pragma once

#include <string>
#include <vector>

#include "config/CiscoCommandLine.h"

namespace qxparser {

class InterfaceRangeMeaning {
 public:
  // In `changes`: each "interface range" block becomes one block per member,
  // and each "default interface" line empties those interfaces of `config`
  // and leaves `changes`.
  static void expand(std::vector<CiscoCommandLine*>& changes, std::vector<CiscoCommandLine*>& config);

  // The members of a range as written after "interface range", in order.
  static std::vector<std::string> members(const std::string& range);
};

}  // namespace qxparser
