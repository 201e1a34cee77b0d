// vtyconf query over several configurations: the answers in worker processes
// equal those of one file at a time, in the order of the arguments.
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "support/CliRun.h"

namespace {

namespace fs = std::filesystem;
using testsupport::runCli;

class QueryManyFilesTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (std::string(VTYCONF_CLI_PATH).empty() || !fs::exists(VTYCONF_CLI_PATH))
      GTEST_SKIP() << "the vtyconf program was not built";
  }
  const std::string kBranch = std::string(VTYCONF_SOURCE_DIR) + "/examples/branch-router.cfg";
  const std::string kNat = std::string(VTYCONF_SOURCE_DIR) + "/examples/notes/nat_inside_outside.sample1";
  const std::string kMissing = "/nonexistent-folder/no-such.cfg";
};

TEST_F(QueryManyFilesTest, TwoFilesInWorkersGiveEachFilesAnswerUnderItsHeading) {
  const std::vector<std::string> queries = {"protocols", "acls", "interface GigabitEthernet0/1",
                                            "interfaces GigabitEthernet0/0 GigabitEthernet0/1", "lines ip route",
                                            "section router ospf"};
  for (const std::string& query : queries) {
    const auto first = runCli("query '" + kBranch + "' " + query);
    const auto second = runCli("query '" + kNat + "' " + query);
    ASSERT_EQ(first.exitCode, 0) << query << ": " << first.err;
    ASSERT_EQ(second.exitCode, 0) << query << ": " << second.err;
    const std::string expected = "== " + kBranch + "\n" + first.out + "== " + kNat + "\n" + second.out;

    const auto parallel = runCli("query -j 2 '" + kBranch + "' '" + kNat + "' " + query);
    EXPECT_EQ(parallel.exitCode, 0) << query << ": " << parallel.err;
    EXPECT_EQ(parallel.out, expected) << query;
    const auto serial = runCli("query -j 1 '" + kBranch + "' '" + kNat + "' " + query);
    EXPECT_EQ(serial.out, expected) << query;
  }
  // A non-empty answer at least once, so that equal empty outputs cannot pass.
  EXPECT_NE(runCli("query '" + kBranch + "' protocols").out, "");
}

TEST_F(QueryManyFilesTest, JsonOfManyFilesIsOneArrayOfFileAndResult) {
  const auto first = runCli("query '" + kBranch + "' interfaces GigabitEthernet0/1 --json");
  const auto second = runCli("query '" + kNat + "' interfaces GigabitEthernet0/1 --json");
  const auto both = runCli("query -j 2 '" + kBranch + "' '" + kNat + "' interfaces GigabitEthernet0/1 --json");
  ASSERT_EQ(both.exitCode, 0) << both.err;
  const nlohmann::json all = nlohmann::json::parse(both.out);
  ASSERT_TRUE(all.is_array());
  ASSERT_EQ(all.size(), 2u);
  EXPECT_EQ(all[0].at("file"), kBranch);
  EXPECT_EQ(all[0].at("result"), nlohmann::json::parse(first.out));
  EXPECT_EQ(all[1].at("file"), kNat);
  EXPECT_EQ(all[1].at("result"), nlohmann::json::parse(second.out));
  EXPECT_FALSE(all[0].at("result").empty());
}

TEST_F(QueryManyFilesTest, AMissingFileIsAMessageAndTheOthersAreStillQueried) {
  const auto alone = runCli("query '" + kNat + "' protocols");
  ASSERT_EQ(alone.exitCode, 0) << alone.err;
  const auto run = runCli("query -j 2 '" + kBranch + "' '" + kMissing + "' '" + kNat + "' protocols");
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_NE(run.err.find(kMissing + ": no such file or folder"), std::string::npos) << run.err;
  EXPECT_NE(run.out.find("== " + kBranch + "\nrouter ospf 10\n"), std::string::npos) << run.out;
  EXPECT_NE(run.out.find("== " + kNat + "\n" + alone.out), std::string::npos) << run.out;
  EXPECT_EQ(run.out.find(kMissing), std::string::npos) << "no heading for a file that is not there";

  const auto json = runCli("query '" + kMissing + "' '" + kNat + "' protocols --json");
  EXPECT_EQ(json.exitCode, 2);
  const nlohmann::json all = nlohmann::json::parse(json.out);
  ASSERT_EQ(all.size(), 1u) << json.out;
  EXPECT_EQ(all[0].at("file"), kNat);
}

}  // namespace
