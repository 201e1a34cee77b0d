// Helpers of the configuration subcommands: reading a file argument ("-" is
// standard input) and loading the parser resources with a clear message.
#pragma once

#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>

#include "config/QxParserUtil.h"

namespace vtycli {

// False, after the message "vtyconf: FILE: cannot read", when the file
// cannot be read.
inline bool readInput(const std::string& name, std::string& text) {
  if (name == "-") {
    text.assign(std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>());
    return true;
  }
  std::ifstream in(name, std::ios::binary);
  if (!in) {
    std::cerr << "vtyconf: " << name << ": cannot read\n";
    return false;
  }
  std::stringstream buffer;
  buffer << in.rdbuf();
  text = buffer.str();
  return true;
}

// False, after a message, when the definition files cannot be loaded.
inline bool loadResources() {
  try {
    qxparser::QxParserUtil::createNewParserResource();
    return true;
  } catch (const std::exception& e) {
    std::cerr << "vtyconf: " << e.what() << "\n";
    return false;
  }
}

}  // namespace vtycli
