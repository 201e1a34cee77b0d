#include "config/NamedQuery.h"

#include <algorithm>
#include <cctype>
#include <list>
#include <sstream>

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

std::string lowered(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

bool startsWith(const std::string& text, const std::string& head) { return text.compare(0, head.size(), head) == 0; }

bool isNumber(const std::string& text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c); });
}

// The sections of the first header that finds any, in the order given.
template <typename Search>
void firstFound(const std::vector<std::string>& headers, std::string& text, Search search) {
  for (const std::string& header : headers) {
    search(header, text);
    if (!text.empty()) return;
  }
}

// "ospf", "ospf 10", "router ospf 10": the routing-process header lines of
// the file that the words name (a process without its number names every
// process of that protocol).
std::vector<std::string> routingHeaders(const std::string& path, const std::string& typed) {
  std::string words = lowered(typed);
  if (!startsWith(words, "router ")) words = "router " + words;
  std::string all;
  QXParserGetConfig::GetRoutingProtocols(path, 0, all);
  std::vector<std::string> headers;
  std::istringstream lines(all);
  std::string line;
  while (std::getline(lines, line)) {
    line.erase(line.find_last_not_of(" \r") + 1);
    const std::string low = lowered(line);
    if (low == words || startsWith(low, words + " ")) headers.push_back(line);
  }
  if (headers.empty()) headers.push_back(words);
  return headers;
}

}  // namespace

bool runNamedQuery(const std::string& what, const std::vector<std::string>& keys, const std::string& path,
                   std::string& text, std::vector<std::string>& items) {
  const std::string& w = what;
  const std::string key = joined(keys);
  if (w == "vrfs") {
    QXParserGetConfig::GetAllVrfs(path, 0, text);
  } else if (w == "vrf") {
    // The search compares lower-cased lines; the name is given as written.
    const std::string name = startsWith(key, "ip vrf ") || startsWith(key, "vrf definition ") ? key
                             : lowered(key);
    firstFound({startsWith(name, "ip vrf ") || startsWith(name, "vrf ") ? name : "ip vrf " + name,
                "vrf definition " + name},
               text, [&](const std::string& header, std::string& out) {
                 QXParserGetConfig::GetVrfCmds(path, 0, lowered(header), out);
               });
  } else if (w == "protocols") {
    QXParserGetConfig::GetRoutingProtocols(path, 0, text);
  } else if (w == "protocol") {
    // Each key is a process ("ospf 10"), or one process is given word by word.
    std::vector<std::string> processes = keys;
    if (keys.size() > 1 && keys.front().find(' ') == std::string::npos) processes = {key};
    std::vector<std::string> headers;
    for (const std::string& process : processes) {
      for (const std::string& header : routingHeaders(path, process)) headers.push_back(header);
    }
    QXParserGetConfig::GetRoutingProtocolConfig(path, 0, headers, text);
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
    std::vector<std::string> headers = {key};
    if (isNumber(key)) {
      headers = {"access-list " + key};
    } else if (key.find(' ') == std::string::npos) {
      headers = {"ip access-list extended " + key, "ip access-list standard " + key, "ipv6 access-list " + key};
    }
    firstFound(headers, text, [&](const std::string& header, std::string& out) {
      QXParserGetConfig::getAclConfig(path, 0, header, out);
    });
  } else if (w == "nat") {
    QXParserGetConfig::getIpNatConfig(path, 0, key, text);
  } else if (w == "route-map") {
    QXParserGetConfig::getRouteMapConfig(path, 0, lowered(startsWith(key, "route-map ") ? key : "route-map " + key),
                                         text);
  } else if (w == "section") {
    QxParserUtil::GetCmdsFromConfig(path, text, key, SEARCH_SECTION);
  } else if (w == "lines") {
    QxParserUtil::GetCmdsFromConfig(path, text, key, SEARCH_LINE);
  }
  return false;
}

}  // namespace qxparser
