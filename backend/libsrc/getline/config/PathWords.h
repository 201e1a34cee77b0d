// PathWords: the words that matched one grammar node of a command's path.
//
// A set of strings in their sorted order. Most nodes match a single word, and
// a record holds one such set per node of its path, so the set keeps one word
// in place and allocates a vector only once it holds two or more: a record's
// path costs no allocation per node beyond the words' own text, and the set
// is no larger than a string and a word of state. Iterates, compares and
// answers count, insert and erase as a sorted set of unique strings does.
// No shared state.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace qxparser {

class PathWords {
 public:
  using const_iterator = const std::string*;
  using iterator = const_iterator;

  PathWords() = default;
  PathWords(const PathWords& other) : mOne(other.mOne), mState(other.mState) {
    if (other.hasMore()) mState = toState(new std::vector<std::string>(*other.more()));
  }
  PathWords(PathWords&& other) noexcept : mOne(std::move(other.mOne)), mState(other.mState) { other.mState = kNoWord; }
  PathWords& operator=(const PathWords& other) {
    if (this != &other) *this = PathWords(other);
    return *this;
  }
  PathWords& operator=(PathWords&& other) noexcept {
    if (this == &other) return *this;
    dropMore();
    mOne = std::move(other.mOne);
    mState = other.mState;
    other.mState = kNoWord;
    return *this;
  }
  ~PathWords() { dropMore(); }

  const_iterator begin() const { return hasMore() ? more()->data() : &mOne; }
  const_iterator end() const {
    return hasMore() ? more()->data() + more()->size() : &mOne + (mState == kOneWord ? 1 : 0);
  }
  size_t size() const { return static_cast<size_t>(end() - begin()); }
  bool empty() const { return mState == kNoWord; }

  size_t count(const std::string& word) const {
    if (!hasMore()) return mState == kOneWord && mOne == word ? 1 : 0;
    return std::binary_search(begin(), end(), word) ? 1 : 0;
  }

  // False when the word was there already.
  bool insert(const std::string& word) {
    if (mState == kNoWord) {
      // Copied straight into place: most nodes match one word.
      mOne = word;
      mState = kOneWord;
      return true;
    }
    return insertMore(std::string(word));
  }
  bool insert(std::string&& word) {
    if (mState == kNoWord) {
      mOne = std::move(word);
      mState = kOneWord;
      return true;
    }
    return insertMore(std::move(word));
  }
  template <typename Iterator>
  void insert(Iterator first, Iterator last) {
    for (; first != last; ++first) insert(*first);
  }

  void erase(const_iterator at) {
    if (!hasMore()) {
      mOne = std::string();
      mState = kNoWord;
      return;
    }
    std::vector<std::string>& words = *more();
    words.erase(words.begin() + (at - words.data()));
    if (words.size() > 1) return;
    mOne = std::move(words.front());
    dropMore();
    mState = kOneWord;
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
  // mState: no word, the one word in mOne, or else the address of the
  // vector that holds two or more (an address is never 0 or 1).
  static constexpr std::uintptr_t kNoWord = 0;
  static constexpr std::uintptr_t kOneWord = 1;

  bool insertMore(std::string&& word) {
    if (mState == kOneWord) {
      if (mOne == word) return false;
      auto* words = new std::vector<std::string>();
      words->reserve(2);
      const bool before = word < mOne;
      if (before) words->push_back(std::move(word));
      words->push_back(std::move(mOne));
      if (!before) words->push_back(std::move(word));
      mOne = std::string();
      mState = toState(words);
      return true;
    }
    std::vector<std::string>& words = *more();
    const auto at = std::lower_bound(words.begin(), words.end(), word);
    if (at != words.end() && *at == word) return false;
    words.insert(at, std::move(word));
    return true;
  }

  static std::uintptr_t toState(std::vector<std::string>* words) { return reinterpret_cast<std::uintptr_t>(words); }
  bool hasMore() const { return mState > kOneWord; }
  std::vector<std::string>* more() const { return reinterpret_cast<std::vector<std::string>*>(mState); }
  void dropMore() {
    if (hasMore()) delete more();
    mState = kNoWord;
  }

  std::string mOne;
  std::uintptr_t mState = kNoWord;
};

}  // namespace qxparser
