// Test access to the private checks of ParserToolCase.
#pragma once

#include <string>

#include "toolkit/ParserToolCase.h"

namespace qxparser {

struct ParserToolCasePeer {
  static bool isValidRange(const std::string& t, const std::string& i) {
    return ParserToolCase::isValidRange(t, i);
  }
  static bool isValidHexRange(const std::string& t, const std::string& i) {
    return ParserToolCase::isValidHexRange(t, i);
  }
  static bool isStringNum(const std::string& t) { return ParserToolCase::isStringNum(t); }
  static bool isStringHexNum(const std::string& t) { return ParserToolCase::isStringHexNum(t); }
  static bool isStringOnlyHexNum(const std::string& t) { return ParserToolCase::isStringOnlyHexNum(t); }
};

}  // namespace qxparser
