// Runs of design notes with the real interpreter: the example notes over their
// samples and over a clean configuration, the run operations' choice of
// program and clean-up, several notes at once, unsaved text, the folder search
// for useful notes, and file names that a shell would have taken as commands.
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

#include "NoteTestSupport.h"
#include "notes/DRScriptFile.h"
#include "notes/DesignNoteParser.h"
#include "platform/MultiVendorFileSystem.h"
#include "results/DRResultTree.h"
#include "results/UIVariableForDR.h"

using notestest::exists;
using notestest::readFile;
using notestest::scratch;
using notestest::writeFile;

namespace {

// Six lines; line 4 shuts the first interface down.
const std::string kConfig = notestest::readFile(notestest::dataDir() + "/run.cfg");

class NoteRunTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!notestest::havePerl()) GTEST_SKIP() << "no perl on PATH (or VTYCONF_PERL): notes cannot run";
  }
};

// The example notes, each over its sample: the tree must be the one stored
// beside the test data, and over the clean configuration there is no finding.
TEST_F(NoteRunTest, ExampleNotesFindTheirSampleAndNothingOnACleanConfiguration) {
  int checked = 0;
  for (const Pathname& entry : Pathname(notestest::examplesDir()).dirContents()) {
    const std::string name = entry.file();
    if (name.size() < 5 || name.compare(name.size() - 4, 4, ".cmf") != 0) continue;
    const std::string base = name.substr(0, name.size() - 4);
    SCOPED_TRACE(base);
    // Run from a private copy so that the translation is fresh.
    const std::string dir = scratch("example-" + base);
    DRScriptFile source(entry.data());
    ASSERT_FALSE(source.getContext().empty());
    EXPECT_EQ(DesignNoteParser::checkScriptFile(source.getContext()), "");
    ASSERT_TRUE(source.saveScriptFile(dir + "/" + name));
    ASSERT_TRUE(exists(dir + "/" + base + ".pl"));

    const std::string sample = DRScriptFile::getSampleFileFullPath(entry.data(), 1);
    ASSERT_FALSE(sample.empty()) << "every example note has a sample";
    std::unique_ptr<DRResultTree> found(DesignNoteParser::getDesignNoteTree(dir + "/" + name, sample, nullptr));
    ASSERT_TRUE(found);
    EXPECT_FALSE(found->isEmpty());
    const std::string expectedPath = notestest::dataDir() + "/expected/" + base + ".tree";
    if (std::getenv("VTYCONF_WRITE_EXPECTED") != nullptr) writeFile(expectedPath, found->dump());
    EXPECT_EQ(found->dump(), readFile(expectedPath));

    std::unique_ptr<DRResultTree> clean(
        DesignNoteParser::getDesignNoteTree(dir + "/" + name, notestest::dataDir() + "/clean.cfg", nullptr));
    ASSERT_TRUE(clean);
    EXPECT_TRUE(clean->isEmpty()) << clean->dump();
    ++checked;
  }
  EXPECT_GE(checked, 10);
}

TEST_F(NoteRunTest, StoredProgramIsPreferredToTheScript) {
  const std::string dir = scratch("run-real");
  writeFile(dir + "/cfg", kConfig);
  writeFile(dir + "/n.cmf", "x");
  EXPECT_EQ(DesignNoteParser::getRealScriptFile(dir + "/n.cmf"), dir + "/n.cmf");
  writeFile(dir + "/n.py", "x");
  EXPECT_EQ(DesignNoteParser::getRealScriptFile(dir + "/n.cmf"), dir + "/n.py");
  writeFile(dir + "/n.pl", "open(O, '>', $ARGV[1]); print O \"1:::stored\\n\";");
  EXPECT_EQ(DesignNoteParser::getRealScriptFile(dir + "/n.cmf"), dir + "/n.pl");
  EXPECT_EQ(DesignNoteParser::getRealScriptFile(dir + "/n.txt"), dir + "/n.txt");

  std::unique_ptr<DRResultTree> tree(DesignNoteParser::getDesignNoteTree(dir + "/n.cmf", dir + "/cfg", nullptr));
  ASSERT_TRUE(tree);
  EXPECT_EQ(tree->dump(), "1|0|0|stored\n");
  EXPECT_EQ(DesignNoteParser::getDesignNoteTree(dir + "/gone.cmf", dir + "/cfg", nullptr), nullptr);
  EXPECT_EQ(DesignNoteParser::getDesignNoteTree(dir + "/n.cmf", dir + "/gone", nullptr), nullptr);
  EXPECT_EQ(DesignNoteParser::getDesignNoteTree("", dir + "/cfg", nullptr), nullptr);
}

