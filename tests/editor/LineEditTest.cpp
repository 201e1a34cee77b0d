// Key handling, editing and redraw of the line editor, by exact screen bytes.
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "EditorFixture.h"
#include "support/CallTable.h"
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
    ed->Gl_setconsole(c.get("console") == "no" ? 0 : 1);
    start(c.get("prompt", "R#"), std::stoi(c.get("width", "80")));
    ed->Gl_config("erase", c.get("erase") == "yes" ? 1 : 0);
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
          {"mark", std::to_string(ed->getMark())},
          {"search", ed->getSearchString()},
          {"search prompt", ed->getSearchPrompt()},
      };
      for (const auto& [key, value] : state) testsupport::expectSection(c, numbered(key, step), value);
      const std::string only = c.get(numbered("drawn only", step), screen);
      EXPECT_EQ(screen.find_first_not_of(only), std::string::npos) << c.where() << " step " << step;
    }
  }
}

// The rows of tests/data/editor/calls.tsv.
TEST_F(EditorTest, CallsGiveTheirRowsResult) {
  const std::map<std::string, void (GetLineData::*)()> words = {{"forward", &GetLineData::gl_fwd_1_word},
      {"back", &GetLineData::gl_back_1_word}, {"kill", &GetLineData::gl_kill_1_word},
      {"kill back", &GetLineData::gl_kill_back_1_word}};
  const testsupport::Calls calls = {
      {"consoleByte", testsupport::oneText([](const std::string& hex) {
         return std::to_string(GetLineData::gl_getc(static_cast<char>(std::stoi(hex, nullptr, 16))));
       })},
      {"tab", {3, [this](const testsupport::Args& a) {
         char buf[32] = {};
         a[0].copy(buf, sizeof buf - 1);
         int loc = std::stoi(a[2]);
         const int first = ed->gl_tab(buf, std::stoi(a[1]), loc);
         return testsupport::joinFields({std::to_string(first), buf, std::to_string(loc)});
       }}},
      {"word", {3, [&](const testsupport::Args& a) {
         SetUp();
         start();
         feed(a[1]);
         ed->gl_fixup("R#", -1, std::stoi(a[2]));
         (ed.get()->*words.at(a[0]))();
         return testsupport::joinFields({line(), std::to_string(ed->getCursor()), ed->getKillBuffer()});
       }}},
  };
  testsupport::runCallTable("editor/calls.tsv", calls);
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
