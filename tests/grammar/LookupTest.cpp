// Which node a typed word leads to in a small grammar of competing branches.
#include <gtest/gtest.h>

#include <stdexcept>

#include "grammar/DefinitionLoader.h"
#include "grammar/NodeLookup.h"
#include "grammar/ParserTree.h"
#include "support/CaseFile.h"
#include "support/TestResources.h"

using namespace qxparser;

namespace {

class LookupTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    testsupport::useResources(testsupport::fixtureResources("grammar/lookup"));
    loadKeyFiles();
    tree_ = new ParserTree("main.cfm", true);
  }
  static void TearDownTestSuite() { delete tree_; }
  static ParserTreeNode* node(const std::string& key) { return tree_->mRoot->mChildren.at(key); }

  // The key of the child that `token` leads to under `parent`, or "-".
  static std::string winner(ParserTreeNode* parent, const std::string& token) {
    bool flag = true;
    std::string key;
    ParserTreeNode* found = lookupToken(parent, token, flag, key, false, nullptr);
    return found == nullptr ? "-" : found->firstKeyword();
  }
  static ParserTree* tree_;
};

ParserTree* LookupTest::tree_ = nullptr;

// The rows of tests/data/grammar/lookup.tsv.
TEST_F(LookupTest, TokensLeadToTheirRowsNode) {
  for (const std::string& line : testsupport::dataLines(testsupport::readDataFile("grammar/lookup.tsv"))) {
    const std::vector<std::string> row = testsupport::splitFields(line);
    ASSERT_EQ(row.size(), 6u) << line;
    bool flag = true, retried = false;
    std::string key;
    ParserTreeNode* found =
        lookupToken(node(row[0]), testsupport::unescaped(row[1]), flag, key, row[2] == "yes", &retried);
    EXPECT_FALSE(flag) << line;
    const std::vector<std::string> actual = {row[0], row[1], row[2], found == nullptr ? "-" : found->firstKeyword(),
                                             key, retried ? "yes" : "no"};
    EXPECT_EQ(testsupport::joinFields(actual), line);
  }
}

TEST_F(LookupTest, AmbiguousAbbreviationLeavesCommonPrefixWithoutCatchAll) {
  // Under "opt" nothing catches all: an ambiguous word returns null and the
  // common prefix is what completion may fill in.
  ParserTreeNode* opt = node("opt");
  std::string key;
  bool flag = false;
  EXPECT_EQ(findAbbreviation(opt, "t", key), opt->mOptions["third"]);
  opt->mVisitedOptions.clear();
  key.clear();
  EXPECT_EQ(lookup(opt, "zz", flag, key, true), nullptr);
  EXPECT_TRUE(key.empty());
}

TEST_F(LookupTest, AnglePlaceholdersAreTriedBeforeBareOnes) {
  ParserTreeNode* u = node("u");
  EXPECT_EQ(findChild(u, "4294967295"), u->mChildren.at("<anything>"))
      << "angle placeholders are tried before bare ones";
}

TEST_F(LookupTest, ZeroIntoARangeThrowsOutOfRangeIntended) {
  bool flag = false;
  std::string key;
  EXPECT_THROW(lookupToken(node("t"), "0", flag, key, false, nullptr), std::out_of_range);
  // "ethernet" style words never reach the range, so nothing is thrown.
  EXPECT_NO_THROW(lookupToken(node("t"), "loopback", flag, key, false, nullptr));
}

TEST_F(LookupTest, OptionsAreTakenOnceAndConflictsCountAsUsed) {
  ParserTreeNode* opt = node("opt");
  opt->mVisitedOptions.clear();
  ParserTreeNode* third = opt->mOptions["third"];
  EXPECT_EQ(enterOption(opt, "third", third), third);
  EXPECT_EQ(enterOption(opt, "third", third), nullptr) << "the same option a second time is refused";
  ParserTreeNode* first = opt->mOptions["first"];
  EXPECT_EQ(enterOption(opt, "first", first), first);
  EXPECT_EQ(opt->mVisitedOptions.count("second"), 1u) << "taking first uses up the options it excludes";
  EXPECT_EQ(enterOption(opt, "second", opt->mOptions["second"]), nullptr);
  opt->mVisitedOptions.clear();
}

TEST_F(LookupTest, RepeatedLiteralOptionIsFoundAgainByTheBarePatternStepIntended) {
  // A refused option skips the complex children, but the bare-placeholder
  // step compares every keyword with the token, and a literal equals itself:
  // the option is returned again, without the option check.
  ParserTreeNode* opt = node("opt");
  opt->mVisitedOptions.clear();
  EXPECT_EQ(winner(opt, "first"), "first");
  EXPECT_EQ(winner(opt, "first"), "first");
  EXPECT_EQ(winner(opt, "second"), "second") << "an excluded literal option is found the same way";
  opt->mVisitedOptions.clear();
}

TEST_F(LookupTest, InterfaceWordsAndNodeStatus) {
  EXPECT_FALSE(hasInterfaceWords(node("t"))) << "the table is not named interfacefile.cfm";
  ParserTreeNode* opt = node("opt");
  ParserTreeNode* first = opt->mOptions["first"];
  EXPECT_EQ(nodeStatus(first), 1);
  EXPECT_EQ(nodeStatus(first->mChildren.at("\n")), 0);
}

}  // namespace
