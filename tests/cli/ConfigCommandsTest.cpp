// The configuration subcommands of the vtyconf program: merge, fallback,
// sort and query, run as a user runs them. Results are compared with the
// library's own answer for the same texts, so that the program adds nothing
// and loses nothing on the way.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "config/QxParserUtil.h"
#include "grammar/DefinitionLoader.h"
#include "platform/QXFileSystem.h"
#include "support/CliRun.h"

namespace {

using qxparser::QxParserUtil;

const char* const kConfig =
    "hostname r1\n"
    "!\n"
    "interface Loopback0\n"
    " ip address 10.0.0.1 255.255.255.255\n"
    "!\n"
    "interface GigabitEthernet0/1\n"
    " description uplink\n"
    " ip address 192.0.2.1 255.255.255.0\n"
    " shutdown\n"
    "!\n"
    "ip route 0.0.0.0 0.0.0.0 192.0.2.254\n"
    "line vty 0 4\n"
    " login\n"
    "!\n"
    "end\n";

const char* const kChanges =
    "hostname probe\n"
    "interface GigabitEthernet0/1\n"
    " no shutdown\n"
    "!\n"
    "ip route 10.0.0.0 255.0.0.0 192.0.2.9\n";

struct Outcome {
  int status = -1;
  std::string out;
  std::string err;
};

using testsupport::readFile;

class ConfigCommandsTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    QXFileSystem::SetSystemResourceFolder(resources());
    qxparser::clearLoaderTables();
    QxParserUtil::createNewParserResource();
  }
  static void TearDownTestSuite() {
    QxParserUtil::destroyParserResource();
    qxparser::clearLoaderTables();
  }
  void SetUp() override {
    if (std::string(VTYCONF_CLI_PATH).empty()) GTEST_SKIP() << "the vtyconf program is not built";
  }

  static std::string resources() { return std::string(VTYCONF_SOURCE_DIR) + "/resources/"; }

  std::string file(const std::string& name, const std::string& text) {
    return testsupport::tempFile("vtyconf_cli_" + name, text);
  }

  // Runs vtyconf with `args`, standard input from `input`.
  Outcome run(const std::string& args, const std::string& input = "") {
    const testsupport::CliRun r = testsupport::runCli("--resources '" + resources() + "' " + args, input);
    return Outcome{r.exitCode, r.out, r.err};
  }
};

TEST_F(ConfigCommandsTest, MergeWritesTheLibraryResultFromFilesStdinAndToAFile) {
  const std::string expected = QxParserUtil::mergeConfigCmdsDeviceText(kChanges, kConfig);
  ASSERT_NE(expected.find("hostname probe\n"), std::string::npos);
  EXPECT_EQ(expected.find("hostname r1"), std::string::npos);

  const std::string changes = file("changes.cfg", kChanges);
  const std::string config = file("config.cfg", kConfig);
  struct Row {
    std::string args;
    std::string input;
  };
  const std::vector<Row> rows = {
      {"merge '" + changes + "' '" + config + "'", ""},
      {"merge - '" + config + "'", kChanges},
      {"merge '" + changes + "' -", kConfig},
  };
  for (const Row& row : rows) {
    const Outcome result = run(row.args, row.input);
    EXPECT_EQ(result.status, 0) << row.args << "\n" << result.err;
    EXPECT_EQ(result.out, expected) << row.args;
  }

  const std::string target = QXFileSystem::GetTempFolder() + "vtyconf_cli_merged.cfg";
  std::remove(target.c_str());
  const Outcome written = run("merge '" + changes + "' '" + config + "' -o '" + target + "'");
  EXPECT_EQ(written.status, 0);
  EXPECT_EQ(written.out, "");
  EXPECT_EQ(readFile(target), expected);
}

