#include "config/NamedQuery.h"

#include <list>

#include "config/QXParserGetConfig.h"
#include "config/QxParserUtil.h"

namespace qxparser {

const std::vector<NamedQueryKind>& namedQueries() {
  static const std::vector<NamedQueryKind> kQueries = {
      {"vrfs", false},     {"vrf", true},        {"protocols", false}, {"protocol", true},
      {"interface", true}, {"interfaces", true}, {"acls", false},      {"acl", true},
      {"nat", true},       {"route-map", true},  {"section", true},    {"lines", true},
  };
  return kQueries;
}

const NamedQueryKind* namedQuery(const std::string& word) {
  for (const NamedQueryKind& kind : namedQueries()) {
    if (word == kind.name) return &kind;
  }
  return nullptr;
}

namespace {

std::string joined(const std::vector<std::string>& keys) {
  std::string text;
  for (const std::string& key : keys) text += (text.empty() ? "" : " ") + key;
  return text;
}

}  // namespace

bool runNamedQuery(const std::string& what, const std::vector<std::string>& keys, const std::string& path,
                   std::string& text, std::vector<std::string>& items) {
  const std::string& w = what;
  const std::string key = joined(keys);
  if (w == "vrfs") {
    QXParserGetConfig::GetAllVrfs(path, 0, text);
  } else if (w == "vrf") {
    QXParserGetConfig::GetVrfCmds(path, 0, "ip vrf " + key, text);
  } else if (w == "protocols") {
    QXParserGetConfig::GetRoutingProtocols(path, 0, text);
  } else if (w == "protocol") {
    QXParserGetConfig::GetRoutingProtocolConfig(path, 0, keys, text);
  } else if (w == "interface") {
    QXParserGetConfig::getInterfaceConfig(path, 0, key, text);
  } else if (w == "interfaces") {
    QXParserGetConfig::getInterfacesConfig(path, 0, keys, items);
    return true;
  } else if (w == "acls") {
    std::list<std::string> acls;
    QXParserGetConfig::getAcls(path, 0, acls);
    items.assign(acls.begin(), acls.end());
    return true;
  } else if (w == "acl") {
    QXParserGetConfig::getAclConfig(path, 0, key, text);
  } else if (w == "nat") {
    QXParserGetConfig::getIpNatConfig(path, 0, key, text);
  } else if (w == "route-map") {
    QXParserGetConfig::getRouteMapConfig(path, 0, key, text);
  } else if (w == "section") {
    QxParserUtil::GetCmdsFromConfig(path, text, key, SEARCH_SECTION);
  } else if (w == "lines") {
    QxParserUtil::GetCmdsFromConfig(path, text, key, SEARCH_LINE);
  }
  return false;
}

}  // namespace qxparser
