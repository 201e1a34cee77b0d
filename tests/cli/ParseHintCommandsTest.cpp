// The dump of command records, the reuse of a terminal, and the parse and
// hint subcommands of the vtyconf program.
#include <gtest/gtest.h>

#include <memory>
#include <nlohmann/json.hpp>

#include "config/CommandDump.h"
#include "config/QxParserUtil.h"
#include "platform/Pathname.h"
#include "support/CliRun.h"
#include "support/TerminalFixture.h"
#include "terminal/VTY.h"

using namespace qxparser;

namespace {

const std::string kFixture = testsupport::fixtureResources("terminal");
const std::string kShipped = std::string(VTYCONF_SOURCE_DIR) + "/resources/";

const char kSample[] =
    "hostname R1\n"
    "interface Ethernet0/1\n"
    " description uplink\n"
    " ip address 10.0.0.1 255.255.255.0\n"
    "!\n"
    "router bgp 65000\n"
    " address-family ipv4\n"
    "  network 10.1.0.0\n";

using testsupport::readFile;
using testsupport::tempFile;

// Reads `text` on a terminal brought into configuration mode as the reader's.
std::string dumpOf(VTY& vty, const std::string& text) {
  vty.parse("enable\n", true, nullptr);
  vty.parse("configure terminal \n", true, nullptr);
  std::vector<CiscoCommandLine*> records;
  std::string errorText;
  int errorLine = 0;
  vty.getComLineInfo(text, records, errorText, errorLine, true);
  std::string out;
  CommandDump::dumpCommands(records, out);
  QxParserUtil::deleteCommands(records);
  std::string answer;
  vty.getOutputString(answer);
  return out + "errorLine=" + std::to_string(errorLine) + " " + errorText + "\n";
}

using CommandDumpTest = testsupport::TerminalFixture;

TEST_F(CommandDumpTest, WholeConfigurationWithChildrenIndentedByLevel) {
  std::vector<CiscoCommandLine*> records;
  std::string errorText;
  int errorLine = 0;
  QxParserUtil::getCmdInfo(kSample, records, errorText, errorLine);
  std::string out;
  CommandDump::dumpCommands(records, out);
  EXPECT_EQ(out,
            "hostname R1\t[1 order 0 overwrite stored]\n"
            "interface ethernet 0/1\t[2 order 0 additive stored mode]\n"
            "  description uplink\t[3 order 0 overwrite stored]\n"
            "  ip address 10.0.0.1 255.255.255.0\t[4 order 0 overwrite stored]\n"
            "!\t[5 order 0 text]\n"
            "router bgp 65000\t[6 order 0 additive stored mode]\n"
            "  address-family ipv4\t[7 order 0 additive stored mode]\n"
            "    network 10.1.0.0\t[8 order 0 additive stored]\n");

  std::string one;
  CommandDump::dumpCommand(*records[1], one, false, [](int line) { return line * 10; });
  EXPECT_EQ(one, "interface ethernet 0/1\t[20 order 0 additive stored mode]\n") << "alone, with mapped line";
  QxParserUtil::deleteCommands(records);
}

TEST_F(CommandDumpTest, NamesOfFlagsAndMarks) {
  const struct {
    CiscoCommandLineFlag flag;
    const char* name;
  } flags[] = {{CMD_NEGATED, "negated"},     {CMD_NEGATED_OVERWRITE, "negated-overwrite"},
               {CMD_ADDITIVE, "additive"},   {CMD_OVERWRITE, "overwrite"},
               {CMD_MERGEABLE, "mergeable"}, {CMD_TEXT, "text"}};
  for (const auto& row : flags) EXPECT_STREQ(CommandDump::flagName(row.flag), row.name);

  CiscoCommandLine record;
  EXPECT_TRUE(CommandDump::markNames(record).empty());
  record.setFlags(CMDBIT_CONFLICT | CMDBIT_NO | CMDBIT_REMOVED, false);
  EXPECT_EQ(CommandDump::markNames(record), (std::vector<std::string>{"no", "removed", "conflict"}));
  record.setOriginalStr("  banner text line \r\n");
  EXPECT_EQ(CommandDump::commandText(record), "banner text line");
  record.setOriginalCmd("shutdown \n");
  EXPECT_EQ(CommandDump::commandText(record), "shutdown") << "the command's own form comes first";
}

TEST_F(CommandDumpTest, TerminalResetAndReusedReadsLikeANewOne) {
  // The first text leaves the terminal deep in a sub-mode, with options used
  // and a refused line behind it.
  const std::string first =
      "logging host 1.1.1.1 transport udp\n"
      "router bgp 65000\n"
      " address-family ipv4\n"
      "  bogus words\n"
      "  network 10.1.0.0\n";
  VTY fresh("hostName", false);
  const std::string expected = dumpOf(fresh, kSample);
  VTY reused("hostName", false);
  dumpOf(reused, first);
  reused.reset();
  EXPECT_EQ(dumpOf(reused, kSample), expected);
  reused.reset();
  EXPECT_EQ(dumpOf(reused, kSample), expected) << "and once more";
}

TEST(ShippedGrammarReuseTest, CorpusConfigurationsReadAlikeOnAReusedTerminal) {
  const std::string corpus = std::string(VTYCONF_SHARED_CORPUS_DIR) + "/public";
  if (!Pathname(corpus).isDirectory()) GTEST_SKIP() << "no configuration corpus at " << corpus;
  std::vector<std::string> files;
  for (const Pathname& entry : Pathname(corpus).dirContents()) {
    const std::string name = entry.data();
    if (name.size() > 4 && name.compare(name.size() - 4, 4, ".cfg") == 0) files.push_back(name);
  }
  if (files.size() < 2) GTEST_SKIP() << "fewer than two configurations in " << corpus;
  testsupport::useResources(kShipped);
  QxParserUtil::createNewParserResource();
  const std::string one = readFile(files[0]);
  const std::string two = readFile(files[1]);
  VTY fresh("hostName", false);
  const std::string expected = dumpOf(fresh, two);
  VTY reused("hostName", false);
  dumpOf(reused, one);
  reused.reset();
  EXPECT_EQ(dumpOf(reused, two), expected) << files[0] << " then " << files[1];
  QxParserUtil::destroyParserResource();
}

// ------------------------------------------------------------ the program

using ProgramRun = testsupport::CliRun;
using testsupport::runCli;

class ProgramTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!testsupport::cliBuilt()) GTEST_SKIP() << "the vtyconf program was not built";
  }
};

