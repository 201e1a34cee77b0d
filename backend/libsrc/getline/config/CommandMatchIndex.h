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
//
// Storage: one vector of slots (a record, its rank and what it was entered
// with), the level as slot numbers, buckets found by a hash of the key
// elements and told apart by comparing those elements with a live member's,
// and ordered lists of slot numbers (sorted by rank, with a movable gap) in
// place of trees. The text of a command is looked up by a hash and checked
// against the record's own text; a bucket keeps such a table only once it
// holds several commands, a smaller run is read directly. A level of a few
// commands is not indexed at all until it grows: it is scanned.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
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
  size_t firstComparable(const CiscoCommandLine* probe) const { return firstComparable(probe, keyHash(probe)); }
  // The same, given keyHash(probe).
  size_t firstComparable(const CiscoCommandLine* probe, uint64_t probeHash) const;
  // keyHash of the command at `position`, as the index took it when the
  // command came in (or was refreshed).
  uint64_t keyHashAt(size_t position) const;
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
  CiscoCommandLine* at(size_t position) const { return mSlots[mLevel[position]].record; }
  // Writes the level, insertions included, back into the vector.
  void commit();

  void append(CiscoCommandLine* record) { insert(size(), record); }
  void insert(size_t position, CiscoCommandLine* record);
  void refresh(size_t position);
  void removed(CiscoCommandLine* record);

  // The key signature of a command; equal signatures mean comparable.
  static std::string signature(const CiscoCommandLine* command);
  // A hash of the key signature, and the comparison of two signatures
  // without building either.
  static uint64_t keyHash(const CiscoCommandLine* command);
  static bool sameKey(const CiscoCommandLine* a, const CiscoCommandLine* b);

  // The key signatures of the commands of a level that are comparable with
  // anything (a path, not removed), as they are when it is built: whether
  // one of them is comparable with a probe.
  class KeySet {
   public:
    explicit KeySet(const std::vector<CiscoCommandLine*>& commands);
    // The same from the commands with their keyHash (those without a path
    // or marked removed are left out here).
    explicit KeySet(std::vector<std::pair<uint64_t, const CiscoCommandLine*>> keys);
    bool containsKeyOf(const CiscoCommandLine* probe) const { return containsKeyOf(probe, keyHash(probe)); }
    bool containsKeyOf(const CiscoCommandLine* probe, uint64_t probeHash) const;

   private:
    std::vector<std::pair<uint64_t, const CiscoCommandLine*>> mKeys;
  };

 private:
  static constexpr uint32_t kNone = static_cast<uint32_t>(-1);

  // A sequence with a gap at the place of the last change: changes that
  // follow one another nearby move little. A single value is held in place
  // until a second one comes (most buckets hold one command, and a bucket
  // holds three lists): the list is then sixteen bytes, and its values, once
  // spilled, stand in a block of their own with the gap's place.
  class GapList {
   public:
    size_t size() const {
      return spilled() ? mSpill->data.size() - (mSpill->gapEnd - mSpill->gapBegin) : (mOne != kNone ? 1 : 0);
    }
    bool empty() const { return size() == 0; }
    uint32_t operator[](size_t position) const {
      if (!spilled()) return mOne;
      const Spill& held = *mSpill;
      return held.data[position < held.gapBegin ? position : position + (held.gapEnd - held.gapBegin)];
    }
    void reserve(size_t count) { block().data.reserve(count); }
    void push_back(uint32_t value);
    void insert(size_t position, uint32_t value);
    void erase(size_t position);

   private:
    struct Spill {
      std::vector<uint32_t> data;
      uint32_t gapBegin = 0;
      uint32_t gapEnd = 0;
    };
    bool spilled() const { return mSpill && !mSpill->data.empty(); }
    Spill& block() {
      if (!mSpill) mSpill = std::make_unique<Spill>();
      return *mSpill;
    }
    // False when the value went in place.
    bool spill(uint32_t value);
    void moveGap(size_t position);
    std::unique_ptr<Spill> mSpill;
    uint32_t mOne = kNone;
  };

  // What the index knows of one record. Ranks grow with the position in the
  // level; an insertion takes a rank between its neighbours', and ranks
  // around it are spread out when there is no room.
  struct Slot {
    CiscoCommandLine* record = nullptr;
    uint64_t rank = 0;
    uint64_t textHash = 0;  // of currentCommand when entered
    const ParserTreeNode* firstNode = nullptr;
    uint32_t bucket = kNone;  // while live
    bool negated = false;     // CMDBIT_NO when entered
    bool live = false;        // in its bucket: has a path, not removed
    bool endsAtOnce = false;  // the first element of the path ends a line
    bool stop = false;        // in its bucket's stops
  };
  using TextTable = std::unordered_map<uint64_t, GapList>;
  struct Bucket {
    uint64_t hash = 0;
    // A live member whose key stands for the bucket's; none once the last
    // member left (the bucket is then never found again).
    uint32_t representative = kNone;
    uint32_t liveCount = 0;
    GapList negated;
    GapList positive;
    // Live commands whose successor in the level does not continue their run.
    GapList stops;
    // Members by the hash of their text, once the bucket has grown.
    std::unique_ptr<TextTable> byText;
  };

  void buildIndex();
  size_t scanComparable(const CiscoCommandLine* probe) const;
  size_t scanNoable(const CiscoCommandLine* probe) const;
  Run scanRun(size_t at, const CiscoCommandLine* probe) const;
  size_t slotOf(const CiscoCommandLine* record) const;
  size_t lowerBound(const GapList& list, uint64_t rank) const;
  void enterList(GapList& list, uint32_t id, bool atEnd);
  void leaveList(GapList& list, uint32_t id);
  uint32_t findBucket(const CiscoCommandLine* probe, uint64_t hash) const;
  uint32_t bucketFor(const CiscoCommandLine* record);
  uint32_t firstMember(const Bucket& bucket) const;
  void describe(uint32_t id);
  void enterLive(uint32_t id, bool atEnd);
  void leaveLive(uint32_t id);
  void buildTextTable(Bucket& bucket);
  // Hands `visit` the live members of a bucket in the level's order (its
  // negated and positive lists merged by rank) until it answers true; the
  // member it stopped at, or kNone.
  template <typename Visit>
  uint32_t firstInOrder(const Bucket& bucket, Visit visit) const;
  void updateRun(size_t position);
  size_t positionOf(uint64_t rank) const;
  uint64_t rankFor(size_t position);
  void spread(size_t position);

  std::vector<CiscoCommandLine*>& mCommands;
  std::vector<Slot> mSlots;
  // The slots of the records given, by record address; records inserted later apart.
  std::vector<std::pair<const CiscoCommandLine*, uint32_t>> mGiven;
  std::unordered_map<const CiscoCommandLine*, uint32_t> mInserted;
  GapList mLevel;
  bool mCommitted = true;
  // False while the level is small enough to be scanned.
  bool mIndexed = false;
  std::vector<Bucket> mBuckets;
  // Open addressing over the bucket numbers by key hash (kNone: free).
  std::vector<uint32_t> mBucketTable;
  // Live commands by the first node of their path; those whose first element
  // ends a line apart.
  std::unordered_map<const ParserTreeNode*, GapList> mByFirstNode;
  GapList mEndsAtOnce;
};

}  // namespace qxparser
