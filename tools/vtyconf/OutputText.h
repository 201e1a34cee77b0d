// OutputText: library text made fit for a terminal.
//
// The merge and fallback writers indent deeper levels with NUL bytes (a
// property of their format that the library keeps); printable() shows them
// as blanks and leaves every other byte alone. Pure function.
#pragma once

#include <string>

namespace vtycli {

inline std::string printable(std::string text) {
  for (char& c : text) {
    if (c == '\0') c = ' ';
  }
  return text;
}

}  // namespace vtycli
