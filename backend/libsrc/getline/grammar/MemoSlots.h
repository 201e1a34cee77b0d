// MemoSlots: the bounded open-addressing table behind the walk's memos.
//
// A memo keeps answers by a hash of what was asked: slots probed one after
// the other from the hash, doubled when half full, and emptied instead of
// doubled once the table has reached its limit, so that a memo never holds
// more than `kMost` answers. `Slot` has a `hash` and a `used` member; what
// else it keeps, and how two questions are told apart, is the memo's own
// (the `same` test given to find). Not shared between threads.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace qxparser {

template <typename Slot, size_t kFirst, size_t kMost>
class MemoSlots {
 public:
  // The used slot of `hash` for which same(slot) holds, or nullptr.
  template <typename Same>
  const Slot* find(size_t hash, Same same) const {
    if (mSlots.empty()) return nullptr;
    const size_t mask = mSlots.size() - 1;
    for (size_t at = hash & mask;; at = (at + 1) & mask) {
      const Slot& slot = mSlots[at];
      if (!slot.used) return nullptr;
      if (slot.hash == hash && same(slot)) return &slot;
    }
  }

  // A free slot for `hash`, marked used, for an answer find has just not found.
  Slot& add(size_t hash) {
    if (2 * (mCount + 1) > mSlots.size()) grow();
    const size_t mask = mSlots.size() - 1;
    size_t at = hash & mask;
    while (mSlots[at].used) at = (at + 1) & mask;
    Slot& slot = mSlots[at];
    slot.used = true;
    slot.hash = hash;
    ++mCount;
    return slot;
  }

  void clear() {
    mSlots.clear();
    mCount = 0;
  }

 private:
  // Twice the room, the answers moved over; past the limit, empty again.
  void grow() {
    if (mSlots.size() >= kMost) {
      for (Slot& slot : mSlots) slot = Slot();
      mCount = 0;
      return;
    }
    std::vector<Slot> old;
    old.swap(mSlots);
    mSlots.resize(old.empty() ? kFirst : 2 * old.size());
    const size_t mask = mSlots.size() - 1;
    for (Slot& slot : old) {
      if (!slot.used) continue;
      size_t at = slot.hash & mask;
      while (mSlots[at].used) at = (at + 1) & mask;
      mSlots[at] = std::move(slot);
    }
  }

  std::vector<Slot> mSlots;
  size_t mCount = 0;
};

}  // namespace qxparser
