#include "toolkit/ValueKinds.h"

#include <cctype>
#include <cstdint>
#include <vector>

#include "platform/IpAddress.h"

namespace qxparser {

namespace {

const char kListPrefix[] = "list/";
const char kMask[] = "a.b.c.d/mask";
const char kIpv6Address[] = "ipv6/address";
const char kIpv6Prefix[] = "ipv6/prefix";

bool allDigits(const std::string& text) {
  if (text.empty()) return false;
  for (char c : text) {
    if (!std::isdigit(static_cast<unsigned char>(c))) return false;
  }
  return true;
}

// Compares two decimal texts of any length: -1, 0 or 1.
int compareNumbers(const std::string& a, const std::string& b) {
  const std::string::size_type fa = a.find_first_not_of('0');
  const std::string::size_type fb = b.find_first_not_of('0');
  const std::string x = fa == std::string::npos ? "0" : a.substr(fa);
  const std::string y = fb == std::string::npos ? "0" : b.substr(fb);
  if (x.size() != y.size()) return x.size() < y.size() ? -1 : 1;
  return x.compare(y) < 0 ? -1 : (x == y ? 0 : 1);
}

// Cuts "X.Y" into its parts; a text without a dot is one part.
std::vector<std::string> dottedParts(const std::string& text) {
  std::vector<std::string> parts;
  std::string::size_type start = 0;
  for (;;) {
    const std::string::size_type dot = text.find('.', start);
    parts.push_back(text.substr(start, dot == std::string::npos ? std::string::npos : dot - start));
    if (dot == std::string::npos) return parts;
    start = dot + 1;
  }
}

bool isDottedNumber(const std::string& text) {
  const std::vector<std::string> parts = dottedParts(text);
  if (parts.size() > 2) return false;
  for (const auto& p : parts) {
    if (!allDigits(p)) return false;
  }
  return true;
}

bool isHexGroup(const std::string& group) {
  if (group.empty() || group.size() > 4) return false;
  for (char c : group) {
    if (!std::isxdigit(static_cast<unsigned char>(c))) return false;
  }
  return true;
}

// Counts the 16-bit groups of one side of "::"; an IPv4 tail counts two.
bool countGroups(const std::string& side, bool lastSide, int& groups) {
  groups = 0;
  if (side.empty()) return true;
  std::string::size_type start = 0;
  for (;;) {
    const std::string::size_type colon = side.find(':', start);
    const std::string group = side.substr(start, colon == std::string::npos ? std::string::npos : colon - start);
    if (colon == std::string::npos && lastSide && group.find('.') != std::string::npos) {
      if (!IpAddress::isValidIpAddress(group)) return false;
      groups += 2;
      return true;
    }
    if (!isHexGroup(group)) return false;
    ++groups;
    if (colon == std::string::npos) return true;
    start = colon + 1;
  }
}

}  // namespace

bool ValueKinds::isRange(const std::string& token) {
  const std::string::size_type dash = token.find('-');
  if (dash == std::string::npos || dash == 0) return false;
  const std::string low = token.substr(0, dash);
  const std::string high = token.substr(dash + 1);
  if (!isDottedNumber(low) || !isDottedNumber(high)) return false;
  return dottedParts(low).size() == dottedParts(high).size();
}

bool ValueKinds::inRange(const std::string& token, const std::string& input) {
  if (!isRange(token) || !isDottedNumber(input)) return false;
  const std::string::size_type dash = token.find('-');
  const std::vector<std::string> low = dottedParts(token.substr(0, dash));
  const std::vector<std::string> high = dottedParts(token.substr(dash + 1));
  const std::vector<std::string> value = dottedParts(input);
  if (value.size() != low.size()) return false;
  for (size_t i = 0; i < value.size(); ++i) {
    if (compareNumbers(value[i], low[i]) < 0 || compareNumbers(value[i], high[i]) > 0) return false;
  }
  return true;
}

bool ValueKinds::inRangeList(const std::string& token, const std::string& input) {
  if (input.empty() || input.front() == ',' || input.back() == ',') return false;
  std::string::size_type start = 0;
  for (;;) {
    const std::string::size_type comma = input.find(',', start);
    const std::string item = input.substr(start, comma == std::string::npos ? std::string::npos : comma - start);
    const std::string::size_type dash = item.find('-');
    if (dash == std::string::npos) {
      if (!inRange(token, item)) return false;
    } else {
      const std::string first = item.substr(0, dash);
      const std::string last = item.substr(dash + 1);
      if (!inRange(token, first) || !inRange(token, last) || compareNumbers(first, last) > 0) return false;
    }
    if (comma == std::string::npos) return true;
    start = comma + 1;
  }
}

bool ValueKinds::isContiguousMask(const std::string& input) {
  if (!IpAddress::isValidIpAddress(input)) return false;
  std::uint32_t mask = 0;
  for (const auto& part : dottedParts(input)) mask = (mask << 8) | static_cast<std::uint32_t>(std::stoul(part));
  // Ones from the left, then zeros only: the complement plus one is a power of two.
  const std::uint32_t rest = ~mask;
  return (rest & (rest + 1)) == 0;
}

bool ValueKinds::isIpv6Address(const std::string& input) {
  if (input.size() < 2) return false;
  const std::string::size_type gap = input.find("::");
  int before = 0;
  int after = 0;
  if (gap == std::string::npos) {
    return countGroups(input, true, before) && before == 8;
  }
  if (input.find("::", gap + 1) != std::string::npos) return false;
  const std::string left = input.substr(0, gap);
  const std::string right = input.substr(gap + 2);
  if (!countGroups(left, false, before) || !countGroups(right, true, after)) return false;
  return before + after <= 7;
}

bool ValueKinds::isIpv6Prefix(const std::string& input) {
  const std::string::size_type slash = input.find('/');
  if (slash == std::string::npos) return false;
  const std::string length = input.substr(slash + 1);
  if (!allDigits(length) || length.size() > 3 || compareNumbers(length, "128") > 0) return false;
  return isIpv6Address(input.substr(0, slash));
}

bool ValueKinds::isKind(const std::string& token) {
  if (token == kMask || token == kIpv6Address || token == kIpv6Prefix) return true;
  if (token.compare(0, sizeof(kListPrefix) - 1, kListPrefix) == 0) {
    return isRange(token.substr(sizeof(kListPrefix) - 1));
  }
  return isRange(token);
}

bool ValueKinds::accepts(const std::string& token, const std::string& input) {
  if (token == kMask) return isContiguousMask(input);
  if (token == kIpv6Address) return isIpv6Address(input);
  if (token == kIpv6Prefix) return isIpv6Prefix(input);
  if (token.compare(0, sizeof(kListPrefix) - 1, kListPrefix) == 0) {
    return inRangeList(token.substr(sizeof(kListPrefix) - 1), input);
  }
  return inRange(token, input);
}

std::string ValueKinds::label(const std::string& token) {
  if (token == kMask) return "A.B.C.D";
  if (token == kIpv6Address) return "X:X:X:X::X";
  if (token == kIpv6Prefix) return "X:X:X:X::X/<0-128>";
  if (token.compare(0, sizeof(kListPrefix) - 1, kListPrefix) == 0 && isKind(token)) return "WORD";
  if (isRange(token)) return "<" + token + ">";
  return token;
}

}  // namespace qxparser
