// Pathname: a path in the file system, and the few questions asked of one.
//
// A thin value type over std::filesystem with the member names the rest of the
// library uses. It owns nothing on disk; removeFile is the only operation that
// changes the file system. Values may be used from several threads; the file
// system itself is of course shared.
#pragma once

#include <string>
#include <vector>

#include "platform/Export.h"

class VTYCONF_API Pathname {
 public:
  Pathname() = default;
  explicit Pathname(const std::string& path);

  // The whole path as given.
  const std::string& data() const { return mPath; }
  // The last component ("dir/name.ext" gives "name.ext"); a trailing separator
  // is ignored.
  std::string file() const;
  // The last component without its last extension ("name.ext" gives "name").
  std::string fileBase() const;
  // The entries of a folder, sorted by name; empty for a file or a missing path.
  std::vector<Pathname> dirContents() const;
  bool exists() const;
  bool isDirectory() const;
  // Removes the file or empty folder; with recursive a folder and everything
  // in it. True when nothing of it is left.
  bool removeFile(bool recursive) const;

 private:
  std::string mPath;
};
