// PathWords: the words that matched one grammar node of a command's path.
//
// A set of strings in their sorted order, in sixteen bytes. Most nodes match
// a single short word, and a record holds one such set per node of its path:
// a word of up to fifteen characters stands in the set itself, a longer one
// in a block of its own, two and more in a sorted vector the set owns. A
// record's path thus costs no allocation per node for the usual words, and a
// path entry is half of what a string would make it. Iterates (as string
// views, valid until the set changes), compares and answers count, insert
// and erase as a sorted set of unique strings does. No shared state.
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
  PathWords(const PathWords& other) { copyFrom(other); }
  PathWords(PathWords&& other) noexcept { takeFrom(other); }
  PathWords& operator=(const PathWords& other) {
    if (this != &other) {
      release();
      copyFrom(other);
    }
    return *this;
  }
  PathWords& operator=(PathWords&& other) noexcept {
    if (this != &other) {
      release();
      takeFrom(other);
    }
    return *this;
  }
  ~PathWords() { release(); }

  const_iterator begin() const { return const_iterator(this, 0); }
  const_iterator end() const { return const_iterator(this, size()); }
  size_t size() const {
    if (mTag == kNoWord) return 0;
    return mTag == kMany ? many()->size() : 1;
  }
  bool empty() const { return mTag == kNoWord; }

  size_t count(std::string_view word) const {
    if (mTag == kNoWord) return 0;
    if (mTag != kMany) return single() == word ? 1 : 0;
    const std::vector<std::string>& words = *many();
    const auto at = std::lower_bound(words.begin(), words.end(), word, heldBefore);
    return at != words.end() && *at == word ? 1 : 0;
  }

  // False when the word was there already.
  bool insert(std::string_view word) {
    if (mTag == kNoWord) {
      setSingle(word);
      return true;
    }
    if (mTag != kMany) {
      if (single() == word) return false;
      auto* words = new std::vector<std::string>();
      words->reserve(2);
      words->emplace_back(single());
      release();
      setPointer(words, kMany);
    }
    std::vector<std::string>& words = *many();
    const auto at = std::lower_bound(words.begin(), words.end(), word, heldBefore);
    if (at != words.end() && *at == word) return false;
    words.emplace(at, word);
    return true;
  }
  template <typename Iterator>
  void insert(Iterator first, Iterator last) {
    for (; first != last; ++first) insert(std::string_view(*first));
  }

  void erase(const_iterator at) {
    if (mTag != kMany) {
      release();
      return;
    }
    std::vector<std::string>& words = *many();
    words.erase(words.begin() + static_cast<std::ptrdiff_t>(at.mAt));
    if (words.size() > 1) return;
    // One word left (or none): held as a single word again.
    const std::string last = words.empty() ? std::string() : std::move(words.front());
    const bool none = words.empty();
    release();
    if (!none) setSingle(last);
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
  // mTag: the length of the word held in mBytes (0 to kInlineSize), no
  // word, one longer word in a block of its own (its length, then its
  // characters), or two and more words in a sorted vector. The address of a
  // block or vector stands in the first bytes of mBytes.
  static constexpr size_t kInlineSize = 15;
  static constexpr unsigned char kNoWord = 0xFF;
  static constexpr unsigned char kLong = 0xFE;
  static constexpr unsigned char kMany = 0xFD;

  static bool heldBefore(const std::string& held, std::string_view sought) { return held < sought; }

  std::string_view at(size_t index) const {
    return mTag == kMany ? std::string_view((*many())[index]) : single();
  }
  std::string_view single() const {
    if (mTag != kLong) return std::string_view(mBytes, mTag);
    const char* block = static_cast<const char*>(pointer());
    uint32_t length = 0;
    std::memcpy(&length, block, sizeof(length));
    return std::string_view(block + sizeof(length), length);
  }
  void setSingle(std::string_view word) {
    if (word.size() <= kInlineSize) {
      std::memcpy(mBytes, word.data(), word.size());
      mTag = static_cast<unsigned char>(word.size());
      return;
    }
    const auto length = static_cast<uint32_t>(word.size());
    char* block = new char[sizeof(length) + word.size()];
    std::memcpy(block, &length, sizeof(length));
    std::memcpy(block + sizeof(length), word.data(), word.size());
    setPointer(block, kLong);
  }
  std::vector<std::string>* many() const { return static_cast<std::vector<std::string>*>(pointer()); }
  void* pointer() const {
    void* held = nullptr;
    std::memcpy(&held, mBytes, sizeof(held));
    return held;
  }
  void setPointer(void* held, unsigned char tag) {
    std::memcpy(mBytes, &held, sizeof(held));
    mTag = tag;
  }
  void copyFrom(const PathWords& other) {
    if (other.mTag == kMany) {
      setPointer(new std::vector<std::string>(*other.many()), kMany);
    } else if (other.mTag == kNoWord) {
      mTag = kNoWord;
    } else {
      setSingle(other.single());
    }
  }
  void takeFrom(PathWords& other) {
    std::memcpy(mBytes, other.mBytes, sizeof(mBytes));
    mTag = other.mTag;
    other.mTag = kNoWord;
  }
  void release() {
    if (mTag == kLong) delete[] static_cast<char*>(pointer());
    if (mTag == kMany) delete many();
    mTag = kNoWord;
  }

  char mBytes[kInlineSize] = {};
  unsigned char mTag = kNoWord;
};

static_assert(sizeof(PathWords) == 16, "a path word set is sixteen bytes");

}  // namespace qxparser
