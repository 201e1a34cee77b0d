#include <gtest/gtest.h>

#include "grammar/DefinitionLoader.h"
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

}  // namespace
