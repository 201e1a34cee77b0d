// Configuration queries: fixed searches over a configuration file.
#include "config/QXParserGetConfig.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <map>

#include "config/QxParserUtil.h"
#include "toolkit/ParserToolCase.h"

namespace qxparser {

void QXParserGetConfig::GetAllVrfs(const std::string& configFile, int, std::string& out) {
  std::string found;
  QxParserUtil::GetCmdsFromConfig(configFile, found, "ip vrf", SEARCH_LINE);
  std::vector<std::string> lines;
  ParserToolCase::splitString(found, "\n", lines);
  out.clear();
  // The lines that assign a VRF begin with the same words.
  for (const std::string& line : lines) {
    if (line.find("forwarding") == std::string::npos) out += line + "\n";
  }
}

void QXParserGetConfig::GetVrfCmds(const std::string& configFile, int, const std::string& key, std::string& out) {
  QxParserUtil::GetCmdsFromConfig(configFile, out, key, SEARCH_SECTION_BODY);
}

void QXParserGetConfig::GetRoutingProtocols(const std::string& configFile, int, std::string& out) {
  QxParserUtil::GetCmdsFromConfig(configFile, out, "router", SEARCH_LINE);
}

void QXParserGetConfig::GetRoutingProtocolConfig(const std::string& configFile, int, const std::string& protocol,
                                                 std::string& out) {
  QxParserUtil::GetCmdsFromConfig(configFile, out, protocol, SEARCH_SECTION_BODY);
  if (out.empty()) return;
  out.insert(0, protocol + "\n");
}

void QXParserGetConfig::GetRoutingProtocolConfig(const std::string& configFile, int unused,
                                                 const std::vector<std::string>& protocols, std::string& out) {
  for (const std::string& protocol : protocols) {
    std::string one;
    GetRoutingProtocolConfig(configFile, unused, protocol, one);
    if (!one.empty()) out += one;
  }
}

void QXParserGetConfig::getInterfaceConfig(const std::string& configFile, int, const std::string& name,
                                           std::string& out) {
  if (name.empty()) return;
  QxParserUtil::GetCmdsFromConfig(configFile, out, "interface " + ParserToolCase::string2Lower(name),
                                  SEARCH_SECTION);
}

void QXParserGetConfig::getInterfacesConfig(const std::string& configFile, int, const std::vector<std::string>& names,
                                            std::vector<std::string>& out) {
  std::string all;
  QxParserUtil::GetCmdsFromConfig(configFile, all, "interface ", SEARCH_SECTION);
  for (const std::string& name : names) {
    std::string lowered = name;
    for (char& c : lowered) {
      if (std::isupper(static_cast<unsigned char>(c))) c = static_cast<char>(c + 32);
    }
    // The short device form meets the word-separated form of the search.
    const size_t digit = lowered.find_first_of("0123456789");
    if (digit != std::string::npos) lowered.insert(digit, " ");
    const std::string wanted = "interface " + lowered;
    const size_t start = all.find(wanted);
    if (start == std::string::npos) continue;
    const size_t end = all.find("interface ", start + wanted.size());
    out.push_back(all.substr(start, end == std::string::npos ? std::string::npos : end - start));
  }
}

void QXParserGetConfig::getAclConfig(const std::string& configFile, int, const std::string& key, std::string& out) {
  QxParserUtil::GetCmdsFromConfig(configFile, out, key, SEARCH_ACL_SECTION);
}

void QXParserGetConfig::getIpNatConfig(const std::string& configFile, int, const std::string& key,
                                       std::string& out) {
  QxParserUtil::GetCmdsFromConfig(configFile, out, key, SEARCH_SECTION);
}

void QXParserGetConfig::getRouteMapConfig(const std::string& configFile, int, const std::string& key,
                                          std::string& out) {
  QxParserUtil::GetCmdsFromConfig(configFile, out, key, SEARCH_SECTION);
}

void QXParserGetConfig::getAcls(const std::string& configFile, int, std::list<std::string>& out) {
  std::string found;
  QxParserUtil::GetCmdsFromConfig(configFile, found, "access-list", SEARCH_ACL_LINE);
  std::vector<std::string> lines;
  ParserToolCase::splitString(found, "\n", lines);
  for (const std::string& line : lines) {
    if (line.empty()) continue;
    if (line[0] == 'i') {
      // A head of the named form; these are not checked for duplicates.
      out.push_back(line);
      continue;
    }
    const size_t firstBlank = line.find(' ');
    if (firstBlank == std::string::npos) continue;
    const size_t secondBlank = line.find(' ', firstBlank + 1);
    if (secondBlank == std::string::npos) continue;
    const std::string entry = line.substr(0, secondBlank);
    if (std::find(out.begin(), out.end(), entry) == out.end()) out.push_back(entry);
  }
}

void QXParserGetConfig::orderAcl(const std::string& text, std::list<std::string>& out) {
  std::map<std::string, std::string> blocks;
  std::vector<std::string> lines;
  ParserToolCase::splitString(text, "\n", lines);
  for (const std::string& line : lines) {
    if (line.empty()) continue;
    std::string name;
    size_t headEnd = std::string::npos;
    if (line.find("ip access-list standard") != std::string::npos ||
        line.find("ip access-list extended") != std::string::npos) {
      // The name is taken at a fixed offset, wherever the phrase stood.
      if (line.size() > 24) {
        headEnd = line.find(' ', 24);
        name = line.substr(24, headEnd == std::string::npos ? std::string::npos : headEnd - 24);
      }
    } else if (line.size() > 12) {
      headEnd = line.find(' ', 12);
    }
    std::string head;
    const int number = std::atoi(name.c_str());
    if (!name.empty() && number >= 1 && number <= 199) {
      head = "access-list " + name;
    } else {
      head = headEnd == std::string::npos ? line : line.substr(0, headEnd);
    }
    const std::string body = headEnd == std::string::npos ? line : line.substr(std::min(headEnd + 1, line.size()));
    blocks[head] += "  " + body + "\n";
  }
  for (const auto& block : blocks) out.push_back(block.first + "\n" + block.second);
}

}  // namespace qxparser
