#include "platform/MultiVendorFileSystem.h"

#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"

const std::string MultiVendorFileSystem::s_DrGlobalPath = "Global Filters";
const std::string MultiVendorFileSystem::s_DrMapPath = "Map Filters";

std::string MultiVendorFileSystem::GetDesignReaderTempPath() {
  std::string path = QXFileSystem::GetTempFolder() + "notes" + platform::kPathSeparator;
  platform::makeDir(path);
  return path;
}

std::string MultiVendorFileSystem::GetDesignReaderRootPath(int) {
  std::string root = platform::getEnv("VTYCONF_NOTES_DIR");
  if (root.empty()) root = QXFileSystem::GetSystemResourceFolder() + "notes";
  if (!platform::isPathSeparator(root.back())) root += platform::kPathSeparator;
  return root;
}

std::string MultiVendorFileSystem::GetDeviceFuncFolder(int, const std::string&, const std::string&,
                                                       const std::string&) {
  return GetDesignReaderRootPath(0);
}
