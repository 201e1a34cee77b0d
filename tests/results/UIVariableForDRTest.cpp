// The UI lists handed to a note: values by kind, and the files they are saved to.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "support/TestFiles.h"
#include "platform/Pathname.h"
#include "results/UIVariableForDR.h"

namespace {

using testsupport::scratchFolder;
using testsupport::readFile;
using Values = std::set<std::string>;

TEST(UIVariableForDRTest, AddVariableValue) {
  UIVariableForDR ui("dev", UIVariableAction::Click);
  EXPECT_FALSE(ui.addVariableValue(0, "x"));
  EXPECT_TRUE(ui.getValues().empty());

  EXPECT_TRUE(ui.addVariableValue(UIVariableType::IPAddressList, "10.0.0.1\r"));
  EXPECT_TRUE(ui.addVariableValue(UIVariableType::IPAddressList, "a\rb\rc"));
  EXPECT_EQ(ui.getValues().at(3), (Values{"10.0.0.1", "a\rb"}));

  EXPECT_TRUE(ui.isEmpty(UIVariableType::InterfaceList));
  EXPECT_TRUE(ui.isEmpty(UIVariableType::InterfaceNameList));
  ui.addVariableValue(UIVariableType::InterfaceList, "Gi0/1");
  ui.addVariableValue(UIVariableType::InterfaceList, "Gi0/1");
  EXPECT_FALSE(ui.isEmpty(UIVariableType::InterfaceList));
  EXPECT_FALSE(ui.isEmpty(UIVariableType::InterfaceNameList));
  EXPECT_EQ(ui.getValues().at(1), Values{"interface Gi0/1"});
  EXPECT_EQ(ui.getValues().at(4), Values{"Gi0/1"});

  ui.addVariableValue(UIVariableType::InterfaceNameList, "Gi0/2");
  EXPECT_EQ(ui.getValues().at(1), Values{"interface Gi0/1"});
  EXPECT_EQ(ui.getValues().at(4), (Values{"Gi0/1", "Gi0/2"}));

  EXPECT_TRUE(ui.addVariableValue(42, "beyond the known kinds"));
  EXPECT_FALSE(ui.isEmpty(42));

  ui.setRootPath("sub");
  ui.clear();
  EXPECT_TRUE(ui.isEmpty(1));
  EXPECT_EQ(ui.getRootPath(), "sub");
  EXPECT_EQ(ui.getUiAction(), UIVariableAction::Click);
}

TEST(UIVariableForDRTest, SaveWritesOneSortedFilePerList) {
  std::string dir = scratchFolder("ui-save");
  UIVariableForDR ui("dev", 0);
  ui.addVariableValue(UIVariableType::InterfaceList, "Gi0/2");
  ui.addVariableValue(UIVariableType::InterfaceList, "Gi0/1");
  ui.addVariableValue(UIVariableType::NATList, "ip nat inside source static 10.0.0.1 1.1.1.1");
  ASSERT_TRUE(ui.save(dir, true));
  EXPECT_EQ(readFile(dir + "UI_InterfaceList.txt"), "interface Gi0/1\r\ninterface Gi0/2\r\n");
  EXPECT_EQ(readFile(dir + "UI_InterfaceNameList.txt"), "Gi0/1\r\nGi0/2\r\n");
  EXPECT_EQ(readFile(dir + "UI_NATList.txt"), "ip nat inside source static 10.0.0.1 1.1.1.1\r\n");
  EXPECT_FALSE(Pathname(dir + "UI_ProtocolList.txt").exists());
  EXPECT_EQ(Pathname(dir).dirContents().size(), 3u);

  // An existing file is replaced.
  UIVariableForDR other("dev", 0);
  other.addVariableValue(UIVariableType::NATList, "x");
  ASSERT_TRUE(other.save(dir, true));
  EXPECT_EQ(readFile(dir + "UI_NATList.txt"), "x\r\n");
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

TEST(UIVariableForDRTest, UnknownKindsShareOneFileLaterWinsIntended) {
  std::string dir = scratchFolder("ui-unknown");
  UIVariableForDR ui("dev", 0);
  ui.addVariableValue(9, "nine");
  ui.addVariableValue(8, "eight");
  ASSERT_TRUE(ui.save(dir, true));
  EXPECT_EQ(readFile(dir + "UI_Unknown.txt"), "nine\r\n");
}

}  // namespace
