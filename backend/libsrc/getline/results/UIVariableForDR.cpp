#include "results/UIVariableForDR.h"

#include <fstream>

#include "platform/PlatformOs.h"
#include "platform/StlHelper.h"

std::string UIVariableType::toString(int kind) {
  switch (kind) {
    case InterfaceList:
      return "UI_InterfaceList";
    case ProtocolList:
      return "UI_ProtocolList";
    case IPAddressList:
      return "UI_IPAddressList";
    case InterfaceNameList:
      return "UI_InterfaceNameList";
    case VrfNameList:
      return "UI_VrfNameList";
    case RouteMapNameList:
      return "UI_RouteMapNameList";
    case NATList:
      return "UI_NATList";
    default:
      return "UI_Unknown";
  }
}

UIVariableForDR::UIVariableForDR(const std::string& deviceName, int uiAction)
    : mDeviceName(deviceName), mUiAction(uiAction) {}

bool UIVariableForDR::addVariableValue(int kind, const std::string& value) {
  if (kind < 1) return false;
  std::string stored = value;
  size_t cr = stored.rfind('\r');
  if (cr != std::string::npos) stored.erase(cr);
  if (kind == UIVariableType::InterfaceList) {
    mValues[kind].insert("interface " + stored);
    mValues[UIVariableType::InterfaceNameList].insert(stored);
  } else {
    mValues[kind].insert(stored);
  }
  return true;
}

bool UIVariableForDR::save(const std::string& folder, bool flat) const {
  if (platform::access(folder, 0) != 0) return false;
  std::string target = folder;
  if (!flat && !mRootPath.empty()) {
    if (target.empty() || !platform::isPathSeparator(target.back())) target += platform::kPathSeparator;
    target += mRootPath;
    if (platform::access(target, 0) != 0) return false;
  }
  for (const auto& [kind, values] : mValues) {
    // The separator is added whatever the target ends with.
    std::string path = target + platform::kPathSeparator + UIVariableType::toString(kind) + ".txt";
    std::ofstream out(StlHelper::AToW(path), std::ios::out | std::ios::binary | std::ios::trunc);
    if (!out) continue;
    for (const std::string& value : values) out << value << "\r\n";
  }
  return true;
}
