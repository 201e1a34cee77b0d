// InterfaceTypeOrder: which interface type a short, ambiguous type word names.
//
// `Po1` abbreviates both port-channel and pos, `Se0/0/0` both serial and
// service-engine, `g0/1` gigabitethernet, gmpls and group-async; the device
// takes the type it prefers. The interface KeyFile lists the types in that
// order of preference, so the first type a word abbreviates is the one meant.
// The grammar lookup itself stays as it is (an ambiguous word is no match);
// readers of typed text try a refused line once more with the preferred
// types written out. The KeyFile is read once per resource folder, under a
// lock: readings on several threads may ask at once.
#pragma once

#include <string>

#include "platform/Export.h"

namespace qxparser {

class VTYCONF_API InterfaceTypeOrder {
 public:
  // The type a lower-case word stands for when it abbreviates several
  // types; empty when it is a whole type, abbreviates one type or none.
  static std::string preferredType(const std::string& word);
  // `line` with every such word (cut at its first digit, as in "Po1", or
  // followed by its number as a word of its own, "Po 1") written as its
  // preferred type; empty when there is none.
  static std::string withPreferredTypes(const std::string& line);
};

}  // namespace qxparser
