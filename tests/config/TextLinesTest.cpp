// TextLines against LineWalk: every line found by number, in any order, is
// the line the walk finds, with the same count of empty lines before it; and
// both end at the same line. On texts with carriage returns, runs of empty
// lines at the start, inside and at the end, a last line without its end,
// and on every file of the public corpus.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ShippedGrammar.h"
#include "config/TextLines.h"

namespace qxparser {
namespace {

void checkLines(const std::string& text, const std::string& where) {
  SCOPED_TRACE(where);
  const TextLines lines(text);
  LineWalk walk(text);
  std::vector<std::string_view> walkedLines;
  int number = 1;
  for (ReadLine walked; walk.find(number, walked); ++number) {
    walkedLines.push_back(std::string_view(text).substr(walked.start, walked.length));
    std::string_view line;
    ASSERT_TRUE(lines.find(number, line)) << "line " << number;
    EXPECT_EQ(line, walkedLines.back()) << "line " << number;
    EXPECT_EQ(lines.emptyBefore(number), walked.emptyBefore) << "line " << number;
  }
  std::string_view past;
  EXPECT_FALSE(lines.find(number, past));
  EXPECT_FALSE(lines.find(0, past));
  // Backwards as well: a TextLines keeps no position.
  for (int back = number - 1; back >= 1; --back) {
    std::string_view line;
    ASSERT_TRUE(lines.find(back, line));
    EXPECT_EQ(line, walkedLines[static_cast<size_t>(back) - 1]) << "line " << back;
  }
}

TEST(TextLinesTest, FindsTheLinesTheWalkFinds) {
  const std::vector<std::string> texts = {
      "",
      "\n\n\r\n",
      "\n\nhostname r1\r\n\r\n\r\ninterface Gi0/1\n\n\n shutdown",
      "banner motd ^C\nline one\n\n\r\n  line two\r\r\n^C\n\n",
      "one\rtwo\r\rthree\n\rfour\n",
  };
  for (size_t at = 0; at < texts.size(); ++at) checkLines(texts[at], "text " + std::to_string(at));
}

TEST(TextLinesTest, FindsTheLinesTheWalkFindsOverTheCorpus) {
  const std::vector<CorpusFile> files = corpusFiles();
  if (files.empty()) GTEST_SKIP() << "corpus folder " << corpusFolder() << " absent";
  for (const CorpusFile& file : files) checkLines(file.text, file.name);
}

}  // namespace
}  // namespace qxparser
