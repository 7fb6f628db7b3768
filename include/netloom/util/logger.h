// The library's log. Messages go to log4cpp categories named by module
// ("dime", "l3discover", "TWP3Python", ...): to stderr at warning level and
// above by default, and also to a file under the log folder once
// EnableFileLog is called. NETLOOM_LOG_LEVEL (trace, debug, info, warn, error)
// lowers or raises the threshold at first use.
#pragma once

#include <functional>
#include <string>

#include "netloom/export.h"

enum ELogLevel {
  LOG_TRACE = 0,
  LOG_DEBUG = 1,
  LOG_INFO = 2,
  LOG_WARNING = 3,
  LOG_ERROR = 4,
  LOG_FATAL = 5,
};

class NETLOOM_API ILogger {
 public:
  // Called for every record that passes the threshold, before it is written.
  using Observer = std::function<void(ELogLevel level, const std::string& category, const std::string& function,
                                      const std::string& message)>;

  static ILogger* GetInstance();

  // `message` as it stands, in `category`, from `file`:`line` in `function`.
  void LogStr(const std::string& message, const std::string& category, const char* file, const char* function,
              int line, ELogLevel level);
  // printf-style message.
  void LogVar(const std::string& category, const char* file, const char* function, int line, ELogLevel level,
              const char* format, ...) __attribute__((format(printf, 7, 8)));

  void SetLevel(ELogLevel level);
  ELogLevel GetLevel() const;
  bool IsEnabled(ELogLevel level) const;
  // Adds a file appender writing to `fileName` in TWFileSystem::GetLogFolder().
  bool EnableFileLog(const std::string& fileName = "netloom.log");
  // Tests and hosts can watch the records; an empty observer removes it.
  void SetObserver(Observer observer);

 private:
  ILogger();
};

#define NETLOOM_LOG(category, level, message) \
  ILogger::GetInstance()->LogStr((message), (category), __FILE__, __func__, __LINE__, (level))
