// ThreadWordSet: a word set of a grammar node that each thread keeps apart.
//
// The walk of a line leaves per-line scratch on the nodes it passes (which
// options a line has used up, which words an option excludes) and clears it
// when the line is done. The grammar itself is shared by every terminal of
// the process, so that scratch cannot live in the node: a ThreadWordSet is
// only a name for a set that the calling thread holds in a table of its
// own, keyed by the member's address. Each thread sees its own words and
// nothing of another thread's; within one thread the set behaves as a set
// stored in the node would (the words stay until cleared). The table holds
// only the sets that have words, a handful during a line, so a search of it
// is short; a set that was never filled costs one look at an empty table.
//
// The member holds no words itself: copying a node would not copy them, and
// nodes are never copied.
#pragma once

#include <cstddef>
#include <string>

#include "grammar/FlatSet.h"
#include "platform/Export.h"

namespace qxparser {

class VTYCONF_API ThreadWordSet {
 public:
  using Words = FlatSet<std::string>;

  ThreadWordSet() = default;
  ThreadWordSet(const ThreadWordSet&) = delete;
  ThreadWordSet& operator=(const ThreadWordSet&) = delete;

  size_t count(const std::string& word) const;
  bool empty() const;
  size_t size() const;
  void insert(const std::string& word);
  template <typename InputIt>
  void insert(InputIt first, InputIt last) {
    if (first == last) return;
    Words& words = wordsToFill();
    for (; first != last; ++first) words.insert(*first);
  }
  void clear();

  // The number of sets with words that the calling thread holds (over every
  // node); 0 between lines once every walk has cleared what it used.
  static size_t filledSets();

 private:
  const Words* words() const;
  Words& wordsToFill();
};

}  // namespace qxparser