TEST_F(NoteRunTest, ProgramSeesThreeArgumentsAndTheUiFolder) {
  const std::string dir = scratch("run-args");
  writeFile(dir + "/cfg", kConfig);
  // Writes its argument count and the UI file it finds in the UI folder.
  writeFile(dir + "/n.pl",
            "open(O, '>', $ARGV[1]) or die; my $n = @ARGV; print O \"args $n\\n\";"
            "if (open(U, '<', $ARGV[2] . 'UI_IPAddressList.txt')) { while (<U>) { s/\\r?\\n//; print O \"ui $_\\n\"; } }"
            "print O (($ARGV[2] eq '' ? 'empty' : (substr($ARGV[2], -1) eq '/' ? 'slash' : 'bare')) . \"\\n\");");
  writeFile(dir + "/n.cmf", "x");
  std::unique_ptr<DRResultTree> plain(DesignNoteParser::getDesignNoteTree(dir + "/n.cmf", dir + "/cfg", nullptr));
  ASSERT_TRUE(plain);
  EXPECT_EQ(plain->dump(), "-1|0|0|args 3\n-1|0|0|empty\n");

  UIVariableForDR ui;
  ui.addVariableValue(UIVariableType::IPAddressList, "10.0.0.1");
  std::unique_ptr<DRResultTree> withUi(DesignNoteParser::getDesignNoteTree(dir + "/n.cmf", dir + "/cfg", &ui));
  ASSERT_TRUE(withUi);
  EXPECT_EQ(withUi->dump(), "-1|0|0|args 3\n-1|0|0|ui 10.0.0.1\n-1|0|0|slash\n");
  // Nothing of either run is left in the temporary folder of runs.
  EXPECT_TRUE(Pathname(MultiVendorFileSystem::GetDesignReaderTempPath()).dirContents().empty());
}

TEST_F(NoteRunTest, RawResultAndCleanUpOfAFreshTranslation) {
  const std::string dir = scratch("run-raw");
  writeFile(dir + "/cfg", kConfig);
  ASSERT_TRUE(DRScriptFile("#s = search_line(\"^ shutdown\", all);\nprint #s;\n", "", true)
                  .saveScriptFile(dir + "/shut.cmf"));
  EXPECT_EQ(DesignNoteParser::getDesignNote(dir + "/shut.cmf", dir + "/cfg", nullptr), "4::: shutdown\n");
  EXPECT_FALSE(exists(QXFileSystem::GetTempFolder() + "shut.pl"));
  EXPECT_FALSE(exists(QXFileSystem::GetTempFolder() + "shut.drtmp"));

  ASSERT_TRUE(DRScriptFile("", "", true).saveScriptFile(dir + "/empty.cmf"));
  EXPECT_EQ(DesignNoteParser::getDesignNote(dir + "/empty.cmf", dir + "/cfg", nullptr), "")
      << "no program is written; the interpreter fails";
  EXPECT_EQ(DesignNoteParser::getDesignNote(dir + "/none.cmf", dir + "/cfg", nullptr), "");
}

TEST_F(NoteRunTest, SeveralNotesMergeByLineNumberAndTheFirstWins) {
  const std::string dir = scratch("run-multi");
  writeFile(dir + "/cfg", kConfig);
  writeFile(dir + "/a.pl", "open(O, '>', $ARGV[1]); print O \"4:::from a\\n2:::two\\n\";");
  writeFile(dir + "/b.pl", "open(O, '>', $ARGV[1]); print O \"4:::from b\\n1:::one\\n\";");
  EXPECT_EQ(DesignNoteParser::getResultByMultiFilters({dir + "/a.pl", dir + "/gone.pl", dir + "/b.pl"},
                                                      dir + "/cfg", nullptr),
            "one\r\ntwo\r\nfrom a\r\n");
  EXPECT_EQ(DesignNoteParser::getResultByMultiFilters({}, dir + "/cfg", nullptr), "");
}

