// A path's word set against the sorted set it stands for: the same words in
// the same order after any mix of changes, short words kept in place and
// long ones on the heap.
#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>
#include <vector>

#include "config/PathWords.h"

using namespace qxparser;

namespace {

std::vector<std::string> listed(const PathWords& words) { return {words.begin(), words.end()}; }

TEST(PathWordsTest, RandomChangesLeaveWhatASortedSetHolds) {
  std::mt19937 random(11);
  // Lengths around the fifteen characters that fit in place.
  auto word = [&] { return std::string(1 + random() % 20, static_cast<char>('a' + random() % 2)); };
  for (int round = 0; round < 100; ++round) {
    PathWords words, copy;
    std::set<std::string> set, setCopy;
    for (int step = 0; step < 60; ++step) {
      const std::string next = word();
      switch (random() % 6) {
        case 0:
        case 1: ASSERT_EQ(words.insert(next), set.insert(next).second); break;
        case 2: ASSERT_EQ(words.erase(next), set.erase(next)); break;
        case 3:
          if (!set.empty()) {
            words.erase(words.begin());
            set.erase(set.begin());
          }
          break;
        case 4: copy = words, setCopy = set; break;
        default: {
          PathWords moved(std::move(copy));
          copy = std::move(moved);
        }
      }
      ASSERT_EQ(listed(words), std::vector<std::string>(set.begin(), set.end()));
      ASSERT_EQ(listed(copy), std::vector<std::string>(setCopy.begin(), setCopy.end()));
      ASSERT_EQ(words.count(next), set.count(next));
      ASSERT_EQ(words == copy, set == setCopy);
    }
  }
}

}  // namespace
