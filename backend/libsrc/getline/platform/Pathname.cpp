#include "platform/Pathname.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "platform/PlatformOs.h"

namespace fs = std::filesystem;

Pathname::Pathname(const std::string& path) : mPath(path) {}

std::string Pathname::file() const {
  std::string p = mPath;
  while (p.size() > 1 && platform::isPathSeparator(p.back())) p.pop_back();
  size_t cut = p.find_last_of("/\\");
  return cut == std::string::npos ? p : p.substr(cut + 1);
}

std::string Pathname::fileBase() const {
  std::string name = file();
  size_t dot = name.rfind('.');
  return (dot == std::string::npos || dot == 0) ? name : name.substr(0, dot);
}

std::vector<Pathname> Pathname::dirContents() const {
  std::vector<Pathname> out;
  std::error_code ec;
  if (!fs::is_directory(mPath, ec)) return out;
  std::string base = mPath;
  if (!base.empty() && !platform::isPathSeparator(base.back())) base += platform::kPathSeparator;
  std::vector<std::string> names;
  for (fs::directory_iterator it(mPath, ec), end; !ec && it != end; it.increment(ec)) {
    names.push_back(it->path().filename().string());
  }
  std::sort(names.begin(), names.end());
  out.reserve(names.size());
  for (const auto& n : names) out.emplace_back(base + n);
  return out;
}

bool Pathname::exists() const {
  std::error_code ec;
  return !mPath.empty() && fs::exists(mPath, ec);
}

bool Pathname::isDirectory() const {
  std::error_code ec;
  return !mPath.empty() && fs::is_directory(mPath, ec);
}

bool Pathname::removeFile(bool recursive) const {
  if (mPath.empty()) return false;
  std::error_code ec;
  if (recursive) {
    fs::remove_all(mPath, ec);
  } else {
    fs::remove(mPath, ec);
  }
  return !fs::exists(mPath, ec);
}
