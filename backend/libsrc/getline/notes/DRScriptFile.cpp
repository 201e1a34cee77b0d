#include "notes/DRScriptFile.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

#include "notes/DesignNoteParser.h"
#include "platform/Pathname.h"
#include "platform/PlatformOs.h"
#include "platform/StlHelper.h"
#include "results/DRCheck.h"
#include "translator/DRTranslator.h"

namespace {

const char kVersionMark[] = "!!!Version,";
const char kFavouriteMark[] = "!!!Favourite,";
const char kDescriptionMark[] = "!!!Description:";
const char kContextMark[] = "!!!Context:";
const int kWrittenVersion = 200;

bool fileExists(const std::string& path) { return platform::access(path, 0) == 0; }

bool contains(const std::string& text, const char* what) { return text.find(what) != std::string::npos; }

// Reads a whole file as a text stream: CR LF becomes LF, as a text-mode read
// does where the files come from. False when the file cannot be opened.
bool readTextFile(const std::string& path, std::string& text) {
  std::ifstream in(StlHelper::AToW(path), std::ios::binary);
  if (!in.is_open()) return false;
  std::string raw((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  text.clear();
  text.reserve(raw.size());
  for (std::size_t i = 0; i < raw.size(); ++i) {
    if (raw[i] == '\r' && i + 1 < raw.size() && raw[i + 1] == '\n') continue;
    text.push_back(raw[i]);
  }
  return true;
}

// The bytes a text in memory is written as. LF stays LF, except behind a CR:
// there it is written as CR LF, which the reader turns back into the LF, so
// a CR at the end of a line in memory survives a write and a read.
std::string onDisk(const std::string& text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n' && i > 0 && text[i - 1] == '\r') bytes.push_back('\r');
    bytes.push_back(text[i]);
  }
  return bytes;
}

// The text behind a marker up to the next LF or the end of the buffer.
std::string valueBehind(const std::string& buffer, std::size_t markerPos, std::size_t markerLength) {
  std::size_t start = markerPos + markerLength;
  if (start > buffer.size()) start = buffer.size();
  std::size_t end = buffer.find('\n', start);
  if (end == std::string::npos) end = buffer.size();
  return buffer.substr(start, end - start);
}

}  // namespace

DRScriptFile::DRScriptFile(const std::string& path) : mFilePath(path) {
  if (!fileExists(path)) return;
  std::string buffer;
  if (!readTextFile(path, buffer)) return;
  mFileName = Pathname(path).fileBase();
  if (!contains(path, ".cmf")) {
    mContext = buffer;
    mVersion = kWrittenVersion;
    mDescription.clear();
    return;
  }

  std::size_t pos = buffer.find(kVersionMark);
  mVersion = pos == std::string::npos ? kWrittenVersion
                                      : std::atoi(valueBehind(buffer, pos, sizeof(kVersionMark) - 1).c_str());

  pos = buffer.find(kFavouriteMark);
  if (pos != std::string::npos) mFavourite = valueBehind(buffer, pos, sizeof(kFavouriteMark) - 1) == "1";

  pos = buffer.find(kDescriptionMark);
  if (pos != std::string::npos) {
    // The marker, its LF and the "!!!" of the first description line.
    std::size_t start = pos + 19;
    if (start > buffer.size()) start = buffer.size();
    std::size_t contextPos = buffer.find(kContextMark, start);
    if (contextPos == std::string::npos || contextPos == start) {
      mDescription = buffer.substr(start);
    } else {
      // Less the LF in front of the context marker.
      mDescription = buffer.substr(start, contextPos - start - 1);
    }
    StlHelper::replaceString(mDescription, "\n!!!", "\n");
  }

  pos = buffer.find(kContextMark);
  if (pos == std::string::npos) {
    mContext = buffer;
  } else {
    std::size_t start = pos + sizeof(kContextMark);  // the marker and its LF
    mContext = start < buffer.size() ? buffer.substr(start) : std::string();
  }
}

DRScriptFile::DRScriptFile(const std::string& context, const std::string& description, bool favourite)
    : mDescription(description), mContext(context), mFavourite(favourite) {}

void DRScriptFile::setContext(const std::string& text, bool save) {
  mContext = text;
  if (save && !mFilePath.empty()) saveScriptFile(mFilePath);
}

void DRScriptFile::setDescription(const std::string& text, bool save) {
  mDescription = text;
  if (save && !mFilePath.empty()) saveScriptFile(mFilePath);
}

void DRScriptFile::setFavourite(bool value, bool save) {
  mFavourite = value;
  if (save && !mFilePath.empty()) saveScriptFile(mFilePath);
}

bool DRScriptFile::save() {
  if (mFilePath.empty()) return false;
  return saveScriptFile(mFilePath);
}

bool DRScriptFile::saveScriptFile(const std::string& path) const {
  const bool designForm = contains(path, ".cmf") || contains(path, ".pl");
  if (!designForm) {
    if (!contains(path, ".py")) return true;
    std::ofstream out(StlHelper::AToW(path), std::ios::binary | std::ios::trunc);
    if (!out.is_open()) return false;
    out << onDisk(mContext);
    return true;
  }

  {
    std::ofstream out(StlHelper::AToW(path), std::ios::binary | std::ios::trunc);
    if (!out.is_open()) return false;
    std::string description = mDescription;
    StlHelper::replaceString(description, "\n", "\n!!!");
    out << kVersionMark << kWrittenVersion << '\n'
        << kFavouriteMark << (mFavourite ? 1 : 0) << '\n'
        << kDescriptionMark << '\n'
        << "!!!" << onDisk(description) << '\n'
        << kContextMark << '\n'
        << onDisk(mContext);
  }

  std::size_t dot = path.rfind('.');
  const std::string translationPath = path.substr(0, dot) + ".pl";
  platform::deleteFile(translationPath);

  DRCheck check(mContext);
  check.syntaxCheck();
  if (!check.getErrStr().empty()) return true;

  DRTranslator translator(mContext, translationPath);
  translator.translateScriptFile();
  if (!translator.errorText.empty()) platform::deleteFile(translationPath);
  return true;
}

DRScriptFileType DRScriptFile::getScriptType(const std::string& name, std::string* base) {
  if (name.empty()) {
    if (base != nullptr) base->clear();
    return ScriptTypeNone;
  }
  std::string lower = name;
  for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  const struct {
    const char* ext;
    DRScriptFileType type;
  } kinds[] = {{".py", ScriptTypePython}, {".cmf", ScriptTypeDesign}, {".pl", ScriptTypeDesign}};
  for (const auto& kind : kinds) {
    std::size_t pos = lower.rfind(kind.ext);
    if (pos != std::string::npos) {
      if (base != nullptr) *base = name.substr(0, pos);
      return kind.type;
    }
  }
  if (base != nullptr) *base = name;
  return ScriptTypeOther;
}

std::string DRScriptFile::getExtName(std::uint64_t type) {
  if (type == ScriptTypeDesign) return ".cmf";
  if (type == ScriptTypeOther) return "";
  return ".py";
}

void DRScriptFile::delScriptFile(const std::string& path) {
  if (!fileExists(path)) return;
  const std::string base = DesignNoteParser::getBaceNameFromScriptFilePath(path);
  platform::deleteFile(path);
  for (const char* ext : {".map", ".qmap", ".pl", ".py", ".sample1", ".sample2"}) platform::deleteFile(base + ext);
}

void DRScriptFile::delScriptFiles(const std::string& folder) {
  std::string dir = folder;
  if (!dir.empty() && platform::isPathSeparator(dir.back())) dir.pop_back();
  if (!fileExists(dir)) return;
  for (const Pathname& entry : Pathname(dir).dirContents()) {
    const std::string name = entry.file();
    if (!name.empty() && name[0] == '.') continue;
    if (entry.isDirectory()) {
      delScriptFiles(entry.data());
    } else {
      delScriptFile(entry.data());
    }
  }
  Pathname(dir).removeFile(true);
}

bool DRScriptFile::renameScriptFile(const std::string& folder, const std::string& oldName,
                                    const std::string& newName) {
  if (!fileExists(folder) || newName.empty()) return false;
  const std::string oldBase = folder + oldName;
  const std::string newBase = folder + newName;
  if (!fileExists(oldBase + ".cmf") && !fileExists(oldBase + ".py")) return false;
  const std::string oldMap = fileExists(oldBase + ".qmap") ? oldBase + ".qmap" : oldBase + ".map";
  const std::pair<std::string, std::string> pairs[] = {
      {oldBase + ".cmf", newBase + ".cmf"},         {oldBase + ".py", newBase + ".py"},
      {oldBase + ".pl", newBase + ".pl"},           {oldMap, newBase + ".qmap"},
      {oldBase + ".sample1", newBase + ".sample1"}, {oldBase + ".sample2", newBase + ".sample2"},
  };
  // Each rename stands on its own: a missing side file is no error, and
  // nothing undoes the renames already done.
  for (const auto& pair : pairs) (void)std::rename(pair.first.c_str(), pair.second.c_str());
  return true;
}

std::string DRScriptFile::getSampleFileFullPath(const std::string& path, int index) {
  if (!fileExists(path) || (index != 1 && index != 2)) return "";
  const std::string candidate =
      DesignNoteParser::getBaceNameFromScriptFilePath(path) + (index == 1 ? ".sample1" : ".sample2");
  return fileExists(candidate) ? candidate : "";
}

bool DRScriptFile::setSampleFile(const std::string& scriptPath, const std::string& samplePath, int index) {
  if (!fileExists(scriptPath) || !fileExists(samplePath)) return false;
  const std::string target =
      DesignNoteParser::getBaceNameFromScriptFilePath(scriptPath) + (index == 1 ? ".sample1" : ".sample2");
  platform::copyFile(samplePath, target, false);
  return true;
}

std::string DRScriptFile::getSampleMapFullPath(const std::string& path) {
  if (!fileExists(path)) return "";
  const std::string base = DesignNoteParser::getBaceNameFromScriptFilePath(path);
  if (fileExists(base + ".qmap")) return base + ".qmap";
  if (fileExists(base + ".map")) return base + ".map";
  return "";
}

bool DRScriptFile::setSampleMap(const std::string& scriptPath, const std::string& mapPath) {
  if (!fileExists(scriptPath) || !fileExists(mapPath)) return false;
  platform::copyFile(mapPath, DesignNoteParser::getBaceNameFromScriptFilePath(scriptPath) + ".qmap", false);
  return true;
}
