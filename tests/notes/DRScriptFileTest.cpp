// Script files: the format round trip, the reader's treatment of odd headers,
// the writer's translation side effect, and the side-file operations.
#include <gtest/gtest.h>

#include "NoteTestSupport.h"
#include "support/CallTable.h"
#include "support/CaseFile.h"
#include "notes/DRScriptFile.h"
#include "notes/DesignNoteParser.h"

using notestest::exists;
using notestest::readFile;
using notestest::scratch;
using notestest::writeFile;

namespace {

const char kGoodScript[] = "#x = search_line(\"^hostname \", all);\nprint #x;\n";

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

TEST(DRScriptFileTest, SaveTranslatesOnlyAScriptThatPassesTheCheck) {
  const std::string dir = scratch("sf-translate");
  ASSERT_TRUE(DRScriptFile(kGoodScript, "", true).saveScriptFile(dir + "/good.cmf"));
  EXPECT_TRUE(exists(dir + "/good.pl"));
  EXPECT_NE(readFile(dir + "/good.pl").find("search_line("), std::string::npos);

  writeFile(dir + "/bad.pl", "stale");
  ASSERT_TRUE(DRScriptFile("if (isempty(#a) {\n", "", true).saveScriptFile(dir + "/bad.cmf"));
  EXPECT_TRUE(exists(dir + "/bad.cmf"));
  EXPECT_FALSE(exists(dir + "/bad.pl")) << "a stale translation must go";

  // Passes the delimiter check, refused by the translator.
  ASSERT_TRUE(DRScriptFile("print (#a);\n", "", true).saveScriptFile(dir + "/refused.cmf"));
  EXPECT_FALSE(exists(dir + "/refused.pl"));
}

TEST(DRScriptFileTest, SaveByExtensionOfThePath) {
  const std::string dir = scratch("sf-ext");
  DRScriptFile s(kGoodScript, "d", true);
  EXPECT_TRUE(s.saveScriptFile(dir + "/p.py"));
  EXPECT_EQ(readFile(dir + "/p.py"), kGoodScript);
  EXPECT_TRUE(s.saveScriptFile(dir + "/none.txt")) << "nothing written, still true";
  EXPECT_FALSE(exists(dir + "/none.txt"));
  // A ".pl" path gets the header form and is then replaced by the translation.
  EXPECT_TRUE(s.saveScriptFile(dir + "/t.pl"));
  EXPECT_NE(readFile(dir + "/t.pl").find("hashConfigFile"), std::string::npos);
  EXPECT_FALSE(s.saveScriptFile(dir + "/missing-folder/x.cmf"));
  EXPECT_FALSE(s.save()) << "an object built from text has no file path";
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

TEST(DRScriptFileTest, DeleteTakesTheSideFilesAlong) {
  const std::string dir = scratch("sf-del");
  for (const char* ext : {".cmf", ".pl", ".py", ".sample1", ".sample2", ".qmap", ".map", ".keep"})
    writeFile(dir + "/n" + ext, "x");
  DRScriptFile::delScriptFile(dir + "/n.cmf");
  for (const char* ext : {".cmf", ".pl", ".py", ".sample1", ".sample2", ".qmap", ".map"})
    EXPECT_FALSE(exists(dir + "/n" + ext)) << ext;
  EXPECT_TRUE(exists(dir + "/n.keep"));

  platform::makeDir(dir + "/sub");
  writeFile(dir + "/sub/m.cmf", "x");
  writeFile(dir + "/sub/m.sample1", "x");
  DRScriptFile::delScriptFiles(dir + "/");
  EXPECT_FALSE(exists(dir));
}

TEST(DRScriptFileTest, RenameMovesEverySideFileAndTurnsMapIntoQmap) {
  const std::string dir = scratch("sf-ren") + "/";
  for (const char* ext : {".cmf", ".pl", ".sample1", ".map"}) writeFile(dir + "old" + ext, ext);
  ASSERT_TRUE(DRScriptFile::renameScriptFile(dir, "old", "new"));
  EXPECT_EQ(readFile(dir + "new.cmf"), ".cmf");
  EXPECT_EQ(readFile(dir + "new.pl"), ".pl");
  EXPECT_EQ(readFile(dir + "new.sample1"), ".sample1");
  EXPECT_EQ(readFile(dir + "new.qmap"), ".map");
  EXPECT_FALSE(exists(dir + "old.cmf"));

  writeFile(dir + "only.py", "py");
  EXPECT_TRUE(DRScriptFile::renameScriptFile(dir, "only", "moved"));
  EXPECT_TRUE(exists(dir + "moved.py"));
  EXPECT_FALSE(DRScriptFile::renameScriptFile(dir, "ghost", "x"));
  EXPECT_FALSE(DRScriptFile::renameScriptFile(dir, "moved", ""));
}

TEST(DRScriptFileTest, SampleIndexThreeIsWrittenAsTwoButNotReadIntended) {
  const std::string dir = scratch("sf-sample");
  writeFile(dir + "/n.cmf", "x");
  writeFile(dir + "/cfg", "hostname r1\n");
  EXPECT_EQ(DRScriptFile::getSampleFileFullPath(dir + "/n.cmf", 1), "");
  EXPECT_TRUE(DRScriptFile::setSampleFile(dir + "/n.cmf", dir + "/cfg", 1));
  EXPECT_EQ(DRScriptFile::getSampleFileFullPath(dir + "/n.cmf", 1), dir + "/n.sample1");
  EXPECT_TRUE(DRScriptFile::setSampleFile(dir + "/n.cmf", dir + "/cfg", 3));
  EXPECT_EQ(readFile(dir + "/n.sample2"), "hostname r1\n");
  EXPECT_EQ(DRScriptFile::getSampleFileFullPath(dir + "/n.cmf", 3), "");
  EXPECT_EQ(DRScriptFile::getSampleFileFullPath(dir + "/n.cmf", 2), dir + "/n.sample2");
  EXPECT_FALSE(DRScriptFile::setSampleFile(dir + "/n.cmf", dir + "/nothing", 1));
  EXPECT_FALSE(DRScriptFile::setSampleFile(dir + "/none.cmf", dir + "/cfg", 1));

  EXPECT_EQ(DRScriptFile::getSampleMapFullPath(dir + "/n.cmf"), "");
  writeFile(dir + "/n.map", "old");
  EXPECT_EQ(DRScriptFile::getSampleMapFullPath(dir + "/n.cmf"), dir + "/n.map");
  EXPECT_TRUE(DRScriptFile::setSampleMap(dir + "/n.cmf", dir + "/cfg"));
  EXPECT_EQ(DRScriptFile::getSampleMapFullPath(dir + "/n.cmf"), dir + "/n.qmap");
  EXPECT_EQ(readFile(dir + "/n.map"), "old") << "setSampleMap never writes .map";
}

}  // namespace
