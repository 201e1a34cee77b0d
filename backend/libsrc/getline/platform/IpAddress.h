// IpAddress: the two address tests that the token checks rest on.
//
// Stateless static functions; safe from any thread.
#pragma once

#include <string>

#include "platform/Export.h"

class VTYCONF_API IpAddress {
 public:
  // Exactly four dot-separated decimal parts, each of 1 to 3 digits and 0 to 255.
  static bool isValidIpAddress(const std::string& text);
  // An address as above, a "/" and a mask length of 0 to 32 (1 or 2 digits).
  static bool isValidIpAddressAndMaskLen(const std::string& text);
};
