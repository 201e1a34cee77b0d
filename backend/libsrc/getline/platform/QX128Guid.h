// QX128Guid: a random 128-bit identifier, used to name temporary files.
//
// A value type; each object built with generate = true holds a new random
// identifier (version 4 layout). Safe to build from several threads.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/Export.h"

class VTYCONF_API QX128Guid {
 public:
  explicit QX128Guid(bool generate = true);
  // "xxxxxxxx-xxxx-4xxx-yxxx-xxxxxxxxxxxx"; upper-case hexadecimal when
  // upperCase is true, else lower-case.
  std::string ToUUIDString(bool upperCase = true) const;

 private:
  std::array<uint8_t, 16> mBytes{};
};
