// QXParserGetConfig: fixed queries over a stored device configuration file.
//
// A class of static members used as a namespace, with no data. Each getter is
// a fixed search key and search kind over QxParserUtil::GetCmdsFromConfig,
// with at most a small clean-up of the text found. The int argument of every
// getter is part of the signature and has no effect. Needs the parser
// resources (QxParserUtil::createNewParserResource); like every reading
// operation, only one may run at a time in a process.
#pragma once

#include <list>
#include <string>
#include <vector>

#include "platform/Export.h"

namespace qxparser {

class VTYCONF_API QXParserGetConfig {
 public:
  // The "ip vrf" lines without "forwarding"; `out` is replaced.
  static void GetAllVrfs(const std::string& configFile, int, std::string& out);
  static void GetVrfCmds(const std::string& configFile, int, const std::string& key, std::string& out);
  static void GetRoutingProtocols(const std::string& configFile, int, std::string& out);
  // The body of the protocol's section behind the caller's protocol text.
  static void GetRoutingProtocolConfig(const std::string& configFile, int, const std::string& protocol,
                                       std::string& out);
  static void GetRoutingProtocolConfig(const std::string& configFile, int, const std::vector<std::string>& protocols,
                                       std::string& out);
  static void getInterfaceConfig(const std::string& configFile, int, const std::string& name, std::string& out);
  // One section for each name that is found, in the order of `names`.
  static void getInterfacesConfig(const std::string& configFile, int, const std::vector<std::string>& names,
                                  std::vector<std::string>& out);
  static void getAclConfig(const std::string& configFile, int, const std::string& key, std::string& out);
  // One entry for each access list, in order of first appearance.
  static void getAcls(const std::string& configFile, int, std::list<std::string>& out);
  static void getIpNatConfig(const std::string& configFile, int, const std::string& key, std::string& out);
  static void getRouteMapConfig(const std::string& configFile, int, const std::string& key, std::string& out);

 private:
  friend struct QXParserGetConfigPeer;
  // Regroups access-list lines of both spellings into one block per list.
  static void orderAcl(const std::string& text, std::list<std::string>& out);
};

}  // namespace qxparser
