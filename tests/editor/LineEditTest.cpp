// Key handling, editing and redraw of the line editor, by exact screen bytes.
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "EditorFixture.h"
#include "support/CaseFile.h"
#include "platform/PlatformOs.h"

namespace editortest {
namespace {

// "key" for the first step of a case, "key 2" for the second, ...
std::string numbered(const std::string& key, int step) {
  return step == 1 ? key : key + " " + std::to_string(step);
}

// The cases of tests/data/editor/keys.txt.
TEST_F(EditorTest, KeysGiveExactScreenBytes) {
  for (const testsupport::Case& c : testsupport::readCases("editor/keys.txt")) {
    SetUp();
    start(c.get("prompt", "R#"), std::stoi(c.get("width", "80")));
    for (const std::string& entry : testsupport::splitFields(c.get("history"), '|')) {
      if (!entry.empty()) ed->Gl_histadd(entry.c_str());
    }
    feed(c.get("before"));
    for (int step = 1; c.has(numbered("keys", step)); ++step) {
      const std::string screen = feed(c[numbered("keys", step)], std::stoi(c.get(numbered("mode", step), "0")));
      const std::map<std::string, std::string> state = {
          {"screen", screen},
          {"beeped", screen.find('\a') != std::string::npos ? "yes" : "no"},
          {"searching", ed->isSearching() ? "yes" : "no"},
          {"line", line()},
          {"cursor", std::to_string(ed->getCursor())},
          {"returned", last == nullptr ? "(null)" : last},
          {"killed", ed->getKillBuffer()},
      };
      for (const auto& [key, value] : state) testsupport::expectSection(c, numbered(key, step), value);
    }
  }
}

TEST_F(EditorTest, ConsoleByteMap) {
  const std::vector<std::pair<unsigned char, int>> rows = {
      {0xAD, 4}, {0xAE, 15}, {0xB0, 14}, {0xB1, 5}, {0xB3, 6},   {0xB5, 2},
      {0xB8, 16}, {0xB9, 1}, {0x80, 0},  {0xB2, 0}, {0xFF, 0},   {0, 0},
      {27, 21},  {127, 127}, {'a', 'a'}, {1, 1},    {'\r', '\r'},
  };
  for (const auto& [byte, code] : rows) {
    EXPECT_EQ(GetLineData::gl_getc(static_cast<char>(byte)), code) << int(byte);
  }
}

TEST_F(EditorTest, ModeTwoAndModeMinusOneReturnNull) {
  char key[2] = {'a', 0};
  EXPECT_EQ(ed->Getlinem(key, 2, "R#", nullptr), nullptr);
  ed->Gl_config("noecho", 1);
  EXPECT_EQ(ed->Getlinem(key, -1, "R#", nullptr), nullptr);
  EXPECT_TRUE(ed->getNewLine());
  EXPECT_EQ(line(), "");
  // Mode -1 at a new line turned "noecho" off again: typed text is echoed.
  ed->gl_fixup("R#", -2, 0);
  EXPECT_EQ(ed->outputString(), "R#");
  ed->clearOutput();
  EXPECT_NE(ed->Getlinem(key, 0, "R#", nullptr), nullptr);
  EXPECT_EQ(ed->outputString(), "a");
}

TEST_F(EditorTest, NoechoHidesTextButNotThePrompt) {
  start();
  ed->Gl_config("noecho", 1);
  ed->gl_fixup("R#", -2, 0);  // noecho applies from the next full draw
  EXPECT_EQ(ed->outputString(), "R#");
  EXPECT_EQ(feed("secret\r"), "\n");
  EXPECT_STREQ(last, "secret\n");
  EXPECT_EQ(ed->Gl_config("bogus", 1), -1);
}

TEST_F(EditorTest, EraseWipesTheFinishedLine) {
  start();
  ed->Gl_config("erase", 1);
  EXPECT_EQ(feed("abc\r"), "abc" + bs(3) + sp(3) + bs(3));
  EXPECT_STREQ(last, "abc\n");
}

TEST_F(EditorTest, NotAConsoleWritesNothing) {
  ed->Gl_setconsole(0);
  start();
  EXPECT_EQ(feed("abc\x08\r"), "");
  EXPECT_STREQ(last, "ab\n");
}

TEST_F(EditorTest, PromptChangeRedrawsOverTheOldPrompt) {
  start("Router#");
  feed("ab");
  ed->clearOutput();
  ed->gl_fixup("R(config)#", -1, 2);
  // Back over text and old prompt, new prompt, the text again.
  EXPECT_EQ(ed->outputString(), bs(9) + "R(config)#" + "ab");
  // A shorter prompt blanks what the longer one left behind.
  ed->clearOutput();
  ed->gl_fixup("R#", -1, 2);
  EXPECT_EQ(ed->outputString(), bs(12) + "R#" + "ab" + sp(8) + bs(8));
}

// ------------------------------------------------------------ scrolling

TEST_F(EditorTest, DefaultScrollStepIsTwentySevenUntilAWidthIsSet) {
  // Intended: the built-in step is 27 although a third of the default 80 is 26.
  char none = 0;
  ed->Getlinem(&none, -1, "", nullptr);
  ed->gl_fixup("", -2, GetLineData::kBufSize);
  prompt_ = "";
  feed(std::string(80, 'x'));
  // At 80 characters the line is shifted by 27, so column 0 shows "$" and x[28..].
  ed->clearOutput();
  ed->gl_fixup("", -1, 0);
  ed->clearOutput();
  ed->gl_fixup("", -1, 80);
  EXPECT_EQ(ed->outputString(), "$" + std::string(52, 'x') + sp(26) + bs(26));

  SetUp();
  start("", 80);  // a third of 80 is 26
  feed(std::string(80, 'x'));
  ed->gl_fixup("", -1, 0);
  ed->clearOutput();
  ed->gl_fixup("", -1, 80);
  EXPECT_EQ(ed->outputString(), "$" + std::string(53, 'x') + sp(25) + bs(25));
}

// ------------------------------------------------------------ words and regions

struct WordCase {
  const char* name;
  std::string text;
  int cursor;
  void (GetLineData::*op)();
  std::string line;
  int cursorAfter;
  std::string kill;
};

TEST_F(EditorTest, WordMotionAndWordKills) {
  const std::vector<WordCase> cases = {
      {"fwd skips word then blanks", "ip route 10.0", 0, &GetLineData::gl_fwd_1_word, "ip route 10.0",
       3, ""},
      {"fwd stops at the end", "ip route", 4, &GetLineData::gl_fwd_1_word, "ip route", 8, ""},
      {"fwd treats _ as a word character", "a_b c", 0, &GetLineData::gl_fwd_1_word, "a_b c", 4, ""},
      {"back from the end", "ip route", 8, &GetLineData::gl_back_1_word, "ip route", 3, ""},
      {"back from a word start", "ip route", 3, &GetLineData::gl_back_1_word, "ip route", 0, ""},
      {"back over dots", "10.0.0", 6, &GetLineData::gl_back_1_word, "10.0.0", 5, ""},
      {"kill word forward", "ip  route x", 2, &GetLineData::gl_kill_1_word, "ip x", 2, "  route"},
      {"kill word back", "ip route", 8, &GetLineData::gl_kill_back_1_word, "ip ", 3, "route"},
      {"kill word back over blanks", "ip route  ", 10, &GetLineData::gl_kill_back_1_word, "ip ", 3,
       "route  "},
  };
  for (const WordCase& c : cases) {
    SetUp();
    start();
    feed(c.text);
    ed->gl_fixup("R#", -1, c.cursor);
    (ed.get()->*c.op)();
    EXPECT_EQ(line(), c.line) << c.name;
    EXPECT_EQ(ed->getCursor(), c.cursorAfter) << c.name;
    EXPECT_EQ(std::string(ed->getKillBuffer()), c.kill) << c.name;
  }
}

TEST_F(EditorTest, WipeAndExchangeUseTheMarkThatYankSets) {
  start();
  feed("abcd\x02\x02\x0b\x01\x19");  // yank "cd" at 0: mark 0, cursor 2
  EXPECT_EQ(ed->getMark(), 0);
  feed("\x18");  // exchange
  EXPECT_EQ(ed->getCursor(), 0);
  EXPECT_EQ(ed->getMark(), 2);
  feed("\x17");  // wipe the region
  EXPECT_EQ(line(), "ab");
  EXPECT_EQ(std::string(ed->getKillBuffer()), "cd");
  EXPECT_EQ(ed->getCursor(), 0);
  // Mark equal to the cursor: wipe does nothing.
  EXPECT_EQ(feed("\x17"), "");
  EXPECT_EQ(line(), "ab");
}

TEST_F(EditorTest, GlTabPadsToTheNextStopOfEight) {
  char buf[32] = "ab";
  int loc = 2;
  EXPECT_EQ(ed->gl_tab(buf, 3, loc), 2);  // column 5: three blanks to 8
  EXPECT_EQ(loc, 5);
  EXPECT_STREQ(buf, "ab   ");
  EXPECT_EQ(ed->gl_tab(buf, 3, loc), 5);  // column 8: a full stop of eight
  EXPECT_EQ(loc, 13);
}

// ------------------------------------------------------------ hooks

int helpHook(char* line, int, int& cursor, qxparser::VTY*, std::string& out) {
  out += "\nHELP\n";
  std::size_t n = std::strlen(line);
  line[n - 1] = '\0';
  cursor = static_cast<int>(n - 1);
  return -2;
}

int tabHook(char* line, int promptLength, int& cursor, qxparser::VTY*, std::string& out) {
  out += "\n";
  out += std::to_string(promptLength);
  std::strcpy(line, "show ");
  cursor = 5;
  return -2;
}

TEST_F(EditorTest, HelpHookRunsAfterTheQuestionMarkGoesIn) {
  GetLineData::getline_init(helpHook, tabHook);
  start();
  EXPECT_EQ(feed("sh?"), "sh?\nHELP\nR#sh");
  EXPECT_EQ(line(), "sh");
  EXPECT_EQ(ed->getCursor(), 2);
  EXPECT_EQ(feed("\t"), "\n2R#show ");
  EXPECT_EQ(line(), "show ");
}

TEST_F(EditorTest, ParserInitReadsPagerAndStartsALine) {
  platform::setEnv("VTYSH_PAGER", "less -R");
  ed->parser_init(nullptr, nullptr);
  EXPECT_EQ(ed->getPager(), "less -R");
  ::unsetenv("VTYSH_PAGER");
  ed->vtysh_pager_init();
  EXPECT_EQ(ed->getPager(), "more");
  EXPECT_TRUE(ed->getNewLine());
}

// ------------------------------------------------------------ limits

TEST_F(EditorTest, ScreenWidthBelow21IsRefusedAndTheProcessGoesOn) {
  start("R#", 30);
  ed->clearOutput();
  try {
    ed->Gl_setwidth(20);
    FAIL() << "no error";
  } catch (const GetLineError& e) {
    EXPECT_STREQ(e.what(), "\n*** Error: minimum screen width is 21\n");
  }
  EXPECT_EQ(ed->outputString(), "\n*** Error: minimum screen width is 21\n");
  ed->Gl_setwidth(21);
}

TEST_F(EditorTest, OverflowAt40959CharactersThrowsAndEditorStaysUsable) {
  start();
  std::string many(GetLineData::kMaxInput, 'a');
  feed(many);
  EXPECT_EQ(line(), many);  // the 40959th character is taken
  ed->clearOutput();
  const std::string message = "\n*** Error: Getline(): input buffer overflow\n";
  try {
    feed("b");
    FAIL() << "no overflow";
  } catch (const GetLineError& e) {
    EXPECT_EQ(std::string(e.what()), message);
  }
  EXPECT_EQ(ed->outputString(), message);
  EXPECT_EQ(line(), many);  // nothing lost
  // A full line cannot be finished either: the newline needs one more byte.
  EXPECT_THROW(feed("\r"), GetLineError);
  EXPECT_FALSE(ed->getNewLine());

  // Still usable: edit, redraw, finish a line.
  feed("\x08");
  EXPECT_EQ(static_cast<int>(line().size()), GetLineData::kMaxInput - 1);
  ed->clearOutput();
  ed->gl_redraw();
  EXPECT_EQ(ed->outputString().substr(0, 3), "\nR#");
  feed("\x1b" "ok\r");
  ASSERT_NE(last, nullptr);
  EXPECT_STREQ(last, "ok\n");
}

TEST_F(EditorTest, YankPastTheLimitThrowsAndLeavesTheLine) {
  start();
  feed("abcdefghij\x01\x0b");  // kill 10 characters
  std::string many(GetLineData::kMaxInput - 10, 'x');
  feed(many);
  EXPECT_THROW(feed("\x19"), GetLineError);
  EXPECT_EQ(line(), many);
  // A yank may not reach 40959 characters; one short of it is taken.
  feed("\x08\x19");
  EXPECT_EQ(static_cast<int>(line().size()), GetLineData::kMaxInput - 1);
}

// ------------------------------------------------------------ regressions

// A prompt that takes (almost) the whole screen: the text still scrolls within
// the line and nothing behind the line's end is ever drawn.
TEST_F(EditorTest, LongLineBehindAPromptWiderThanTheScreenDrawsOnlyItsText) {
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

TEST_F(EditorTest, WiderScreenSetBeforeAnyFullDrawKeepsTheDrawInsideTheLine) {
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
}  // namespace editortest
