#include <gtest/gtest.h>

#include <list>
#include <memory>
#include <string>
#include <vector>

#include "toolkit/ParserToolCase.h"

namespace {

using qxparser::ParserToolCase;
using Words = std::vector<std::string>;

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
