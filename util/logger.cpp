// ILogger over log4cpp. The observer hook exists because several behaviours
// are defined by the log line they leave.
#include "netloom/util/logger.h"

#include <log4cpp/Appender.hh>
#include <log4cpp/Category.hh>
#include <log4cpp/FileAppender.hh>
#include <log4cpp/OstreamAppender.hh>
#include <log4cpp/PatternLayout.hh>
#include <log4cpp/Priority.hh>

#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <mutex>

#include "netloom/util/twfilesystem.h"

namespace {

std::mutex g_observerMutex;
ILogger::Observer g_observer;
std::atomic<int> g_level{LOG_WARNING};

log4cpp::Priority::Value ToPriority(ELogLevel level) {
  switch (level) {
    case LOG_TRACE: return log4cpp::Priority::DEBUG;
    case LOG_DEBUG: return log4cpp::Priority::DEBUG;
    case LOG_INFO: return log4cpp::Priority::INFO;
    case LOG_WARNING: return log4cpp::Priority::WARN;
    case LOG_ERROR: return log4cpp::Priority::ERROR;
    default: return log4cpp::Priority::CRIT;
  }
}

ELogLevel LevelFromEnv() {
  const char* v = std::getenv("NETLOOM_LOG_LEVEL");
  if (!v) return LOG_WARNING;
  const std::string s(v);
  if (s == "trace") return LOG_TRACE;
  if (s == "debug") return LOG_DEBUG;
  if (s == "info") return LOG_INFO;
  if (s == "error") return LOG_ERROR;
  return LOG_WARNING;
}

const char* BaseName(const char* file) {
  if (!file) return "";
  const char* slash = std::strrchr(file, '/');
  return slash ? slash + 1 : file;
}

}  // namespace

ILogger::ILogger() {
  log4cpp::Category& root = log4cpp::Category::getRoot();
  auto* appender = new log4cpp::OstreamAppender("stderr", &std::cerr);
  auto* layout = new log4cpp::PatternLayout();
  layout->setConversionPattern("%d{%Y-%m-%d %H:%M:%S} %p [%c] %m%n");
  appender->setLayout(layout);
  root.addAppender(appender);
  g_level = LevelFromEnv();
  root.setPriority(log4cpp::Priority::DEBUG);
}

ILogger* ILogger::GetInstance() {
  static ILogger* instance = new ILogger();  // lives to the end: logging from static destructors stays safe
  return instance;
}

void ILogger::SetLevel(ELogLevel level) { g_level = level; }
ELogLevel ILogger::GetLevel() const { return static_cast<ELogLevel>(g_level.load()); }
bool ILogger::IsEnabled(ELogLevel level) const { return level >= g_level.load(); }

void ILogger::SetObserver(Observer observer) {
  std::lock_guard<std::mutex> lock(g_observerMutex);
  g_observer = std::move(observer);
}

bool ILogger::EnableFileLog(const std::string& fileName) {
  const std::string dir = TWFileSystem::GetLogFolder();
  std::error_code ec;
  std::filesystem::create_directories(dir, ec);
  auto* appender = new log4cpp::FileAppender("file", dir + fileName);
  auto* layout = new log4cpp::PatternLayout();
  layout->setConversionPattern("%d{%Y-%m-%d %H:%M:%S} %p [%c] %m%n");
  appender->setLayout(layout);
  log4cpp::Category::getRoot().addAppender(appender);
  return true;
}

void ILogger::LogStr(const std::string& message, const std::string& category, const char* file,
                     const char* function, int line, ELogLevel level) {
  {
    std::lock_guard<std::mutex> lock(g_observerMutex);
    if (g_observer) g_observer(level, category, function ? function : "", message);
  }
  if (!IsEnabled(level)) return;
  log4cpp::Category& cat = log4cpp::Category::getInstance(category.empty() ? "netloom" : category);
  std::string text = message;
  while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) text.pop_back();
  cat.log(ToPriority(level), "%s (%s:%d %s)", text.c_str(), BaseName(file), line, function ? function : "");
}

void ILogger::LogVar(const std::string& category, const char* file, const char* function, int line,
                     ELogLevel level, const char* format, ...) {
  char buffer[4096];
  va_list args;
  va_start(args, format);
  std::vsnprintf(buffer, sizeof buffer, format ? format : "", args);
  va_end(args);
  LogStr(buffer, category, file, function, line, level);
}
