// The UI lists handed to a note: values by kind, and the files they are saved to.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "support/CaseFile.h"
#include "support/TestFiles.h"
#include "platform/Pathname.h"
#include "results/UIVariableForDR.h"

namespace {

using testsupport::scratchFolder;
using testsupport::readFile;
using Values = std::set<std::string>;

// The cases of tests/data/results/ui_lists.txt.
TEST(UIVariableForDRTest, ValuesGoIntoTheirListsAndFiles) {
  for (const testsupport::Case& c : testsupport::readCases("results/ui_lists.txt")) {
    UIVariableForDR ui("dev", 0);
    std::string added, lists, files;
    for (const std::string& line : testsupport::dataLines(c["add"])) {
      const std::vector<std::string> row = testsupport::splitFields(line);
      added += std::string(added.empty() ? "" : " ") + (ui.addVariableValue(std::stoi(row[0]), testsupport::unescaped(row[1])) ? "true" : "false");
    }
    for (const auto& [kind, values] : ui.getValues()) {
      EXPECT_FALSE(ui.isEmpty(kind)) << c.where();
      lists += std::to_string(kind) + ":";
      for (const std::string& value : values) lists += (lists.back() == ':' ? " " : "|") + value;
      lists += "\n";
    }
    const std::string dir = scratchFolder("ui-lists");
    ASSERT_TRUE(ui.save(dir, true)) << c.where();
    for (const Pathname& file : Pathname(dir).dirContents()) files += file.file() + ": " + readFile(file.data()) + "\n";
    EXPECT_EQ(added, c["added"]) << c.where();
    EXPECT_EQ(lists, testsupport::unescaped(c.get("lists", lists))) << c.where();
    EXPECT_EQ(files, testsupport::unescaped(c.get("files", files))) << c.where();
  }
}

TEST(UIVariableForDRTest, SaveReplacesAFileAndClearKeepsRootPathAndAction) {
  UIVariableForDR ui("dev", UIVariableAction::Click);
  EXPECT_TRUE(ui.isEmpty(1));
  ui.addVariableValue(UIVariableType::NATList, "x");
  const std::string dir = scratchFolder("ui-replace");
  testsupport::writeFile(dir + "UI_NATList.txt", "an older list\r\n");
  ASSERT_TRUE(ui.save(dir, true));
  EXPECT_EQ(readFile(dir + "UI_NATList.txt"), "x\r\n");
  ui.setRootPath("sub");
  ui.clear();
  EXPECT_TRUE(ui.isEmpty(7));
  EXPECT_EQ(ui.getRootPath(), "sub");
  EXPECT_EQ(ui.getUiAction(), UIVariableAction::Click);
}

TEST(UIVariableForDRTest, SaveFolders) {
  std::string dir = scratchFolder("ui-folders");
  UIVariableForDR empty("dev", 0);
  EXPECT_TRUE(empty.save(dir, false));
  EXPECT_TRUE(Pathname(dir).dirContents().empty());

  UIVariableForDR ui("dev", 0);
  ui.addVariableValue(UIVariableType::VrfNameList, "blue");
  EXPECT_FALSE(ui.save(dir + "missing", true));

  ui.setRootPath("sub");
  EXPECT_FALSE(ui.save(dir, false));  // nothing is created
  EXPECT_TRUE(Pathname(dir).dirContents().empty());

  EXPECT_TRUE(ui.save(dir, true));  // flat ignores the root path
  EXPECT_EQ(readFile(dir + "UI_VrfNameList.txt"), "blue\r\n");

  platform::makeDir(dir + "sub");
  std::string noSeparator = dir.substr(0, dir.size() - 1);
  EXPECT_TRUE(ui.save(noSeparator, false));
  EXPECT_EQ(readFile(dir + "sub" + platform::kPathSeparator + "UI_VrfNameList.txt"), "blue\r\n");
}

}  // namespace