TEST_F(ConfigCommandsTest, FallbackInBothModes) {
  const std::string changes = file("changes.cfg", kChanges);
  const std::string config = file("config.cfg", kConfig);
  const std::string intended = file("intended.cfg", QxParserUtil::mergeConfigCmds(kChanges, kConfig));
  struct Row {
    std::string args;
    std::string expected;
  };
  const std::vector<Row> rows = {
      {"fallback --delta '" + changes + "' '" + config + "'", QxParserUtil::fallbackConfigCmdsDeviceText(kChanges, kConfig, 0)},
      {"fallback --file '" + config + "' '" + intended + "'",
       QxParserUtil::fallbackConfigCmdsDeviceText(kConfig, readFile(intended), 1)},
      // File mode is the default.
      {"fallback '" + config + "' '" + intended + "'", QxParserUtil::fallbackConfigCmdsDeviceText(kConfig, readFile(intended), 1)},
  };
  for (const Row& row : rows) {
    ASSERT_FALSE(row.expected.empty()) << row.args;
    const Outcome result = run(row.args);
    EXPECT_EQ(result.status, 0) << row.args << "\n" << result.err;
    EXPECT_EQ(result.out, row.expected) << row.args;
  }
  const Outcome fromStdin = run("fallback --delta - '" + config + "'", kChanges);
  EXPECT_EQ(fromStdin.status, 0) << fromStdin.err;
  EXPECT_EQ(fromStdin.out, rows[0].expected);
  // Undoing the changes restores the old host name; going from the old
  // configuration to the new one sets the new name.
  EXPECT_NE(run(rows[0].args).out.find("hostname r1\n"), std::string::npos);
  EXPECT_NE(run(rows[1].args).out.find("hostname probe\n"), std::string::npos);
}

// The program compares every level; asked for the library's cut, it names the
// line of each input from which nothing is compared, and only then.
TEST_F(ConfigCommandsTest, FallbackComparesEveryLevelOrWarnsWhereTheLibraryCutsTheText) {
  const std::string flat = file("flat.cfg", kConfig);
  const std::string deep = file("deep.cfg",
                                "hostname r1\n"
                                "!\n"
                                "router bgp 65000\n"
                                " neighbor 192.0.2.2 remote-as 65001\n"
                                " !\n"
                                " address-family ipv4\n"
                                "  neighbor 192.0.2.2 activate\n"
                                " exit-address-family\n"
                                "!\n"
                                "ip route 0.0.0.0 0.0.0.0 192.0.2.254\n");
  const Outcome whole = run("fallback --file '" + flat + "' '" + deep + "'");
  EXPECT_EQ(whole.err, "");
  // The program prints the writer's NUL indent bytes as blanks.
  std::string expected = QxParserUtil::fallbackConfigCmdsDeviceText(kConfig, readFile(deep), 1);
  std::replace(expected.begin(), expected.end(), '\0', ' ');
  EXPECT_EQ(whole.out, expected);
  EXPECT_NE(whole.out.find("neighbor 192.0.2.2 activate"), std::string::npos) << whole.out;
  EXPECT_EQ(run("fallback --cut-at-deep-levels --file '" + flat + "' '" + flat + "'").err, "");
  const Outcome warned = run("fallback --cut-at-deep-levels --file '" + flat + "' '" + deep + "'");
  EXPECT_EQ(warned.status, 0);
  EXPECT_EQ(warned.err,
            "vtyconf: warning: vtyconf_cli_deep.cfg:7: fallback compares nothing from this line on (a command two levels "
            "inside a mode ends the normalised text)\n");
  EXPECT_EQ(warned.out, QxParserUtil::deviceText(QxParserUtil::fallbackConfigCmds(kConfig, readFile(deep), 1)));
  EXPECT_EQ(warned.out.find("activate"), std::string::npos) << warned.out;
}

TEST_F(ConfigCommandsTest, SortWritesEveryCommandOnceWithItsModes) {
  const Outcome result = run("sort -", kConfig);
  EXPECT_EQ(result.status, 0) << result.err;
  for (const char* line : {"hostname r1\n", "interface Loopback0\n", " ip address 10.0.0.1 255.255.255.255\n",
                           "line vty 0 4\n", " login\n"}) {
    EXPECT_NE(result.out.find(line), std::string::npos) << line;
  }
  // Children stay behind their own head.
  EXPECT_LT(result.out.find("interface Loopback0"), result.out.find(" ip address 10.0.0.1"));
  EXPECT_LT(result.out.find("line vty 0 4"), result.out.find(" login"));
  EXPECT_EQ(result.out.find("end"), std::string::npos);
}

