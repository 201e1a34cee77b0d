// Change sets as engineers type them (tests/data/change_sets/cases.txt): each
// typed change reads into the records of the same change in full words, is
// refused where the device refuses it, merges into the same device text, and
// its delta rollback merged back gives the base configuration again.
#include <algorithm>
#include <fstream>
#include <set>

#include "ShippedGrammar.h"

namespace qxparser {
namespace {

struct Case {
  std::string name;
  std::string typed;
  std::string full;
  std::set<int> refused;
  std::string skipRoundTrip;
};

std::vector<Case> readCases(const std::string& path) {
  std::ifstream in(path);
  std::vector<Case> cases;
  std::string line;
  std::string* section = nullptr;
  while (std::getline(in, line)) {
    if (line.compare(0, 4, "=== ") == 0) {
      cases.push_back(Case{line.substr(4), "", "", {}, ""});
      section = nullptr;
    } else if (cases.empty() || (section == nullptr && line.compare(0, 1, "#") == 0)) {
      continue;
    } else if (line == "typed:") {
      section = &cases.back().typed;
    } else if (line == "full:") {
      section = &cases.back().full;
    } else if (line.compare(0, 9, "refused: ") == 0) {
      std::istringstream numbers(line.substr(9));
      for (int n = 0; numbers >> n;) cases.back().refused.insert(n);
      section = nullptr;
    } else if (line.compare(0, 16, "roundtrip: skip ") == 0) {
      cases.back().skipRoundTrip = line.substr(16);
      section = nullptr;
    } else if (section != nullptr) {
      *section += line + "\n";
    }
  }
  return cases;
}

// The commands of a reading, one "level|canonical text" per stored record.
std::vector<std::string> commandsOf(const std::vector<CiscoCommandLine*>& records) {
  std::vector<std::string> out;
  for (const CiscoCommandLine* record : records) {
    if (record->getFlag() == CMD_TEXT || record->getTreeNodeSize() == 0) continue;
    out.push_back(std::to_string(record->getLevel()) + "|" + record->getOriginalCmd());
  }
  return out;
}

std::multiset<std::string> storedCommands(const std::string& text) {
  std::vector<CiscoCommandLine*> records;
  std::vector<RefusedLine> refused;
  QxParserUtil::getCmdInfoTyped(text, records, refused);
  const std::vector<std::string> commands = commandsOf(records);
  QxParserUtil::deleteCommands(records);
  return {commands.begin(), commands.end()};
}

class ChangeSetTest : public ShippedGrammarTest {};

TEST_F(ChangeSetTest, TypedChangesReadMergeAndRollBackAsTheirFullWords) {
  const std::string data = std::string(VTYCONF_TEST_DATA_DIR) + "/change_sets/";
  const std::string base = readWholeFile(data + "base.cfg");
  const std::vector<Case> cases = readCases(data + "cases.txt");
  ASSERT_GE(cases.size(), 60u);
  size_t roundTrips = 0;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    std::vector<CiscoCommandLine*> typed;
    std::vector<RefusedLine> refused;
    QxParserUtil::getCmdInfoTyped(c.typed, typed, refused);
    std::vector<CiscoCommandLine*> full;
    std::string errorText;
    int errorLine = 0;
    QxParserUtil::getCmdInfo(c.full, full, errorText, errorLine);
    // Compared as sets: a replayed text finds its levels by climbing, so the
    // full words may have to stand in another order than the typed exits.
    std::vector<std::string> typedCommands = commandsOf(typed);
    std::vector<std::string> fullCommands = commandsOf(full);
    std::sort(typedCommands.begin(), typedCommands.end());
    std::sort(fullCommands.begin(), fullCommands.end());
    EXPECT_EQ(typedCommands, fullCommands);
    QxParserUtil::deleteCommands(typed);
    QxParserUtil::deleteCommands(full);
    std::set<int> refusedLines;
    for (const RefusedLine& line : refused) refusedLines.insert(line.lineNo);
    EXPECT_EQ(refusedLines, c.refused);

    const std::string merged = QxParserUtil::mergeConfigCmdsDeviceText(c.typed, base);
    EXPECT_EQ(merged, QxParserUtil::mergeConfigCmdsDeviceText(c.full, base));
    if (!c.skipRoundTrip.empty()) continue;
    const std::string undo = QxParserUtil::fallbackConfigCmdsDeviceText(c.typed, base, 0);
    EXPECT_EQ(storedCommands(QxParserUtil::mergeConfigCmdsDeviceText(undo, merged)), storedCommands(base))
        << "rollback:\n" << undo;
    ++roundTrips;
  }
  std::cout << cases.size() << " change sets, " << roundTrips << " round trips checked\n";
}

}  // namespace
}  // namespace qxparser
