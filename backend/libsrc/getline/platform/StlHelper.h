// StlHelper: small string helpers shared by the whole library.
//
// Stateless static functions; safe from any thread. AToW "widens" a path for
// opening: on POSIX systems paths are byte strings already, so it returns its
// argument unchanged.
#pragma once

#include <string>

#include "platform/Export.h"

class VTYCONF_API StlHelper {
 public:
  static std::string AToW(const std::string& text) { return text; }
  // Replaces every occurrence of `from` in `text` by `to`, left to right, never
  // rescanning replaced text. An empty `from` changes nothing.
  static void replaceString(std::string& text, const std::string& from, const std::string& to);
  // Removes every trailing character that is in `set`.
  static void trimRight(std::string& text, const std::string& set = " \t\r\n");
  // Returns the first word of `text` (separated by blanks, tabs, CR or LF) and
  // takes it, with the separators in front of the next word, off `text`.
  static std::string GetFirstWord(std::string& text);
};
