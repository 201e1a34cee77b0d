#include "platform/IpAddress.h"

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

bool IpAddress::isValidIpAddress(const std::string& text) {
  int parts = 0;
  size_t i = 0;
  while (true) {
    size_t start = i;
    int value = 0;
    while (i < text.size() && isDigit(text[i]) && i - start < 4) {
      value = value * 10 + (text[i] - '0');
      ++i;
    }
    size_t len = i - start;
    if (len == 0 || len > 3 || value > 255) return false;
    ++parts;
    if (i == text.size()) return parts == 4;
    if (text[i] != '.' || parts == 4) return false;
    ++i;
  }
}

bool IpAddress::isValidIpAddressAndMaskLen(const std::string& text) {
  size_t slash = text.find('/');
  if (slash == std::string::npos) return false;
  if (!isValidIpAddress(text.substr(0, slash))) return false;
  std::string len = text.substr(slash + 1);
  if (len.empty() || len.size() > 2) return false;
  for (char c : len) {
    if (!isDigit(c)) return false;
  }
  return std::stoi(len) <= 32;
}
