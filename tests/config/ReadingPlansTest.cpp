// The searches with their per-node plans against the plain scans: the same
// records for every corpus file, and the same answer for every token at
// every node of the shipped grammar.
#include <map>
#include <set>
#include <stdexcept>
#include <thread>

#include "ShippedGrammar.h"
#include "support/CaseFile.h"
#include "config/CmdOrderTable.h"
#include "grammar/NodeLookup.h"
#include "grammar/ParserTree.h"
#include "grammar/ThreadWordSet.h"

namespace qxparser {

std::map<VTYModeType, ParserTree*>& gResourceTrees();

namespace {

// Everything a reading leaves in the records, with grammar nodes by address.
std::string describe(const std::vector<CiscoCommandLine*>& records) {
  std::map<const CiscoCommandLine*, size_t> index;
  for (size_t i = 0; i < records.size(); ++i) index[records[i]] = i;
  std::ostringstream out;
  for (const CiscoCommandLine* record : records) {
    auto parent = index.find(record->getParentCommand());
    std::string major;
    record->getMajorCmdStr(major);
    out << (parent == index.end() ? -1 : static_cast<long>(parent->second)) << '|' << record->getLevel() << '|'
        << record->getLineNo() << '|' << record->getOrderNo() << '|' << record->getFlags() << '|'
        << record->getFlag() << '|' << record->getCurrentCommand() << '|' << record->getOriginalCmd() << '|'
        << record->getOriginalStr() << '|' << major << '|';
    for (const CmdPathEntry& entry : record->getTreeNodes()) {
      out << entry.node << '{';
      for (std::string_view word : entry.words) out << word << ',';
      out << '}';
    }
    out << "|subs " << record->getSubCommands().size() << '\n';
  }
  return out.str();
}

std::string readWith(bool plans, const std::string& text) {
  setLookupPlansEnabled(plans);
  std::vector<CiscoCommandLine*> records;
  std::string errorText;
  int errorLine = 0;
  const bool ok = QxParserUtil::getCmdInfo(text, records, errorText, errorLine);
  std::string description = describe(records);
  QxParserUtil::deleteCommands(records);
  setLookupPlansEnabled(true);
  return std::to_string(ok) + errorText + std::to_string(errorLine) + "\n" + description;
}

class ReadingPlansTest : public ShippedGrammarTest {};

TEST_F(ReadingPlansTest, CorpusFilesReadTheSameWithAndWithoutPlans) {
  const std::vector<CorpusFile> files = corpusFiles();
  if (files.empty()) GTEST_SKIP() << "no corpus at " << corpusFolder();
  for (const CorpusFile& file : files) {
    EXPECT_EQ(readWith(true, file.text), readWith(false, file.text)) << file.name;
  }
}

// Replayed and read as typed; and whether the walks left scratch behind.
// (The plans stay on: switching them while another thread walks is not
// allowed.)
std::string readBothWays(const std::string& text) {
  std::vector<CiscoCommandLine*> replayed;
  std::string errorText;
  int errorLine = 0;
  QxParserUtil::getCmdInfo(text, replayed, errorText, errorLine);
  std::vector<CiscoCommandLine*> typed;
  std::vector<RefusedLine> refused;
  TypedTextReader::read(text, typed, refused);
  std::string description = describe(replayed) + errorText + std::to_string(errorLine) + describe(typed);
  QxParserUtil::deleteCommands(replayed);
  QxParserUtil::deleteCommands(typed);
  return description + "scratch left " + std::to_string(ThreadWordSet::filledSets());
}

TEST_F(ReadingPlansTest, CorpusFilesReadOnTwoThreadsAtOnceReadAsAlone) {
  const std::vector<CorpusFile> files = corpusFiles();
  if (files.empty()) GTEST_SKIP() << "no corpus at " << corpusFolder();
  std::vector<std::string> alone;
  for (const CorpusFile& file : files) alone.push_back(readBothWays(file.text));
  // The two threads take the files in opposite orders, so that different
  // texts walk the shared grammar at the same time.
  std::vector<std::string> forward(files.size());
  std::vector<std::string> backward(files.size());
  std::thread other([&]() {
    for (size_t i = files.size(); i-- > 0;) backward[i] = readBothWays(files[i].text);
  });
  for (size_t i = 0; i < files.size(); ++i) forward[i] = readBothWays(files[i].text);
  other.join();
  for (size_t i = 0; i < files.size(); ++i) {
    EXPECT_NE(alone[i].find("scratch left 0"), std::string::npos) << files[i].name;
    EXPECT_EQ(forward[i], alone[i]) << files[i].name;
    EXPECT_EQ(backward[i], alone[i]) << files[i].name;
  }
}

TEST_F(ReadingPlansTest, MixedCaseAndOddLinesReadTheSame) {
  const std::string text = testsupport::readDataFile("config/odd_lines.cfg");
  ASSERT_FALSE(text.empty());
  EXPECT_EQ(readWith(true, text), readWith(false, text));
}

// The order number of the first template of the file that fits, by a scan.
int plainOrderNo(const std::vector<CiscoCommandLine*>& templates, const CiscoCommandLine& command, int none) {
  for (const CiscoCommandLine* templ : templates) {
    if (templ && templateFits(*templ, command)) return templ->getOrderNo();
  }
  return none;
}

TEST_F(ReadingPlansTest, OrderNumbersAreThoseOfTheFirstFittingTemplate) {
  const std::vector<CorpusFile> files = corpusFiles();
  if (files.empty()) GTEST_SKIP() << "no corpus at " << corpusFolder();
  ASSERT_FALSE(gCmdOrderTable().empty());
  size_t compared = 0;
  for (const CorpusFile& file : files) {
    std::vector<CiscoCommandLine*> records;
    std::string errorText;
    int errorLine = 0;
    QxParserUtil::getCmdInfo(file.text, records, errorText, errorLine);
    for (const auto& table : gCmdOrderTable()) {
      ParserTreeNode mode;
      mode.mFileName = table.first;
      for (const CiscoCommandLine* record : records) {
        if (record->getTreeNodes().empty()) continue;
        CiscoCommandLine copy(*record);
        copy.delOnlyChildCmds();  // the copy's children are its own
        copy.setOrderNo(-7);
        copy.setOrderNo(&mode);
        ASSERT_EQ(copy.getOrderNo(), plainOrderNo(table.second, *record, -7))
            << file.name << ": " << record->getOriginalCmd() << " in " << table.first;
        ++compared;
      }
    }
    QxParserUtil::deleteCommands(records);
  }
  EXPECT_GT(compared, 10000u);
}

// The answer of lookupToken, or the error it throws.
std::string answer(ParserTreeNode* node, const std::string& token) {
  // Options taken by an earlier question would change this one's answer.
  node->mVisitedOptions.clear();
  for (auto& entry : node->mOptions) {
    if (entry.second->mParent) entry.second->mParent->mVisitedOptions.clear();
  }
  bool flag = false;
  bool retried = false;
  std::string key;
  try {
    ParserTreeNode* found = lookupToken(node, token, flag, key, false, &retried);
    std::ostringstream out;
    out << found << ' ' << key << ' ' << retried << ' ' << hasInterfaceWords(node);
    return out.str();
  } catch (const std::out_of_range& error) {
    return std::string("throws ") + error.what();
  }
}

TEST_F(ReadingPlansTest, EveryNodeAnswersEveryTokenAsThePlainScan) {
  const std::vector<std::string> tokens = {
      "\n",          "interface",  "Interface", "ip",          "no",          "10",       "0",
      "00",          "65000",      "4294967296", "10.0.0.1",   "10.0.0.0/8",  "1:2",      "65000:100",
      "+5",          "-",          "0011.2233.4455", "GigabitEthernet0/1", "gigabitethernet", "0/1",
      "Loopback0",   "vlan",       "word",      "description", "permit",      "any",      "host",
      "12:30",       "ethernet",   "x",         "4094",        "4095",        "007",      "1.5",
      "01.05",       "1.",         "1-4094"};
  std::vector<ParserTreeNode*> queue;
  std::set<ParserTreeNode*> seen;
  for (auto& entry : gResourceTrees()) {
    if (entry.second && entry.second->mRoot && seen.insert(entry.second->mRoot).second) {
      queue.push_back(entry.second->mRoot);
    }
  }
  ASSERT_FALSE(queue.empty());
  // Breadth first, a bounded number of nodes: the busy top levels and the
  // commands below them.
  for (size_t i = 0; i < queue.size() && queue.size() < 1500; ++i) {
    for (auto* map : {&queue[i]->mChildren, &queue[i]->mOptions}) {
      for (auto& entry : *map) {
        if (seen.insert(entry.second).second) queue.push_back(entry.second);
      }
    }
  }
  size_t compared = 0;
  for (ParserTreeNode* node : queue) {
    for (const std::string& token : tokens) {
      setLookupPlansEnabled(false);
      const std::string plain = answer(node, token);
      setLookupPlansEnabled(true);
      const std::string planned = answer(node, token);
      ASSERT_EQ(planned, plain) << "token '" << token << "' at a node with first word " << node->firstKeyword();
      ++compared;
    }
    node->mVisitedOptions.clear();
  }
  EXPECT_GT(compared, 1000u);
}

}  // namespace
}  // namespace qxparser
