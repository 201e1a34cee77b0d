#include <gtest/gtest.h>

#include <list>
#include <map>
#include <memory>
#include <string>

#include "support/TestFiles.h"
#include "results/DRResultTree.h"
#include "results/SyntaxStringBuilder.h"
#include "support/CaseFile.h"

namespace {

using testsupport::scratchFolder;
using testsupport::writeFile;

std::unique_ptr<DRResultTree> treeOf(const std::string& content) {
  static int serial = 0;
  std::string path = scratchFolder("results-tree") + "r" + std::to_string(++serial) + ".txt";
  writeFile(path, content);
  return std::make_unique<DRResultTree>(path);
}

// The lines of tests/data/results/line_forms.txt.
TEST(LineFormatTest, ParsesEveryForm) {
  for (const testsupport::Case& c : testsupport::readCases("results/line_forms.txt")) {
    LineFormat f(c["line"]);
    EXPECT_EQ(std::to_string(f.mLineNumber) + "|" + std::to_string(f.mLineCount) + "|" + std::to_string(f.mTagKind) +
                  "|" + f.mText,
              c["parsed"])
        << c.where();
    EXPECT_EQ(f.mChildren, nullptr);
  }
}

// The result files of tests/data/results/result_trees.txt: their tree and
// the syntax string built from it.
TEST(DRResultTreeTest, ReadsGroups) {
  for (const testsupport::Case& c : testsupport::readCases("results/result_trees.txt")) {
    auto tree = treeOf(c["file"]);
    testsupport::expectSection(c, "dump", tree->dump());
    if (!c.has("syntax")) continue;
    std::string text = c.get("syntax before");
    std::list<int> closeLines;
    for (const std::string& line : testsupport::splitFields(c.get("close lines before"), ' ')) {
      if (!line.empty()) closeLines.push_back(std::stoi(line));
    }
    int counter = std::stoi(c.get("counter before", "0"));
    EXPECT_TRUE(results::buildSyntaxStringFromTree(tree.get(), 0, text, closeLines, counter)) << c.where();
    EXPECT_EQ(text, c["syntax"]) << c.where();
    std::string lines;
    for (int line : closeLines) lines += (lines.empty() ? "" : " ") + std::to_string(line);
    EXPECT_EQ(lines, c["close lines"]) << c.where();
    EXPECT_EQ(std::to_string(counter), c["counter"]) << c.where();
  }
}

TEST(DRResultTreeTest, MissingFileGivesEmptyTree) {
  DRResultTree tree(scratchFolder("results-missing") + "nothing.txt");
  EXPECT_TRUE(tree.isEmpty());
  EXPECT_TRUE(treeOf("")->isEmpty());
  EXPECT_FALSE(treeOf("x\n")->isEmpty());
}

TEST(DRResultTreeTest, GetAllLinesKeepsFirstTextAndSkipsUnnumbered) {
  auto first = treeOf("free\n0:::zero\n5:::p !#tag##LineNumbers#2\n6:::a\n12:::first\n");
  auto second = treeOf("12:::second\n13:::b\n");
  std::map<int, std::string> lines{{6, "kept"}};
  first->getAllLines(lines);
  second->getAllLines(lines);
  const std::map<int, std::string> expected{{5, "p"}, {6, "kept"}, {12, "first"}, {13, "b"}};
  EXPECT_EQ(lines, expected);
}

TEST(SyntaxStringTest, NullTreeIsFalse) {
  std::string text;
  std::list<int> closeLines;
  int counter = 0;
  EXPECT_FALSE(results::buildSyntaxStringFromTree(nullptr, 0, text, closeLines, counter));
  EXPECT_EQ(text, "");
  EXPECT_EQ(counter, 0);
}

}  // namespace
