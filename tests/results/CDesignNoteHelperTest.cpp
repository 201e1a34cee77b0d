// The design-note helpers: filter names and folders, and where a note is found.
#include <gtest/gtest.h>

#include <string>

#include "support/TestFiles.h"
#include "support/CallTable.h"
#include "notes/CDesignNoteHelper.h"
#include "platform/MultiVendorFileSystem.h"
#include "platform/PlatformOs.h"
#include "results/UIVariableForDR.h"

namespace {

const std::string kSep(1, platform::kPathSeparator);

// The rows of tests/data/results/calls.tsv.
TEST(CDesignNoteHelperTest, CallsGiveTheirRowsResult) {
  const testsupport::Calls calls = {
      {"uiListName", testsupport::oneText([](const std::string& kind) { return UIVariableType::toString(std::stoi(kind)); })},
      {"isDefaultName", testsupport::oneWord(CDesignNoteHelper::IsDefaultName)},
      {"mapFilter", testsupport::oneText([](const std::string& key) {
         std::string name = "old", path = "old";
         const bool known = CDesignNoteHelper::GetMapFilter(std::stoi(key), 0, name, path);
         const std::string folder = MultiVendorFileSystem::s_DrMapPath + kSep;
         return testsupport::joinFields({testsupport::yesNo(known), name,
                                         path.compare(0, folder.size(), folder) == 0 ? path.substr(folder.size()) : path});
       })},
  };
  testsupport::runCallTable("results/calls.tsv", calls);
}

TEST(CDesignNoteHelperTest, FullConfigurationFilterHasNoFolder) {
  std::string name;
  std::string path;
  EXPECT_TRUE(CDesignNoteHelper::GetFllConfigFilter(name, path));
  EXPECT_EQ(name, "Full Configuration");
  EXPECT_EQ(path, "Full Configuration");
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
  std::string root = testsupport::scratchFolder("notes-root");
  platform::setEnv("VTYCONF_NOTES_DIR", root);
  std::string mapDir = root + MultiVendorFileSystem::s_DrMapPath;
  platform::makeDir(mapDir);

  EXPECT_FALSE(CDesignNoteHelper::IsDrScriptExisted(1, 0));
  testsupport::writeFile(mapDir + kSep + "Interface NAT.cmf", "");
  EXPECT_TRUE(CDesignNoteHelper::IsDrScriptExisted(13, 0));
  testsupport::writeFile(mapDir + kSep + "Interface Name.py", "");
  EXPECT_TRUE(CDesignNoteHelper::IsDrScriptExisted(1, 0));
  EXPECT_TRUE(CDesignNoteHelper::IsDrScriptExisted(10, 0));
  // An unknown key never exists, even when the summary script does.
  testsupport::writeFile(mapDir + kSep + "Configuration Summary.cmf", "");
  EXPECT_FALSE(CDesignNoteHelper::IsDrScriptExisted(3, 0));
  EXPECT_FALSE(CDesignNoteHelper::IsDrScriptExisted(9, 0));

  platform::setEnv("VTYCONF_NOTES_DIR", previous);
}

}  // namespace
