// Internal to the translator: helpers shared by the DRTranslator*.cpp files, not exported.
//
// Stateless functions over the word list and over single words. The word list
// is only ever read through these, so no walk leaves its bounds.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace drtranslator {

// What every group of a search pattern becomes: one run of characters free of
// white space. The backslashes are characters of the Perl pattern.
extern const char* const kGroupPattern;  // "([^ \t\r\n]*)", 13 characters

// Sentinel of previousWord: no word was found.
constexpr std::ptrdiff_t kNoWord = -1;

// True when word is exactly one of the seven UI list names, which keep their case.
bool isUIListName(const std::string& word);

// The lower-casing rule of the main text: a UI list name stays as it is, any
// other word is lower-cased.
std::string storedWord(const std::string& word);

// The look back: the index of the first entry before index `before`, walking
// towards the front, whose first character is none of blank, CR, LF and tab.
// An empty entry counts as a word. kNoWord when there is none.
std::ptrdiff_t previousWord(const std::vector<std::string>& list, std::ptrdiff_t before);

}  // namespace drtranslator
