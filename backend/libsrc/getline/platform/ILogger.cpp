#include "platform/ILogger.h"

#include <cstdio>
#include <mutex>

#include "platform/PlatformOs.h"

namespace {

int thresholdFromEnvironment() {
  std::string v = platform::getEnv("VTYCONF_LOG");
  if (v.empty()) return -1;
  if (v == "error") return LOG_ERROR;
  if (v == "info") return LOG_INFO;
  if (v == "warn" || v == "warning") return LOG_WARN;
  if (v == "debug") return LOG_DEBUG;
  if (v.size() == 1 && v[0] >= '0' && v[0] <= '3') return v[0] - '0';
  return LOG_DEBUG;
}

const char* levelName(ELogLevel level) {
  switch (level) {
    case LOG_ERROR: return "error";
    case LOG_INFO: return "info";
    case LOG_WARN: return "warn";
    default: return "debug";
  }
}

}  // namespace

ILogger::ILogger() : mThreshold(thresholdFromEnvironment()) {}

ILogger* ILogger::GetInstance() {
  static ILogger instance;
  return &instance;
}

bool ILogger::enabled(ELogLevel level) const { return mThreshold >= 0 && static_cast<int>(level) <= mThreshold; }

void ILogger::LogStr(const std::string& module, const std::string& category, const char* file,
                     const char* function, int line, ELogLevel level, const std::string& message) {
  if (!enabled(level)) return;
  static std::mutex lock;
  std::lock_guard<std::mutex> guard(lock);
  std::fprintf(stderr, "vtyconf[%s] %s%s%s %s:%d %s: %s\n", levelName(level), module.c_str(),
               module.empty() ? "" : "/", category.c_str(), file ? file : "?", line,
               function ? function : "?", message.c_str());
}
