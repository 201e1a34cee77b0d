// The names in the dump of command records, and the reuse of a terminal (the
// dump itself is checked through the program's parse cases).
#include <gtest/gtest.h>

#include <memory>

#include "config/CommandDump.h"
#include "config/QxParserUtil.h"
#include "platform/Pathname.h"
#include "support/CaseFile.h"
#include "support/TerminalFixture.h"
#include "terminal/VTY.h"

using namespace qxparser;

namespace {

const std::string kShipped = std::string(VTYCONF_SOURCE_DIR) + "/resources/";

// A configuration with modes two levels deep.
const std::string kSample = testsupport::readDataFile("cli/sample.cfg");

using testsupport::readFile;

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

}  // namespace
