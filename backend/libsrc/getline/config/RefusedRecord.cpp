#include "config/RefusedRecord.h"

namespace qxparser {

bool isRefusedRecord(const CiscoCommandLine& record) {
  if (record.getFlag() == CMD_TEXT) return false;
  if (record.getTreeNodeSize() == 0) return true;
  static const std::string kEndWord = "\n";
  // The end of a line is on the last element of most paths: looked at first.
  const auto& path = record.getTreeNodes();
  for (auto entry = path.rbegin(); entry != path.rend(); ++entry) {
    if (entry->words.count(kEndWord) != 0) return false;
  }
  // A "no" line may stop early where the grammar allows it; where it does
  // not, the device answered "% Incomplete command.".
  return !record.hasFlags(CMDBIT_NO) || record.hasFlags(CMDBIT_NO_COMPLETE);
}

std::string refusalMessage(const CiscoCommandLine& record) {
  return record.getTreeNodeSize() == 0 ? "% Invalid input detected at ^" : "% Incomplete command.";
}

}  // namespace qxparser
