#include <gtest/gtest.h>

#include <list>
#include <map>
#include <memory>
#include <string>

#include "TestFiles.h"
#include "results/DRResultTree.h"
#include "results/SyntaxStringBuilder.h"
#include "support/CaseFile.h"

namespace {

using resultstest::freshFolder;
using resultstest::writeFile;

std::unique_ptr<DRResultTree> treeOf(const std::string& content) {
  static int serial = 0;
  std::string path = freshFolder("results-tree") + "r" + std::to_string(++serial) + ".txt";
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

TEST(LineFormatTest, MarkerAtStartStaysInTextIntended) {
  LineFormat f("5:::!#tag#xyz#LineNumbers#3");
  EXPECT_EQ(f.mText, "!#tag#xyz#LineNumbers#3 !xyz");
  EXPECT_EQ(f.mLineCount, 3);
  EXPECT_EQ(f.mTagKind, LineTagOpen);
}

TEST(LineFormatTest, CountTakenAtPositionTwelveWhenOnlyCountStandsInFrontIntended) {
  LineFormat f("9:::0123456789ab42#LineNumbers# !#tag#z");
  EXPECT_EQ(f.mText, "0123456789ab42#LineNumbers# !z");
  EXPECT_EQ(f.mLineCount, 42);
  EXPECT_EQ(f.mTagKind, LineTagOpen);
}

// The result files of tests/data/results/result_trees.txt.
TEST(DRResultTreeTest, ReadsGroups) {
  for (const testsupport::Case& c : testsupport::readCases("results/result_trees.txt")) {
    EXPECT_EQ(treeOf(c["file"])->dump(), c["dump"]) << c.where();
  }
}

TEST(DRResultTreeTest, LineHandedBackIsTakenPastCountIntended) {
  // The inner group (line 2, reach 3) hands line 6 back when the outer group
  // has taken its five lines already; the outer group takes it all the same.
  auto tree = treeOf(
      "1:::h !#tag##LineNumbers#5\n2:::a\n3:::b\n4:::c\n5:::d\n2:::x !#tag##LineNumbers#1\n6:::y\n7:::z\n");
  EXPECT_EQ(tree->dump(),
            "1|5|1|h\n  2|0|0|a\n  3|0|0|b\n  4|0|0|c\n  5|0|0|d\n  2|1|1|x\n  6|0|0|y\n7|0|0|z\n");
}

TEST(DRResultTreeTest, MissingFileGivesEmptyTree) {
  DRResultTree tree(freshFolder("results-missing") + "nothing.txt");
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

TEST(SyntaxStringTest, BlocksSeparatorsAndCloseLines) {
  struct Row {
    const char* name;
    std::string file;
    std::string textBefore;
    std::list<int> closeBefore;
    int counterBefore;
    std::string text;
    std::list<int> closeLines;
    int counter;
  };
  const Row rows[] = {
      // The separator behind "plain" is not counted: the counter runs one behind.
      {"blocks and separators", "1:::a !#tag_close#x#LineNumbers#1\n2:::b\nplain\n3:::c\n", "", {}, 0,
       "a !x\r\nb\r\n!\r\nplain\r\n!\r\nc\r\n!\r\n", {1}, 6},
      {"adds to the caller's text and counter", "4:::x\n5:::y !#tag_close##LineNumbers#0\n", "head\r\n", {99}, 10,
       "head\r\n!\r\nx\r\n!\r\ny\r\n!\r\n", {99, 13}, 14},
      {"a closed tag below the top level is not named",
       "1:::a !#tag#x#LineNumbers#2\n2:::b !#tag_close#y#LineNumbers#1\n3:::c\n", "", {}, 0,
       "a !x\r\nb !y\r\nc\r\n!\r\n", {}, 4},
  };
  for (const Row& row : rows) {
    auto tree = treeOf(row.file);
    std::string text = row.textBefore;
    std::list<int> closeLines = row.closeBefore;
    int counter = row.counterBefore;
    EXPECT_TRUE(results::buildSyntaxStringFromTree(tree.get(), 0, text, closeLines, counter)) << row.name;
    EXPECT_EQ(text, row.text) << row.name;
    EXPECT_EQ(closeLines, row.closeLines) << row.name;
    EXPECT_EQ(counter, row.counter) << row.name;
  }
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
