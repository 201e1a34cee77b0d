// PathWords: the words that matched one grammar node of a command's path.
//
// A set of strings in their sorted order. Most nodes match a single word, and
// a record holds one such set per node of its path, so the set keeps one word
// in place and allocates a vector only once it holds two or more: a record's
// path costs no allocation per node beyond the words' own text. Iterates,
// compares and answers count, insert and erase as a sorted set of unique
// strings does. No shared state.
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace qxparser {

class PathWords {
 public:
  using const_iterator = const std::string*;
  using iterator = const_iterator;

  PathWords() = default;
  PathWords(const PathWords& other)
      : mOne(other.mOne),
        mMore(other.mMore ? std::make_unique<std::vector<std::string>>(*other.mMore) : nullptr),
        mHasOne(other.mHasOne) {}
  PathWords(PathWords&& other) noexcept = default;
  PathWords& operator=(const PathWords& other) {
    if (this != &other) *this = PathWords(other);
    return *this;
  }
  PathWords& operator=(PathWords&& other) noexcept = default;

  const_iterator begin() const { return mMore ? mMore->data() : &mOne; }
  const_iterator end() const { return mMore ? mMore->data() + mMore->size() : &mOne + (mHasOne ? 1 : 0); }
  size_t size() const { return static_cast<size_t>(end() - begin()); }
  bool empty() const { return begin() == end(); }

  size_t count(const std::string& word) const {
    if (!mMore) return mHasOne && mOne == word ? 1 : 0;
    return std::binary_search(begin(), end(), word) ? 1 : 0;
  }

  // False when the word was there already.
  bool insert(std::string word) {
    if (!mMore && !mHasOne) {
      mOne = std::move(word);
      mHasOne = true;
      return true;
    }
    if (!mMore) {
      if (mOne == word) return false;
      auto more = std::make_unique<std::vector<std::string>>();
      more->reserve(2);
      const bool before = word < mOne;
      if (before) more->push_back(std::move(word));
      more->push_back(std::move(mOne));
      if (!before) more->push_back(std::move(word));
      mOne = std::string();
      mHasOne = false;
      mMore = std::move(more);
      return true;
    }
    const auto at = std::lower_bound(mMore->begin(), mMore->end(), word);
    if (at != mMore->end() && *at == word) return false;
    mMore->insert(at, std::move(word));
    return true;
  }
  template <typename Iterator>
  void insert(Iterator first, Iterator last) {
    for (; first != last; ++first) insert(*first);
  }

  void erase(const_iterator at) {
    if (!mMore) {
      mOne = std::string();
      mHasOne = false;
      return;
    }
    mMore->erase(mMore->begin() + (at - mMore->data()));
    if (mMore->size() == 1) {
      mOne = std::move(mMore->front());
      mHasOne = true;
      mMore.reset();
    } else if (mMore->empty()) {
      mMore.reset();
    }
  }
  size_t erase(const std::string& word) {
    const auto at = std::lower_bound(begin(), end(), word);
    if (at == end() || *at != word) return 0;
    erase(at);
    return 1;
  }

  bool operator==(const PathWords& other) const { return std::equal(begin(), end(), other.begin(), other.end()); }
  bool operator!=(const PathWords& other) const { return !(*this == other); }

 private:
  // The only word while there is one; two or more stand in mMore, sorted.
  std::string mOne;
  std::unique_ptr<std::vector<std::string>> mMore;
  bool mHasOne = false;
};

}  // namespace qxparser
