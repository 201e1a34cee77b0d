#include "grammar/HelpTextStore.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

namespace qxparser {

namespace {

// Texts are laid end to end in blocks of this size; a longer text gets a
// block of its own.
constexpr std::size_t kBlockSize = 64 * 1024;

struct Store {
  std::vector<std::unique_ptr<char[]>> blocks;
  char* free = nullptr;
  std::size_t room = 0;
  // The text kept last: a definition line gives its help text to its word
  // and to the parent's table one after the other.
  std::string_view last;

  std::string_view copy(std::string_view text) {
    if (text.size() > room) {
      const std::size_t size = std::max(kBlockSize, text.size());
      blocks.push_back(std::make_unique<char[]>(size));
      free = blocks.back().get();
      room = size;
    }
    std::memcpy(free, text.data(), text.size());
    const std::string_view kept(free, text.size());
    free += text.size();
    room -= text.size();
    return kept;
  }
};

Store& store() {
  // Never destroyed: grammar nodes hold views of the texts until the end
  // (or until releaseAll).
  static Store* kept = new Store();
  return *kept;
}

}  // namespace

std::string_view HelpTextStore::keep(std::string_view text) {
  if (text.empty()) return std::string_view();
  Store& s = store();
  if (text == s.last) return s.last;
  s.last = s.copy(text);
  return s.last;
}

void HelpTextStore::releaseAll() {
  Store& s = store();
  s.blocks.clear();
  s.free = nullptr;
  s.room = 0;
  s.last = std::string_view();
}

}  // namespace qxparser
