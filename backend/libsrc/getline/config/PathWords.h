// PathWords: the words that matched one grammar node of a command's path.
//
// A set of strings in their sorted order, kept in one small vector: most
// nodes match a single word, and a record holds one such set per node of
// its path, so a tree of its own per node would cost an allocation per word
// and a pointer chase per look-up. Iterates, compares and answers count,
// insert and erase as a sorted set of unique strings does. No shared state.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

namespace qxparser {

class PathWords {
 public:
  using const_iterator = std::vector<std::string>::const_iterator;
  using iterator = const_iterator;

  const_iterator begin() const { return mWords.begin(); }
  const_iterator end() const { return mWords.end(); }
  size_t size() const { return mWords.size(); }
  bool empty() const { return mWords.empty(); }

  size_t count(const std::string& word) const { return std::binary_search(begin(), end(), word) ? 1 : 0; }

  // False when the word was there already.
  bool insert(std::string word) {
    const auto at = std::lower_bound(mWords.begin(), mWords.end(), word);
    if (at != mWords.end() && *at == word) return false;
    mWords.insert(at, std::move(word));
    return true;
  }
  template <typename Iterator>
  void insert(Iterator first, Iterator last) {
    for (; first != last; ++first) insert(*first);
  }

  void erase(const_iterator at) { mWords.erase(at); }
  size_t erase(const std::string& word) {
    const auto at = std::lower_bound(mWords.begin(), mWords.end(), word);
    if (at == mWords.end() || *at != word) return 0;
    mWords.erase(at);
    return 1;
  }

  bool operator==(const PathWords& other) const { return mWords == other.mWords; }
  bool operator!=(const PathWords& other) const { return mWords != other.mWords; }

 private:
  std::vector<std::string> mWords;
};

}  // namespace qxparser