TEST_F(ProgramTest, ParsePrintsTheDumpAndNamesRefusedLines) {
  std::string config = tempFile("sample.cfg", std::string(kSample) + "bogus line\n");
  ProgramRun run = runCli("--resources '" + kFixture + "' parse '" + config + "'");
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.out,
            "hostname R1\t[1 order 0 overwrite stored]\n"
            "interface ethernet 0/1\t[2 order 0 additive stored mode]\n"
            "  description uplink\t[3 order 0 overwrite stored]\n"
            "  ip address 10.0.0.1 255.255.255.0\t[4 order 0 overwrite stored]\n"
            "router bgp 65000\t[6 order 0 additive stored mode]\n"
            "  address-family ipv4\t[7 order 0 additive stored mode]\n"
            "    network 10.1.0.0\t[8 order 0 additive stored]\n");
  EXPECT_EQ(run.err, "vtyconf: sample.cfg:9: bogus line\n");
  EXPECT_EQ(runCli("--resources '" + kFixture + "' parse --strict '" + config + "'").exitCode, 1);
}

TEST_F(ProgramTest, ParseJsonNestsChildren) {
  std::string config = tempFile("sample.cfg", kSample);
  ProgramRun run = runCli("--resources '" + kFixture + "' parse --json '" + config + "'");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  nlohmann::json doc = nlohmann::json::parse(run.out);
  ASSERT_EQ(doc.size(), 3u);
  EXPECT_EQ(doc[1]["text"], "interface ethernet 0/1");
  EXPECT_EQ(doc[1]["flags"], nlohmann::json({"stored", "mode"}));
  ASSERT_EQ(doc[1]["children"].size(), 2u);
  EXPECT_EQ(doc[1]["children"][1]["line"], 4);
  EXPECT_EQ(doc[2]["children"][0]["children"][0]["text"], "network 10.1.0.0");
  EXPECT_EQ(doc[2]["children"][0]["children"][0]["level"], 2);
}

