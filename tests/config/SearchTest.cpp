// Searches of a configuration file and the queries built on them.
#include <functional>
#include <list>
#include <string>

#include "ConfigFixture.h"
#include "support/CaseFile.h"
#include "config/QXParserGetConfig.h"

namespace qxparser {

struct QXParserGetConfigPeer {
  static void orderAcl(const std::string& text, std::list<std::string>& out) {
    QXParserGetConfig::orderAcl(text, out);
  }
};

namespace {

const char* const kDevice =
    "hostname r1\r\n"
    "banner motd ^C\n"
    "interface gigabitethernet 0/9\n"
    "^C\n"
    "interface loopback 0\n"
    " description lo\n"
    "! comment inside the section\n"
    " ip vrf forwarding red\n"
    "--More--\b\b\b ip address 2.2.2.2 255.0.0.0\n"
    "\n"
    "interface gigabitethernet 0/1\n"
    " description gi\n"
    "ip vrf red\n"
    " rd 1:1\n"
    "router ospf 1\n"
    " network 10.0.0.0 0.0.0.255 area 0\n"
    " router-id 1.1.1.1\n"
    "access-list 10 permit any\n"
    "access-list 10 deny any\n"
    "ip access-list standard 10\n"
    " permit any\n"
    "access-list 20 permit any\n"
    "ip access-list standard named\n"
    " deny any\n"
    "ip nat pool p1\n";

const char* const kLoopback =
    "interface loopback 0 \n   description lo\n   ip vrf forwarding red\n   ip address 2.2.2.2 255.0.0.0\n";

class SearchTest : public ConfigFixture {
 protected:
  void SetUp() override { mPath = writeConfig("device.cfg", kDevice); }
  std::string search(const std::string& key, int type, const std::string& before = "") {
    std::string result = before;
    QxParserUtil::GetCmdsFromConfig(mPath, result, key, static_cast<SEARCHTYPE>(type));
    return result;
  }
  std::string mPath;
};

// The searches of tests/data/config/searches.txt.
TEST_F(SearchTest, SearchKindsAndKeys) {
  for (const testsupport::Case& c : testsupport::readCases("config/searches.txt")) {
    EXPECT_EQ(search(c["key"], std::stoi(c["kind"])), c["found"]) << c.where();
  }
}

TEST_F(SearchTest, ResultIsAppendedToEarlierText) {
  EXPECT_EQ(search("router", SEARCH_LINE, "earlier\n"), "earlier\nrouter ospf 1\n");
}

TEST_F(SearchTest, BodyLineDirectlyBehindANamedListIsConsumedIntended) {
  const std::string path = writeConfig("acl.cfg",
                                       "ip access-list standard 10\n permit any\naccess-list 10 deny any\n"
                                       "access-list 10 permit any\n");
  std::string result;
  QxParserUtil::GetCmdsFromConfig(path, result, "access-list 10", SEARCH_ACL_SECTION);
  EXPECT_EQ(result, "ip access-list standard 10\n permit any\naccess-list 10 permit any\n");
}

TEST_F(SearchTest, MissingFileGivesNothing) {
  std::string result = "kept";
  QxParserUtil::GetCmdsFromConfig(mPath + ".missing", result, "router", SEARCH_LINE);
  EXPECT_EQ(result, "kept");
}

TEST_F(SearchTest, BannerOfTwoWordsKeepsNulDelimiterAndDropsTheRestIntended) {
  const std::string path = writeConfig("banner.cfg", "banner motd\nrouter ospf 1\n^\nrouter ospf 2\n");
  std::string result;
  QxParserUtil::GetCmdsFromConfig(path, result, "router", SEARCH_LINE);
  EXPECT_EQ(result, "");
}

TEST_F(SearchTest, Queries) {
  using G = QXParserGetConfig;
  const std::string& p = mPath;
  const std::string ospf = "router ospf 1\n   network 10.0.0.0 0.0.0.255 area 0\n   router-id 1.1.1.1\n";
  const struct {
    const char* name;
    std::function<void(std::string&)> query;
    std::string expected;
  } rows[] = {
      {"vrf body", [&](std::string& o) { G::GetVrfCmds(p, 0, "ip vrf red", o); }, "   rd 1:1\n"},
      {"protocols", [&](std::string& o) { G::GetRoutingProtocols(p, 0, o); }, "router ospf 1\n"},
      {"protocol", [&](std::string& o) { G::GetRoutingProtocolConfig(p, 0, "router ospf 1", o); }, ospf},
      {"no head line without a section",
       [&](std::string& o) { G::GetRoutingProtocolConfig(p, 0, "router ospf 2", o); }, ""},
      {"protocols by list",
       [&](std::string& o) {
         G::GetRoutingProtocolConfig(p, 0, std::vector<std::string>{"router ospf 2", "router ospf 1"}, o);
       },
       ospf},
      {"interface", [&](std::string& o) { G::getInterfaceConfig(p, 0, "Loopback 0", o); }, kLoopback},
      {"nat", [&](std::string& o) { G::getIpNatConfig(p, 0, "ip nat pool p1", o); }, "ip nat pool p1 \n"},
      {"route map", [&](std::string& o) { G::getRouteMapConfig(p, 0, "ip nat pool p1", o); }, "ip nat pool p1 \n"},
      {"acl", [&](std::string& o) { G::getAclConfig(p, 0, "access-list 10", o); },
       "access-list 10 permit any\naccess-list 10 deny any\nip access-list standard 10\n permit any\n"},
  };
  for (const auto& row : rows) {
    std::string out;
    row.query(out);
    EXPECT_EQ(out, row.expected) << row.name;
  }
  std::string out = "earlier";
  G::GetAllVrfs(p, 0, out);
  EXPECT_EQ(out, "ip vrf red\n") << "the answer replaces what was there";
  out = "kept";
  G::getInterfaceConfig(mPath + ".missing", 0, "", out);
  EXPECT_EQ(out, "kept");

  std::vector<std::string> sections;
  QXParserGetConfig::getInterfacesConfig(mPath, 0, {"GigabitEthernet0/1", "Loopback0", "Serial0"}, sections);
  ASSERT_EQ(sections.size(), 2u);
  EXPECT_EQ(sections[0], "interface gigabitethernet 0/1 \n   description gi\n");
  EXPECT_EQ(sections[1], kLoopback);

  std::list<std::string> acls;
  QXParserGetConfig::getAcls(mPath, 0, acls);
  EXPECT_EQ(acls, (std::list<std::string>{"access-list 10", "ip access-list standard 10", "access-list 20",
                                          "ip access-list standard named"}));
}

TEST_F(SearchTest, OrderAclGroupsBothSpellings) {
  std::list<std::string> out;
  QXParserGetConfigPeer::orderAcl(
      "access-list 10 permit any\naccess-list 2 permit any\naccess-list 10 deny any\n"
      "ip access-list standard 10\nip access-list extended web\n",
      out);
  EXPECT_EQ(out, (std::list<std::string>{"access-list 10\n  permit any\n  deny any\n  ip access-list standard 10\n",
                                         "access-list 2\n  permit any\n",
                                         "ip access-list extended web\n  ip access-list extended web\n"}));
}

}  // namespace
}  // namespace qxparser
