// Helpers shared by the parts of the translator.
#include "translator/DRTranslatorInternal.h"

#include "toolkit/ParserToolCase.h"

namespace drtranslator {

const char* const kGroupPattern = "([^ \\t\\r\\n]*)";

namespace {
// The order in which the names are compared; it differs from the head of the
// program, which has no effect.
const char* const kUIListNames[] = {"@UI_InterfaceList",    "@UI_ProtocolList",    "@UI_InterfaceNameList",
                                    "@UI_VrfNameList",      "@UI_RouteMapNameList", "@UI_NATList",
                                    "@UI_IPAddressList"};

bool startsWithSpace(const std::string& word) {
  if (word.empty()) return false;
  char c = word[0];
  return c == ' ' || c == '\r' || c == '\n' || c == '\t';
}
}  // namespace

bool isUIListName(const std::string& word) {
  for (const char* name : kUIListNames) {
    if (word == name) return true;
  }
  return false;
}

std::string storedWord(const std::string& word) {
  if (isUIListName(word)) return word;
  return qxparser::ParserToolCase::string2Lower(word);
}

std::ptrdiff_t previousWord(const std::vector<std::string>& list, std::ptrdiff_t before) {
  if (before > static_cast<std::ptrdiff_t>(list.size())) before = static_cast<std::ptrdiff_t>(list.size());
  for (std::ptrdiff_t i = before - 1; i >= 0; --i) {
    if (!startsWithSpace(list[static_cast<std::size_t>(i)])) return i;
  }
  return kNoWord;
}

}  // namespace drtranslator
