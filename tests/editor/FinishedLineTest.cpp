// Keys that reach the editor in mode 1 after the line has ended (no new line
// was started): they edit the finished line, newline included, and never bring
// back text that an earlier kill left behind the end of the line.
#include "EditorFixture.h"

using editortest::EditorTest;

namespace {

class FinishedLineTest : public EditorTest {};

TEST_F(FinishedLineTest, EditAfterTheNewlineKeepsTheLineEnd) {
  struct Row {
    const char* name;
    std::string before;  // mode 0, ends the line
    std::string after;   // mode 1, on the finished line
    std::string line;
  };
  const Row rows[] = {
      {"a letter", "abcdefgh\x01\x0bxy\r", "z", "xyz\n"},
      {"a yank", "abcdefgh\x01\x0bxy\r", "\x19", "xyabcdefgh\n"},
      {"two newlines", "ab\r", "\r", "ab\n\n"},
      {"a deletion", "abcdef\x01\x0bxy\r", "\x08", "x\n"},
  };
  for (const Row& row : rows) {
    start();
    feed(row.before, 0);
    ASSERT_TRUE(ed->getNewLine()) << row.name;
    feed(row.after, 1);
    EXPECT_EQ(line(), row.line) << row.name;
  }
}

}  // namespace
