// Command families of routing, MPLS, layer-2 VPN and IOS-XE configurations,
// the values the device checks, and the help it lists where a main mode is
// opened: one table, tests/data/grammar_wide/families_b.tsv (its header
// says what each column holds).
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "config/QxParserUtil.h"
#include "terminal/VTY.h"

using qxparser::CiscoCommandLine;
using qxparser::QxParserUtil;
using qxparser::VTY;

namespace {

struct Row {
  int lineNo;
  std::string family, kind, text, expected;
};

std::string escape(const std::string& text) {
  std::string out;
  for (char c : text) out += c == '\n' ? std::string("\\n") : c == '\t' ? std::string("\\t") : std::string(1, c);
  return out;
}

// "\n" and "\t" written out in the table stand for a line end and a tab.
std::string unescape(const std::string& cell) {
  std::string out;
  for (size_t i = 0; i < cell.size(); ++i) {
    if (cell[i] == '\\' && i + 1 < cell.size() && (cell[i + 1] == 'n' || cell[i + 1] == 't')) {
      out += cell[++i] == 'n' ? '\n' : '\t';
    } else {
      out += cell[i];
    }
  }
  return out;
}

std::vector<Row> readTable(const std::string& path) {
  std::vector<Row> rows;
  std::ifstream in(path);
  std::string line;
  for (int no = 1; std::getline(in, line); ++no) {
    if (line.empty() || line[0] == '#') continue;
    std::vector<std::string> cells;
    std::stringstream cut(line);
    for (std::string cell; std::getline(cut, cell, '\t');) cells.push_back(unescape(cell));
    cells.resize(4);
    rows.push_back({no, cells[0], cells[1], cells[2], cells[3]});
  }
  return rows;
}

// A line is read when its path reached the end of a command, at the level its
// indent asks for (none at the left margin, some below it).
std::string problemsOf(const Row& row) {
  std::vector<CiscoCommandLine*> records;
  std::string errorText;
  int errorLine = 0;
  QxParserUtil::getCmdInfo(row.text + "\n", records, errorText, errorLine);
  std::vector<std::string> lines;
  std::stringstream cut(row.text);
  for (std::string line; std::getline(cut, line);) lines.push_back(line);
  std::string problems;
  if (records.size() != lines.size()) problems = "read " + std::to_string(records.size()) + " records";
  for (size_t i = 0; i < records.size() && i < lines.size(); ++i) {
    bool ended = false;
    for (const auto& entry : records[i]->getTreeNodes()) ended = ended || entry.words.count("\n") != 0;
    const bool noLine = records[i]->hasFlags(qxparser::CMDBIT_NO) && !records[i]->hasFlags(qxparser::CMDBIT_NO_COMPLETE);
    const bool read = records[i]->getTreeNodeSize() > 0 && (ended || noLine);
    const bool indented = lines[i][0] == ' ';
    const bool last = i + 1 == lines.size();
    if (row.kind == "refuse" && last) {
      if (read && indented == (records[i]->getLevel() > 0)) problems += " taken: " + lines[i];
    } else if (!read) {
      problems += " refused: " + lines[i];
    } else if (indented != (records[i]->getLevel() > 0)) {
      problems += " at the wrong level: " + lines[i];
    }
  }
  QxParserUtil::deleteCommands(records);
  return problems;
}

// The listing of "?" typed on the last line, after the lines before it.
std::string helpOf(const Row& row) {
  VTY vty("hostName", false);
  vty.parse("enable\n", true, nullptr);
  vty.parse("configure terminal \n", true, nullptr);
  std::stringstream cut(row.text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(cut, line);) lines.push_back(line);
  for (size_t i = 0; i + 1 < lines.size(); ++i) vty.parse(lines[i] + " \n", true, nullptr);
  std::string out;
  vty.getOutputString(out);
  vty.hook(lines.back());
  out.clear();
  vty.getOutputString(out);
  return out;
}

class WideFamiliesB : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    const char* env = std::getenv("VTYCONF_RESOURCES");
    if (env == nullptr || *env == '\0') setenv("VTYCONF_RESOURCES", VTYCONF_SOURCE_DIR "/resources/", 1);
    QxParserUtil::createNewParserResource();
  }
  static void TearDownTestSuite() { QxParserUtil::destroyParserResource(); }
};

// VTYCONF_UPDATE_GOLDEN=1 writes the listings of the help rows anew.
void updateListings(const std::string& path) {
  std::ifstream in(path);
  std::string text;
  for (std::string line; std::getline(in, line);) {
    std::stringstream cut(line);
    std::vector<std::string> cells;
    for (std::string cell; std::getline(cut, cell, '\t');) cells.push_back(cell);
    if (cells.size() >= 3 && cells[1] == "help") {
      Row row{0, cells[0], cells[1], unescape(cells[2]), ""};
      line = cells[0] + "\t" + cells[1] + "\t" + cells[2] + "\t" + escape(helpOf(row));
    }
    text += line + "\n";
  }
  in.close();
  std::ofstream(path) << text;
}

TEST_F(WideFamiliesB, LinesValuesAndHelpAsTheDeviceTakesThem) {
  const std::string path = VTYCONF_TEST_DATA_DIR "/grammar_wide/families_b.tsv";
  if (std::getenv("VTYCONF_UPDATE_GOLDEN") != nullptr) updateListings(path);
  const std::vector<Row> rows = readTable(path);
  ASSERT_GT(rows.size(), 50u);
  for (const Row& row : rows) {
    const std::string where = "families_b.tsv:" + std::to_string(row.lineNo) + " (" + row.family + ")";
    if (row.kind == "help") {
      EXPECT_EQ(helpOf(row), row.expected) << where;
    } else {
      ASSERT_TRUE(row.kind == "accept" || row.kind == "refuse") << where << ": kind " << row.kind;
      EXPECT_EQ(problemsOf(row), "") << where;
    }
  }
}

}  // namespace
