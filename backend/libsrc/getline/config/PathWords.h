// PathWords: the words that matched one grammar node of a command's path.
//
// A set of strings in their sorted order, in sixteen bytes. Most nodes match
// a single short word, and a record holds one such set per node of its path:
// a word of up to fifteen characters stands in the set itself; a longer word,
// or two and more, stand in a sorted vector the set owns. A record's path
// thus costs no allocation per node for the usual words, and a path entry is
// a third of what a string would make it. Iterates (as string views, valid
// until the set changes), compares and answers count, insert and erase as a
// sorted set of unique strings does. No shared state.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace qxparser {

class PathWords {
 public:
  // Walks the words in their sorted order.
  class const_iterator {
   public:
    using iterator_category = std::random_access_iterator_tag;
    using value_type = std::string_view;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = std::string_view;

    const_iterator() = default;
    const_iterator(const PathWords* owner, size_t at) : mOwner(owner), mAt(at) {}
    std::string_view operator*() const { return mOwner->at(mAt); }
    const_iterator& operator++() {
      ++mAt;
      return *this;
    }
    const_iterator operator++(int) {
      const_iterator before = *this;
      ++mAt;
      return before;
    }
    difference_type operator-(const const_iterator& other) const {
      return static_cast<difference_type>(mAt) - static_cast<difference_type>(other.mAt);
    }
    bool operator==(const const_iterator& other) const { return mAt == other.mAt; }
    bool operator!=(const const_iterator& other) const { return mAt != other.mAt; }

   private:
    friend class PathWords;
    const PathWords* mOwner = nullptr;
    size_t mAt = 0;
  };
  using iterator = const_iterator;

  PathWords() = default;
  PathWords(const PathWords& other) {
    std::memcpy(mBytes, other.mBytes, sizeof(mBytes));
    mTag = other.mTag;
    if (other.onHeap()) setHeap(new std::vector<std::string>(*other.heap()));
  }
  PathWords(PathWords&& other) noexcept {
    std::memcpy(mBytes, other.mBytes, sizeof(mBytes));
    mTag = other.mTag;
    other.mTag = kNoWord;
  }
  PathWords& operator=(const PathWords& other) {
    if (this != &other) *this = PathWords(other);
    return *this;
  }
  PathWords& operator=(PathWords&& other) noexcept {
    if (this == &other) return *this;
    dropHeap();
    std::memcpy(mBytes, other.mBytes, sizeof(mBytes));
    mTag = other.mTag;
    other.mTag = kNoWord;
    return *this;
  }
  ~PathWords() { dropHeap(); }

  const_iterator begin() const { return const_iterator(this, 0); }
  const_iterator end() const { return const_iterator(this, size()); }
  size_t size() const {
    if (mTag == kNoWord) return 0;
    return onHeap() ? heap()->size() : 1;
  }
  bool empty() const { return mTag == kNoWord; }

  size_t count(std::string_view word) const {
    if (mTag == kNoWord) return 0;
    if (!onHeap()) return inlineWord() == word ? 1 : 0;
    const std::vector<std::string>& words = *heap();
    const auto at = std::lower_bound(words.begin(), words.end(), word,
                                     [](const std::string& held, std::string_view sought) { return held < sought; });
    return at != words.end() && *at == word ? 1 : 0;
  }

  // False when the word was there already.
  bool insert(std::string_view word) {
    if (mTag == kNoWord) {
      // Most nodes match one word: kept in place when it fits.
      if (word.size() <= kInlineSize) {
        std::memcpy(mBytes, word.data(), word.size());
        mTag = static_cast<unsigned char>(word.size());
      } else {
        auto* words = new std::vector<std::string>();
        words->emplace_back(word);
        setHeap(words);
      }
      return true;
    }
    if (!onHeap()) {
      if (inlineWord() == word) return false;
      auto* words = new std::vector<std::string>();
      words->reserve(2);
      words->emplace_back(inlineWord());
      setHeap(words);
    }
    std::vector<std::string>& words = *heap();
    const auto at = std::lower_bound(words.begin(), words.end(), word,
                                     [](const std::string& held, std::string_view sought) { return held < sought; });
    if (at != words.end() && *at == word) return false;
    words.emplace(at, word);
    return true;
  }
  template <typename Iterator>
  void insert(Iterator first, Iterator last) {
    for (; first != last; ++first) insert(std::string_view(*first));
  }

  void erase(const_iterator at) {
    if (!onHeap()) {
      mTag = kNoWord;
      return;
    }
    std::vector<std::string>& words = *heap();
    words.erase(words.begin() + static_cast<std::ptrdiff_t>(at.mAt));
    if (words.size() > 1 || (words.size() == 1 && words.front().size() > kInlineSize)) return;
    if (words.empty()) {
      dropHeap();
      return;
    }
    // One short word left: back in place.
    const std::string last = std::move(words.front());
    dropHeap();
    insert(last);
  }
  size_t erase(std::string_view word) {
    for (const_iterator at = begin(); at != end(); ++at) {
      if (*at == word) {
        erase(at);
        return 1;
      }
    }
    return 0;
  }

  bool operator==(const PathWords& other) const { return std::equal(begin(), end(), other.begin(), other.end()); }
  bool operator!=(const PathWords& other) const { return !(*this == other); }

 private:
  // mTag: the length of the word held in mBytes (0 to kInlineSize), no word,
  // or words on the heap (the vector's address in the first bytes of mBytes).
  static constexpr size_t kInlineSize = 15;
  static constexpr unsigned char kNoWord = 0xFF;
  static constexpr unsigned char kOnHeap = 0xFE;

  bool onHeap() const { return mTag == kOnHeap; }
  std::string_view inlineWord() const { return std::string_view(mBytes, mTag); }
  std::string_view at(size_t index) const { return onHeap() ? std::string_view((*heap())[index]) : inlineWord(); }
  std::vector<std::string>* heap() const {
    std::vector<std::string>* words = nullptr;
    std::memcpy(&words, mBytes, sizeof(words));
    return words;
  }
  void setHeap(std::vector<std::string>* words) {
    std::memcpy(mBytes, &words, sizeof(words));
    mTag = kOnHeap;
  }
  void dropHeap() {
    if (onHeap()) delete heap();
    mTag = kNoWord;
  }

  char mBytes[kInlineSize] = {};
  unsigned char mTag = kNoWord;
};

static_assert(sizeof(PathWords) == 16, "a path word set is sixteen bytes");

}  // namespace qxparser
