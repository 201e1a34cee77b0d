#include <gtest/gtest.h>

#include "grammar/DefinitionLoader.h"
#include "grammar/NodeLookup.h"
#include "grammar/NodePool.h"
#include "grammar/ParserException.h"
#include "grammar/ParserTree.h"
#include "support/TestResources.h"

using namespace qxparser;

namespace {

// Loads `main.cfm` (and whatever else is given) from a scratch folder.
class LoaderTest : public ::testing::Test {
 protected:
  ParserTreeNode* load(const std::map<std::string, std::string>& files, const std::string& top = "main.cfm") {
    tree_.reset();  // the old tree goes before the tables it was loaded with
    testsupport::useResources(testsupport::writeResources("loader", files));
    loadKeyFiles();
    tree_ = std::make_unique<ParserTree>(top, true);
    return tree_->mRoot;
  }
  std::unique_ptr<ParserTree> tree_;
};

ParserTreeNode* child(ParserTreeNode* n, const std::string& key) {
  auto it = n->mChildren.find(key);
  return it == n->mChildren.end() ? nullptr : it->second;
}

TEST_F(LoaderTest, EveryLineOpensALevelAndCrIsANewlineKey) {
  ParserTreeNode* root = load({{"main.cfm",
                                "hostname|Set Name|k/o||\n"
                                "  <name>|the name|||\n"
                                "    <cr>|||||\n"
                                "    !\n"
                                "  !\n"
                                "!\n"}});
  ParserTreeNode* hostname = child(root, "hostname");
  ASSERT_NE(hostname, nullptr);
  EXPECT_EQ(hostname->mFlags, NODE_FLAG_K | NODE_FLAG_O);
  EXPECT_EQ(root->mHelp["hostname"], "set name") << "help is lower-cased";
  EXPECT_EQ(hostname->mParent, root);
  ParserTreeNode* name = child(hostname, "<name>");
  ASSERT_NE(name, nullptr);
  ParserTreeNode* cr = child(name, "\n");
  ASSERT_NE(cr, nullptr);
  EXPECT_TRUE(cr->mIsEnd);
  EXPECT_TRUE(root->mEntersMode);
  EXPECT_TRUE(tree_->mNodeStack.empty());
}

TEST_F(LoaderTest, SecondLineWithSameTokenExtendsTheFirstNode) {
  ParserTreeNode* root = load({{"main.cfm",
                                "ip|first help|k||\n"
                                "  route|r|k||\n"
                                "  !\n"
                                "!\n"
                                "ip|second help|a||\n"
                                "  domain|d|k||\n"
                                "  !\n"
                                "!\n"}});
  ParserTreeNode* ip = child(root, "ip");
  ASSERT_NE(ip, nullptr);
  EXPECT_EQ(root->mHelp["ip"], "first help");
  EXPECT_EQ(ip->mFlags, NODE_FLAG_K) << "the second line's flags are dropped";
  EXPECT_NE(child(ip, "route"), nullptr);
  EXPECT_NE(child(ip, "domain"), nullptr);
}

TEST_F(LoaderTest, SecondCrLineReplacesTheFirstIntended) {
  // The stored key of <cr> is a newline, so a later "<cr>" line is not found
  // again by its written token and makes a new node.
  ParserTreeNode* root = load({{"main.cfm",
                                "end|e|k||\n"
                                "  <cr>|first||\n"
                                "  !\n"
                                "  <cr>|second||\n"
                                "  !\n"
                                "!\n"}});
  ParserTreeNode* end = child(root, "end");
  ASSERT_EQ(end->mChildren.size(), 1u);
  EXPECT_EQ(end->mHelp["\n"], "second");
}

TEST_F(LoaderTest, OptionalBracketsAndComplexBlocks) {
  ParserTreeNode* root = load({{"main.cfm",
                                "show|s|k||\n"
                                "  [detail|d|k||\n"
                                "  !\n"
                                "  [brief]|b|||\n"
                                "  !\n"
                                "  #|x|ob||\n"
                                "  alpha|first word\n"
                                "  beta|second word\n"
                                "  #|\n"
                                "  !\n"
                                "!\n"}});
  ParserTreeNode* show = child(root, "show");
  ASSERT_NE(show, nullptr);
  EXPECT_EQ(show->mOptionalChildren.count("detail"), 1u);
  EXPECT_EQ(show->mOptionalChildren["brief"], show) << "[x] makes the node its own optional child";
  ASSERT_EQ(show->mOptions.size(), 1u);
  ParserTreeNode* complex = show->mOptions.begin()->second;
  EXPECT_EQ(show->mOptions.begin()->first.rfind("complex_node_", 0), 0u);
  EXPECT_TRUE(complex->mIsComplex);
  EXPECT_TRUE(complex->mIsOption);
  EXPECT_EQ(complex->mKeywords.size(), 2u);
  EXPECT_EQ(show->mChildren.count("alpha"), 0u) << "block words are not keys of the parent";
  bool flag = false;
  std::string key;
  EXPECT_EQ(lookupToken(show, "detail", flag, key, false, nullptr), nullptr) << "optional children are not walked";
}

TEST_F(LoaderTest, IncludeIsLoadedOnceAndReplacesTheMaps) {
  ParserTreeNode* root = load({{"main.cfm",
                                "a|a|k||\n"
                                "  old|o|k||\n"
                                "  !\n"
                                "!\n"
                                "a|a|k||&shared.cfm\n"
                                "!\n"
                                "b|b|k||&shared.cfm\n"
                                "!\n"},
                               {"shared.cfm",
                                "word1|w|k||\n"
                                "!\n"}});
  ParserTreeNode* a = child(root, "a");
  ParserTreeNode* b = child(root, "b");
  ASSERT_TRUE(a && b);
  EXPECT_EQ(a->mChildren.count("old"), 0u) << "an include replaces what the node held";
  ASSERT_EQ(a->mChildren.count("word1"), 1u);
  EXPECT_EQ(a->mChildren["word1"], b->mChildren["word1"]) << "included children are shared";
  ASSERT_EQ(gSharedGrammars().count("shared.cfm"), 1u);
  EXPECT_FALSE(gSharedGrammars()["shared.cfm"]->mEntersMode);
}

TEST_F(LoaderTest, ModeLinkLoadsTheFileOncePerTreeAndSetsPrompt) {
  ParserTreeNode* root = load({{"main.cfm",
                                "interface|i|k||\n"
                                "  <name>|n|k||\n"
                                "    <cr>||||@(config-if)# sub.cfm\n"
                                "    !\n"
                                "  !\n"
                                "!\n"
                                "line|l|k||\n"
                                "  <cr>||||@(config-line)# sub.cfm\n"
                                "  !\n"
                                "!\n"},
                               {"sub.cfm",
                                "shutdown|s|k||\n"
                                "  <cr>|||||\n"
                                "  !\n"
                                "!\n"}});
  ParserTreeNode* cr = child(child(child(root, "interface"), "<name>"), "\n");
  ASSERT_NE(cr, nullptr);
  EXPECT_TRUE(cr->mEntersMode);
  EXPECT_EQ(cr->mModeName, "(config-if)#");
  EXPECT_EQ(cr->mFileName, "sub.cfm");
  EXPECT_EQ(gPromptSuffixes()[cr], "(config-if)#");
  ParserTreeNode* lineCr = child(child(root, "line"), "\n");
  EXPECT_EQ(cr->mChildren["shutdown"], lineCr->mChildren["shutdown"]);
  EXPECT_EQ(tree_->mFiles.size(), 1u);
  EXPECT_EQ(gModeFileNames(), std::vector<std::string>{"sub.cfm"});
}

TEST_F(LoaderTest, LoopEndLinksBackToItsBegin) {
  ParserTreeNode* root = load({{"main.cfm",
                                "description|d|k||\n"
                                "  line|text|lb/le/wa||\n"
                                "    <cr>|||||\n"
                                "    !\n"
                                "  !\n"
                                "!\n"
                                "vlan|v|k||\n"
                                "  <1-4094>|id|lb||\n"
                                "    ,|more|le||\n"
                                "    !\n"
                                "  !\n"
                                "!\n"}});
  ParserTreeNode* text = child(child(root, "description"), "line");
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(child(text, "line"), text) << "lb and le on one node: a loop on itself";
  ParserTreeNode* id = child(child(root, "vlan"), "<1-4094>");
  ParserTreeNode* comma = child(id, ",");
  ASSERT_NE(comma, nullptr);
  EXPECT_EQ(child(comma, "<1-4094>"), id);
}

TEST_F(LoaderTest, OptionGroupsLinkEveryEndToTheSiblings) {
  ParserTreeNode* root = load({{"main.cfm",
                                "log|l|k||\n"
                                "  transport|t|k/ob||\n"
                                "    udp|u|k/oe||\n"
                                "    !\n"
                                "  !\n"
                                "  vrf|v|k/ob||\n"
                                "    <name>|n|oe||\n"
                                "    !\n"
                                "  !\n"
                                "!\n"}});
  ParserTreeNode* log = child(root, "log");
  ASSERT_EQ(log->mOptions.size(), 2u);
  ParserTreeNode* transport = log->mOptions["transport"];
  ParserTreeNode* vrf = log->mOptions["vrf"];
  ParserTreeNode* udp = child(transport, "udp");
  ParserTreeNode* name = child(vrf, "<name>");
  ASSERT_TRUE(udp && name);
  EXPECT_EQ(udp->mOptions["vrf"], vrf) << "an earlier option's end reaches the later option";
  EXPECT_EQ(name->mOptions["transport"], transport) << "a later option's end reaches the earlier option";
  EXPECT_EQ(vrf->mParent, log);
}

TEST_F(LoaderTest, KeyFilesAreTablesOfLowerCasedWords) {
  load({{"main.cfm", "x|x|k||\n!\n"},
        {"keyfiles/ifs.cfm", "Ethernet|IEEE 802.3\nLoopback|Loopback interface\nonlyoneword\n\nEthernet|again\n"}});
  ASSERT_EQ(gKeyTables().count("&ifs.cfm"), 1u);
  const KeyTable& table = gKeyTables()["&ifs.cfm"];
  EXPECT_EQ(table.size(), 2u);
  EXPECT_EQ(table.at("ethernet"), "again") << "a later line replaces the help";
  EXPECT_EQ(table.count("onlyoneword"), 0u);
}

TEST_F(LoaderTest, MissingTopFileThrowsWithPath) {
  testsupport::useResources(testsupport::writeResources("loader-missing", {}));
  try {
    ParserTree tree("nothing.cfm", true);
    FAIL() << "no exception";
  } catch (const ParserException& e) {
    EXPECT_EQ(std::string(e.what()).rfind("error: can't open file: ", 0), 0u);
    EXPECT_NE(std::string(e.what()).find("nothing.cfm"), std::string::npos);
  }
}

TEST_F(LoaderTest, MalformedFilesFailWithFileAndLine) {
  struct Row {
    const char* text;
    const char* expected;
  } rows[] = {
      {"a|a|k||\n  b]|b|||\n  !\n!\n", "bad.cfm:2: "},
      {"a|a|k||\n!\n!\nb|b|||\n", "bad.cfm:3: "},
      {"a|a|k||@(x)#\n!\n", "bad.cfm:1: "},
      {"a|a|k||&bad.cfm\n!\n", "bad.cfm:1: "},
  };
  for (const Row& row : rows) {
    testsupport::useResources(testsupport::writeResources("loader-bad", {{"bad.cfm", row.text}}));
    try {
      ParserTree tree("bad.cfm", true);
      ADD_FAILURE() << "no exception for: " << row.text;
    } catch (const ParserException& e) {
      EXPECT_EQ(std::string(e.what()).rfind(row.expected, 0), 0u) << e.what();
    }
  }
}

TEST_F(LoaderTest, ConflictListIsLowerCasedCommaList) {
  ParserTreeNode* root = load({{"main.cfm",
                                "speed|s|k||\n"
                                "  auto|a|ob/cf|Full,Half|\n"
                                "  !\n"
                                "!\n"}});
  ParserTreeNode* autoNode = child(root, "speed")->mOptions["auto"];
  ASSERT_NE(autoNode, nullptr);
  EXPECT_EQ(autoNode->mConflicts, (std::set<std::string>{"full", "half"}));
  EXPECT_TRUE(isConflicting(autoNode, "full"));
  EXPECT_FALSE(isConflicting(autoNode, "auto"));
}

// ------------------------------------------------------------ files the loader must survive

// Levels still open at the end of a linked file end with it, so the lines of
// the file that links it stay where they belong.
TEST_F(LoaderTest, LevelsLeftOpenByALinkedFileEndWithIt) {
  ParserTreeNode* root = load({{"main.cfm",
                                "router|r|k||@router sub.cfm\n"
                                "!\n"
                                "hostname|h|k||\n"
                                "!\n"},
                               {"sub.cfm",
                                "network|n|k||\n"
                                "  area|a|k||\n"}});
  ParserTreeNode* router = child(root, "router");
  ASSERT_NE(router, nullptr);
  EXPECT_NE(child(root, "hostname"), nullptr) << "the line after the link belongs to the top file's root";
  EXPECT_EQ(child(router, "hostname"), nullptr);
  EXPECT_NE(child(router, "network"), nullptr);
  EXPECT_TRUE(tree_->mNodeStack.empty());
}

TEST_F(LoaderTest, TopFileWithOpenLevelsLeavesNoOpenNode) {
  for (const char* text : {"a|h|k||\n", "a|h|k||\n  b|h|k||\n    c|h|k||\n", "a|h|k||\n!\nb|h|k||\n"}) {
    ParserTreeNode* root = load({{"main.cfm", text}});
    EXPECT_TRUE(tree_->mNodeStack.empty()) << text;
    EXPECT_NE(child(root, "a"), nullptr) << text;
  }
}

TEST_F(LoaderTest, LinksNamingAPathAreRefused) {
  for (const char* text : {"a|h|k||@x ../../../../../../../../dev/zero\n!\n", "a|h|k||@x /dev/zero\n!\n",
                           "a|h|k||&../files/main.cfm\n!\n", "a|h|k||&sub\\main.cfm\n!\n"}) {
    try {
      load({{"main.cfm", text}});
      ADD_FAILURE() << "loaded: " << text;
    } catch (const ParserException& e) {
      EXPECT_NE(e.text().find("is not a file name of the definition folder"), std::string::npos) << e.text();
      EXPECT_EQ(e.text().rfind("main.cfm:1: ", 0), 0u) << e.text();
    }
  }
}

TEST_F(LoaderTest, ReleasedPoolHandsOutFreshNodes) {
  load({{"main.cfm", "a|h|k||\n!\n"}});
  tree_.reset();
  clearLoaderTables();
  NodePool::releaseAll();
  EXPECT_EQ(NodePool::used(), 0u);
  ParserTreeNode* root = load({{"main.cfm", "b|h|k||\n!\n"}});
  EXPECT_EQ(child(root, "a"), nullptr) << "a released node keeps nothing of its last use";
  EXPECT_NE(child(root, "b"), nullptr);
  EXPECT_EQ(NodePool::used(), 2u);
}

}  // namespace
