// The indexed device-order sort against the plain selection sort.
#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "config/DeviceOrderSort.h"

namespace qxparser {
namespace {

using Keys = std::vector<DeviceOrderKey>;

TEST(DeviceOrderSortTest, SmallCasesFollowTheSelectionProcedure) {
  struct Row {
    const char* name;
    Keys keys;
    std::vector<size_t> expected;
  };
  const std::vector<Row> rows = {
      {"empty", {}, {}},
      {"line numbers alone sort ascending", {{3, 0}, {1, 0}, {2, 0}}, {1, 2, 0}},
      {"a command without numbers stays where it is", {{0, 0}, {2, 0}, {1, 0}}, {0, 2, 1}},
      // The new command (order 1) takes the lead from line 5 (order 9) and
      // keeps it against line 2, which it cannot be compared with by line.
      {"order numbers place a new command", {{5, 9}, {0, 1}, {2, 3}}, {1, 2, 0}},
      // Equal orders keep the candidate found first; the swap then moves
      // the first element behind.
      {"equal keys keep the first candidate", {{0, 4}, {0, 4}, {0, 2}}, {2, 1, 0}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(selectionOrderPlain(row.keys), row.expected) << row.name;
    EXPECT_EQ(selectionOrder(row.keys), row.expected) << row.name;
  }
}

// Levels as a merge leaves them: the old commands in line order, new ones
// (no line number) in between, some without an order number; and wholly
// random keys with many ties.
Keys generate(std::mt19937& random, size_t count, int shape) {
  Keys keys;
  std::uniform_int_distribution<int> percent(0, 99);
  std::uniform_int_distribution<int> order(0, 12);
  std::uniform_int_distribution<int> line(0, 20);
  int nextLine = 1;
  for (size_t i = 0; i < count; ++i) {
    DeviceOrderKey key;
    if (shape == 0) {
      if (percent(random) < 85) key.lineNo = nextLine++;
      key.orderNo = percent(random) < 70 ? order(random) : 0;
    } else if (shape == 1) {
      key.lineNo = line(random) - 2;
      key.orderNo = order(random) - 2;
    } else {
      key.lineNo = percent(random) < 50 ? static_cast<int>(count - i) : 0;
      key.orderNo = percent(random) < 50 ? order(random) : 0;
    }
    keys.push_back(key);
  }
  return keys;
}

TEST(DeviceOrderSortTest, IndexedSortGivesThePlainSequenceOnGeneratedLevels) {
  std::mt19937 random(20240611);
  for (int shape = 0; shape < 3; ++shape) {
    for (size_t count : {1u, 2u, 3u, 5u, 8u, 17u, 64u, 200u, 1000u}) {
      for (int round = 0; round < 20; ++round) {
        const Keys keys = generate(random, count, shape);
        const std::vector<size_t> plain = selectionOrderPlain(keys);
        const std::vector<size_t> fast = selectionOrder(keys);
        ASSERT_EQ(fast, plain) << "shape " << shape << ", " << count << " keys, round " << round;
      }
    }
  }
}

TEST(DeviceOrderSortTest, SortsRecordsByTheirNumbers) {
  std::vector<CiscoCommandLine> records(4);
  const int numbers[4][2] = {{4, 0}, {0, 2}, {1, 0}, {0, 1}};
  std::vector<CiscoCommandLine*> level;
  for (size_t i = 0; i < records.size(); ++i) {
    records[i].setLineNo(numbers[i][0]);
    records[i].setOrderNo(numbers[i][1]);
    level.push_back(&records[i]);
  }
  Keys keys;
  for (const CiscoCommandLine* record : level) keys.push_back({record->getLineNo(), record->getOrderNo()});
  const std::vector<size_t> expected = selectionOrderPlain(keys);
  sortByDeviceOrder(level);
  for (size_t i = 0; i < level.size(); ++i) EXPECT_EQ(level[i], &records[expected[i]]) << i;
  EXPECT_EQ(level.front()->getLineNo(), 1);
}

}  // namespace
}  // namespace qxparser
