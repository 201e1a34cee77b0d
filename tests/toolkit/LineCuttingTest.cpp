#include <gtest/gtest.h>

#include <list>
#include <memory>
#include <string>
#include <vector>

#include "toolkit/ParserToolCase.h"

namespace {

using qxparser::ParserToolCase;
using Words = std::vector<std::string>;

TEST(SplitStringTest, VectorFormCutsLikeStrtok) {
  struct Row {
    std::string text, separators;
    Words expected;
  };
  const std::vector<Row> rows = {
      {"", " ", {}},
      {"   ", " ", {}},
      {"  a  b ", " ", {"a", "b"}},
      {"|a|b||c|", "|", {"a", "b", "c"}},
      {"a,b;;c", ",;", {"a", "b", "c"}},
      {"a b", "", {"a b"}},
      {std::string("a b\0c d", 7), " ", {"a", "b"}},    // the text ends at its first NUL
      {"axbyc", std::string("x\0y", 3), {"a", "byc"}},  // and so do the separators
  };
  for (const Row& row : rows) {
    Words out = {"stale"};
    ParserToolCase::splitString(row.text, row.separators, out);
    EXPECT_EQ(out, row.expected) << "\"" << row.text << "\"";
  }
}

TEST(SplitStringTest, ListFormAppendsWordsTheCallerOwns) {
  std::list<std::string*> out;
  out.push_back(new std::string("kept"));
  ParserToolCase::splitString("k/o//mb", "/", out);
  ParserToolCase::splitString("", "/", out);
  Words words;
  for (std::string* w : out) {
    words.push_back(*w);
    delete w;
  }
  EXPECT_EQ(words, (Words{"kept", "k", "o", "mb"}));
}

TEST(DivideStringTest, CutsBehindTheLastBar) {
  struct Row {
    std::string text, left, right;
  };
  const std::vector<Row> rows = {
      {"a|b|c", "a|b|", "c"},        {"a|", "a|", ""}, {"abc", "", "abc"}, {"", "", ""},
      {"!x|y", "!x|y", "unchanged"},  // a closing line is never cut; right is left alone
  };
  for (const Row& row : rows) {
    std::string left = "stale";
    std::string right = "unchanged";
    ParserToolCase::divideString(row.text, left, right);
    EXPECT_EQ(left, row.left) << row.text;
    EXPECT_EQ(right, row.right) << row.text;
  }
}

TEST(ParseCmdLineTest, FiveFields) {
  struct Row {
    std::string line, a, b, c, d, e;
  };
  const std::vector<Row> rows = {
      {"a||c|d", "a", " ", "c", "", "d"},
      {"a|||d", "a", " ", " ", "", "d"},
      {"x|y", "x", "", "", "", "y"},
      {"no bar at all", "", "", "", "", "no bar at all"},
      {"  \t  ", "", "", "", "", ""},
      {"", "", "", "", "", ""},
      {"\t Interface|Help TEXT|K/O|Txt|&Sub.cfm @Int Int.cfm", "interface", "help text", "k/o", "txt",
       "&Sub.cfm @Int Int.cfm"},
      {"a\tb|c", "a b", "", "", "", "c"},
      {"a|b|c|d|dropped|E", "a", "b", "c", "d", "E"},
      {"|x|y", "x", "", "", "", "y"},  // a leading bar yields nothing
      {"||x", " ", "", "", "", "x"},
      {"!", "!", "", "", "", ""},
      {"! Close|Y|z", "! close", "y", "z", "", ""},  // a closing line is all left part
  };
  for (const Row& row : rows) {
    std::string a = "s", b = "s", c = "s", d = "s", e = "s";
    ParserToolCase::parseCmdLine(row.line, a, b, c, d, e);
    EXPECT_EQ(a, row.a) << row.line;
    EXPECT_EQ(b, row.b) << row.line;
    EXPECT_EQ(c, row.c) << row.line;
    EXPECT_EQ(d, row.d) << row.line;
    EXPECT_EQ(e, row.e) << row.line;
  }
}

TEST(TestOptionTokenTest, Brackets) {
  struct Row {
    std::string token, inner;
    bool open, close;
  };
  const std::vector<Row> rows = {
      {"[x]", "x", true, true},   {"[x", "x", true, false},
      {"x]", "x", false, true},   {"<1-10>", "<1-10>", false, false},
      {"a[b]c", "b", true, true}, {"]x[", "", true, true},
      {"", "", false, false},
  };
  for (const Row& row : rows) {
    std::string inner = "stale";
    bool open = !row.open;
    bool close = !row.close;
    ParserToolCase::testOptionToken(row.token, inner, open, close);
    EXPECT_EQ(inner, row.inner) << row.token;
    EXPECT_EQ(open, row.open) << row.token;
    EXPECT_EQ(close, row.close) << row.token;
  }
}

TEST(PlaceholderFormTest, AngleBrackets) {
  EXPECT_TRUE(ParserToolCase::isPvFormStr("<1-10>"));
  EXPECT_TRUE(ParserToolCase::isPvFormStr("<>"));
  EXPECT_FALSE(ParserToolCase::isPvFormStr("<"));
  EXPECT_FALSE(ParserToolCase::isPvFormStr(""));
  std::string out;
  ParserToolCase::getVarFromPvFormStr("<1-10>", out);
  EXPECT_EQ(out, "1-10");
  EXPECT_EQ(ParserToolCase::string2Lower("AbC-1|X"), "abc-1|x");
}

}  // namespace
