// Command families of the definition files, the values the device checks and
// the help it lists, row by row from tests/data/grammar_wide/families_*.tsv
// (the kinds of rows are described in those files): what the device reads,
// at which level, what it refuses, what the program reports as refused.
#include <fstream>
#include <string>
#include <vector>

#include "support/CaseFile.h"
#include "support/CliRun.h"
#include "support/ShippedGrammarSuite.h"
#include "terminal/VTY.h"

using qxparser::CiscoCommandLine;
using qxparser::QxParserUtil;
using testsupport::splitFields;
using testsupport::unescaped;

namespace {

// What is wrong with the reading of a row of kind accept, refuse or kept-as.
std::string problemsOf(const std::string& kind, const std::string& text, const std::string& expected) {
  std::vector<CiscoCommandLine*> records = testsupport::readRecords(text + "\n");
  const std::vector<std::string> lines = splitFields(text, '\n');
  const std::vector<std::string> levels = expected.empty() ? std::vector<std::string>() : splitFields(expected, ',');
  std::string problems;
  if (records.size() != lines.size()) problems = "read " + std::to_string(records.size()) + " records";
  for (size_t i = 0; i < records.size() && i < lines.size(); ++i) {
    const bool read = testsupport::readToTheEnd(*records[i]) || records[i]->getFlag() == qxparser::CMD_TEXT;
    const bool indented = lines[i][0] == ' ';
    const bool last = i + 1 == lines.size();
    const int level = records[i]->getLevel();
    if (kind == "refuse" && last) {
      if (read && indented == (level > 0)) problems += " taken: " + lines[i];
    } else if (!read) {
      problems += " refused: " + lines[i];
    } else if (kind == "kept-as" && last) {
      std::string kept = records[i]->getCurrentCommand();
      while (!kept.empty() && (kept.back() == '\n' || kept.back() == ' ')) kept.pop_back();
      if (kept != expected) problems += " kept as: " + kept;
    } else if (kind == "accept" && !levels.empty() ? i >= levels.size() || level != std::stoi(levels[i])
                                                    : indented != (level > 0)) {
      problems += " at level " + std::to_string(level) + ": " + lines[i];
    }
  }
  QxParserUtil::deleteCommands(records);
  return problems;
}

// The listing of "?" typed on the last line, after the lines before it.
std::string helpOf(const std::string& text) {
  qxparser::VTY vty("hostName", false);
  vty.parse("enable\n", true, nullptr);
  vty.parse("configure terminal \n", true, nullptr);
  const std::vector<std::string> lines = splitFields(text, '\n');
  for (size_t i = 0; i + 1 < lines.size(); ++i) vty.parse(lines[i] + " \n", true, nullptr);
  std::string out;
  vty.getOutputString(out);
  vty.hook(lines.back());
  out.clear();
  vty.getOutputString(out);
  return out;
}

std::string escaped(const std::string& text) {
  std::string out;
  for (char c : text) out += c == '\n' ? std::string("\\n") : c == '\t' ? std::string("\\t") : std::string(1, c);
  return out;
}

// What is wrong with one row (family, kind, text, expected); with `update`,
// a help row's listing is written into it instead.
std::string checkRow(std::vector<std::string>& row, bool update) {
  const std::string text = unescaped(row[2]), expected = unescaped(row[3]);
  if (row[1] == "help") {
    if (update) row[3] = escaped(helpOf(text));
    return update || helpOf(text) == expected ? "" : "listing differs:\n" + helpOf(text);
  }
  if (row[1] == "clean") {
    if (!testsupport::cliBuilt()) return "";
    const std::string path = testsupport::tempFile("families.cfg", text + "\n");
    const testsupport::CliRun run = testsupport::runCli("--quiet parse --strict " + testsupport::shellQuote(path));
    return run.exitCode == 0 ? "" : run.err;
  }
  if (row[1] != "accept" && row[1] != "refuse" && row[1] != "kept-as") return "unknown kind " + row[1];
  return problemsOf(row[1], text, expected);
}

class WideFamilies : public testsupport::ShippedGrammarSuite {};

// VTYCONF_UPDATE_GOLDEN=1 writes the listings of the help rows anew.
TEST_F(WideFamilies, LinesValuesAndHelpAsTheDeviceTakesThem) {
  const bool update = std::getenv("VTYCONF_UPDATE_GOLDEN") != nullptr;
  for (const std::string file : {"grammar_wide/families_a.tsv", "grammar_wide/families_b.tsv"}) {
    std::string rewritten;
    size_t rows = 0;
    for (const std::string& line : splitFields(testsupport::readDataFile(file), '\n')) {
      std::vector<std::string> row = splitFields(line);
      if (line.empty() || line[0] == '#' || row.size() != 4) {
        EXPECT_TRUE(line.empty() || line[0] == '#') << file << ": four columns expected: " << line;
        rewritten += line.empty() ? "" : line + "\n";
        continue;
      }
      ++rows;
      EXPECT_EQ(checkRow(row, update), "") << file << " (" << row[0] << "): " << row[2];
      rewritten += testsupport::joinFields(row) + "\n";
    }
    EXPECT_GT(rows, 40u) << file;
    if (update) std::ofstream(std::string(VTYCONF_TEST_DATA_DIR) + "/" + file, std::ios::binary) << rewritten;
  }
}

}  // namespace
