// MeaningText: the small text and record helpers that the device-meaning
// rules (AccessListMeaning, BgpNeighbourMeaning, DeviceMeaning,
// InterfaceRangeMeaning, RouteFilterMeaning, VlanListMeaning) share.
// Internal to the library; plain inline functions without state.
#pragma once

#include <string>
#include <vector>

#include "config/CiscoCommandLine.h"
#include "config/QxParserUtil.h"

namespace qxparser {
namespace meaning {

// A command's text without the blank and line end that records carry.
inline std::string trimmed(std::string text) {
  text.erase(text.find_last_not_of(" \r\n") + 1);
  return text;
}

inline bool startsWith(const std::string& text, const std::string& lead) {
  return text.compare(0, lead.size(), lead) == 0;
}

// Frees one record with its children.
inline void freeRecord(CiscoCommandLine* record) {
  std::vector<CiscoCommandLine*> alone{record};
  QxParserUtil::deleteCommands(alone);
}

}  // namespace meaning
}  // namespace qxparser
