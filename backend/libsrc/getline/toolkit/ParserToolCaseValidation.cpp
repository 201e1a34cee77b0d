// Tests of typed words against grammar tokens.
//
// The rule order of isValidInput and isNewValidInput is part of the grammar's
// meaning: the definition files were written against it. A hyphen anywhere in
// a bracketed token makes it a range before any named placeholder is looked
// at, and an unknown bracketed token accepts everything while an unknown bare
// token accepts nothing.
#include <cctype>
#include <cstdint>
#include <sstream>
#include <stdexcept>

#include "platform/IpAddress.h"
#include "toolkit/ParserToolCase.h"
#include "toolkit/ToolkitText.h"
#include "toolkit/ValueKinds.h"

namespace qxparser {

namespace {

const char kLimit32[] = "4294967295";
const char kLimit24[] = "16777215";

bool isDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }
bool isLowerHexLetter(char c) { return c >= 'a' && c <= 'f'; }
bool isLowerHexChar(char c) { return (c >= '0' && c <= '9') || isLowerHexLetter(c); }

// The three character classes look at the text up to its first NUL.
template <typename Pred>
bool allUpToNul(const std::string& text, Pred pred) {
  for (const char* p = text.c_str(); *p != '\0'; ++p) {
    if (!pred(*p)) return false;
  }
  return true;
}

// The range checks reproduce the out-of-range error of a substring that
// starts past the end of its text, with the message callers have always seen.
[[noreturn]] void throwInvalidPosition() { throw std::out_of_range("invalid string position"); }

// Low and high texts of "<low-high>": the first and the last character are
// dropped unseen, the cut is at the first '-'. Only an empty token fails.
void cutBounds(const std::string& token, std::string& low, std::string& high) {
  if (token.empty()) throwInvalidPosition();
  std::string::size_type dash = token.find('-');
  std::string::size_type last = token.size() - 1;
  if (dash == std::string::npos) dash = last;
  low = dash > 1 ? token.substr(1, dash - 1) : std::string();
  high = last > dash + 1 ? token.substr(dash + 1, last - dash - 1) : std::string();
}

void cutAtColon(const std::string& input, std::string& left, std::string& right) {
  std::string::size_type colon = input.find(':');
  if (colon == std::string::npos) {
    left = input;
    right = input;
  } else {
    left = input.substr(0, colon);
    right = input.substr(colon + 1);
  }
}

}  // namespace

bool ParserToolCase::isStringNum(const std::string& text) { return allUpToNul(text, isDigit); }

bool ParserToolCase::isStringHexNum(const std::string& text) { return allUpToNul(text, isLowerHexChar); }

bool ParserToolCase::isStringOnlyHexNum(const std::string& text) {
  // A letter a-f settles it; what follows that letter is not looked at.
  for (const char* p = text.c_str(); *p != '\0'; ++p) {
    if (isLowerHexLetter(*p)) return true;
    if (!isLowerHexChar(*p)) return false;
  }
  return false;
}

bool ParserToolCase::isValidNumber(const std::string& value, const std::string& limit) {
  if (!isStringNum(value) && !isStringHexNum(value)) return false;
  if (!isStringNum(limit) && !isStringHexNum(limit)) return false;

  auto stripZeros = [](const std::string& text) {
    std::string::size_type first = text.find_first_not_of('0');
    return first == std::string::npos ? std::string("0") : text.substr(first);
  };
  std::string v = stripZeros(value);
  std::string l = stripZeros(limit);
  // The base is never told: digits sort below a-f, so one text comparison
  // orders decimal and lower-case hexadecimal alike.
  if (v.size() != l.size()) return v.size() < l.size();
  return l.compare(v) >= 0;
}

bool ParserToolCase::isValidInput(const std::string& token, const std::string& input) {
  if (token == input) return true;
  if (isPvFormStr(input)) return false;
  if (token.find('-') != std::string::npos) {
    if (IpAddress::isValidIpAddress(input)) return false;
    return isValidRange(token, input) || isValidHexRange(token, input);
  }
  if (token == "<hh:mm>") return isValidTime(input);
  if (token == "<month>") return isMonth(input);
  if (token == "<day>") return isDay(input);
  if (token == "<a.b.c.d>") return IpAddress::isValidIpAddress(input);
  if (token == "<hostname or a.b.c.d>") return true;
  if (token == "<h.h.h>") return isMAC(input);
  return true;
}

