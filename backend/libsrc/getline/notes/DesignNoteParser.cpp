// DesignNoteParser as a folder of scripts: the scan of a folder tree, the file
// operations on it, and the search for the favourite scripts that find
// something in a configuration.
#include "notes/DesignNoteParser.h"

#include <memory>

#include "notes/DRScriptFile.h"
#include "platform/MultiVendorFileSystem.h"
#include "platform/Pathname.h"
#include "platform/PlatformOs.h"
#include "results/UIVariableForDR.h"

namespace {

bool fileExists(const std::string& path) { return platform::access(path, 0) == 0; }

bool contains(const std::string& text, const char* what) { return text.find(what) != std::string::npos; }

bool isHidden(const std::string& name) { return !name.empty() && name[0] == '.'; }

void dropOneTrailingSeparator(std::string& path) {
  if (!path.empty() && platform::isPathSeparator(path.back())) path.pop_back();
}

}  // namespace

DesignNoteParser::DesignNoteParser(const std::string& folder, const UIVariableForDR* ui, bool scan,
                                   const NameSet* folderFilter, const NameSet* nameFilter)
    : mRootDirct(folder) {
  dropOneTrailingSeparator(mRootDirct);
  if (nameFilter != nullptr) mExcludedNames = *nameFilter;
  if (ui == nullptr || ui->getRootPath().empty()) {
    if (scan) genScriptFileTree(mRootDirct, ui, folderFilter, nameFilter);
    return;
  }
  std::string full = mRootDirct + platform::kPathSeparator + ui->getRootPath();
  if (!scan) {
    mRootDirct = full;
    return;
  }
  dropOneTrailingSeparator(full);
  for (const Pathname& entry : Pathname(mRootDirct).dirContents()) {
    if (entry.data() == full && fileExists(full)) {
      genScriptFileTree(mRootDirct, ui, folderFilter, nameFilter);
      break;
    }
  }
  mRootDirct = full;
}

DesignNoteParser::~DesignNoteParser() {
  for (auto& sub : mSubDirects) delete sub.second;
}

std::string DesignNoteParser::pathOf(const std::string& name) const {
  return mRootDirct + platform::kPathSeparator + name;
}

bool DesignNoteParser::genScriptFileTree(const std::string& folder, const UIVariableForDR* ui,
                                         const NameSet* folderFilter, const NameSet* nameFilter) {
  if (!fileExists(folder)) return false;
  std::string devicePath;
  const NameSet* innerFilter = nullptr;
  if (ui != nullptr) {
    devicePath = mRootDirct + platform::kPathSeparator + ui->getRootPath();
    innerFilter = folderFilter;
  }
  for (const Pathname& entry : Pathname(folder).dirContents()) {
    const std::string name = entry.file();
    if (isHidden(name)) continue;
    if (!entry.isDirectory()) {
      bool excluded = false;
      if (nameFilter != nullptr) {
        for (const std::string& member : *nameFilter) {
          if (name.find(member) != std::string::npos) {
            excluded = true;
            break;
          }
        }
      }
      if (!excluded && (contains(name, ".cmf") || contains(name, ".py"))) mScriptFiles.insert(name);
      continue;
    }
    if (innerFilter == nullptr && folderFilter != nullptr && folderFilter->count(name) == 0) continue;
    if (!devicePath.empty() && entry.data() != devicePath) continue;
    auto sub = std::make_unique<DesignNoteParser>(entry.data(), nullptr, true, innerFilter, nameFilter);
    DesignNoteParser*& slot = mSubDirects[name];
    delete slot;
    slot = sub.release();
  }
  return true;
}

bool DesignNoteParser::addScriptFile(const std::string& name, const std::string& context,
                                     const std::string& description) {
  if (name.empty() || context.empty()) return false;
  if (mScriptFiles.count(name) != 0) return false;
  if (contains(name, ".cmf")) {
    // A new script starts as no favourite, unlike a file without the mark.
    DRScriptFile script(context, description, false);
    if (!script.saveScriptFile(pathOf(name))) return false;
    mScriptFiles.insert(name);
    return true;
  }
  if (contains(name, ".py")) {
    mScriptFiles.insert(name);
    return true;
  }
  return false;
}

bool DesignNoteParser::addSubDirect(const std::string& name) {
  if (name.empty() || mSubDirects.count(name) != 0) return false;
  if (platform::makeDir(pathOf(name)) != 0) return false;
  mSubDirects[name] = new DesignNoteParser(pathOf(name), nullptr, true, nullptr, nullptr);
  return true;
}

bool DesignNoteParser::delScriptFile(const std::string& name) {
  auto it = mScriptFiles.find(name);
  if (it == mScriptFiles.end()) return false;
  platform::deleteFile(pathOf(name));
  mScriptFiles.erase(it);
  return true;
}

bool DesignNoteParser::delSubDirect(const std::string& name) {
  auto it = mSubDirects.find(name);
  if (it == mSubDirects.end()) return false;
  Pathname(pathOf(name)).removeFile(true);
  delete it->second;
  mSubDirects.erase(it);
  return true;
}

std::string DesignNoteParser::getScriptFileFullPath(const std::string& name) const {
  const std::string path = pathOf(name);
  if (contains(name, ".pl") || contains(name, ".py") || contains(name, ".cmf")) return path;
  if (contains(name, ".")) return fileExists(path) ? path : std::string();
  for (const char* ext : {".cmf", ".pl", ".py"}) {
    if (fileExists(path + ext)) return path + ext;
  }
  return path + ".cmf";
}

std::string DesignNoteParser::getBaceNameFromScriptFilePath(const std::string& path) {
  for (const char* ext : {".cmf", ".pl", ".py"}) {
    std::size_t pos = path.rfind(ext);
    if (pos != std::string::npos) return path.substr(0, pos);
  }
  std::size_t dot = path.rfind('.');
  return dot == std::string::npos ? path : path.substr(0, dot);
}

DesignNoteParser* DesignNoteParser::getUsefulFiles(const std::string& folder, const std::string& configPath) {
  std::string root = folder;
  dropOneTrailingSeparator(root);
  if (!fileExists(root) || !fileExists(configPath)) return nullptr;

  SubDirectMap found;
  NameSet names;
  // Owns the subtrees found until they are handed to the result.
  struct Guard {
    SubDirectMap& map;
    ~Guard() {
      for (auto& sub : map) delete sub.second;
    }
  } guard{found};

  for (const Pathname& entry : Pathname(root).dirContents()) {
    const std::string name = entry.file();
    if (isHidden(name)) continue;
    if (!entry.isDirectory()) {
      if (!contains(name, ".cmf")) continue;
      DRScriptFile script(entry.data());
      if (script.isFavourite() && !script.getContext().empty() &&
          !getDesignNote(entry.data(), configPath, nullptr).empty()) {
        names.insert(name.substr(0, name.rfind('.')));
      }
      continue;
    }
    if (DesignNoteParser* sub = getUsefulFiles(entry.data(), configPath)) found[name] = sub;
  }
  if (found.empty() && names.empty()) return nullptr;

  auto result = std::make_unique<DesignNoteParser>(root, nullptr, false, nullptr, nullptr);
  result->mSubDirects.swap(found);
  result->mScriptFiles.swap(names);
  return result.release();
}

DesignNoteParser* DesignNoteParser::getUsefulFiles(const std::string& configPath) {
  if (!fileExists(configPath)) return nullptr;
  return getUsefulFiles(MultiVendorFileSystem::GetDeviceFuncFolder(2, "", "Design Reader", ""), configPath);
}
