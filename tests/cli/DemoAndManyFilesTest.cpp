// The demo on the bundled examples, and subcommands given many files.
#include <gtest/gtest.h>


#include "support/CliRun.h"

namespace {

using testsupport::runCli;

class ManyFilesProgramTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!testsupport::cliBuilt()) GTEST_SKIP() << "the vtyconf program was not built";
  }
  const std::string kExamples = std::string(VTYCONF_SOURCE_DIR) + "/examples";
};

TEST_F(ManyFilesProgramTest, ManyFilesGiveTheSameOutputInWorkersAsInOneProcess) {
  const std::string notes = kExamples + "/notes";
  const auto serial = runCli("parse -j 1 '" + notes + "'");
  const auto parallel = runCli("parse -j 3 '" + notes + "'");
  EXPECT_EQ(parallel.exitCode, serial.exitCode);
  EXPECT_EQ(parallel.out, serial.out);
  EXPECT_EQ(parallel.err, serial.err);
  EXPECT_FALSE(serial.out.empty());

  const auto stats = runCli("parse -j 2 --stats '" + notes + "'");
  EXPECT_NE(stats.out.find("total: 20 files"), std::string::npos) << stats.out;

  const std::string script = notes + "/shut_interfaces.cmf";
  const auto runs = runCli("note run -j 2 '" + script + "' '" + notes + "/shut_interfaces.sample1' '" + kExamples +
                           "/branch-router.cfg'");
  ASSERT_EQ(runs.exitCode, 0) << runs.err;
  const size_t first = runs.out.find("== " + notes + "/shut_interfaces.sample1");
  const size_t second = runs.out.find("== " + kExamples + "/branch-router.cfg");
  ASSERT_NE(first, std::string::npos) << runs.out;
  ASSERT_NE(second, std::string::npos) << runs.out;
  EXPECT_LT(first, second) << "results come in the order of the arguments";
}

}  // namespace
