// Definition files the loader must survive: levels still open at the end of a
// file end with it, so the lines of a file that links such a file stay where
// they belong; a link that names a path instead of a file is refused.
#include <gtest/gtest.h>

#include <memory>

#include "grammar/DefinitionLoader.h"
#include "grammar/NodePool.h"
#include "grammar/ParserException.h"
#include "grammar/ParserTree.h"
#include "support/TestResources.h"

using namespace qxparser;

namespace {

std::unique_ptr<ParserTree> loadMain(const std::map<std::string, std::string>& files) {
  testsupport::useResources(testsupport::writeResources("open_levels", files));
  loadKeyFiles();
  return std::make_unique<ParserTree>("main.cfm", true);
}

TEST(LoaderOpenLevelsTest, LevelsLeftOpenByALinkedFileEndWithIt) {
  auto tree = loadMain({{"main.cfm",
                         "router|r|k||@router sub.cfm\n"
                         "!\n"
                         "hostname|h|k||\n"
                         "!\n"},
                        {"sub.cfm",
                         "network|n|k||\n"
                         "  area|a|k||\n"}});
  ParserTreeNode* root = tree->mRoot;
  ASSERT_EQ(root->mChildren.count("router"), 1u);
  ParserTreeNode* router = root->mChildren["router"];
  EXPECT_EQ(root->mChildren.count("hostname"), 1u) << "the line after the link belongs to the top file's root";
  EXPECT_EQ(router->mChildren.count("hostname"), 0u);
  EXPECT_EQ(router->mChildren.count("network"), 1u);
  EXPECT_TRUE(tree->mNodeStack.empty());
}

TEST(LoaderOpenLevelsTest, TopFileWithOpenLevelsLeavesNoOpenNode) {
  for (const char* text : {"a|h|k||\n", "a|h|k||\n  b|h|k||\n    c|h|k||\n", "a|h|k||\n!\nb|h|k||\n"}) {
    auto tree = loadMain({{"main.cfm", text}});
    EXPECT_TRUE(tree->mNodeStack.empty()) << text;
    EXPECT_EQ(tree->mRoot->mChildren.count("a"), 1u) << text;
  }
}

TEST(LoaderOpenLevelsTest, LinksNamingAPathAreRefused) {
  const std::string table[] = {
      "a|h|k||@x ../../../../../../../../dev/zero\n!\n",
      "a|h|k||@x /dev/zero\n!\n",
      "a|h|k||&../files/main.cfm\n!\n",
      "a|h|k||&sub\\main.cfm\n!\n",
  };
  for (const std::string& text : table) {
    try {
      loadMain({{"main.cfm", text}});
      ADD_FAILURE() << "loaded: " << text;
    } catch (const ParserException& e) {
      EXPECT_NE(e.text().find("is not a file name of the definition folder"), std::string::npos) << e.text();
      EXPECT_EQ(e.text().rfind("main.cfm:1: ", 0), 0u) << e.text();
    }
  }
}

TEST(LoaderOpenLevelsTest, ReleasedPoolHandsOutFreshNodes) {
  auto first = loadMain({{"main.cfm", "a|h|k||\n!\n"}});
  first.reset();
  clearLoaderTables();
  NodePool::releaseAll();
  EXPECT_EQ(NodePool::used(), 0u);
  auto second = loadMain({{"main.cfm", "b|h|k||\n!\n"}});
  EXPECT_EQ(second->mRoot->mChildren.count("a"), 0u) << "a released node keeps nothing of its last use";
  EXPECT_EQ(second->mRoot->mChildren.count("b"), 1u);
  EXPECT_EQ(NodePool::used(), 2u);
}

}  // namespace
