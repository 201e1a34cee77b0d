// The certificate data, voice, wireless, platform and line families of the
// definition files, case by case from tests/data/grammar_wide/families_a.tsv
// (the columns are described in that file): what the device reads, at which
// level, what it refuses, and what the program reports as refused.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "config/QxParserUtil.h"
#include "support/CliRun.h"
#include "support/TestFiles.h"

using qxparser::CiscoCommandLine;
using qxparser::QxParserUtil;

namespace {

struct TableCase {
  int row = 0;
  std::string family;
  std::string verdict;
  std::string expect;
  std::string text;  // the lines, joined by newlines
};

std::string unescaped(const std::string& field) {
  std::string out;
  for (size_t i = 0; i < field.size(); ++i) {
    if (field[i] == '\\' && i + 1 < field.size() && (field[i + 1] == 'n' || field[i + 1] == 't')) {
      out += field[++i] == 'n' ? '\n' : '\t';
    } else {
      out += field[i];
    }
  }
  return out + "\n";
}

std::vector<TableCase> readTable(const std::string& path) {
  std::vector<TableCase> cases;
  std::ifstream in(path);
  std::string line;
  for (int row = 1; std::getline(in, line); ++row) {
    if (line.empty() || line[0] == '#') continue;
    std::vector<std::string> fields;
    std::stringstream cut(line);
    for (std::string field; std::getline(cut, field, '\t');) fields.push_back(field);
    if (fields.size() != 4) {
      ADD_FAILURE() << path << ":" << row << ": four columns expected";
      continue;
    }
    cases.push_back({row, fields[0], fields[1], fields[2], unescaped(fields[3])});
  }
  return cases;
}

// A record that the terminal did not read to the end of a command.
bool isRefused(const CiscoCommandLine& record) {
  if (record.getFlag() == qxparser::CMD_TEXT) return false;
  for (const auto& entry : record.getTreeNodes()) {
    if (entry.words.count("\n") != 0) return false;
  }
  return !record.hasFlags(qxparser::CMDBIT_NO) || record.hasFlags(qxparser::CMDBIT_NO_COMPLETE);
}

std::string trimmedEnd(std::string text) {
  while (!text.empty() && (text.back() == '\n' || text.back() == ' ')) text.pop_back();
  return text;
}

class WideFamiliesA : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    const char* env = std::getenv("VTYCONF_RESOURCES");
    const std::string folder =
        env != nullptr && *env != '\0' ? std::string(env) : std::string(VTYCONF_SOURCE_DIR) + "/resources/";
    setenv("VTYCONF_RESOURCES", folder.c_str(), 1);
    QxParserUtil::createNewParserResource();
  }
  static void TearDownTestSuite() { QxParserUtil::destroyParserResource(); }

  static void checkRecords(const TableCase& c, const std::vector<CiscoCommandLine*>& records) {
    const std::string where = c.family + " (row " + std::to_string(c.row) + "): " + c.text;
    ASSERT_FALSE(records.empty()) << where;
    const size_t last = records.size() - 1;
    for (size_t i = 0; i < last; ++i) EXPECT_FALSE(isRefused(*records[i])) << where << "line " << i + 1;
    if (c.verdict == "refuse") {
      EXPECT_TRUE(isRefused(*records[last])) << where;
      return;
    }
    EXPECT_FALSE(isRefused(*records[last])) << where;
    if (c.verdict == "kept-as") {
      EXPECT_EQ(trimmedEnd(records[last]->getCurrentCommand()), c.expect) << where;
      return;
    }
    std::vector<int> levels;
    std::stringstream cut(c.expect);
    for (std::string level; std::getline(cut, level, ',');) levels.push_back(std::stoi(level));
    ASSERT_EQ(levels.size(), records.size()) << where;
    for (size_t i = 0; i < records.size(); ++i) EXPECT_EQ(records[i]->getLevel(), levels[i]) << where << "line " << i + 1;
  }
};

TEST_F(WideFamiliesA, TheTableIsReadAsTheDeviceReadsIt) {
  const std::vector<TableCase> cases = readTable(std::string(VTYCONF_TEST_DATA_DIR) + "/grammar_wide/families_a.tsv");
  ASSERT_FALSE(cases.empty());
  for (const TableCase& c : cases) {
    if (c.verdict == "clean") {
      if (!testsupport::cliBuilt()) continue;
      const std::string path = testsupport::tempFile("families-a.cfg", c.text);
      const testsupport::CliRun run = testsupport::runCli("--quiet parse --strict " + testsupport::shellQuote(path));
      EXPECT_EQ(run.exitCode, 0) << c.family << " (row " << c.row << "): " << run.err;
      continue;
    }
    ASSERT_TRUE(c.verdict == "accept" || c.verdict == "refuse" || c.verdict == "kept-as") << "row " << c.row;
    std::vector<CiscoCommandLine*> records;
    std::string errorText;
    int errorLine = 0;
    QxParserUtil::getCmdInfo(c.text, records, errorText, errorLine);
    checkRecords(c, records);
    QxParserUtil::deleteCommands(records);
  }
}

}  // namespace
