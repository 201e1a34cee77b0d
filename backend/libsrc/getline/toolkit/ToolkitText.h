// Internal to toolkit/: byte-level helpers shared by the ParserToolCase
// sources. Not part of the exported interface.
//
// Inline functions without state (but for one constant table, built on
// first use); safe from any thread.
#pragma once

#include <array>
#include <cctype>
#include <climits>
#include <cstddef>
#include <string>

namespace qxparser {
namespace toolkit_detail {

// The C library's atoi as the parser has always seen it: leading white space,
// an optional sign, decimal digits, and saturation at the limits of a 32-bit
// int instead of wrapping. The range checks depend on the saturation (a bound
// of 4294967295 reads as 2147483647), so the host's atoi, whose overflow
// result differs between platforms, is not used.
inline int atoiSaturated(const std::string& text) {
  const char* p = text.c_str();
  while (std::isspace(static_cast<unsigned char>(*p))) ++p;
  bool negative = false;
  if (*p == '+' || *p == '-') {
    negative = *p == '-';
    ++p;
  }
  long long value = 0;
  for (; *p >= '0' && *p <= '9'; ++p) {
    value = value * 10 + (*p - '0');
    if (value > static_cast<long long>(INT_MAX) + 1) value = static_cast<long long>(INT_MAX) + 1;
  }
  if (negative) return value > INT_MAX ? INT_MIN : static_cast<int>(-value);
  return value > INT_MAX ? INT_MAX : static_cast<int>(value);
}

// std::tolower of a byte, from a table asked of std::tolower once: the
// library never changes the locale, and a call per character costs more than
// the rest of a copy.
inline char lowerChar(char c) {
  static const auto table = [] {
    std::array<char, 256> lower{};
    for (int i = 0; i < 256; ++i) lower[static_cast<std::size_t>(i)] = static_cast<char>(std::tolower(i));
    return lower;
  }();
  return table[static_cast<unsigned char>(c)];
}

// True when `c` is one of the separator bytes, which end at their first NUL
// as a C string would.
inline bool isSeparator(char c, const char* separators) {
  for (const char* s = separators; *s != '\0'; ++s) {
    if (*s == c) return true;
  }
  return false;
}

// Calls `emit(begin, length)` for each word of `text`, cut the way strtok
// cuts: each separator byte separates, a run of them counts as one, no empty
// word comes out, and the text ends at its first NUL. Unlike strtok it keeps
// no hidden state and leaves the text alone.
template <typename Emit>
void forEachWord(const std::string& text, const char* separators, Emit emit) {
  const char* p = text.c_str();
  for (;;) {
    while (*p != '\0' && isSeparator(*p, separators)) ++p;
    if (*p == '\0') return;
    const char* begin = p;
    while (*p != '\0' && !isSeparator(*p, separators)) ++p;
    emit(begin, static_cast<std::size_t>(p - begin));
  }
}

}  // namespace toolkit_detail
}  // namespace qxparser
