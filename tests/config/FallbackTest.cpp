// Fallback in delta and file mode, and the negation of one command.
#include <string>

#include "ConfigFixture.h"

namespace qxparser {
namespace {

class FallbackTest : public ConfigFixture {};

struct FallbackRow {
  const char* name;
  const char* first;
  const char* second;
  const char* expected;
};

const char* const kRoutes = "hostname r1\nip route 10.0.0.0 255.0.0.0 1.1.1.1\nip route 10.0.0.0 255.0.0.0 2.2.2.2\n";

TEST_F(FallbackTest, DeltaModeUndoesTheChanges) {
  const FallbackRow rows[] = {
      {"new stored command is negated", "logging host 1.1.1.1\n", "hostname r1\n", "no logging host 1.1.1.1 \n"},
      {"overwritten value comes back", "hostname r2\n", "hostname r1\n", "hostname r1 \n"},
      {"additive already there had no effect", "ip route 10.0.0.0 255.0.0.0 1.1.1.1\n", kRoutes, ""},
      {"additive new in a run is negated", "ip route 10.0.0.0 255.0.0.0 3.3.3.3\n", kRoutes,
       "no ip route 10.0.0.0 255.0.0.0 3.3.3.3 \n"},
      {"mergeable is negated and restored", "vlans 30\n", "vlans 10\n", "no vlans 30 \nvlans 10 \n"},
      {"changed mode child restores the head with the old child", "interface loopback 0\n description new\n",
       "interface loopback 0\n description old\n", "interface loopback 0 \n description old \n!\n"},
      {"unchanged mode writes no head", "interface loopback 0\n description old\n",
       "interface loopback 0\n description old\n", ""},
      {"no of an additive run writes the run back", "no ip route 10.0.0.0 255.0.0.0 1.1.1.1\n", kRoutes,
       "ip route 10.0.0.0 255.0.0.0 1.1.1.1 \nip route 10.0.0.0 255.0.0.0 2.2.2.2 \n"},
      {"stored no without match loses its prefix", "no snmp trap 1.1.1.1\n", "hostname r1\n",
       "snmp trap 1.1.1.1 \n"},
      {"unstored no without match gives nothing", "no logging host 1.1.1.1\n", "hostname r1\n", ""},
      {"mergeable no restores the command", "no vlans 10\n", "vlans 10 20\n", "vlans 10 \nvlans 10 20 \n"},
      {"no of an overwrite command restores it", "interface loopback 0\n no description\n",
       "interface loopback 0\n description old\n", "interface loopback 0 \n description old \n!\n"},
      {"unstored positive brings back a stored no", "ip domain lookup\n", "no ip domain lookup\n",
       "no ip domain lookup \n"},
      {"stored no of a positive waits for a flush and is lost without one intended", "no ip domain lookup\n",
       "ip domain lookup\n", ""},
      {"stored no of a positive is written at the next flush",
       "no ip domain lookup\nno ip route 10.0.0.0 255.0.0.0 1.1.1.1\n",
       "ip domain lookup\nip route 10.0.0.0 255.0.0.0 1.1.1.1\n",
       "ip domain lookup \nip route 10.0.0.0 255.0.0.0 1.1.1.1 \n"},
  };
  for (const FallbackRow& row : rows) {
    EXPECT_EQ(QxParserUtil::fallbackConfigCmds(row.first, row.second, 0), row.expected) << row.name;
  }
}

TEST_F(FallbackTest, FileModeLeadsFromOneConfigurationToTheOther) {
  const FallbackRow rows[] = {
      {"equal configurations", kRoutes, kRoutes, ""},
      {"empty second negates every stored command", "hostname r1\nip domain lookup\nlogging host 1.1.1.1\n", "",
       "no hostname r1 \nno logging host 1.1.1.1 \n"},
      {"overwrite gives the new value", "hostname r1\n", "hostname r2\n", "hostname r2 \n"},
      {"additive sibling hides the new command intended", "ip route 10.0.0.0 255.0.0.0 1.1.1.1\n",
       "ip route 10.0.0.0 255.0.0.0 2.2.2.2\n", "no ip route 10.0.0.0 255.0.0.0 1.1.1.1 \n"},
      {"new commands come behind the negations", "logging host 1.1.1.1\n", "hostname r1\n",
       "no logging host 1.1.1.1 \nhostname r1 \n"},
      {"mergeable without match is negated whole", "vlans 10 20\n", "hostname r1\n",
       "no vlans 10 20 \nhostname r1 \n"},
      {"mergeable with other words", "vlans 10\n", "vlans 10 20\n", "no vlans 10 \nvlans 10 20 \n"},
      {"mode child changes inside the head", "interface loopback 0\n description a\n",
       "interface loopback 0\n description b\n", "interface loopback 0 \n description b \n!\n"},
      {"removed mode keeps its end mark", "hostname r1\ninterface loopback 0\n description a\n", "hostname r1\n",
       "no interface loopback 0 \n!\n"},
  };
  for (const FallbackRow& row : rows) {
    EXPECT_EQ(QxParserUtil::fallbackConfigCmds(row.first, row.second, 1), row.expected) << row.name;
    EXPECT_EQ(QxParserUtil::fallbackConfigCmds(row.first, row.second, 2), row.expected) << row.name << " (mode 2)";
  }
}

TEST_F(FallbackTest, EmptyFirstReturnsSecondAsItStands) {
  EXPECT_EQ(QxParserUtil::fallbackConfigCmds("", "hostname  r1\n! c\n", 0), "hostname  r1\n! c\n");
  EXPECT_EQ(QxParserUtil::fallbackConfigCmds("", "hostname  r1\n! c\n", 1), "hostname  r1\n! c\n");
}

TEST_F(FallbackTest, CreateNoCommandAddsOrCutsThePrefix) {
  TopLevel top("logging host 1.1.1.1\nno snmp trap 1.1.1.1\n");
  ASSERT_EQ(top.get().size(), 2u);
  std::unique_ptr<CiscoCommandLine> added(QxParserUtilPeer::no(top[0]));
  EXPECT_EQ(added->getOriginalCmd(), "no logging host 1.1.1.1 \n");
  EXPECT_TRUE(added->hasFlags(CMDBIT_NO));
  EXPECT_EQ(added->getCurrentCommand(), top[0]->getCurrentCommand());
  std::unique_ptr<CiscoCommandLine> cut(QxParserUtilPeer::no(top[1]));
  EXPECT_EQ(cut->getOriginalCmd(), "snmp trap 1.1.1.1 \n");
  EXPECT_TRUE(cut->hasFlags(CMDBIT_NO)) << "the mark stays on a cut no form";
}

TEST_F(FallbackTest, RemoveInterfaceLeavesTheFileAlone) {
  const std::string path = writeConfig("remove.cfg", "interface loopback 0\n description a\n");
  EXPECT_TRUE(QxParserUtil::removeInterfaceFromConfigFile(path, "loopback 0"));
  EXPECT_EQ(testsupport::readFile(path), "interface loopback 0\n description a\n");
}

}  // namespace
}  // namespace qxparser