TEST_F(ProgramTest, ParseTurnsALibraryExceptionIntoFileAndLine) {
  // A numeric range value made only of zeros raises the library's
  // out-of-range error from the reader.
  std::string bad = tempFile("zeros.cfg", "hostname R1\n!\n\naccess-list 0 permit any\nhostname R2\n");
  std::string good = tempFile("good.cfg", "hostname R1\n");
  ProgramRun run = runCli("--resources '" + kShipped + "' parse '" + bad + "' '" + good + "'");
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.err, "vtyconf: zeros.cfg:4: invalid string position\n")
      << "the file's own line, blank lines counted";
  EXPECT_NE(run.out.find("hostname R1"), std::string::npos) << "the next file is still read: " << run.out;
}

TEST_F(ProgramTest, HintListsTheNextWordsOfEveryLevel) {
  const struct {
    const char* config;
    const char* line;
    const char* out;
    int exitCode;
  } rows[] = {
      {kSample, "n",
       "(config-router-af)#\n"
       "  network\tspecify a network to announce via bgp\n"
       "(config-router)#\n"
       "  neighbor\tspecify a neighbor router\n",
       0},
      {"hostname R1\n", "ip route 1.1.1.1 255.0.0.0 ", "(config)#\n  a.b.c.d\tforwarding router's address\n",
       0},
      {"hostname R1\n", "", nullptr, 0},
      {"hostname R1\n", "frobnicate", "", 1},
  };
  for (const auto& row : rows) {
    std::string config = tempFile("hint.cfg", row.config);
    ProgramRun run = runCli("--resources '" + kFixture + "' hint '" + config + "' '" + row.line + "'");
    if (row.out != nullptr) {
      EXPECT_EQ(run.out, row.out) << row.line;
    } else {
      EXPECT_EQ(run.out.rfind("(config)#\n  ^c\t\tend of banner text\n  banner\t", 0), 0u) << run.out;
    }
    EXPECT_EQ(run.exitCode, row.exitCode) << row.line;
  }
}

TEST_F(ProgramTest, WordUnknownAtTheDeepestLevelHidesTheUpperLevelsAsIntended) {
  // The query asks the deepest level first, and once one level has answered
  // "% Unrecognized command" every later answer is dropped too.
  std::string config = tempFile("hint.cfg", kSample);
  ProgramRun run =
      runCli("--resources '" + kFixture + "' hint '" + config + "' 'ip route 1.1.1.1 255.0.0.0 '");
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.exitCode, 1);
}

TEST_F(ProgramTest, HintJsonGivesWordsWithTheirHelp) {
  std::string config = tempFile("sample.cfg", kSample);
  ProgramRun run = runCli("--resources '" + kFixture + "' hint '" + config + "' n --json");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  nlohmann::json doc = nlohmann::json::parse(run.out);
  EXPECT_EQ(doc, nlohmann::json::parse(R"([
    {"prompt": "(config-router-af)#",
     "words": [{"word": "network", "help": "specify a network to announce via bgp"}]},
    {"prompt": "(config-router)#",
     "words": [{"word": "neighbor", "help": "specify a neighbor router"}]}])"));
}

}  // namespace
