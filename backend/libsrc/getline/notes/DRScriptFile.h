// DRScriptFile: one design script as it lies on disk and in memory.
//
// A script is stored as a ".cmf" file: a header of three marked items (version,
// favourite mark, description) followed by the script text, which is called
// its context. Beside it lie side files sharing its base name: the Perl
// translation ".pl", a Python form ".py", two sample configurations
// ".sample1"/".sample2" and a sample map ".qmap" (older: ".map"). This class
// owns the format, the reader, the writer (which also checks and translates the
// script) and the operations on the side files as a group. Side-file names are
// always formed by DesignNoteParser::getBaceNameFromScriptFilePath.
//
// Files are text streams: a CR LF on disk reads as LF in memory; the writer
// writes LF (CR LF behind a CR, so that a CR before a line end survives a
// write and a read). Nothing reports an error in words and nothing throws: a file that
// cannot be read gives an object with an empty context. An object is a plain
// value that holds no file open between calls; one object may not be used from
// two threads at once.
#pragma once

#include <cstdint>
#include <string>

#include "platform/Export.h"

enum DRScriptFileType {
  ScriptTypeNone = 0,    // empty name
  ScriptTypePython = 1,  // name holds ".py"
  ScriptTypeDesign = 2,  // name holds ".cmf" or ".pl"
  ScriptTypeOther = 3,
};

class VTYCONF_API DRScriptFile {
 public:
  // Reads the file at path. A path without ".cmf" is read as a plain script
  // (the whole file is the context); a missing file leaves everything empty.
  explicit DRScriptFile(const std::string& path);
  // A script that lives in memory only: no file name and no file path.
  DRScriptFile(const std::string& context, const std::string& description, bool favourite);

  const std::string& getFileName() const { return mFileName; }
  const std::string& getDescription() const { return mDescription; }
  const std::string& getContext() const { return mContext; }
  const std::string& getFilePath() const { return mFilePath; }
  bool isFavourite() const { return mFavourite; }

  // Each setter stores its value and, when save is true and the object was read
  // from a file, writes the object back to that file.
  void setContext(const std::string& text, bool save = false);
  void setDescription(const std::string& text, bool save = false);
  void setFavourite(bool value, bool save = false);

  // False when the object has no file path, else saveScriptFile(file path).
  bool save();
  // Writes the object to path (the stored file path stays as it is). For a
  // ".cmf" or ".pl" path the header form is written, the ".pl" beside it is
  // deleted and, when the script passes the syntax check, made anew by the
  // translator (and deleted again if the translator reports a message). A
  // ".py" path gets the bare context; any other path gets nothing. False only
  // when the file could not be opened for writing.
  bool saveScriptFile(const std::string& path) const;

  // The kind of a script by its name; base (when given) receives the name up to
  // the last extension found. Extensions are compared without regard to case
  // and ".py" is tried first, so "a.pyx.cmf" is a Python script with base "a".
  static DRScriptFileType getScriptType(const std::string& name, std::string* base);
  // ".cmf" for ScriptTypeDesign, "" for ScriptTypeOther, ".py" for every other
  // value (ScriptTypeNone included).
  static std::string getExtName(std::uint64_t type);

  // Deletes the script and all its side files; nothing when it does not exist.
  static void delScriptFile(const std::string& path);
  // Deletes every script of a folder tree and then the folder itself.
  static void delScriptFiles(const std::string& folder);
  // Renames a script and its side files. folder is joined to the names as it
  // stands, so it must end in a separator. An old ".map" becomes a ".qmap".
  static bool renameScriptFile(const std::string& folder, const std::string& oldName,
                               const std::string& newName);
  // The sample configuration of index 1 or 2 when it exists, else "".
  static std::string getSampleFileFullPath(const std::string& path, int index);
  // Copies samplePath to ".sample1" for index 1 and ".sample2" for any other
  // index (unlike the getter, which refuses other indices).
  static bool setSampleFile(const std::string& scriptPath, const std::string& samplePath, int index);
  // ".qmap" if it exists, else ".map" if it exists, else "".
  static std::string getSampleMapFullPath(const std::string& path);
  // Copies mapPath to ".qmap"; never writes ".map".
  static bool setSampleMap(const std::string& scriptPath, const std::string& mapPath);

 private:
  int mVersion = 200;  // read and kept; nothing consults it
  std::string mFileName;
  std::string mDescription;
  std::string mContext;
  std::string mFilePath;
  bool mFavourite = true;
};
