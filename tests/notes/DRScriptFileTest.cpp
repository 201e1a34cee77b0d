// Script files: the format round trip, the reader's treatment of odd headers,
// the writer's translation side effect, and the side-file operations.
#include <algorithm>
#include <filesystem>
#include <memory>
#include <gtest/gtest.h>

#include "NoteTestSupport.h"
#include "support/CallTable.h"
#include "support/CaseFile.h"
#include "notes/DRScriptFile.h"
#include "notes/DesignNoteParser.h"
#include "results/UIVariableForDR.h"

using notestest::exists;
using notestest::readFile;
using notestest::scratch;
using notestest::writeFile;

namespace {

// The files of tests/data/notes/script_files.txt, written by hand or by the
// writer, read back.
TEST(DRScriptFileTest, FilesWrittenAndReadAsTheirCaseSays) {
  const std::string dir = scratch("sf-cases");
  for (const testsupport::Case& c : testsupport::readCases("notes/script_files.txt")) {
    const std::string path = dir + "/s.cmf";
    if (c.has("file")) {
      writeFile(path, c["file"]);
    } else {
      ASSERT_TRUE(DRScriptFile(c["context"], c["description"], c["favourite"] == "yes").saveScriptFile(path));
      testsupport::expectSection(c, "written", readFile(path));
    }
    DRScriptFile back(path);
    EXPECT_EQ(back.getDescription(), c.get("read description", c["description"])) << c.where();
    EXPECT_EQ(back.getContext(), c.get("read context", c["context"])) << c.where();
    EXPECT_EQ(back.isFavourite() ? "yes" : "no", c["favourite"]) << c.where();
    EXPECT_EQ(back.getFileName() + " " + back.getFilePath(), "s " + path) << c.where();
  }
}

TEST(DRScriptFileTest, SettersSaveToTheFileTheyCameFrom) {
  const std::string dir = scratch("sf-set");
  ASSERT_TRUE(DRScriptFile("a", "d", true).saveScriptFile(dir + "/s.cmf"));
  DRScriptFile s(dir + "/s.cmf");
  s.setDescription("new", true);
  s.setFavourite(false, true);
  s.setContext("not saved", false);
  DRScriptFile back(dir + "/s.cmf");
  EXPECT_EQ(back.getDescription(), "new");
  EXPECT_FALSE(back.isFavourite());
  EXPECT_EQ(back.getContext(), "a");
}

// The rows of tests/data/notes/calls.tsv.
TEST(DRScriptFileTest, NameHelpersGiveTheirRowsResult) {
  const testsupport::Calls calls = {
      {"scriptType", testsupport::oneText([](const std::string& name) {
         std::string base = "junk";
         const int type = DRScriptFile::getScriptType(name, &base);
         return testsupport::joinFields({std::to_string(type), base});
       })},
      {"extName", testsupport::oneText([](const std::string& type) { return DRScriptFile::getExtName(std::stoi(type)); })},
      {"baseName", testsupport::oneText(DesignNoteParser::getBaceNameFromScriptFilePath)},
  };
  testsupport::runCallTable("notes/calls.tsv", calls);
}


// The rows of tests/data/notes/side_files.tsv, each on the folder of the last
// "fresh" row (and the tree of scripts read from it); paths are relative to it.
TEST(DRScriptFileTest, SideFileCallsGiveTheirRowsResult) {
  std::string dir;
  std::unique_ptr<DesignNoteParser> tree;
  auto in = [&dir](const std::string& name) { return dir + "/" + name; };
  auto relative = [&dir](const std::string& path) {
    return path.compare(0, dir.size() + 1, dir + "/") == 0 ? path.substr(dir.size() + 1) : path;
  };
  using testsupport::Args;
  using testsupport::yesNo;
  const testsupport::Calls calls = {
      {"fresh", {1, [&](const Args& a) {
         tree = std::make_unique<DesignNoteParser>(dir = scratch("sf-" + a[0]));
         return "";
       }}},
      {"reread", {0, [&](const Args&) {
         tree = std::make_unique<DesignNoteParser>(dir);
         return "";
       }}},
      {"root", {3, [&](const Args& a) {
         UIVariableForDR ui;
         ui.setRootPath(a[2]);
         DesignNoteParser t(dir + a[0], a[2].empty() ? nullptr : &ui, a[1] == "yes");
         return "{dir}" + t.getRootDirct().substr(std::min(dir.size(), t.getRootDirct().size())) + " " +
                std::to_string(t.getScriptFiles().size()) + " " + std::to_string(t.getSubDirects().size());
       }}},
      {"addScript", {3, [&](const Args& a) { return yesNo(tree->addScriptFile(a[0], a[1], a[2])); }}},
      {"addFolder", {1, [&](const Args& a) { return yesNo(tree->addSubDirect(a[0])); }}},
      {"delScript", {1, [&](const Args& a) { return yesNo(tree->delScriptFile(a[0])); }}},
      {"delFolder", {1, [&](const Args& a) { return yesNo(tree->delSubDirect(a[0])); }}},
      {"fullPath", {1, [&](const Args& a) { return relative(tree->getScriptFileFullPath(a[0])); }}},
      {"listing", {0, [&](const Args&) {
         std::string out;
         for (const auto& name : tree->getScriptFiles()) out += name + " ";
         for (const auto& sub : tree->getSubDirects()) out += sub.first + "/ ";
         return out;
       }}},
      {"favourite", {1, [&](const Args& a) { return yesNo(DRScriptFile(in(a[0])).isFavourite()); }}},
      {"folder", {1, [&](const Args& a) { return yesNo(Pathname(in(a[0])).isDirectory()); }}},
      {"write", {2, [&](const Args& a) {
         std::filesystem::create_directories(std::filesystem::path(in(a[0])).parent_path());
         writeFile(in(a[0]), a[1]);
         return "";
       }}},
      {"exists", {1, [&](const Args& a) { return yesNo(exists(in(a[0]))); }}},
      {"read", {1, [&](const Args& a) { return readFile(in(a[0])); }}},
      {"holds", {2, [&](const Args& a) { return yesNo(readFile(in(a[0])).find(a[1]) != std::string::npos); }}},
      {"save", {4, [&](const Args& a) { return yesNo(DRScriptFile(a[0], a[1], a[2] == "yes").saveScriptFile(in(a[3]))); }}},
      {"saveUnnamed", {1, [](const Args& a) { return yesNo(DRScriptFile(a[0], "", true).save()); }}},
      {"delete", {1, [&](const Args& a) {
         DRScriptFile::delScriptFile(in(a[0]));
         return "";
       }}},
      {"deleteAll", {0, [&](const Args&) {
         DRScriptFile::delScriptFiles(dir + "/");
         return "";
       }}},
      {"rename", {2, [&](const Args& a) { return yesNo(DRScriptFile::renameScriptFile(dir + "/", a[0], a[1])); }}},
      {"setSample", {3, [&](const Args& a) {
         return yesNo(DRScriptFile::setSampleFile(in(a[0]), in(a[1]), std::stoi(a[2])));
       }}},
      {"sample", {2, [&](const Args& a) { return relative(DRScriptFile::getSampleFileFullPath(in(a[0]), std::stoi(a[1]))); }}},
      {"setMap", {2, [&](const Args& a) { return yesNo(DRScriptFile::setSampleMap(in(a[0]), in(a[1]))); }}},
      {"map", {1, [&](const Args& a) { return relative(DRScriptFile::getSampleMapFullPath(in(a[0]))); }}},
  };
  testsupport::runCallTable("notes/side_files.tsv", calls);
}

}  // namespace
