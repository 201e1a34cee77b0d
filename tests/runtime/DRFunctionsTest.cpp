// Runs small Perl programs built the way translated notes are (a head, a body
// that calls the runtime, "close OUTFILE;" and the runtime text) over a small
// configuration (tests/data/runtime/config.cfg), and compares what they write
// to the result file.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/Pathname.h"
#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"
#include "results/DRResultTree.h"
#include "results/UIVariableForDR.h"
#include "support/CaseFile.h"
#include "support/TestFiles.h"
#include "translator/DRTranslator.h"

namespace {


// The same head in a form that is quiet under -w; standard error goes to the
// file named by a fourth argument so that warnings can be checked.
const char kQuietHead[] =
    "BEGIN { open(STDERR, '>', $ARGV[3]) or die; }\n"
    "our (%allLines, @matchResults, @matchResultsBegin, @matchResultsEnd, @matchResultsMiddle);\n"
    "our (@UI_InterfaceList, @UI_ProtocolList, @UI_InterfaceNameList, @UI_IPAddressList);\n"
    "our (@UI_VrfNameList, @UI_RouteMapNameList, @UI_NATList);\n"
    "hashConfigFile();\nreadUIFiles();\n"
    "open(OUTFILE, '>', $ARGV[1]) or die;\n";

using testsupport::readFile;
using testsupport::writeFile;

class DRFunctionsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    mPerl = QXFileSystem::GetPerlExepath();
    if (mPerl.empty()) GTEST_SKIP() << "perl is not installed";
    mRuntime = readFile(QXFileSystem::GetScriptFilePath("DRFunctions"));
    ASSERT_FALSE(mRuntime.empty()) << QXFileSystem::GetScriptFilePath("DRFunctions");
    mDir = testsupport::scratchFolder(std::string("runtime-") +
                                      ::testing::UnitTest::GetInstance()->current_test_info()->name());
    writeFile(mDir + "config.cfg", testsupport::readDataFile("runtime/config.cfg"));
  }

  // Runs body under -w with the quiet head; expects no warnings and returns
  // the result file.
  std::string run(const std::string& body, const std::string& uiFolder = "") {
    std::string program = mDir + "note.pl";
    writeFile(program, std::string(kQuietHead) + body + "\r\nclose OUTFILE;\n" + mRuntime);
    std::string result = mDir + "result.txt";
    std::string errors = mDir + "errors.txt";
    Pathname(result).removeFile(false);
    int rc = QXFileSystem::ExecuteArgv({mPerl, "-w", program, mDir + "config.cfg", result, uiFolder, errors});
    EXPECT_EQ(rc, 0) << readFile(errors);
    EXPECT_EQ(readFile(errors), "") << body;
    return readFile(result);
  }

  std::string mPerl;
  std::string mRuntime;
  std::string mDir;
};

// The programs of tests/data/runtime/programs.txt write their results.
TEST_F(DRFunctionsTest, ProgramsWriteTheirResults) {
  for (const testsupport::Case& c : testsupport::readCases("runtime/programs.txt")) {
    EXPECT_EQ(run(c["body"]), c["result"]) << c.where();
  }
}

TEST_F(DRFunctionsTest, UIFilesFillTheLists) {
  UIVariableForDR ui("r1", 0);
  ui.addVariableValue(UIVariableType::InterfaceList, "Gi0/2");
  ui.addVariableValue(UIVariableType::InterfaceList, "Gi0/1");
  ui.addVariableValue(UIVariableType::NATList, "nat one");
  std::string folder = mDir + "ui";
  platform::makeDir(folder);
  ASSERT_TRUE(ui.save(folder, true));
  const std::string body =
      "print OUTFILE join('|', @UI_InterfaceList), ';', join('|', @UI_InterfaceNameList), ';',"
      " join('|', @UI_NATList), ';', scalar(@UI_ProtocolList), \"\\n\";"
      "@r = search_line(\"^interface (Gi0/2)\", \"all\", \\@UI_InterfaceList, \"\"); printToFile(\\@r);";
  EXPECT_EQ(run(body, folder + platform::kPathSeparator),
            "interface Gi0/1|interface Gi0/2;Gi0/1|Gi0/2;nat one;0\ninterface Gi0/2\n");
  EXPECT_EQ(run(body, folder), "interface Gi0/1|interface Gi0/2;Gi0/1|Gi0/2;nat one;0\ninterface Gi0/2\n");
  EXPECT_EQ(run(body, ""), ";;;0\n");
}

TEST_F(DRFunctionsTest, GeneratedHeadAndResultTreeWorkTogether) {
  std::string program = mDir + "generated.pl";
  writeFile(
      program,
      DRTranslator::programHead() +
          "@r = search_paragraph_begin(\"^router bgp\", \"all\", \"\", \"bgp\");\r\nprintToFile(\\@r);\r\n"
          "@l = search_line(\"^end\", \"all\", \"\", \"\");\r\nprintToFile(\\@l);\r\n"
          "\r\nclose OUTFILE;\n" +
          mRuntime);
  std::string result = mDir + "generated.txt";
  EXPECT_EQ(QXFileSystem::ExecuteArgv({mPerl, program, mDir + "config.cfg", result, ""}), 0);
  DRResultTree tree(result);
  EXPECT_EQ(tree.dump(),
            "14|4|1|router bgp 65000 !bgp\n"
            "  15|0|0| neighbor 10.1.1.2 remote-as 65001\n"
            "  16|0|0| address-family ipv4\n"
            "  17|0|0|  neighbor 10.1.1.2 activate\n"
            "  18|0|0| exit-address-family\n"
            "22|0|0|end\n");
}

TEST_F(DRFunctionsTest, RuntimeCompilesQuietlyAndPrintsNothingOnItsOwn) {
  std::string program = mDir + "alone.pl";
  writeFile(program,
            "BEGIN { open(STDOUT, '>', $ARGV[0]) or die; open(STDERR, '>', $ARGV[1]) or die; }\n" + mRuntime);
  std::string out = mDir + "out.txt";
  std::string err = mDir + "err.txt";
  EXPECT_EQ(QXFileSystem::ExecuteArgv({mPerl, "-c", "-w", program, out, err}), 0);
  EXPECT_EQ(readFile(err), program + " syntax OK\n");
  EXPECT_EQ(QXFileSystem::ExecuteArgv({mPerl, "-w", program, out, err}), 0);
  EXPECT_EQ(readFile(out), "");
  EXPECT_EQ(readFile(err), "");
  // The runtime is strict inside every subroutine: with strict over the whole
  // file it still compiles.
  writeFile(program, "use strict;\nBEGIN { open(STDERR, '>', $ARGV[1]) or die; }\n" + mRuntime);
  EXPECT_EQ(QXFileSystem::ExecuteArgv({mPerl, "-c", "-w", program, out, err}), 0) << readFile(err);
}

TEST_F(DRFunctionsTest, MissingConfigurationIsToldOnStandardError) {
  std::string program = mDir + "missing.pl";
  writeFile(program, std::string(kQuietHead) +
                         "print OUTFILE scalar(keys %allLines), \"\\n\";\nclose OUTFILE;\n" + mRuntime);
  std::string result = mDir + "missing.txt";
  std::string errors = mDir + "missing-errors.txt";
  EXPECT_EQ(QXFileSystem::ExecuteArgv({mPerl, "-w", program, mDir + "none.cfg", result, "", errors}), 0);
  EXPECT_EQ(readFile(result), "0\n");
  EXPECT_EQ(readFile(errors).rfind("Can't open configuration file ", 0), 0u) << readFile(errors);
}

}  // namespace
