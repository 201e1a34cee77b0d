#include "grammar/ThreadWordSet.h"

#include <atomic>
#include <utility>
#include <vector>

namespace qxparser {

namespace {

// The filled sets of the calling thread. A cleared set leaves the table; its
// storage is kept for the next set filled, so that a walk does not allocate
// for every line.
struct ThreadTable {
  std::vector<std::pair<const ThreadWordSet*, ThreadWordSet::Words>> filled;
  size_t used = 0;
};

// Filled sets over all threads. While it is 0 no thread needs to look into
// its table; a thread's own changes are always seen by itself, so a count
// raised by another thread only costs the look.
std::atomic<size_t> gFilledSets{0};

bool noneFilled() { return gFilledSets.load(std::memory_order_relaxed) == 0; }

ThreadTable& threadTable() {
  thread_local ThreadTable table;
  return table;
}

}  // namespace

const ThreadWordSet::Words* ThreadWordSet::words() const {
  if (noneFilled()) return nullptr;
  const ThreadTable& table = threadTable();
  for (size_t i = 0; i < table.used; ++i) {
    if (table.filled[i].first == this) return &table.filled[i].second;
  }
  return nullptr;
}

ThreadWordSet::Words& ThreadWordSet::wordsToFill() {
  ThreadTable& table = threadTable();
  for (size_t i = 0; i < table.used; ++i) {
    if (table.filled[i].first == this) return table.filled[i].second;
  }
  if (table.used == table.filled.size()) table.filled.emplace_back();
  gFilledSets.fetch_add(1, std::memory_order_relaxed);
  auto& entry = table.filled[table.used++];
  entry.first = this;
  entry.second.clear();
  return entry.second;
}

size_t ThreadWordSet::count(const std::string& word) const {
  const Words* found = words();
  return found ? found->count(word) : 0;
}

bool ThreadWordSet::empty() const { return words() == nullptr; }

size_t ThreadWordSet::size() const {
  const Words* found = words();
  return found ? found->size() : 0;
}

void ThreadWordSet::insert(const std::string& word) { wordsToFill().insert(word); }

void ThreadWordSet::clear() {
  if (noneFilled()) return;
  ThreadTable& table = threadTable();
  for (size_t i = 0; i < table.used; ++i) {
    if (table.filled[i].first != this) continue;
    // The last filled entry takes the place; the cleared words' storage
    // moves behind the used part.
    std::swap(table.filled[i], table.filled[table.used - 1]);
    --table.used;
    gFilledSets.fetch_sub(1, std::memory_order_relaxed);
    return;
  }
}

size_t ThreadWordSet::filledSets() { return threadTable().used; }

}  // namespace qxparser
