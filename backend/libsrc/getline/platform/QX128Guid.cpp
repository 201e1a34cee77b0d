#include "platform/QX128Guid.h"

#include <mutex>
#include <random>

QX128Guid::QX128Guid(bool generate) {
  if (!generate) return;
  static std::mutex lock;
  static std::mt19937_64 engine{std::random_device{}()};
  std::lock_guard<std::mutex> guard(lock);
  for (size_t i = 0; i < mBytes.size(); i += 8) {
    uint64_t v = engine();
    for (size_t j = 0; j < 8; ++j) mBytes[i + j] = static_cast<uint8_t>(v >> (j * 8));
  }
  mBytes[6] = static_cast<uint8_t>((mBytes[6] & 0x0F) | 0x40);
  mBytes[8] = static_cast<uint8_t>((mBytes[8] & 0x3F) | 0x80);
}

std::string QX128Guid::ToUUIDString(bool upperCase) const {
  const char* digits = upperCase ? "0123456789ABCDEF" : "0123456789abcdef";
  std::string out;
  for (size_t i = 0; i < mBytes.size(); ++i) {
    if (i == 4 || i == 6 || i == 8 || i == 10) out += '-';
    out += digits[mBytes[i] >> 4];
    out += digits[mBytes[i] & 0x0F];
  }
  return out;
}
