// MultiVendorFileSystem: the folders of design notes.
//
// The root of the note folders is the environment variable VTYCONF_NOTES_DIR,
// else <resource folder>/notes/. Temporary files of note runs live below the
// process's private temporary folder. Folders end in a separator. The two
// static strings name the folders of global filters and map filters below the
// root. Static members only; not meant to race with a change of environment.
#pragma once

#include <string>

#include "platform/Export.h"

class VTYCONF_API MultiVendorFileSystem {
 public:
  static std::string GetDesignReaderTempPath();
  // The root folder of design notes; type is accepted for compatibility.
  static std::string GetDesignReaderRootPath(int type = 0);
  // The folder of a device function; for ("Design Reader") the note root.
  static std::string GetDeviceFuncFolder(int type, const std::string& vendor, const std::string& function,
                                         const std::string& model);

  static const std::string s_DrGlobalPath;
  static const std::string s_DrMapPath;
};
