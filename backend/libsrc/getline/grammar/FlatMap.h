// FlatMap: a map kept as one sorted vector of (key, value) pairs.
//
// The grammar holds tens of thousands of small maps, most of them empty or
// with a single entry; a tree map costs a heap node per entry and walks
// pointers to find one. FlatMap offers the part of the std::map interface the
// grammar uses, with the same key order (operator< on the key), so every walk
// over it visits the entries exactly as the tree map did.
//
// Unlike std::map, an insertion (operator[], insert, emplace) or an erase may
// move the entries: iterators, references and pointers into the map are only
// good until the next change of that same map. Not thread-safe.
#pragma once

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <utility>

#include "grammar/CompactVector.h"

namespace qxparser {

template <typename Key, typename Value>
class FlatMap {
 public:
  using key_type = Key;
  using mapped_type = Value;
  using value_type = std::pair<Key, Value>;
  using size_type = std::size_t;
  using iterator = value_type*;
  using const_iterator = const value_type*;

  iterator begin() { return mItems.begin(); }
  iterator end() { return mItems.end(); }
  const_iterator begin() const { return mItems.begin(); }
  const_iterator end() const { return mItems.end(); }
  size_type size() const { return mItems.size(); }
  bool empty() const { return mItems.empty(); }
  void clear() { mItems.clear(); }
  void reserve(size_type count) { mItems.reserve(count); }

  template <typename K>
  iterator lower_bound(const K& key) {
    return std::lower_bound(mItems.begin(), mItems.end(), key, KeyLess());
  }
  template <typename K>
  const_iterator lower_bound(const K& key) const {
    return std::lower_bound(mItems.begin(), mItems.end(), key, KeyLess());
  }
  template <typename K>
  iterator find(const K& key) {
    iterator it = lower_bound(key);
    return it != mItems.end() && !(key < it->first) ? it : mItems.end();
  }
  template <typename K>
  const_iterator find(const K& key) const {
    const_iterator it = lower_bound(key);
    return it != mItems.end() && !(key < it->first) ? it : mItems.end();
  }
  template <typename K>
  size_type count(const K& key) const {
    return find(key) != mItems.end() ? 1 : 0;
  }

  Value& at(const Key& key) {
    iterator it = find(key);
    if (it == mItems.end()) throw std::out_of_range("FlatMap::at");
    return it->second;
  }
  const Value& at(const Key& key) const {
    const_iterator it = find(key);
    if (it == mItems.end()) throw std::out_of_range("FlatMap::at");
    return it->second;
  }

  Value& operator[](const Key& key) { return emplace(key, Value()).first->second; }

  // Inserts when the key is new; returns the entry of the key and whether it
  // was inserted. Keys arriving in order are appended without a search.
  template <typename K, typename V>
  std::pair<iterator, bool> emplace(K&& key, V&& value) {
    if (mItems.empty() || mItems.back().first < key) {
      mItems.emplace(mItems.end(), std::forward<K>(key), std::forward<V>(value));
      return {mItems.end() - 1, true};
    }
    iterator it = lower_bound(key);
    if (!(key < it->first)) return {it, false};
    return {mItems.emplace(it, std::forward<K>(key), std::forward<V>(value)), true};
  }
  template <typename V>
  std::pair<iterator, bool> insert_or_assign(const Key& key, V&& value) {
    std::pair<iterator, bool> placed = emplace(key, value);
    if (!placed.second) placed.first->second = std::forward<V>(value);
    return placed;
  }
  std::pair<iterator, bool> insert(const value_type& entry) { return emplace(entry.first, entry.second); }
  template <typename InputIt>
  void insert(InputIt first, InputIt last) {
    for (; first != last; ++first) emplace(first->first, first->second);
  }

  size_type erase(const Key& key) {
    iterator it = find(key);
    if (it == mItems.end()) return 0;
    mItems.erase(it);
    return 1;
  }
  iterator erase(const_iterator position) { return mItems.erase(position); }

  bool operator==(const FlatMap& other) const { return mItems == other.mItems; }
  bool operator!=(const FlatMap& other) const { return mItems != other.mItems; }

 private:
  struct KeyLess {
    template <typename K>
    bool operator()(const value_type& entry, const K& key) const {
      return entry.first < key;
    }
  };

  CompactVector<value_type> mItems;
};

}  // namespace qxparser
