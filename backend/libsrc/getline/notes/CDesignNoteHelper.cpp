#include "notes/CDesignNoteHelper.h"

#include "platform/MultiVendorFileSystem.h"
#include "platform/PlatformOs.h"
#include "results/UIVariableForDR.h"

const std::string CDesignNoteHelper::s_EmptyString;
const std::string CDesignNoteHelper::s_FilterDir;

const char* const CDesignNoteHelper::s_DeviceTypeNames[] = {
    "Unclassified Device", "Router",       "L3 Switch",  "Firewall",   "End System",
    "LAN Segment",         "WAN Cloud",    "LAN Switch", "MPLS Cloud", "Mute LAN",
    "Load Balancer",       "Call Manager", "IP Phone",   "VLAN",       "Link",
    "Generic L2 Switch",   "WAP",          "Site",       "DMVPN",      "WLC",
    "WAN Optimizer"};
const int CDesignNoteHelper::s_DeviceTypeCount = static_cast<int>(
    sizeof(CDesignNoteHelper::s_DeviceTypeNames) / sizeof(CDesignNoteHelper::s_DeviceTypeNames[0]));
const std::string CDesignNoteHelper::s_LineBreakPattern = "\r\n[\r][\n]";

namespace {

const char kFullConfiguration[] = "Full Configuration";
const char kConfigurationSummary[] = "Configuration Summary";

bool fileExists(const std::string& path) { return platform::access(path, 0) == 0; }

bool isFilterFolder(const std::string& folder) {
  return folder == MultiVendorFileSystem::s_DrGlobalPath || folder == MultiVendorFileSystem::s_DrMapPath;
}

}  // namespace

const std::map<int, std::string>& CDesignNoteHelper::filterTable() {
  static const std::map<int, std::string> table = {
      {1, "Interface Name"},      {2, "Interface Protocol"}, {5, "Interface IP"},  {6, "Interface ACL"},
      {7, "Interface Multicast"}, {8, "Interface MPLS"},     {9, "BGP Neighbor"},  {10, "Interface Name"},
      {11, "Interface Protocol"}, {12, "Interface PBR"},     {13, "Interface NAT"}};
  return table;
}

const std::string& CDesignNoteHelper::GetFilterDir(const void* uiVariable) {
  if (uiVariable == nullptr) return s_EmptyString;
  return static_cast<const UIVariableForDR*>(uiVariable)->getRootPath();
}

const std::string& CDesignNoteHelper::GetDesignFilterDirByType(int, const void* uiVariable) {
  return isFilterFolder(GetFilterDir(uiVariable)) ? s_FilterDir : s_EmptyString;
}

std::string CDesignNoteHelper::GetDesignDevFilterByType(int, const void* uiVariable) {
  const std::string& folder = GetFilterDir(uiVariable);
  if (!isFilterFolder(folder)) return std::string();
  return folder + platform::kPathSeparator + s_FilterDir;
}

const std::string& CDesignNoteHelper::GetDesignMapFilterDirByType(int) { return s_FilterDir; }

const std::string& CDesignNoteHelper::GetDeginGlobalFilterDirByType(int) { return s_FilterDir; }

bool CDesignNoteHelper::GetFllConfigFilter(std::string& name, std::string& path) {
  name = kFullConfiguration;
  path = kFullConfiguration;
  return true;
}

bool CDesignNoteHelper::GetMapFilter(int key, int, std::string& name, std::string& path) {
  const auto& table = filterTable();
  auto it = table.find(key);
  if (it == table.end()) {
    name = kConfigurationSummary;
    path = MultiVendorFileSystem::s_DrMapPath + platform::kPathSeparator + name;
    return false;
  }
  name = it->second;
  path = MultiVendorFileSystem::s_DrMapPath + platform::kPathSeparator;
  if (!s_FilterDir.empty()) path += s_FilterDir + platform::kPathSeparator;
  path += name;
  return true;
}

bool CDesignNoteHelper::IsDefaultName(const std::string& name) {
  if (name == "Global" || name == "Map") return true;
  for (const auto& entry : filterTable()) {
    if (name.find(entry.second) != std::string::npos) return true;
  }
  return false;
}

bool CDesignNoteHelper::IsDrScriptExisted(int key, int type) {
  std::string name;
  std::string path;
  if (!GetMapFilter(key, type, name, path)) return false;
  std::string full = MultiVendorFileSystem::GetDesignReaderRootPath(0) + path;
  if (path.find(".py") != std::string::npos && fileExists(full)) return true;
  if (path.find(".cmf") != std::string::npos && fileExists(full)) return true;
  if (fileExists(full + ".py")) return true;
  return fileExists(full + ".cmf");
}
