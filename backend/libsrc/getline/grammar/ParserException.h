// ParserException: the parser's one exception type.
//
// Holds a text. Thrown when a definition file cannot be opened ("error: can't
// open file: " and the path) or, as vtyconf's own addition, when a definition
// file is malformed ("file.cfm:12: " and what is wrong). VTY::parse catches
// it; createNewParserResource lets it through to the caller.
#pragma once

#include <stdexcept>
#include <string>

#include "platform/Export.h"

namespace qxparser {

class VTYCONF_API ParserException : public std::runtime_error {
 public:
  explicit ParserException(const std::string& text) : std::runtime_error(text) {}
  const std::string text() const { return what(); }
};

}  // namespace qxparser
