#include "results/UIVariableKind.h"

#include <cctype>

#include "results/UIVariableForDR.h"

int uiVariableKindNamed(std::string name) {
  for (char& c : name) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  static const struct {
    const char* name;
    int kind;
  } kKinds[] = {
      {"interface", UIVariableType::InterfaceList},
      {"protocol", UIVariableType::ProtocolList},
      {"address", UIVariableType::IPAddressList},
      {"ip", UIVariableType::IPAddressList},
      {"interface-name", UIVariableType::InterfaceNameList},
      {"vrf", UIVariableType::VrfNameList},
      {"route-map", UIVariableType::RouteMapNameList},
      {"nat", UIVariableType::NATList},
  };
  for (const auto& entry : kKinds) {
    if (name == entry.name) return entry.kind;
  }
  if (name.size() == 1 && name[0] >= '1' && name[0] <= '7') return name[0] - '0';
  return 0;
}
