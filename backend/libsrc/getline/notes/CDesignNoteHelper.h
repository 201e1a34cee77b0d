// CDesignNoteHelper: the standard filters of the suite and where their scripts
// live.
//
// A class of static members used as a namespace. It turns the number of a
// standard filter into its name and its path below the folder of map filters,
// tells whether a name is a default one, and whether the script of a standard
// filter exists. The "filter folder" of the operations that take an untyped
// pointer is UIVariableForDR::getRootPath of the UIVariableForDR the pointer
// points to, or the empty string for null; the integer "type" parameters of
// the ByType operations are not read.
//
// The filter table and the strings are set up when the library is loaded and
// never changed, so every operation may be called from any thread. References
// returned point to static strings or into the caller's UIVariableForDR.
#pragma once

#include <map>
#include <string>

#include "platform/Export.h"

class VTYCONF_API CDesignNoteHelper {
 public:
  static const std::string s_EmptyString;

  // The device types the suite's callers share; no operation here reads them.
  static const char* const s_DeviceTypeNames[];
  static const int s_DeviceTypeCount;
  // A line-break pattern of the same shared vocabulary, read by nothing here.
  static const std::string s_LineBreakPattern;

  static const std::string& GetFilterDir(const void* uiVariable);
  // s_FilterDir when the filter folder is the global or the map filter folder,
  // otherwise the empty string.
  static const std::string& GetDesignFilterDirByType(int type, const void* uiVariable);
  // The filter folder, a separator and s_FilterDir when the filter folder is
  // the global or the map filter folder, otherwise empty.
  static std::string GetDesignDevFilterByType(int type, const void* uiVariable);
  static const std::string& GetDesignMapFilterDirByType(int type);
  static const std::string& GetDeginGlobalFilterDirByType(int type);

  // The filter of the full configuration: name and path "Full Configuration".
  static bool GetFllConfigFilter(std::string& name, std::string& path);
  // Name and path (below the map filter folder) of a standard filter. An
  // unknown key still fills both, with "Configuration Summary", and returns
  // false.
  static bool GetMapFilter(int key, int unused, std::string& name, std::string& path);
  // True for "Global", "Map", and any name that contains the name of a
  // standard filter.
  static bool IsDefaultName(const std::string& name);
  // True when the script of a standard filter exists below the design-note
  // root, as a ".py" file (looked for first) or a ".cmf" file.
  static bool IsDrScriptExisted(int key, int type);

  // The standard filters by key. Keys 1 and 10, and 2 and 11, share a name.
  static const std::map<int, std::string>& filterTable();

 private:
  // Never assigned: stays empty.
  static const std::string s_FilterDir;
};
