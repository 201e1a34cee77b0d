// Runs small Perl programs built the way translated notes are (a head, a body
// that calls the runtime, "close OUTFILE;" and the runtime text) over a small
// configuration, and compares what they write to the result file.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/Pathname.h"
#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"
#include "results/DRResultTree.h"
#include "results/UIVariableForDR.h"
#include "support/TestFiles.h"
#include "translator/DRTranslator.h"

namespace {

const char kConfig[] =
    "hostname r1\r\n"                              // 1
    "!\r\n"                                        // 2
    "interface Gi0/1\r\n"                          // 3
    " description uplink\r\n"                      // 4
    " ip address 10.1.1.1 255.255.255.0\r\n"       // 5
    "!\r\n"                                        // 6
    "interface Gi0/2\r\n"                          // 7
    " ip address 10.2.2.1 255.255.255.0\r\n"       // 8
    " shutdown\r\n"                                // 9
    "!\r\n"                                        // 10
    "interface Loopback0\r\n"                      // 11
    " ip address 192.168.0.1 255.255.255.255\r\n"  // 12
    "!\r\n"                                        // 13
    "router bgp 65000\r\n"                         // 14
    " neighbor 10.1.1.2 remote-as 65001\r\n"       // 15
    " address-family ipv4\r\n"                     // 16
    "  neighbor 10.1.1.2 activate\r\n"             // 17
    " exit-address-family\r\n"                     // 18
    "!\r\n"                                        // 19
    "ip route 0.0.0.0 0.0.0.0 10.1.1.254\r\n"      // 20
    "ip route 10.9.0.0 255.255.0.0 10.2.2.9\r\n"   // 21
    "end\r\n";                                     // 22

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

struct Row {
  const char* name;
  std::string body;
  std::string expected;
};

class DRFunctionsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    mPerl = QXFileSystem::GetPerlExepath();
    if (mPerl.empty()) GTEST_SKIP() << "perl is not installed";
    mRuntime = readFile(QXFileSystem::GetScriptFilePath("DRFunctions"));
    ASSERT_FALSE(mRuntime.empty()) << QXFileSystem::GetScriptFilePath("DRFunctions");
    mDir = testsupport::scratchFolder(std::string("runtime-") +
                                      ::testing::UnitTest::GetInstance()->current_test_info()->name());
    writeFile(mDir + "config.cfg", kConfig);
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

TEST_F(DRFunctionsTest, SearchLine) {
  const std::vector<Row> rows = {
      {"first", "@r = search_line(\"^interface\", \"first\", \"\", \"\"); printToFile(\\@r);",
       "3:::interface Gi0/1\n"},
      {"all with a group",
       "@r = search_line(\"^interface ([^ \\t\\r\\n]*)\", \"all\", \"\", \"\"); printToFile(\\@r);"
       " print OUTFILE \"[$matchResults[0]]\\n\";",
       "3:::interface Gi0/1\n7:::interface Gi0/2\n11:::interface Loopback0\n[Gi0/1 Gi0/2 Loopback0]\n"},
      {"continuous run", "@r = search_line(\"^ip route\", \"continuous\", \"\", \"\"); printToFile(\\@r);",
       "20:::ip route 0.0.0.0 0.0.0.0 10.1.1.254\n21:::ip route 10.9.0.0 255.255.0.0 10.2.2.9\n"},
      {"continuous stops at a gap",
       "@r = search_line(\"^ ip address\", \"continuous\", \"\", \"\"); printToFile(\\@r);",
       "5::: ip address 10.1.1.1 255.255.255.0\n"},
      {"name tags each line", "@r = search_line(\"^end\", \"all\", \"\", \"x\"); printToFile(\\@r);",
       "22:::end !#tag#x#LineNumbers#0\n"},
      {"search in a set",
       "@s = search_line(\"^interface\", \"all\", \"\", \"n\"); @r = search_line(\"Loop\", \"all\", \\@s, "
       "\"\");"
       " printToFile(\\@r);",
       "11:::interface Loopback0\n"},
      {"two groups",
       "search_line(\"^ip route ([^ \\t\\r\\n]*) [^ ]* ([^ \\t\\r\\n]*)\", \"all\", \"\", \"\");"
       " print OUTFILE \"$matchResults[0]|$matchResults[1]\\n\";",
       "0.0.0.0 10.9.0.0|10.1.1.254 10.2.2.9\n"},
      {"no match leaves one empty value per group",
       "@r = search_line(\"^nothing ([^ ]*) ([^ ]*)\", \"all\", \"\", \"\");"
       " print OUTFILE scalar(@r), ':', scalar(@matchResults), \":[$matchResults[0]]\\n\";",
       "0:2:[]\n"},
      {"empty pattern matches every line, not the last pattern",
       "search_line(\"Gi0/2\", \"all\", \"\", \"\"); @r = search_line(\"\", \"first\", \"\", \"\"); "
       "printToFile(\\@r);",
       "1:::hostname r1\n"},
      {"plain values of a list are searched as they are",
       "@v = ('interface Gi0/9', 'x'); @r = search_line(\"^interface ([^ ]*)\", \"all\", \\@v, \"n\");"
       " printToFile(\\@r); print OUTFILE \"$matchResults[0]\\n\";",
       "interface Gi0/9\nGi0/9\n"},
  };
  for (const Row& row : rows) EXPECT_EQ(run(row.body), row.expected) << row.name;
}

TEST_F(DRFunctionsTest, Paragraphs) {
  const std::vector<Row> rows = {
      {"begin: section below a head",
       "@r = search_paragraph_begin(\"^interface Gi0/2\", \"all\", \"\", \"if\"); printToFile(\\@r);",
       "7:::interface Gi0/2 !#tag#if#LineNumbers#2\n8::: ip address 10.2.2.1 255.255.255.0\n9::: shutdown\n"},
      {"begin: deeper lines belong to the section",
       "@r = search_paragraph_begin(\"^router bgp\", \"first\", \"\", \"\"); printToFile(\\@r);",
       "14:::router bgp 65000 !#tag##LineNumbers#4\n15::: neighbor 10.1.1.2 remote-as 65001\n"
       "16::: address-family ipv4\n17:::  neighbor 10.1.1.2 activate\n18::: exit-address-family\n"},
      {"begin: groups from the heads",
       "@r = search_paragraph_begin(\"^interface ([^ ]*)\", \"all\", \"\", \"\");"
       " print OUTFILE scalar(@r), \" $matchResultsBegin[0]\\n\";",
       "8 Gi0/1 Gi0/2 Loopback0\n"},
      {"begin: continuous counts adjacent paragraphs",
       "@r = search_paragraph_begin(\"^(ip route|interface)\", \"continuous\", \"\", \"\"); "
       "printToFile(\\@r);",
       "3:::interface Gi0/1 !#tag##LineNumbers#2\n4::: description uplink\n5::: ip address 10.1.1.1 "
       "255.255.255.0\n"},
      {"begin: continuous over sections without a gap",
       "@r = search_paragraph_begin(\"^ip route\", \"continuous\", \"\", \"\"); printToFile(\\@r);",
       "20:::ip route 0.0.0.0 0.0.0.0 10.1.1.254 !#tag##LineNumbers#0\n"
       "21:::ip route 10.9.0.0 255.255.0.0 10.2.2.9 !#tag##LineNumbers#0\n"},
      {"between: begin to next end, both included",
       "@r = search_paragraph_between(\"^interface (Gi[^ ]*)\", \"^!\", \"all\", \"\", \"p\"); "
       "printToFile(\\@r);"
       " print OUTFILE \"$matchResultsBegin[0]|\", scalar(@matchResultsEnd), \"\\n\";",
       "3:::interface Gi0/1 !#tag#p#LineNumbers#3\n4::: description uplink\n"
       "5::: ip address 10.1.1.1 255.255.255.0\n6:::!\n"
       "7:::interface Gi0/2 !#tag#p#LineNumbers#3\n8::: ip address 10.2.2.1 255.255.255.0\n9::: shutdown\n"
       "10:::!\nGi0/1 Gi0/2|0\n"},
      {"between: groups of the end pattern",
       "@r = search_paragraph_between(\"^router\", \"^ (exit)-address-family\", \"first\", \"\", \"\");"
       " print OUTFILE scalar(@r), \" $matchResultsEnd[0]\\n\";",
       "5 exit\n"},
      {"paragraph: only heads and middle lines",
       "@r = search_paragraph(\"^interface\", \"^!\", \"shutdown\", \"all\", \"\", \"\"); printToFile(\\@r);",
       "7:::interface Gi0/2 !#tag##LineNumbers#3\n9::: shutdown\n"},
      {"paragraph: groups of all three patterns",
       "@r = search_paragraph(\"^interface ([^ ]*)\", \"^(!)\", \"ip address ([^ ]*)\", \"first\", \"\", "
       "\"a\");"
       " printToFile(\\@r); print OUTFILE "
       "\"$matchResultsBegin[0]|$matchResultsEnd[0]|$matchResultsMiddle[0]\\n\";",
       "3:::interface Gi0/1 !#tag#a#LineNumbers#3\n5::: ip address 10.1.1.1 "
       "255.255.255.0\nGi0/1|!|10.1.1.1\n"},
      {"paragraph in a set",
       "@s = search_paragraph_begin(\"^interface Gi\", \"all\", \"\", \"\");"
       " @r = search_paragraph_begin(\"^interface Gi0/2\", \"all\", \\@s, \"\"); printToFile(\\@r);",
       "7:::interface Gi0/2 !#tag##LineNumbers#2\n8::: ip address 10.2.2.1 255.255.255.0\n9::: shutdown\n"},
  };
  for (const Row& row : rows) EXPECT_EQ(run(row.body), row.expected) << row.name;
}

TEST_F(DRFunctionsTest, SetAlgebra) {
  const std::vector<Row> rows = {
      {"combine keeps the first and sorts",
       "@a = ('5:::b', '3:::a x'); @b = ('4:::c', '3:::other'); @r = combineLines(\\@a, \\@b); "
       "printToFile(\\@r);",
       "3:::a x\n4:::c\n5:::b\n"},
      {"combine into an empty set, plain values once",
       "@t = (); @v = ('x', 'y', 'x'); @t = combineLines(\\@t, \\@v); printToFile(\\@t);", "x\ny\n"},
      {"remove by number",
       "@a = ('3:::a', '4:::b', '5:::c'); @b = ('4:::other'); @r = removeLines(\\@a, \\@b); "
       "printToFile(\\@r);",
       "3:::a\n5:::c\n"},
      {"isEmpty", "@e = (); @f = ('1:::x'); print OUTFILE isEmpty(\\@e), isEmpty(\\@f), \"\\n\";", "10\n"},
      {"exclude is the complement, its size in scalar context",
       "@s = search_line(\"\", \"all\", \"\", \"\"); @s = removeLines(\\@s, [ '22:::end', '1:::h' ]);"
       " @r = excludeLines(\\@s); $n = excludeLines(\\@s); printToFile(\\@r); print OUTFILE \"$n\\n\";",
       "1:::hostname r1\n22:::end\n2\n"},
  };
  for (const Row& row : rows) EXPECT_EQ(run(row.body), row.expected) << row.name;
}

TEST_F(DRFunctionsTest, IsInSameNet) {
  const std::vector<Row> rows = {
      {"dotted mask",
       "print OUTFILE is_in_samenet(['10.1.1.1'], ['255.255.255.0'], ['10.1.1.77'], '', ''), \"\\n\";",
       "1\n"},
      {"prefix length",
       "print OUTFILE is_in_samenet(['10.2.0.0'], ['16'], ['10.3.0.1', '10.2.200.1'], '', ''), \"\\n\";",
       "1\n"},
      {"prefix length with slash",
       "print OUTFILE is_in_samenet(['10.2.0.0'], ['/24'], ['10.2.1.1'], '', ''), \"\\n\";", "0\n"},
      {"mask of the matching pair",
       "print OUTFILE is_in_samenet(['10.0.0.0', '192.168.0.0'], ['8', '255.255.0.0'], ['192.168.9.9'], '', "
       "''),"
       " \"\\n\";",
       "1\n"},
      {"bad values are passed over",
       "print OUTFILE is_in_samenet(['300.1.1.1', 'x'], ['24', '24'], ['300.1.1.2', ''], '', ''), \"\\n\";",
       "0\n"},
      {"matching lines join the set, tagged",
       "@s = ('3:::interface Gi0/1'); $r = is_in_samenet(['10.1.1.1'], ['255.255.255.0'], ['10.1.1.2'], "
       "\\@s, \"nb\");"
       " print OUTFILE \"$r\\n\"; printToFile(\\@s);",
       "1\n3:::interface Gi0/1\n15::: neighbor 10.1.1.2 remote-as 65001 !#tag#nb#LineNumbers#0\n"
       "17:::  neighbor 10.1.1.2 activate !#tag#nb#LineNumbers#0\n"},
  };
  for (const Row& row : rows) EXPECT_EQ(run(row.body), row.expected) << row.name;
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
