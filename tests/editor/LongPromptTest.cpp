// A prompt that takes (almost) the whole screen: the text still scrolls within
// the line and nothing behind the line's end is ever drawn.
#include "EditorFixture.h"

using editortest::EditorTest;

namespace {

class LongPromptTest : public EditorTest {};

TEST_F(LongPromptTest, LongLineBehindAPromptWiderThanTheScreenDrawsOnlyItsText) {
  struct Row {
    const char* prompt;
    int width;
    int keys;
  };
  const Row rows[] = {
      {"Router(config-router-af-topology)#", 21, 200},  // prompt longer than the screen
      {"Router(config-router-af-topology)#", 34, 200},  // prompt exactly as wide
      {"Router(config-if)#", 21, 100},                  // three columns left
      {"R1#", 21, 100},                                 // a normal line, for comparison
  };
  for (const Row& row : rows) {
    start(row.prompt, row.width);
    const std::string typed(static_cast<size_t>(row.keys), 'x');
    const std::string drawn = feed(typed);
    EXPECT_EQ(line(), typed) << row.prompt << " " << row.width;
    EXPECT_EQ(ed->getCursor(), row.keys);
    for (char c : drawn) {
      ASSERT_TRUE(c == 'x' || c == '$' || c == '\b' || c == ' ')
          << "drew byte " << static_cast<int>(static_cast<unsigned char>(c)) << " for " << row.prompt << " "
          << row.width;
    }
    // Moving back to the start and to the end again stays within the text.
    const std::string moved = feed("\x01\x05");
    EXPECT_EQ(moved.find('\0'), std::string::npos) << row.prompt;
  }
}

TEST_F(LongPromptTest, WiderScreenSetBeforeAnyFullDrawKeepsTheDrawInsideTheLine) {
  // Keys in mode 1 from the first one on: no full draw has measured the text
  // width for the new screen, so the width of the default screen meets the
  // scroll step of the wide one.
  ed->Gl_setwidth(255);
  const std::string text(168, 'x');
  const std::string drawn = feed(text + "\x1b\x19\x19", 1);
  EXPECT_EQ(line(), text + text);
  EXPECT_EQ(drawn.find('\0'), std::string::npos);
}

}  // namespace
