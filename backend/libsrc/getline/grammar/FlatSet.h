// FlatSet: a set kept as one sorted vector.
//
// The companion of FlatMap for the small word sets of grammar nodes: the
// std::set interface they use, the same order (operator<), no heap node per
// word, and a clear() that keeps its storage for the next use. An insertion
// or an erase may move the words: iterators and references into the set are
// only good until the next change of that same set. Not thread-safe.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>

#include "grammar/CompactVector.h"

namespace qxparser {

template <typename Key>
class FlatSet {
 public:
  using key_type = Key;
  using value_type = Key;
  using size_type = std::size_t;
  using const_iterator = const Key*;
  using iterator = const_iterator;

  const_iterator begin() const { return mItems.begin(); }
  const_iterator end() const { return mItems.end(); }
  size_type size() const { return mItems.size(); }
  bool empty() const { return mItems.empty(); }
  void clear() { mItems.clear(); }

  template <typename K>
  const_iterator find(const K& key) const {
    const_iterator it = std::lower_bound(mItems.begin(), mItems.end(), key, Less());
    return it != mItems.end() && !(key < *it) ? it : mItems.end();
  }
  template <typename K>
  size_type count(const K& key) const {
    return find(key) != mItems.end() ? 1 : 0;
  }

  // Words arriving in order are appended without a search.
  std::pair<const_iterator, bool> insert(const Key& key) {
    if (mItems.empty() || mItems.back() < key) {
      mItems.emplace(mItems.end(), key);
      return {mItems.end() - 1, true};
    }
    const Key* it = std::lower_bound(mItems.begin(), mItems.end(), key, Less());
    if (!(key < *it)) return {it, false};
    return {mItems.emplace(it, key), true};
  }
  template <typename InputIt>
  void insert(InputIt first, InputIt last) {
    for (; first != last; ++first) insert(*first);
  }

  size_type erase(const Key& key) {
    const_iterator it = find(key);
    if (it == mItems.end()) return 0;
    mItems.erase(it);
    return 1;
  }

  bool operator==(const FlatSet& other) const { return mItems == other.mItems; }
  bool operator!=(const FlatSet& other) const { return mItems != other.mItems; }

 private:
  struct Less {
    template <typename K>
    bool operator()(const Key& word, const K& key) const {
      return word < key;
    }
  };

  CompactVector<Key> mItems;
};

}  // namespace qxparser
