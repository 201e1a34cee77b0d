// The note subcommands of the built vtyconf program: exit codes, output forms
// and messages, and paths full of shell syntax.
#include <gtest/gtest.h>

#include "NoteTestSupport.h"
#include "notes/DRScriptFile.h"

using notestest::CliResult;
using notestest::exists;
using notestest::runCli;
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

TEST_F(NoteCliTest, CheckExitCodes) {
  const std::string dir = scratch("cli-check");
  writeFile(dir + "/bad.note", "if (isempty(#a) {\n  print #a;\n");
  writeFile(dir + "/refused.note", "print (#a);\n");
  struct Row {
    std::string script;
    int status;
    std::string inErr;
  } rows[] = {
      {example("shut_interfaces.cmf"), 0, ""},
      {dir + "/bad.note", 1, "bad.note: "},
      {dir + "/refused.note", 1, "Print information format is wrong on codeline 1."},
      {dir + "/missing.note", 2, "cannot read the script"},
      {dir, 2, "cannot read the script"},
  };
  for (const Row& row : rows) {
    CliResult r = runCli({"note", "check", row.script});
    EXPECT_EQ(r.status, row.status) << row.script << "\n" << r.err;
    EXPECT_NE(r.err.find(row.inErr), std::string::npos) << r.err;
  }
}

TEST_F(NoteCliTest, RunPrintsTreeRawAndJson) {
  const std::string note = example("shut_interfaces.cmf");
  const std::string cfg = example("shut_interfaces.sample1");
  CliResult tree = runCli({"note", "run", note, cfg});
  EXPECT_EQ(tree.status, 0) << tree.err;
  EXPECT_EQ(tree.out,
            "Interfaces that are shut down:\n7: interface GigabitEthernet0/2 !shutdown\n  9:  shutdown\n");

  CliResult raw = runCli({"note", "run", note, cfg, "--raw"});
  EXPECT_EQ(raw.status, 0);
  EXPECT_EQ(raw.out,
            "Interfaces that are shut down:\n7:::interface GigabitEthernet0/2 !#tag#shutdown#LineNumbers#3\n"
            "9::: shutdown\n");

  CliResult json = runCli({"note", "run", note, cfg, "--json"});
  EXPECT_EQ(json.status, 0);
  EXPECT_NE(json.out.find("\"tag\": \"open\""), std::string::npos) << json.out;
  EXPECT_NE(json.out.find("\"line\": 9"), std::string::npos) << json.out;

  CliResult nothing = runCli({"note", "run", note, notestest::dataDir() + "/clean.cfg"});
  EXPECT_EQ(nothing.status, 0);
  EXPECT_EQ(nothing.out, "");
}

TEST_F(NoteCliTest, RunWithUiValues) {
  const std::string dir = scratch("cli-ui");
  writeFile(dir + "/ui.note", "print @UI_IPAddressList;\nprint @UI_InterfaceNameList;\n");
  writeFile(dir + "/cfg", "hostname r1\n");
  CliResult r = runCli({"note", "run", dir + "/ui.note", dir + "/cfg", "--ui", "address=10.0.0.1", "--ui",
                        "interface=Gi0/1"});
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out, "10.0.0.1\nGi0/1\n");
  CliResult bad = runCli({"note", "run", dir + "/ui.note", dir + "/cfg", "--ui", "colour=red"});
  EXPECT_EQ(bad.status, 2);
  EXPECT_NE(bad.err.find("KIND=VALUE"), std::string::npos);
}

TEST_F(NoteCliTest, RunFailuresAreMessagesWithExitTwo) {
  const std::string dir = scratch("cli-fail");
  writeFile(dir + "/bad.note", "if (isempty(#a) {\n");
  writeFile(dir + "/cfg", "hostname r1\n");
  const std::string good = example("shut_interfaces.cmf");
  struct Row {
    std::vector<std::string> args;
    std::string inErr;
  } rows[] = {
      {{"note", "run", dir + "/bad.note", dir + "/cfg"}, "bad.note: "},
      {{"note", "run", dir + "/none.note", dir + "/cfg"}, "cannot read the script"},
      {{"note", "run", good, dir + "/none.cfg"}, "none.cfg"},
      {{"note", "run", good, dir + "/cfg", "--raw", "--json"}, "exclude each other"},
      {{"note", "useful", dir + "/none", dir + "/cfg"}, "not a folder"},
      {{"note", "useful", dir, dir + "/none.cfg"}, "none.cfg"},
  };
  for (const Row& row : rows) {
    CliResult r = runCli(row.args);
    EXPECT_EQ(r.status, 2) << row.args[2] << "\n" << r.err;
    EXPECT_NE(r.err.find(row.inErr), std::string::npos) << r.err;
    EXPECT_EQ(r.err.find("terminate"), std::string::npos);
  }
}

TEST_F(NoteCliTest, UsefulListsTheNotesThatFindSomething) {
  const std::string dir = scratch("cli-useful");
  platform::makeDir(dir + "/notes");
  platform::makeDir(dir + "/notes/bgp");
  for (const char* n : {"shut_interfaces", "snmp_community_without_acl"})
    ASSERT_TRUE(DRScriptFile(example(std::string(n) + ".cmf")).saveScriptFile(dir + "/notes/" + n + ".cmf"));
  ASSERT_TRUE(DRScriptFile(example("bgp_neighbors_unprotected.cmf"))
                  .saveScriptFile(dir + "/notes/bgp/bgp_neighbors_unprotected.cmf"));
  writeFile(dir + "/cfg",
            "interface Gi0/1\n shutdown\n!\nrouter bgp 1\n neighbor 192.0.2.1 remote-as 2\n!\nend\n");
  CliResult r = runCli({"note", "useful", dir + "/notes", dir + "/cfg"});
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out, "shut_interfaces\nbgp/bgp_neighbors_unprotected\n");

  CliResult none = runCli({"note", "useful", dir + "/notes", notestest::dataDir() + "/clean.cfg"});
  EXPECT_EQ(none.status, 0);
  EXPECT_EQ(none.out, "");
}

TEST_F(NoteCliTest, PathsWithShellSyntaxArePlainNames) {
  const std::string dir = scratch("cli-inject");
  const std::string evil = dir + "/x \"y\" ';' $(touch pwned) `touch pwned`";
  platform::makeDir(evil);
  const std::string script = evil + "/-n; touch pwned $(touch pwned).cmf";
  const std::string config = evil + "/c \"$(touch pwned)\";touch pwned.cfg";
  ASSERT_TRUE(DRScriptFile(example("shut_interfaces.cmf")).saveScriptFile(script));
  writeFile(config, "interface Gi0/1\n shutdown\n!\nend\n");
  CliResult r = runCli({"note", "run", script, config});
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out, "Interfaces that are shut down:\n1: interface Gi0/1 !shutdown\n  2:  shutdown\n");
  CliResult check = runCli({"note", "check", script});
  EXPECT_EQ(check.status, 0) << check.err;
  CliResult useful = runCli({"note", "useful", evil, config});
  EXPECT_EQ(useful.status, 0) << useful.err;
  EXPECT_EQ(useful.out, "-n; touch pwned $(touch pwned)\n");
  EXPECT_FALSE(exists(dir + "/pwned"));
  EXPECT_FALSE(exists(evil + "/pwned"));
  EXPECT_FALSE(exists("pwned"));
}

}  // namespace
