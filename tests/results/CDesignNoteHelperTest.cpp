#include <gtest/gtest.h>

#include <string>

#include "TestFiles.h"
#include "notes/CDesignNoteHelper.h"
#include "platform/MultiVendorFileSystem.h"
#include "platform/PlatformOs.h"
#include "results/UIVariableForDR.h"

namespace {

const std::string kSep(1, platform::kPathSeparator);

TEST(CDesignNoteHelperTest, MapFilterByKey) {
  struct Row {
    int key;
    bool known;
    std::string name;
  };
  const Row rows[] = {{1, true, "Interface Name"},         {2, true, "Interface Protocol"},
                      {3, false, "Configuration Summary"}, {4, false, "Configuration Summary"},
                      {5, true, "Interface IP"},           {9, true, "BGP Neighbor"},
                      {10, true, "Interface Name"},        {11, true, "Interface Protocol"},
                      {13, true, "Interface NAT"},         {14, false, "Configuration Summary"},
                      {-1, false, "Configuration Summary"}};
  for (const Row& row : rows) {
    std::string name = "old";
    std::string path = "old";
    EXPECT_EQ(CDesignNoteHelper::GetMapFilter(row.key, 0, name, path), row.known) << row.key;
    EXPECT_EQ(name, row.name) << row.key;
    EXPECT_EQ(path, MultiVendorFileSystem::s_DrMapPath + kSep + row.name) << row.key;
  }
}

TEST(CDesignNoteHelperTest, FullConfigurationFilterHasNoFolder) {
  std::string name;
  std::string path;
  EXPECT_TRUE(CDesignNoteHelper::GetFllConfigFilter(name, path));
  EXPECT_EQ(name, "Full Configuration");
  EXPECT_EQ(path, "Full Configuration");
}

TEST(CDesignNoteHelperTest, DefaultNames) {
  const std::pair<const char*, bool> rows[] = {{"Global", true},
                                               {"Map", true},
                                               {"My Interface NAT copy", true},
                                               {"BGP Neighbor", true},
                                               {"global", false},
                                               {"Map Filters", false},
                                               {"Full Configuration", false},
                                               {"Configuration Summary", false},
                                               {"interface name", false}};
  for (const auto& [name, expected] : rows)
    EXPECT_EQ(CDesignNoteHelper::IsDefaultName(name), expected) << name;
}

TEST(CDesignNoteHelperTest, FilterFolders) {
  EXPECT_EQ(&CDesignNoteHelper::GetFilterDir(nullptr), &CDesignNoteHelper::s_EmptyString);
  EXPECT_EQ(CDesignNoteHelper::GetDesignFilterDirByType(0, nullptr), "");
  EXPECT_EQ(CDesignNoteHelper::GetDesignDevFilterByType(0, nullptr), "");

  UIVariableForDR ui("dev", 0);
  ui.setRootPath(MultiVendorFileSystem::s_DrMapPath);
  EXPECT_EQ(CDesignNoteHelper::GetFilterDir(&ui), MultiVendorFileSystem::s_DrMapPath);
  EXPECT_EQ(CDesignNoteHelper::GetDesignDevFilterByType(7, &ui), MultiVendorFileSystem::s_DrMapPath + kSep);
  EXPECT_EQ(CDesignNoteHelper::GetDesignFilterDirByType(7, &ui), "");
  ui.setRootPath(MultiVendorFileSystem::s_DrGlobalPath);
  EXPECT_EQ(CDesignNoteHelper::GetDesignDevFilterByType(0, &ui),
            MultiVendorFileSystem::s_DrGlobalPath + kSep);
  ui.setRootPath("Other");
  EXPECT_EQ(CDesignNoteHelper::GetDesignDevFilterByType(0, &ui), "");
  EXPECT_EQ(CDesignNoteHelper::GetDesignMapFilterDirByType(1), "");
  EXPECT_EQ(CDesignNoteHelper::GetDeginGlobalFilterDirByType(1), "");
}

TEST(CDesignNoteHelperTest, ScriptExistsAsPyBeforeCmf) {
  std::string previous = platform::getEnv("VTYCONF_NOTES_DIR");
  std::string root = resultstest::freshFolder("notes-root");
  platform::setEnv("VTYCONF_NOTES_DIR", root);
  std::string mapDir = root + MultiVendorFileSystem::s_DrMapPath;
  platform::makeDir(mapDir);

  EXPECT_FALSE(CDesignNoteHelper::IsDrScriptExisted(1, 0));
  resultstest::writeFile(mapDir + kSep + "Interface NAT.cmf", "");
  EXPECT_TRUE(CDesignNoteHelper::IsDrScriptExisted(13, 0));
  resultstest::writeFile(mapDir + kSep + "Interface Name.py", "");
  EXPECT_TRUE(CDesignNoteHelper::IsDrScriptExisted(1, 0));
  EXPECT_TRUE(CDesignNoteHelper::IsDrScriptExisted(10, 0));
  // An unknown key never exists, even when the summary script does.
  resultstest::writeFile(mapDir + kSep + "Configuration Summary.cmf", "");
  EXPECT_FALSE(CDesignNoteHelper::IsDrScriptExisted(3, 0));
  EXPECT_FALSE(CDesignNoteHelper::IsDrScriptExisted(9, 0));

  platform::setEnv("VTYCONF_NOTES_DIR", previous);
}

}  // namespace
