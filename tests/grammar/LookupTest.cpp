#include <gtest/gtest.h>

#include <stdexcept>

#include "grammar/DefinitionLoader.h"
#include "grammar/NodeLookup.h"
#include "grammar/ParserTree.h"
#include "support/TestResources.h"

using namespace qxparser;

namespace {

// One grammar with competing branches under "t", to see who wins.
const char* kGrammar =
    "t|test|k||\n"
    "  access|literal access|k||\n"
    "  !\n"
    "  aaa|literal aaa|k||\n"
    "  !\n"
    "  <1-10>|a range|k||\n"
    "  !\n"
    "  a.b.c.d|an address|k||\n"
    "  !\n"
    "  &ifs.cfm|an interface|k||\n"
    "  !\n"
    "  word|any word|||\n"
    "  !\n"
    "!\n"
    "u|unknown|k||\n"
    "  <anything>|accepts all|||\n"
    "  !\n"
    "  id|a number|||\n"
    "  !\n"
    "!\n"
    "opt|options|k||\n"
    "  first|f|k/ob/cf|second|\n"
    "    <cr>|||||\n"
    "    !\n"
    "  !\n"
    "  second|s|k/ob||\n"
    "    <cr>|||||\n"
    "    !\n"
    "  !\n"
    "  third|th|k/ob||\n"
    "    <cr>|||||\n"
    "    !\n"
    "  !\n"
    "!\n";

class LookupTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    testsupport::useResources(testsupport::writeResources(
        "lookup", {{"main.cfm", kGrammar}, {"keyfiles/ifs.cfm", "ethernet|e\nloopback|l\n<0-7>|unit\n"}}));
    loadKeyFiles();
    tree_ = new ParserTree("main.cfm", true);
  }
  static void TearDownTestSuite() { delete tree_; }
  static ParserTreeNode* node(const std::string& key) { return tree_->mRoot->mChildren.at(key); }

  // The key of the child that `token` leads to under `parent`, or "-".
  static std::string winner(ParserTreeNode* parent, const std::string& token, bool abbreviate,
                            std::string* keyOut = nullptr) {
    bool flag = true;
    std::string key;
    ParserTreeNode* found = lookupToken(parent, token, flag, key, abbreviate, nullptr);
    EXPECT_FALSE(flag);
    if (keyOut) *keyOut = key;
    if (!found) return "-";
    return found->firstKeyword();
  }
  static ParserTree* tree_;
};

ParserTree* LookupTest::tree_ = nullptr;

TEST_F(LookupTest, PrecedenceLiteralTableAnglePlaceholderBareCatchAll) {
  struct Row {
    const char* token;
    const char* expected;
  } rows[] = {
      {"access", "access"},        // literal beats everything
      {"ethernet", "&ifs.cfm"},    // table word beats the catch-all
      {"5", "&ifs.cfm"},           // a table placeholder <0-7> beats the <1-10> placeholder
      {"9", "<1-10>"},             // angle placeholder
      {"10.0.0.1", "a.b.c.d"},     // bare placeholder; the range refuses an address
      {"zzz", "word"},             // catch-all last
      {"ETHERNET", "word"},        // the catch-all takes it before the lower-case pass
      {"\n", "-"},                 // a newline is never swallowed by the catch-all
  };
  for (const Row& row : rows) EXPECT_EQ(winner(node("t"), row.token, false), row.expected) << row.token;
}

TEST_F(LookupTest, AbbreviationCommonPrefixAndFullWord) {
  std::string key;
  EXPECT_EQ(winner(node("t"), "ac", true, &key), "access");
  EXPECT_EQ(key, "access");
  // "a" abbreviates access and aaa: ambiguous, the key is the common prefix,
  // and the catch-all still takes the word.
  EXPECT_EQ(winner(node("t"), "a", true, &key), "word");
  EXPECT_EQ(key, "a");
  EXPECT_EQ(winner(node("t"), "aa", true, &key), "aaa");
  EXPECT_EQ(winner(node("t"), "ac", false, &key), "word") << "without abbreviation only whole words and patterns";
  EXPECT_EQ(winner(node("t"), "lo", true, &key), "&ifs.cfm") << "table words abbreviate too";
  EXPECT_EQ(key, "loopback");
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

TEST_F(LookupTest, UnknownAngleAcceptsAllBareAcceptsOnlyItsForm) {
  EXPECT_EQ(winner(node("u"), "x-y", false), "<anything>");
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
  EXPECT_EQ(winner(opt, "first", false), "first");
  EXPECT_EQ(winner(opt, "first", false), "first");
  EXPECT_EQ(winner(opt, "second", false), "second") << "an excluded literal option is found the same way";
  opt->mVisitedOptions.clear();
}

TEST_F(LookupTest, RetryFlagIsSetOnlyForAMissWithoutKey) {
  bool flag = false, retried = false;
  std::string key;
  EXPECT_EQ(lookupToken(node("opt"), "nothing", flag, key, false, &retried), nullptr);
  EXPECT_TRUE(retried);
  EXPECT_NE(lookupToken(node("t"), "access", flag, key, false, &retried), nullptr);
  EXPECT_FALSE(retried);
}

TEST_F(LookupTest, InterfaceWordsAndNodeStatus) {
  EXPECT_FALSE(hasInterfaceWords(node("t"))) << "the table is not named interfacefile.cfm";
  ParserTreeNode* opt = node("opt");
  ParserTreeNode* first = opt->mOptions["first"];
  EXPECT_EQ(nodeStatus(first), 1);
  EXPECT_EQ(nodeStatus(first->mChildren.at("\n")), 0);
}

}  // namespace
