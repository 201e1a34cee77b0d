// Programs run without a shell, folders, path names and the small text and
// address helpers of the platform layer.
#include "platform/QXFileSystem.h"

#include <gtest/gtest.h>

#include <fstream>

#include "platform/IpAddress.h"
#include "platform/Pathname.h"
#include "platform/PlatformOs.h"
#include "platform/StlHelper.h"
#include "support/CallTable.h"
#include "support/TestFiles.h"

namespace {

using testsupport::readFile;

TEST(QXFileSystemTest, SpawnedChildGetsHostileArgumentUnchanged) {
  std::string perl = QXFileSystem::GetPerlExepath();
  if (perl.empty()) GTEST_SKIP() << "perl is not installed";
  std::string out = QXFileSystem::GetTempFolder() + "spawn-arg.txt";
  std::string hostile = "a \"quoted\" 'word'; rm -rf /tmp/x $(touch /tmp/pwned) `id`\nsecond line";
  int rc = QXFileSystem::ExecuteArgv(
      {perl, "-e", "open(my $f, '>', $ARGV[0]) or die; print $f $ARGV[1]; close $f", out, hostile});
  EXPECT_EQ(rc, 0);
  EXPECT_EQ(readFile(out), hostile);
  EXPECT_FALSE(Pathname("/tmp/pwned").exists());
}

TEST(QXFileSystemTest, ExecuteCmdSplitsQuotedCommandLineWithoutShell) {
  std::string perl = QXFileSystem::GetPerlExepath();
  if (perl.empty()) GTEST_SKIP() << "perl is not installed";
  std::string dir = QXFileSystem::GetTempFolder();
  std::string script = dir + "args.pl";
  {
    std::ofstream s(script);
    s << "open(my $f, '>', $ARGV[0]) or die; print $f join('|', @ARGV[1..$#ARGV]); close $f;\n";
  }
  std::string out = dir + "args out.txt";
  // The form a note runner writes: quoted items, the last one ending in two
  // backslashes so that the closing quote is not escaped.
  std::string args = "\"" + script + "\" \"" + out + "\" \"conf; $(id).cfg\" \"\\\\\"";
  QXFileSystem::ExecuteCmd("\"" + perl + "\"", args);
  EXPECT_EQ(readFile(out), "conf; $(id).cfg|\\");
}

// The rows of tests/data/platform/calls.tsv.
TEST(PlatformCalls, HelpersGiveTheirRowsResult) {
  const testsupport::Calls calls = {
      {"splitCommandLine", testsupport::oneText([](const std::string& line) {
         std::string items;
         for (const std::string& item : QXFileSystem::SplitCommandLine(line)) items += (items.empty() ? "" : "|") + item;
         return items;
       })},
      {"isValidIpAddress", testsupport::oneWord(IpAddress::isValidIpAddress)},
      {"isValidIpAddressAndMaskLen", testsupport::oneWord(IpAddress::isValidIpAddressAndMaskLen)},
      {"firstWord", testsupport::oneText([](const std::string& text) {
         std::string rest = text;
         const std::string word = StlHelper::GetFirstWord(rest);
         return testsupport::joinFields({word, rest});
       })},
  };
  testsupport::runCallTable("platform/calls.tsv", calls);
}

TEST(QXFileSystemTest, MissingProgramIsAnErrorNotACrash) {
  EXPECT_EQ(QXFileSystem::ExecuteArgv({"/nonexistent/program"}), -1);
  EXPECT_EQ(QXFileSystem::ExecuteArgv({}), -1);
  QXFileSystem::ExecuteCmd("\"/nonexistent/program\"", "\"x\"");
}

TEST(QXFileSystemTest, FoldersEndInSeparatorAndOverrideWins) {
  std::string temp = QXFileSystem::GetTempFolder();
  ASSERT_FALSE(temp.empty());
  EXPECT_TRUE(platform::isPathSeparator(temp.back()));
  EXPECT_EQ(platform::access(temp, 0), 0);
  QXFileSystem::SetSystemResourceFolder("/some/where");
  EXPECT_EQ(QXFileSystem::GetSystemResourceFolder(), "/some/where/");
  EXPECT_EQ(QXFileSystem::GetScriptFilePath("DRFunctions"), "/some/where/scripts/DRFunctions");
  QXFileSystem::SetSystemResourceFolder("");
  EXPECT_TRUE(platform::isPathSeparator(QXFileSystem::GetSystemResourceFolder().back()));
}

TEST(PathnameTest, NamesContentsAndRemoval) {
  std::string dir = QXFileSystem::GetTempFolder() + "pn";
  ASSERT_EQ(platform::makeDir(dir), 0);
  std::ofstream(dir + "/b.txt") << "b";
  std::ofstream(dir + "/a.cfm.order") << "a";
  auto entries = Pathname(dir).dirContents();
  ASSERT_EQ(entries.size(), 2u);
  EXPECT_EQ(entries[0].file(), "a.cfm.order");
  EXPECT_EQ(entries[0].fileBase(), "a.cfm");
  EXPECT_EQ(entries[1].file(), "b.txt");
  EXPECT_EQ(Pathname(dir + "/").file(), "pn");
  EXPECT_TRUE(Pathname(dir).isDirectory());
  EXPECT_FALSE(Pathname(dir).removeFile(false));
  EXPECT_TRUE(Pathname(dir).removeFile(true));
  EXPECT_FALSE(Pathname(dir).exists());
  EXPECT_TRUE(Pathname(dir + "/nothing").dirContents().empty());
}

TEST(StlHelperTest, StringHelpers) {
  std::string s = "a\n!!!b\n!!!";
  StlHelper::replaceString(s, "\n!!!", "\n");
  EXPECT_EQ(s, "a\nb\n");
  std::string t = "/usr/lib//\\";
  StlHelper::trimRight(t, "/\\");
  EXPECT_EQ(t, "/usr/lib");
}

}  // namespace
