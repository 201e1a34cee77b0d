// ValueKinds: bare placeholders that check a value the way the device does,
// where the older placeholders take too much or throw.
//
// A numeric range in angle brackets throws the out-of-range error on a value
// of only zeros, so a definition could not use one wherever "0" may be typed
// by mistake; "id" takes every number up to 4294967295; "a.b.c.d" takes any
// address as a mask; and an IPv6 value could only be written "word". The
// kinds below are bare tokens that no older definition spells, reached
// through isNewValidInput after its own rules, so what the older tokens
// accept is unchanged. They refuse by a false result and never throw.
//
//   LOW-HIGH         a decimal number in the range, e.g. "1-65535"; with dotted
//                    bounds ("1.0-65535.65535") a dotted number X.Y, each part
//                    checked against the same part of the bounds
//   list/LOW-HIGH    a list of such numbers and ranges: "10,20,30-40"
//   a.b.c.d/mask     a contiguous IPv4 mask (255.255.255.0, not 255.0.255.0)
//   ipv6/address     an IPv6 address (x:x:x:x::x, an embedded IPv4 tail too)
//   ipv6/prefix      an IPv6 address, a "/" and a length of 0 to 128
//
// label() gives the form the device shows in a help listing ("<1-65535>",
// "X:X:X:X::X/<0-128>"). Stateless static functions; safe from any thread.
#pragma once

#include <string>

#include "platform/Export.h"

namespace qxparser {

class VTYCONF_API ValueKinds {
 public:
  // True when the token is one of the kinds above.
  static bool isKind(const std::string& token);
  // True when the token is one of the kinds and the input is a value of it.
  static bool accepts(const std::string& token, const std::string& input);
  // The device's spelling of the kind in help; the token itself otherwise.
  static std::string label(const std::string& token);

  static bool isRange(const std::string& token);
  static bool inRange(const std::string& token, const std::string& input);
  static bool inRangeList(const std::string& token, const std::string& input);
  static bool isContiguousMask(const std::string& input);
  static bool isIpv6Address(const std::string& input);
  static bool isIpv6Prefix(const std::string& input);
};

}  // namespace qxparser
