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

TEST_F(ManyFilesProgramTest, DemoShowsEveryJobAndNarratesOnStandardError) {
  const auto run = runCli("demo --examples '" + kExamples + "'");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  for (const char* heading : {"== parse branch-router.cfg", "== help in interface mode", "== merge branch-router.changes",
                              "== rollback of the change set", "== rollback from the new configuration",
                              "== queries", "== design notes"}) {
    EXPECT_NE(run.out.find(heading), std::string::npos) << heading;
  }
  EXPECT_NE(run.out.find("interface GigabitEthernet0/2"), std::string::npos) << "a note finding is shown";
  EXPECT_NE(run.err.find("-- "), std::string::npos);
  EXPECT_EQ(runCli("demo --quiet --examples '" + kExamples + "'").err, "");
}

TEST_F(ManyFilesProgramTest, DemoWithoutExamplesIsAMessage) {
  const auto run = runCli("demo --examples /nonexistent-folder");
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_NE(run.err.find("--examples DIR"), std::string::npos) << run.err;
}

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
