// ILogger: the one process-wide logger.
//
// The library logs a single kind of event (a console command, see main.cpp).
// Messages go to standard error when the environment variable VTYCONF_LOG names
// a level ("error", "warn", "info", "debug" or a number 0-3); otherwise they are
// dropped. GetInstance returns a process-lifetime object; LogStr may be called
// from any thread.
#pragma once

#include <string>

#include "platform/Export.h"

enum ELogLevel { LOG_ERROR = 0, LOG_INFO = 1, LOG_WARN = 2, LOG_DEBUG = 3 };

class VTYCONF_API ILogger {
 public:
  static ILogger* GetInstance();
  // module and category name the source of the message; file, function and
  // line where it was logged.
  void LogStr(const std::string& module, const std::string& category, const char* file,
              const char* function, int line, ELogLevel level, const std::string& message);
  // Whether a message of this level would be written.
  bool enabled(ELogLevel level) const;

 private:
  ILogger();
  int mThreshold;  // -1: nothing is written
};
