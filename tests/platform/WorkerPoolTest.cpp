#include "platform/WorkerPool.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <stdexcept>

namespace {

void describe(size_t index, platform::WorkerResult& result) {
  result.out = "out " + std::to_string(index) + std::string(index * 1000, 'x');  // needs several reads
  if (index % 3 == 0) result.err = "err " + std::to_string(index);
  result.data = std::string(index, '\0');
  result.exitCode = static_cast<int>(index % 2);
}

TEST(WorkerPoolTest, ForkedResultsEqualTheSerialOnesInInputOrder) {
  size_t progressCalls = 0;
  const auto serial = platform::runInWorkers(17, 1, describe);
  const auto forked = platform::runInWorkers(17, 3, describe, [&](size_t done, size_t total) {
    ++progressCalls;
    EXPECT_EQ(total, 17u);
    EXPECT_EQ(done, progressCalls);
  });
  ASSERT_EQ(forked.size(), 17u);
  EXPECT_EQ(progressCalls, 17u);
  for (size_t i = 0; i < serial.size(); ++i) {
    EXPECT_EQ(forked[i].exitCode, serial[i].exitCode) << i;
    EXPECT_EQ(forked[i].out, serial[i].out) << i;
    EXPECT_EQ(forked[i].err, serial[i].err) << i;
    EXPECT_EQ(forked[i].data, serial[i].data) << i;
  }
}

TEST(WorkerPoolTest, ADeadWorkerCostsOnlyItsOwnInput) {
  const pid_t parent = ::getpid();
  const auto results = platform::runInWorkers(6, 2, [parent](size_t index, platform::WorkerResult& result) {
    if (index == 2 && ::getpid() != parent) ::_exit(7);
    result.out = std::to_string(index);
  });
  ASSERT_EQ(results.size(), 6u);
  EXPECT_EQ(results[2].exitCode, 2);
  EXPECT_NE(results[2].err.find("worker process ended"), std::string::npos);
  for (size_t i : {0u, 1u, 3u, 4u, 5u}) {
    EXPECT_EQ(results[i].exitCode, 0) << i;
    EXPECT_EQ(results[i].out, std::to_string(i));
  }
}

TEST(WorkerPoolTest, AnExceptionInAWorkerBecomesAMessage) {
  const auto results = platform::runInWorkers(3, 2, [](size_t index, platform::WorkerResult&) {
    if (index == 1) throw std::runtime_error("bad input");
  });
  EXPECT_EQ(results[1].exitCode, 2);
  EXPECT_EQ(results[1].err, "vtyconf: bad input\n");
  EXPECT_EQ(results[0].exitCode, 0);
}

}  // namespace
