// Searches of a configuration file and the queries built on them.
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

using G = QXParserGetConfig;

// The answers joined by "|".
template <class Answers>
std::string joined(const Answers& answers) {
  std::string out;
  for (const std::string& answer : answers) out += (out.empty() ? "" : "|") + answer;
  return out;
}

// The answer of the query `name` about `key` over the file at `path`, added to `out`.
std::string query(const std::string& name, const std::string& path, const std::string& key, std::string out) {
  std::vector<std::string> sections;
  std::list<std::string> acls;
  if (name == "vrf") G::GetVrfCmds(path, 0, key, out);
  if (name == "vrfs") G::GetAllVrfs(path, 0, out);
  if (name == "protocols") G::GetRoutingProtocols(path, 0, out);
  if (name == "protocol") G::GetRoutingProtocolConfig(path, 0, key, out);
  if (name == "protocol list") G::GetRoutingProtocolConfig(path, 0, testsupport::splitFields(key, '|'), out);
  if (name == "interface") G::getInterfaceConfig(path, 0, key, out);
  if (name == "nat") G::getIpNatConfig(path, 0, key, out);
  if (name == "route map") G::getRouteMapConfig(path, 0, key, out);
  if (name == "acl") G::getAclConfig(path, 0, key, out);
  if (name == "interfaces") G::getInterfacesConfig(path, 0, testsupport::splitFields(key, '|'), sections);
  if (name == "acls") G::getAcls(path, 0, acls);
  return name == "interfaces" ? joined(sections) : name == "acls" ? joined(acls) : out;
}

using SearchTest = ConfigFixture;

// The searches and queries of tests/data/config/searches.txt.
TEST_F(SearchTest, SearchesAndQueriesFindTheirLines) {
  const std::string device = std::string(VTYCONF_TEST_DATA_DIR) + "/config/device.cfg";
  for (const testsupport::Case& c : testsupport::readCases("config/searches.txt")) {
    const std::string config = c.get("config");
    const std::string path = config.empty() ? device : config == "-" ? device + ".missing" : writeConfig("case.cfg", config);
    std::string found = c.get("before");
    if (c.has("query")) {
      found = query(c["query"], path, c.get("key"), found);
    } else {
      QxParserUtil::GetCmdsFromConfig(path, found, c["key"], static_cast<SEARCHTYPE>(std::stoi(c["kind"])));
    }
    EXPECT_EQ(found, c["found"]) << c.where();
  }
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
