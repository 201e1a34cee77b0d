// The note subcommands of the built vtyconf program with paths full of shell
// syntax (the other runs are rows of tests/data/cli/cases.txt).
#include <gtest/gtest.h>

#include "NoteTestSupport.h"
#include "notes/DRScriptFile.h"

using testsupport::CliRun;
using notestest::exists;
using testsupport::runCliArgs;
using notestest::scratch;
using notestest::writeFile;

namespace {

class NoteCliTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!testsupport::cliBuilt()) GTEST_SKIP() << "the vtyconf program is not built";
    if (!notestest::havePerl()) GTEST_SKIP() << "no perl on PATH (or VTYCONF_PERL): notes cannot run";
  }
  std::string example(const std::string& name) { return notestest::examplesDir() + "/" + name; }
};

TEST_F(NoteCliTest, PathsWithShellSyntaxArePlainNames) {
  const std::string dir = scratch("cli-inject");
  const std::string evil = dir + "/x \"y\" ';' $(touch pwned) `touch pwned`";
  platform::makeDir(evil);
  const std::string script = evil + "/-n; touch pwned $(touch pwned).cmf";
  const std::string config = evil + "/c \"$(touch pwned)\";touch pwned.cfg";
  ASSERT_TRUE(DRScriptFile(example("shut_interfaces.cmf")).saveScriptFile(script));
  writeFile(config, "interface Gi0/1\n shutdown\n!\nend\n");
  CliRun r = runCliArgs({"note", "run", script, config});
  EXPECT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(r.out, "Interfaces that are shut down:\n1: interface Gi0/1 !shutdown\n  2:  shutdown\n");
  CliRun check = runCliArgs({"note", "check", script});
  EXPECT_EQ(check.exitCode, 0) << check.err;
  CliRun useful = runCliArgs({"note", "useful", evil, config});
  EXPECT_EQ(useful.exitCode, 0) << useful.err;
  EXPECT_EQ(useful.out, "-n; touch pwned $(touch pwned)\n");
  EXPECT_FALSE(exists(dir + "/pwned"));
  EXPECT_FALSE(exists(evil + "/pwned"));
  EXPECT_FALSE(exists("pwned"));
}

}  // namespace
