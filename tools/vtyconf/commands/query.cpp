// vtyconf query CONFIG WHAT [KEY...] [--json]: the fixed configuration queries.
#include <nlohmann/json.hpp>

#include <fstream>
#include <iostream>
#include <list>

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "config/QxParserUtil.h"
#include "config/QXParserGetConfig.h"
#include "platform/QXFileSystem.h"

namespace vtycli {
namespace {

using qxparser::QXParserGetConfig;
using qxparser::QxParserUtil;

struct QueryOptions {
  std::string config;
  std::string what;
  std::vector<std::string> keys;
  bool json = false;
};

std::string joined(const std::vector<std::string>& keys) {
  std::string text;
  for (const std::string& key : keys) text += (text.empty() ? "" : " ") + key;
  return text;
}

// Runs the query; false with a message on a usage error. Results that are a
// list go to `items`, all others to `text`.
bool runQuery(const QueryOptions& o, const std::string& path, std::string& text, std::vector<std::string>& items,
              bool& isList) {
  const std::string& w = o.what;
  const std::string key = joined(o.keys);
  auto needKey = [&]() {
    if (!o.keys.empty()) return true;
    std::cerr << "vtyconf: query " << w << " needs a key\n";
    return false;
  };
  isList = false;
  if (w == "vrfs") {
    QXParserGetConfig::GetAllVrfs(path, 0, text);
  } else if (w == "vrf") {
    if (!needKey()) return false;
    QXParserGetConfig::GetVrfCmds(path, 0, "ip vrf " + key, text);
  } else if (w == "protocols") {
    QXParserGetConfig::GetRoutingProtocols(path, 0, text);
  } else if (w == "protocol") {
    if (!needKey()) return false;
    QXParserGetConfig::GetRoutingProtocolConfig(path, 0, o.keys, text);
  } else if (w == "interface") {
    if (!needKey()) return false;
    QXParserGetConfig::getInterfaceConfig(path, 0, key, text);
  } else if (w == "interfaces") {
    if (!needKey()) return false;
    QXParserGetConfig::getInterfacesConfig(path, 0, o.keys, items);
    isList = true;
  } else if (w == "acls") {
    std::list<std::string> acls;
    QXParserGetConfig::getAcls(path, 0, acls);
    items.assign(acls.begin(), acls.end());
    isList = true;
  } else if (w == "acl") {
    if (!needKey()) return false;
    QXParserGetConfig::getAclConfig(path, 0, key, text);
  } else if (w == "nat") {
    if (!needKey()) return false;
    QXParserGetConfig::getIpNatConfig(path, 0, key, text);
  } else if (w == "route-map") {
    if (!needKey()) return false;
    QXParserGetConfig::getRouteMapConfig(path, 0, key, text);
  } else if (w == "section") {
    if (!needKey()) return false;
    QxParserUtil::GetCmdsFromConfig(path, text, key, qxparser::SEARCH_SECTION);
  } else if (w == "lines") {
    if (!needKey()) return false;
    QxParserUtil::GetCmdsFromConfig(path, text, key, qxparser::SEARCH_LINE);
  } else {
    std::cerr << "vtyconf: unknown query '" << w << "'\n";
    return false;
  }
  return true;
}

CommandRegistration registration{CommandSpec{
    "query", "fixed queries over a configuration file",
    [](CLI::App& sub, const GlobalOptions&) -> std::function<int()> {
      auto options = std::make_shared<QueryOptions>();
      sub.add_option("CONFIG", options->config, "the configuration ('-' for standard input)")->required();
      sub.add_option("WHAT", options->what,
                     "vrfs | vrf NAME | protocols | protocol NAME... | interface NAME | interfaces NAME... | "
                     "acls | acl KEY | nat KEY | route-map KEY | section KEY | lines KEY")
          ->required();
      sub.add_option("KEY", options->keys, "the key words");
      sub.add_flag("--json", options->json, "print JSON");
      sub.footer("Example: vtyconf query router1.cfg interfaces GigabitEthernet0/1 Loopback0 --json");
      return [options]() {
        // The queries read a file by name: standard input goes through a
        // temporary file.
        std::string path = options->config;
        std::string temporary;
        if (path == "-") {
          std::string text;
          readInput("-", text);
          temporary = QXFileSystem::GetTempFolder() + "vtyconf_query_stdin.cfg";
          std::ofstream(temporary, std::ios::binary) << text;
          path = temporary;
        } else if (!std::ifstream(path)) {
          std::cerr << "vtyconf: " << path << ": cannot read\n";
          return 2;
        }
        if (!loadResources()) return 2;
        std::string text;
        std::vector<std::string> items;
        bool isList = false;
        const bool ok = runQuery(*options, path, text, items, isList);
        if (!temporary.empty()) std::remove(temporary.c_str());
        if (!ok) return 2;
        if (options->json) {
          nlohmann::json result = isList ? nlohmann::json(items) : nlohmann::json(text);
          std::cout << result.dump(2) << "\n";
        } else if (isList) {
          for (const std::string& item : items) std::cout << item << (item.empty() || item.back() != '\n' ? "\n" : "");
        } else {
          std::cout << text;
        }
        return 0;
      };
    }}};

}  // namespace
}  // namespace vtycli