TEST_F(ConfigCommandsTest, QueryAsTextAndJson) {
  const std::string config = file("config.cfg", kConfig);
  const Outcome text = run("query '" + config + "' interface GigabitEthernet0/1");
  EXPECT_EQ(text.status, 0) << text.err;
  EXPECT_NE(text.out.find("interface GigabitEthernet0/1"), std::string::npos);
  EXPECT_NE(text.out.find("description uplink"), std::string::npos);
  EXPECT_EQ(text.out.find("loopback"), std::string::npos);

  const Outcome list = run("query '" + config + "' interfaces GigabitEthernet0/1 Loopback0 --json");
  EXPECT_EQ(list.status, 0) << list.err;
  ASSERT_FALSE(list.out.empty());
  EXPECT_EQ(list.out.front(), '[');
  EXPECT_NE(list.out.find("\"interface Loopback0\\n"), std::string::npos) << list.out;

  std::string lines;
  QxParserUtil::GetCmdsFromConfig(config, lines, "ip route", qxparser::SEARCH_LINE);
  ASSERT_EQ(lines, "ip route 0.0.0.0 0.0.0.0 192.0.2.254\n");
  const Outcome fromStdin = run("query - lines ip route", kConfig);
  EXPECT_EQ(fromStdin.status, 0) << fromStdin.err;
  EXPECT_EQ(fromStdin.out.find(lines), 0u) << fromStdin.out;
  const Outcome json = run("query '" + config + "' lines ip route --json");
  EXPECT_EQ(json.out.find("\"ip route 0.0.0.0 0.0.0.0 192.0.2.254\\n\""), 0u) << json.out;

  const Outcome unknown = run("query '" + config + "' colours");
  EXPECT_EQ(unknown.status, 2);
  EXPECT_NE(unknown.err.find("unknown query"), std::string::npos);
}

TEST_F(ConfigCommandsTest, AMissingFileIsReportedWithExitTwo) {
  const std::string config = file("config.cfg", kConfig);
  const std::string missing = QXFileSystem::GetTempFolder() + "vtyconf_cli_no_such_file.cfg";
  const std::vector<std::string> rows = {
      "merge '" + missing + "' '" + config + "'",
      "merge '" + config + "' '" + missing + "'",
      "fallback --delta '" + missing + "' '" + config + "'",
      "fallback --file '" + config + "' '" + missing + "'",
      "sort '" + missing + "'",
      "query '" + missing + "' vrfs",
  };
  for (const std::string& args : rows) {
    const Outcome result = run(args);
    EXPECT_EQ(result.status, 2) << args;
    EXPECT_EQ(result.out, "") << args;
    EXPECT_NE(result.err.find("vtyconf: "), std::string::npos) << args;
    EXPECT_NE(result.err.find("vtyconf_cli_no_such_file.cfg"), std::string::npos) << args << ": " << result.err;
  }
}

TEST_F(ConfigCommandsTest, ACaptureLosesItsPromptAndBuildingLinesWithANote) {
  const std::string capture = std::string("R1#show running-config\n") + "Building configuration...\n" + "\n" +
                              "Current configuration : 512 bytes\n" + kConfig;
  const std::string captured = file("capture.cfg", capture);
  const std::string changes = file("changes.cfg", kChanges);
  const Outcome result = run("merge '" + changes + "' '" + captured + "'");
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(result.out, QxParserUtil::mergeConfigCmdsDeviceText(kChanges, kConfig));
  for (const char* note : {"capture.cfg:1: R1#show running-config", "capture.cfg:2: Building configuration...",
                           "capture.cfg:4: Current configuration : 512 bytes"}) {
    EXPECT_NE(result.err.find(note), std::string::npos) << note << " in " << result.err;
  }
  EXPECT_NE(result.err.find("left out"), std::string::npos) << result.err;

}

}  // namespace
