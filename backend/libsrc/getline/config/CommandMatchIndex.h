// CommandMatchIndex: finds the first command of one nesting level that is
// comparable with, or negated by, a given command.
//
// The index works on a vector that it does not own (the level's commands) and
// answers exactly what a scan from the front with isComparable / isNoable
// would answer. All insertions into the vector while the index lives must go
// through append and insert; a record whose path changed in place (assignment,
// mergeCommand) is announced with refresh. Not thread-safe.
#pragma once

#include <cstddef>
#include <vector>

#include "config/CiscoCommandLine.h"

namespace qxparser {

class CommandMatchIndex {
 public:
  static constexpr size_t npos = static_cast<size_t>(-1);

  explicit CommandMatchIndex(std::vector<CiscoCommandLine*>& commands) : mCommands(commands) {}

  // Position of the first command C with C->isComparable(probe), or npos.
  size_t firstComparable(const CiscoCommandLine* probe) const;
  // Position of the first command C with C->isNoable(probe), or npos.
  size_t firstNoable(const CiscoCommandLine* probe) const;

  void append(CiscoCommandLine* record) { insert(mCommands.size(), record); }
  void insert(size_t position, CiscoCommandLine* record);
  void refresh(size_t position) { (void)position; }

 private:
  std::vector<CiscoCommandLine*>& mCommands;
};

}  // namespace qxparser