bool ParserToolCase::isValidRange(const std::string& token, const std::string& input) {
  if (token.find('.') != std::string::npos) {
    // A dotted range compares no numbers: any dotted word but an address.
    if (input.find('.') == std::string::npos) return false;
    return !IpAddress::isValidIpAddress(input);
  }
  if (!isStringNum(input)) return false;

  // Kept as the parser has always behaved: a value of zeros only (or none)
  // has no first significant digit, and the cut raises out_of_range, which
  // travels out of isValidInput to the caller.
  std::string::size_type first = input.find_first_not_of('0');
  if (first == std::string::npos) throwInvalidPosition();
  const std::string valueText = input.substr(first);

  std::string lowText;
  std::string highText;
  cutBounds(token, lowText, highText);

  const auto low = static_cast<std::uint32_t>(toolkit_detail::atoiSaturated(lowText));
  const auto high = static_cast<std::uint32_t>(toolkit_detail::atoiSaturated(highText));
  const auto value = static_cast<std::uint32_t>(toolkit_detail::atoiSaturated(valueText));

  // atoi saturates at 2147483647, so for bounds above that only this text
  // comparison keeps the upper limit. The high text keeps its own zeros.
  if (valueText.size() > highText.size()) return false;
  if (valueText.size() == highText.size() && highText.compare(valueText) < 0) return false;

  return low <= value && value <= high;
}

bool ParserToolCase::isValidHexRange(const std::string& token, const std::string& input) {
  if (!isStringHexNum(input)) return false;
  std::string lowText;
  std::string highText;
  cutBounds(token, lowText, highText);
  if (!isStringOnlyHexNum(highText) && !isStringOnlyHexNum(lowText)) return false;
  return isValidNumber(input, highText) && isValidNumber(lowText, input);
}

bool ParserToolCase::isValidTime(const std::string& input) {
  std::istringstream in(input);
  int hours = 0;
  char separator = 0;
  int minutes = 0;
  in >> hours >> separator >> minutes;
  if (in.fail()) return false;
  return static_cast<unsigned>(hours) <= 24 && static_cast<unsigned>(minutes) <= 60;
}

bool ParserToolCase::isDay(const std::string& input) {
  std::istringstream in(input);
  int day = 0;
  in >> day;
  return !in.fail() && day >= 1 && day <= 31;
}

bool ParserToolCase::isMonth(const std::string& input) {
  std::istringstream in(input);
  int month = 0;
  in >> month;
  return !in.fail() && month >= 1 && month <= 12;
}

bool ParserToolCase::isMAC(const std::string& input) {
  // Only the first non-blank character is examined, on purpose: the rest of
  // the word, its dots and group lengths are not checked. With no such
  // character the digit defaults to '0' and the word is accepted.
  char first = '0';
  for (char c : input) {
    if (!std::isspace(static_cast<unsigned char>(c))) {
      first = c;
      break;
    }
  }
  return std::isxdigit(static_cast<unsigned char>(first)) != 0;
}

bool ParserToolCase::isNewValidInput(const std::string& token, const std::string& input) {
  if (input == "\n") return false;
  if (token == input) return true;
  if (token == "a.b.c.d") return IpAddress::isValidIpAddress(input);
  if (token == "a.b.c.d/<1-32>") return IpAddress::isValidIpAddressAndMaskLen(input);

  std::string left;
  std::string right;
  if (token == "oui:vpn-index") {
    cutAtColon(input, left, right);
    return isStringNum(left) && isStringNum(right) && isValidNumber(left, kLimit24) &&
           isValidNumber(right, kLimit32);
  }
  if (token.find(':') != std::string::npos) {
    cutAtColon(input, left, right);
    if (!isStringNum(right) || !isValidNumber(right, kLimit32)) return false;
    if (isStringNum(left)) return isValidNumber(left, kLimit32);
    return IpAddress::isValidIpAddress(left);
  }
  if (token == "id") return isStringNum(input) && isValidNumber(input, kLimit32);

  const bool signedInput = !input.empty() && (input[0] == '+' || input[0] == '-');
  if (token == "+/-<metric>" && signedInput) {
    if (input.size() == 1) return true;
    const std::string rest = input.substr(1);
    return isStringNum(rest) && isValidNumber(rest, kLimit32);
  }
  // A delay may not be zero where a metric may; the asymmetry stands.
  if (token == "+/-<delay>" && signedInput) {
    if (input.size() == 1) return true;
    const std::string rest = input.substr(1);
    return isStringNum(rest) && isValidNumber(rest, kLimit32) && isValidNumber("1", rest);
  }
  if (token == "h.h.h") return isMAC(input);
  // Tokens that no rule above names accept nothing, except the checked kinds
  // of ValueKinds, which no older definition spells.
  return ValueKinds::accepts(token, input);
}

bool ParserToolCase::isAnyValidInput(const std::string& token, const std::string& input) {
  if (input == "\n") return false;
  return token == "hostname or a.b.c.d" || token == "word" || token == "line";
}

bool ParserToolCase::partialMatched(const std::string& token, const std::string& input) {
  if (input.size() > token.size()) return false;
  // A catch-all word is a placeholder, never a keyword to abbreviate.
  if (isAnyValidInput(token, input)) return false;
  for (std::size_t i = 0; i < input.size(); ++i) {
    if (toolkit_detail::lowerChar(input[i]) != toolkit_detail::lowerChar(token[i])) return false;
  }
  return true;
}

}  // namespace qxparser
