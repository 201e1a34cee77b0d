// First-match lookups over one nesting level of commands.
#include "config/CommandMatchIndex.h"

namespace qxparser {

size_t CommandMatchIndex::firstComparable(const CiscoCommandLine* probe) const {
  for (size_t i = 0; i < mCommands.size(); ++i) {
    if (mCommands[i]->isComparable(probe)) return i;
  }
  return npos;
}

size_t CommandMatchIndex::firstNoable(const CiscoCommandLine* probe) const {
  for (size_t i = 0; i < mCommands.size(); ++i) {
    if (mCommands[i]->isNoable(probe)) return i;
  }
  return npos;
}

void CommandMatchIndex::insert(size_t position, CiscoCommandLine* record) {
  mCommands.insert(mCommands.begin() + static_cast<std::ptrdiff_t>(position), record);
}

}  // namespace qxparser
