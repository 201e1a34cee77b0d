// History ring and history file of the line editor.
#include <string>
#include <vector>

#include "EditorFixture.h"
#include "support/CaseFile.h"
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

// The histories of tests/data/editor/history_files.tsv.
TEST_F(HistoryTest, FileIsAppendedToAndCutAsTheRowsSay) {
  const std::string path = file("history");
  for (const std::string& line : testsupport::dataLines(testsupport::readDataFile("editor/history_files.tsv"))) {
    if (line == "-") {
      SetUp();
      ed->Gl_histinit(path.c_str());
      EXPECT_EQ(ed->getHistFileLines(), 1);
      continue;
    }
    const std::vector<std::string> row = testsupport::splitFields(line);
    ASSERT_EQ(row.size(), 4u) << line;
    add(std::stoi(row[0]), std::stoi(row[1]));
    const size_t dash = row[3].find('-');
    EXPECT_EQ(std::to_string(ed->getHistFileLines()), row[2]) << line;
    EXPECT_EQ(readFile(path), numbered(std::stoi(row[3]), std::stoi(row[3].substr(dash + 1)))) << line;
  }
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

}  // namespace
}  // namespace editortest
