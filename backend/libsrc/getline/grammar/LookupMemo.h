// LookupMemo: what the searches by value found for a node and a token.
//
// Once a token is not a word of a node, the search goes on through complex
// children, the KeyFile tables, the angle-bracket words and the pattern
// words; where no option takes part (a node without options, or one whose
// options hold no complex entry or KeyFile word and do not have the token)
// that search reads no state of the walk, so it gives the same answer for
// the same node and token every time while the grammar stays as it is. For a
// large node without options the memo holds the whole search, words
// included: one probe of it is cheaper than the node's own word table. A configuration types the same
// values again and again ("0.0.0.255", "255.255.255.0", a word tried at a
// level it does not belong to), so a terminal keeps those answers, not found
// included. A search that throws keeps nothing. Owned by one terminal model
// and used by one thread; the stamp tells when the grammar it learnt from
// has changed, and the memo starts over when it has grown to its limit.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "grammar/MemoSlots.h"

namespace qxparser {

class ParserTreeNode;

class LookupMemo {
 public:
  // Forgets every answer unless `stamp` is the one it was filled under.
  void useStamp(size_t poolUsed, size_t generation) {
    if (poolUsed == mPoolUsed && generation == mGeneration) return;
    clear();
    mPoolUsed = poolUsed;
    mGeneration = generation;
  }

  static size_t hashOf(const ParserTreeNode* node, const std::string& token) {
    return std::hash<std::string>()(token) ^ (reinterpret_cast<std::uintptr_t>(node) * 0x9E3779B97F4A7C15ull);
  }

  // Whether an answer is kept for node and token (then put in `answer`).
  bool find(const ParserTreeNode* node, const std::string& token, size_t hash, ParserTreeNode*& answer) const {
    const Slot* slot = mSlots.find(hash, [&](const Slot& kept) { return kept.node == node && kept.token == token; });
    if (!slot) return false;
    answer = slot->answer;
    return true;
  }

  // Keeps an answer that find has just not found.
  void keep(const ParserTreeNode* node, const std::string& token, size_t hash, ParserTreeNode* answer) {
    Slot& slot = mSlots.add(hash);
    slot.node = node;
    slot.token = token;
    slot.answer = answer;
  }

 private:
  struct Slot {
    size_t hash = 0;
    const ParserTreeNode* node = nullptr;
    bool used = false;
    std::string token;
    ParserTreeNode* answer = nullptr;
  };

  void clear() { mSlots.clear(); }

  MemoSlots<Slot, 256, 16384> mSlots;
  size_t mPoolUsed = static_cast<size_t>(-1);
  size_t mGeneration = static_cast<size_t>(-1);
};

}  // namespace qxparser