TEST_F(NoteRunTest, UnsavedTextRunsOverConfigurationText) {
  std::unique_ptr<DRResultTree> tree(DesignNoteParser::testDesignFilter(
      "#a = search_line(\"ip address ($ip) ($mask)\", all);\n#s = ();\n"
      "if (is_in_samenet($ip, $mask, $ip, #s)) {\n  print #a;\n}\n",
      kConfig));
  ASSERT_TRUE(tree);
  EXPECT_EQ(tree->dump(), "3|0|0| ip address 10.0.0.1 255.0.0.0\n6|0|0| ip address 10.1.0.1 255.0.0.0\n");
  EXPECT_EQ(DesignNoteParser::testDesignFilter("", kConfig), nullptr);
  EXPECT_EQ(DesignNoteParser::testDesignFilter("print #a;", ""), nullptr);
}

TEST_F(NoteRunTest, UsefulFilesKeepFavouritesWithAResultAndPrune) {
  const std::string root = scratch("run-useful");
  writeFile(root + "/cfg.txt", kConfig);
  const std::string finds = "#s = search_line(\"^ shutdown\", all);\nprint #s;\n";
  const std::string findsNothing = "#s = search_line(\"^ no such line\", all);\nprint #s;\n";
  platform::makeDir(root + "/notes");
  platform::makeDir(root + "/notes/sub");
  platform::makeDir(root + "/notes/empty");
  ASSERT_TRUE(DRScriptFile(finds, "", true).saveScriptFile(root + "/notes/shut.cmf"));
  ASSERT_TRUE(DRScriptFile(finds, "", false).saveScriptFile(root + "/notes/notfav.cmf"));
  ASSERT_TRUE(DRScriptFile(findsNothing, "", true).saveScriptFile(root + "/notes/quiet.cmf"));
  ASSERT_TRUE(DRScriptFile(finds, "", true).saveScriptFile(root + "/notes/sub/deep.cmf"));
  ASSERT_TRUE(DRScriptFile(findsNothing, "", true).saveScriptFile(root + "/notes/empty/q.cmf"));

  std::unique_ptr<DesignNoteParser> useful(DesignNoteParser::getUsefulFiles(root + "/notes/", root + "/cfg.txt"));
  ASSERT_TRUE(useful);
  EXPECT_EQ(useful->getRootDirct(), root + "/notes");
  EXPECT_EQ(useful->getScriptFiles(), DesignNoteParser::NameSet({"shut"}));
  ASSERT_EQ(useful->getSubDirects().size(), 1u);
  EXPECT_EQ(useful->getSubDirects().begin()->first, "sub");
  EXPECT_EQ(useful->getSubDirects().begin()->second->getScriptFiles(), DesignNoteParser::NameSet({"deep"}));

  EXPECT_EQ(DesignNoteParser::getUsefulFiles(root + "/notes/empty", root + "/cfg.txt"), nullptr);
  EXPECT_EQ(DesignNoteParser::getUsefulFiles(root + "/notes", root + "/none.txt"), nullptr);
}

// File names full of shell syntax are opened as files and run nothing.
TEST_F(NoteRunTest, NamesWithShellSyntaxRunNothingElse) {
  const std::string dir = scratch("run-inject");
  const std::string marker = dir + "/pwned";
  const std::string evil = dir + "/a \"b\" 'c'; touch pwned; $(touch pwned) `touch pwned` -x";
  platform::makeDir(evil);
  const std::string script = evil + "/n $(touch pwned).cmf";
  const std::string config = evil + "/c;touch pwned \"q\".cfg";
  writeFile(config, kConfig);
  ASSERT_TRUE(DRScriptFile("#s = search_line(\"^ shutdown\", all);\nprint #s;\n", "", true).saveScriptFile(script));
  std::unique_ptr<DRResultTree> tree(DesignNoteParser::getDesignNoteTree(script, config, nullptr));
  ASSERT_TRUE(tree);
  EXPECT_EQ(tree->dump(), "4|0|0| shutdown\n");
  EXPECT_EQ(DesignNoteParser::getDesignNote(script, config, nullptr), "4::: shutdown\n");
  EXPECT_FALSE(exists(marker));
  EXPECT_FALSE(exists("pwned"));
  // A program whose name begins with "-" is not taken for a switch.
  const auto args = DesignNoteParser::buildRunArguments("perl", "-e.pl", "c", "r", "");
  EXPECT_EQ(args, (std::vector<std::string>{"perl", "./-e.pl", "c", "r", ""}));
}

}  // namespace
