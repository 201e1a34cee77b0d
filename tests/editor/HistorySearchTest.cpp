// History ring, history file and incremental search of the line editor.
#include <string>
#include <vector>

#include "EditorFixture.h"
#include "support/TestFiles.h"

namespace editortest {
namespace {

using testsupport::readFile;

std::string numbered(int from, int to) {
  std::string text;
  for (int i = from; i <= to; i++) text += "cmd " + std::to_string(i) + "\n";
  return text;
}

class HistoryTest : public EditorTest {
 protected:
  void SetUp() override {
    EditorTest::SetUp();
    dir_ = testsupport::scratchFolder("editor-" +
                                      std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    start();
  }
  void add(int from, int to) {
    for (int i = from; i <= to; i++) ed->Gl_histadd(("cmd " + std::to_string(i)).c_str());
  }
  std::string file(const char* name) const { return dir_ + name; }

  std::string dir_;
};

TEST_F(HistoryTest, RingOfHundredKeepsNinetyNineLines) {
  add(1, 100);
  for (int i = 100; i >= 2; i--) EXPECT_STREQ(ed->hist_prev(), ("cmd " + std::to_string(i)).c_str());
  ed->clearOutput();
  EXPECT_STREQ(ed->hist_prev(), "");  // "cmd 1" was pushed out
  EXPECT_EQ(ed->outputString(), "\a");
  EXPECT_STREQ(ed->hist_next(), "cmd 3");
}

TEST_F(HistoryTest, FinishedLinesFromTheConsoleGoIntoTheHistory) {
  for (char k : std::string("show ver\r")) {
    char buffer[2] = {k, 0};
    ed->vtysh_rl_gets(buffer, "R#", nullptr);
  }
  EXPECT_TRUE(ed->getNewLine());
  for (char k : std::string("\r\x10")) {  // an empty line is not kept
    char buffer[2] = {k, 0};
    ed->vtysh_rl_gets(buffer, "R#", nullptr);
  }
  EXPECT_EQ(line(), "show ver");
}

TEST_F(HistoryTest, DashKeepsNoFile) {
  ed->Gl_histinit("-");
  add(1, 150);
  EXPECT_EQ(ed->getHistFileLines(), 0);
}

TEST_F(HistoryTest, MissingFileIsCreatedAndLinesAreAppended) {
  const std::string path = file("history");
  ed->Gl_histinit(path.c_str());
  EXPECT_TRUE(Pathname(path).exists());
  EXPECT_EQ(ed->getHistFileLines(), 1);
  add(1, 3);
  EXPECT_EQ(readFile(path), numbered(1, 3));
  EXPECT_EQ(ed->getHistFileLines(), 4);
}

TEST_F(HistoryTest, FileIsLoadedIntoTheRingWithoutWritingItAgain) {
  const std::string path = file("history");
  const std::string text = "show a\nshow b\n\nshow c\n";
  testsupport::writeFile(path, text);
  ed->Gl_histinit(path.c_str());
  EXPECT_EQ(ed->getHistFileLines(), 5);  // four lines read, counted from 1
  EXPECT_EQ(readFile(path), text);
  EXPECT_STREQ(ed->hist_prev(), "show c");
  EXPECT_STREQ(ed->hist_prev(), "show b");
  EXPECT_STREQ(ed->hist_prev(), "show a");
}

TEST_F(HistoryTest, HundredthAdditionCutsTheFirstFortyLines) {
  const std::string path = file("history");
  ed->Gl_histinit(path.c_str());
  add(1, 99);
  EXPECT_EQ(ed->getHistFileLines(), 100);
  EXPECT_EQ(readFile(path), numbered(1, 99));
  add(100, 100);
  EXPECT_EQ(readFile(path), numbered(41, 100));
}

TEST_F(HistoryTest, CountStaysAtTwoAfterATrimIntended) {
  const std::string path = file("history");
  ed->Gl_histinit(path.c_str());
  add(1, 100);
  // The file holds 60 lines, but the count restarts at 2.
  EXPECT_EQ(ed->getHistFileLines(), 2);
  add(101, 198);
  EXPECT_EQ(ed->getHistFileLines(), 100);
  EXPECT_EQ(readFile(path), numbered(41, 198));
  add(199, 199);
  EXPECT_EQ(readFile(path), numbered(81, 199));
}

// ------------------------------------------------------------ search

class SearchTest : public HistoryTest {
 protected:
  void SetUp() override {
    HistoryTest::SetUp();
    for (const char* l : {"show version", "show running-config", "interface gi0/1"})
      ed->Gl_histadd(l);
  }
};

TEST_F(SearchTest, CtrlNEndsTheSearchAndOnlySetsTheMarkIntended) {
  feed("\x12" "ver");
  ASSERT_EQ(ed->getCursor(), 5);
  feed("\x0e");
  EXPECT_FALSE(ed->isSearching());
  EXPECT_EQ(line(), "show version");  // no step through the history
  EXPECT_EQ(ed->getMark(), 5);
}

TEST_F(SearchTest, SearchStringStopsAtHundredCharacters) {
  feed("\x12" + std::string(105, 'q'));
  EXPECT_EQ(ed->getSearchString(), std::string(100, 'q'));
  EXPECT_EQ(ed->getSearchPrompt(), std::string(100, 'q') + "? ");
  feed("\x08");
  EXPECT_EQ(ed->getSearchString(), std::string(99, 'q'));
}

}  // namespace
}  // namespace editortest
