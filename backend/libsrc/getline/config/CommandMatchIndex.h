// CommandMatchIndex: finds the first command of one nesting level that is
// comparable with, or negated by, a given command, and walks the run of
// comparable commands that starts there.
//
// Two commands are comparable exactly when their key signatures agree: the
// positions, nodes and words of the path elements whose node has the key
// attribute (a command without a path, or one marked removed, is comparable
// with nothing). The index keeps the level's live commands in buckets by
// signature, each in the order of the level, and knows for each command
// whether the next command of the level continues its run (same signature,
// not removed). So the first comparable command, the end of its run, the
// first command of the run with a given text and the commands of the run of
// the other sign are found without a scan, and are exactly what a scan from
// the front with isComparable finds. A command can only negate another whose
// path starts at the same node (or one whose path starts with the end of a
// line), so the first noable command is looked for among those alone.
//
// The index works on a vector that it does not own. While the index lives,
// insertions go through append and insert, and the level is read through
// size and at: the vector sees the insertions when commit is called (or the
// index goes). A record whose path, text or flags changed in place
// (assignment, mergeCommand) is announced with refresh, and a record marked
// CMDBIT_REMOVED with removed. Not thread-safe.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "config/CiscoCommandLine.h"

namespace qxparser {

class ParserTreeNode;

class CommandMatchIndex {
 public:
  static constexpr size_t npos = static_cast<size_t>(-1);

  explicit CommandMatchIndex(std::vector<CiscoCommandLine*>& commands);
  ~CommandMatchIndex();
  CommandMatchIndex(const CommandMatchIndex&) = delete;
  CommandMatchIndex& operator=(const CommandMatchIndex&) = delete;

  // Position of the first command C with C->isComparable(probe), or npos.
  size_t firstComparable(const CiscoCommandLine* probe) const;
  // Position of the first command C with C->isNoable(probe), or npos.
  size_t firstNoable(const CiscoCommandLine* probe) const;

  // The run of commands comparable with `probe` that starts at `at` (a
  // position firstComparable answered): one past its last position; the
  // first position in it whose currentCommand equals the probe's (npos if
  // none); and, in order, the positions in front of that one (or in the
  // whole run) of the commands whose CMDBIT_NO differs from the probe's.
  struct Run {
    size_t end = 0;
    size_t equal = npos;
    std::vector<size_t> otherSign;
  };
  Run walkRun(size_t at, const CiscoCommandLine* probe) const;

  size_t size() const { return mLevel.size(); }
  CiscoCommandLine* at(size_t position) const { return mLevel[position]->record; }
  // Writes the level, insertions included, back into the vector.
  void commit();

  void append(CiscoCommandLine* record) { insert(size(), record); }
  void insert(size_t position, CiscoCommandLine* record);
  void refresh(size_t position);
  void removed(CiscoCommandLine* record);

  // The key signature of a command; equal signatures mean comparable.
  static std::string signature(const CiscoCommandLine* command);

 private:
  struct Bucket;
  // What the index knows of one record. Ranks grow with the position in the
  // level; an insertion takes a rank between its neighbours', and ranks
  // around it are spread out when there is no room.
  struct Slot {
    CiscoCommandLine* record = nullptr;
    uint64_t rank = 0;
    Bucket* bucket = nullptr;  // none for a command without a path
    std::string text;          // currentCommand when entered
    bool negated = false;      // CMDBIT_NO when entered
    bool live = false;         // in its bucket: has a path, not removed
    const ParserTreeNode* firstNode = nullptr;
    bool endsAtOnce = false;   // the first element of the path ends a line
  };
  struct ByRank {
    using is_transparent = void;
    bool operator()(const Slot* a, const Slot* b) const { return a->rank < b->rank; }
    bool operator()(const Slot* a, uint64_t rank) const { return a->rank < rank; }
    bool operator()(uint64_t rank, const Slot* b) const { return rank < b->rank; }
  };
  using RankSet = std::set<Slot*, ByRank>;
  // The level's slots in order, with a gap at the place of the last
  // insertion: insertions that follow one another nearby move little.
  class Level {
   public:
    size_t size() const { return mData.size() - (mGapEnd - mGapBegin); }
    Slot* operator[](size_t position) const {
      return mData[position < mGapBegin ? position : position + (mGapEnd - mGapBegin)];
    }
    void push_back(Slot* data) { insert(size(), data); }
    void reserve(size_t count) { mData.reserve(count); }
    void insert(size_t position, Slot* data);

   private:
    std::vector<Slot*> mData;
    size_t mGapBegin = 0;
    size_t mGapEnd = 0;
  };
  struct Bucket {
    RankSet live;
    // Live commands whose successor in the level does not continue their run.
    RankSet stops;
    std::unordered_map<std::string, RankSet> byText;
    RankSet negated;
    RankSet positive;
  };

  Slot& slot(const CiscoCommandLine* record) const;
  void describe(Slot& data);
  void enterLive(Slot& data, bool atEnd);
  void leaveLive(Slot& data);
  void updateRun(size_t position);
  size_t positionOf(uint64_t rank) const;
  uint64_t rankFor(size_t position);
  void spread(size_t position);

  std::vector<CiscoCommandLine*>& mCommands;
  std::unordered_map<const CiscoCommandLine*, std::unique_ptr<Slot>> mSlots;
  Level mLevel;
  bool mCommitted = true;
  std::unordered_map<std::string, std::unique_ptr<Bucket>> mBuckets;
  // Live commands by the first node of their path; those whose first element
  // ends a line apart.
  std::unordered_map<const ParserTreeNode*, RankSet> mByFirstNode;
  RankSet mEndsAtOnce;
};

}  // namespace qxparser
