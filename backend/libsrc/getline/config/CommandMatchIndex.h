// CommandMatchIndex: finds the first command of one nesting level that is
// comparable with, or negated by, a given command.
//
// Two commands are comparable exactly when their key signatures agree: the
// positions, nodes and words of the path elements whose node has the key
// attribute. The index keeps the level's commands in buckets by signature,
// each bucket in the order of the level, so the first comparable command is
// found without a scan, and answers exactly what a scan from the front with
// isComparable would. The first
// noable command is still found by a scan.
//
// The index works on a vector that it does not own. All insertions into the
// vector while the index lives must go through append and insert; a record
// whose path changed in place (assignment, mergeCommand) is announced with
// refresh. Removal marks are read at query time. Not thread-safe.
#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "config/CiscoCommandLine.h"

namespace qxparser {

class CommandMatchIndex {
 public:
  static constexpr size_t npos = static_cast<size_t>(-1);

  explicit CommandMatchIndex(std::vector<CiscoCommandLine*>& commands);

  // Position of the first command C with C->isComparable(probe), or npos.
  size_t firstComparable(const CiscoCommandLine* probe) const;
  // Position of the first command C with C->isNoable(probe), or npos.
  size_t firstNoable(const CiscoCommandLine* probe) const;

  void append(CiscoCommandLine* record) { insert(mCommands.size(), record); }
  void insert(size_t position, CiscoCommandLine* record);
  void refresh(size_t position);

  // The key signature of a command; equal signatures mean comparable.
  static std::string signature(const CiscoCommandLine* command);

 private:
  struct Ranked {
    double rank;
    CiscoCommandLine* record;
  };
  using Bucket = std::vector<Ranked>;

  void enter(CiscoCommandLine* record, double rank);
  static void place(Bucket& bucket, const Ranked& entry);
  void renumber();
  size_t positionOf(double rank) const;

  std::vector<CiscoCommandLine*>& mCommands;
  // Ranks grow with the position in the vector; an insertion takes the mean
  // of its neighbours' ranks.
  std::unordered_map<const CiscoCommandLine*, double> mRank;
  std::unordered_map<const CiscoCommandLine*, std::string> mSignature;
  std::unordered_map<std::string, Bucket> mBuckets;
};

}  // namespace qxparser
