// The whole program: head, body, tail, the runtime text, the files around a
// translation, sample notes checked by perl, and the "note translate" command.
#include <gtest/gtest.h>

#include "TranslatorTestSupport.h"
#include "platform/Pathname.h"
#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"

using namespace translatortest;

namespace {

// Points the resource folder somewhere else for one test.
class ResourceFolderOverride {
 public:
  explicit ResourceFolderOverride(const std::string& folder) { QXFileSystem::SetSystemResourceFolder(folder); }
  ~ResourceFolderOverride() { QXFileSystem::SetSystemResourceFolder(""); }
};

std::string makeFolder(const std::string& name) {
  std::string folder = QXFileSystem::GetTempFolder() + name + "/";
  platform::makeDir(folder);
  return folder;
}

}  // namespace

TEST(DRTranslatorDriver, EmptyScriptGivesHeadEmptyBodyAndTail) {
  std::string program = tempPath("empty.pl");
  DRTranslator translator("", program);
  translator.translateScriptFile();
  EXPECT_EQ(translator.errorText, "");
  EXPECT_EQ(readFile(program), head() + closeLine() + runtimeText());
  EXPECT_FALSE(runtimeText().empty());
  // The head's lines that the runtime and the result reader depend on, in order.
  const std::string h = head();
  std::size_t at = 0;
  for (const char* line : {"\r\n#Read the config file into a perl hash variable.\r\n%allLines;\r\n",
                           "@UI_InterfaceList;\r\n@UI_ProtocolList;\r\n@UI_InterfaceNameList;\r\n"
                           "@UI_IPAddressList;\r\n@UI_VrfNameList;\r\n@UI_RouteMapNameList;\r\n@UI_NATList;\r\n",
                           "\r\nhashConfigFile();\r\n\r\nreadUIFiles();\r\n$resultFile = $ARGV[1];\r\n",
                           "\tprint \"Can't open result file!\";\r\n\treturn;\r\n}\r\n\r\n\r\n"}) {
    at = h.find(line, at);
    ASSERT_NE(at, std::string::npos) << line;
  }
  EXPECT_EQ(closeLine(), "\r\nclose OUTFILE;\n");
}

TEST(DRTranslatorDriver, FailedTranslationWritesTheSameFileAsAnEmptyScript) {
  std::string empty = tempPath("empty2.pl");
  DRTranslator(std::string(), empty).translateScriptFile();
  std::string failed = tempPath("failed.pl");
  DRTranslator translator("$a = $b;\n#x = search_line(\"a\", sometimes);\n", failed);
  translator.translateScriptFile();
  EXPECT_EQ(translator.errorText, "Function has wrong flag argument on code line 2.\r\n");
  EXPECT_EQ(readFile(failed), readFile(empty));
}

TEST(DRTranslatorDriver, ReplacesAnOldProgramCompletely) {
  std::string program = tempPath("old.pl");
  writeFile(program, std::string(10000, 'x'));
  DRTranslator("print \"hi\";", program).translateScriptFile();
  EXPECT_EQ(readFile(program), head() + "print OUTFILE \"hi\";" + closeLine() + runtimeText());
}

TEST(DRTranslatorDriver, CopiesTheRuntimeUnchangedAndTurnsOnlyBodyHashes) {
  std::string resources = makeFolder("res-hash");
  platform::makeDir(resources + "scripts");
  const std::string runtime = "# a comment\nsub printToFile { my $x = $#_; }\n";
  writeFile(resources + "scripts/DRFunctions", runtime);
  ResourceFolderOverride scoped(resources);
  std::string program = tempPath("hash.pl");
  DRTranslator("print \"#1 $x\";", program).translateScriptFile();
  EXPECT_EQ(readFile(program), head() + "print OUTFILE \"@1 @x\";" + closeLine() + runtime);
}

TEST(DRTranslatorDriver, MissingRuntimeLeavesOutTheTail) {
  std::string resources = makeFolder("res-none");
  ResourceFolderOverride scoped(resources);
  std::string program = tempPath("notail.pl");
  DRTranslator translator("#a = #b;", program);
  translator.translateScriptFile();
  EXPECT_EQ(translator.errorText, "");
  EXPECT_EQ(readFile(program), head() + "@a = @b;");
}

TEST(DRTranslatorDriver, UnwritableProgramPathWritesNothing) {
  std::string program = tempPath("no-such-folder/x.pl");
  DRTranslator translator("#a = #b;", program);
  translator.translateScriptFile();
  EXPECT_EQ(translator.errorText, "");
  EXPECT_FALSE(Pathname(program).exists());
}

TEST(DRTranslatorDriver, SampleNotesTranslateToProgramsPerlAccepts) {
  if (QXFileSystem::GetPerlExepath().empty()) GTEST_SKIP() << "perl is not installed";
  std::string folder = std::string(VTYCONF_TEST_DATA_DIR) + "/translator";
  int checked = 0;
  for (const Pathname& entry : Pathname(folder).dirContents()) {
    if (entry.file().size() < 5 || entry.file().compare(entry.file().size() - 5, 5, ".note") != 0) continue;
    auto t = translate(readFile(entry.data()));
    EXPECT_EQ(t.message, "") << entry.file();
    EXPECT_TRUE(t.wellFormed) << entry.file();
    EXPECT_FALSE(t.body.empty()) << entry.file();
    EXPECT_EQ(perlCompile(t.program), "") << entry.file() << "\n" << t.body;
    ++checked;
  }
  EXPECT_GE(checked, 3);
}

TEST(DRTranslatorDriver, NoteTranslateCommandWritesProgramAndReportsMessages) {
  const std::string cli = VTYCONF_CLI_PATH;
  if (cli.empty() || !Pathname(cli).exists()) GTEST_SKIP() << "the vtyconf program was not built";
  std::string good = tempPath("cli-good.note");
  writeFile(good, "#a = #b - #c;\n");
  std::string out = tempPath("cli-good.pl");
  EXPECT_EQ(QXFileSystem::ExecuteArgv({cli, "note", "translate", good, "-o", out}), 0);
  EXPECT_EQ(readFile(out), head() + "@temp1 = ();\r\n@temp1 = removeLines(\\@b, \\@c);\r\n@a= @temp1;\n" +
                               closeLine() + runtimeText());

  std::string bad = tempPath("cli-bad.note");
  writeFile(bad, "print x;\n");
  EXPECT_EQ(QXFileSystem::ExecuteArgv({cli, "note", "translate", bad, "-o", tempPath("cli-bad.pl")}), 1);
  EXPECT_EQ(QXFileSystem::ExecuteArgv({cli, "note", "translate", tempPath("cli-missing.note")}), 2);
}
