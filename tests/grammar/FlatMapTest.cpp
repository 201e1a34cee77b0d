// The grammar's flat containers against the standard ones they stand for:
// the same entries in the same order after any mix of changes.
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "grammar/FlatMap.h"
#include "grammar/FlatSet.h"

using namespace qxparser;

namespace {

template <typename Map>
std::vector<std::pair<std::string, std::string>> listed(const Map& map) {
  return {map.begin(), map.end()};
}

TEST(FlatMapTest, RandomChangesLeaveWhatTheStandardContainersHold) {
  std::mt19937 random(7);
  auto word = [&] { return std::string(1 + random() % 18, static_cast<char>('a' + random() % 3)) + "ab"[random() % 2]; };
  for (int round = 0; round < 50; ++round) {
    FlatMap<std::string, std::string> flat, flatCopy;
    std::map<std::string, std::string> map, mapCopy;
    FlatSet<std::string> flatSet;
    std::set<std::string> set;
    for (int step = 0; step < 300; ++step) {
      const std::string key = word(), value = word();
      switch (random() % 7) {
        case 0: flat[key] = value, map[key] = value; break;
        case 1: flat.emplace(key, value), map.emplace(key, value); break;
        case 2: flat.insert_or_assign(key, value), map.insert_or_assign(key, value); break;
        case 3: ASSERT_EQ(flat.erase(key), map.erase(key)); break;
        case 4: flatCopy = flat, mapCopy = map; break;
        case 5: flatSet.insert(key), set.insert(key); break;
        default: ASSERT_EQ(flatSet.erase(key), set.erase(key)); break;
      }
      ASSERT_EQ(listed(flat), listed(map));
      ASSERT_EQ(listed(flatCopy), listed(mapCopy));
      ASSERT_EQ(std::vector<std::string>(flatSet.begin(), flatSet.end()), std::vector<std::string>(set.begin(), set.end()));
    }
  }
}

}  // namespace
