// The indexed device-order sort against the plain selection sort.
#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "config/DeviceOrderSort.h"
#include "config/QxParserUtil.h"
#include "support/CaseFile.h"

namespace qxparser {
namespace {

using Keys = std::vector<DeviceOrderKey>;

// The places of the sorted records, blank between them.
std::string places(const std::vector<size_t>& order) {
  std::string out;
  for (size_t place : order) out += (out.empty() ? "" : " ") + std::to_string(place);
  return out;
}

// The rows of tests/data/config/device_order.tsv.
TEST(DeviceOrderSortTest, SmallLevelsFollowTheSelectionProcedure) {
  for (const std::string& line : testsupport::dataLines(testsupport::readDataFile("config/device_order.tsv"))) {
    const std::vector<std::string> row = testsupport::splitFields(line);
    ASSERT_EQ(row.size(), 2u) << line;
    Keys keys;
    std::vector<CiscoCommandLine> records;
    for (const std::string& key : testsupport::splitFields(row[0], ' ')) {
      if (key.empty()) continue;
      keys.push_back({std::stoi(key), std::stoi(key.substr(key.find(':') + 1))});
    }
    records.resize(keys.size());
    std::vector<CiscoCommandLine*> level;
    for (size_t i = 0; i < keys.size(); ++i) {
      records[i].setLineNo(keys[i].lineNo);
      records[i].setOrderNo(keys[i].orderNo);
      level.push_back(&records[i]);
    }
    QxParserUtil::SortCiscoCommands(level);
    std::vector<size_t> merged;
    for (const CiscoCommandLine* record : level) merged.push_back(static_cast<size_t>(record - records.data()));
    EXPECT_EQ(places(selectionOrderPlain(keys)), row[1]) << line;
    EXPECT_EQ(places(selectionOrder(keys)), row[1]) << line;
    EXPECT_EQ(places(merged), row[1]) << line;
  }
}

// Levels as a merge leaves them: the old commands in line order, new ones
// (no line number) in between or all behind, some without an order number;
// and wholly random keys with many ties.
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
    } else if (shape == 2) {
      key.lineNo = percent(random) < 50 ? static_cast<int>(count - i) : 0;
      key.orderNo = percent(random) < 50 ? order(random) : 0;
    } else {
      // A long mode read in order, the new commands behind it: their
      // beaters stand far away.
      if (i < count - count / 10) key.lineNo = nextLine++;
      key.orderNo = order(random);
    }
    keys.push_back(key);
  }
  return keys;
}

TEST(DeviceOrderSortTest, IndexedSortGivesThePlainSequenceOnGeneratedLevels) {
  std::mt19937 random(20240611);
  for (int shape = 0; shape < 4; ++shape) {
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

}  // namespace
}  // namespace qxparser
