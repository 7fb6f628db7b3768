#include "netloom/util/misc.h"

#include <cstdio>
#include <cstring>

namespace {
bool ParseTime(const std::string& text, std::tm& out) {
  std::tm tm{};
  int consumed = 0;
  const char* s = text.c_str();
  if (std::sscanf(s, "%4d-%2d-%2d %2d:%2d:%2d%n", &tm.tm_year, &tm.tm_mon, &tm.tm_mday, &tm.tm_hour, &tm.tm_min,
                  &tm.tm_sec, &consumed) == 6 &&
      static_cast<size_t>(consumed) == text.size()) {
  } else {
    tm = std::tm{};
    consumed = 0;
    if (std::sscanf(s, "%4d-%2d-%2d%n", &tm.tm_year, &tm.tm_mon, &tm.tm_mday, &consumed) != 3 ||
        static_cast<size_t>(consumed) != text.size())
      return false;
  }
  if (tm.tm_year < 1970 || tm.tm_year > 9999 || tm.tm_mon < 1 || tm.tm_mon > 12 || tm.tm_mday < 1 ||
      tm.tm_mday > 31 || tm.tm_hour > 23 || tm.tm_min > 59 || tm.tm_sec > 60 || tm.tm_hour < 0 || tm.tm_min < 0 ||
      tm.tm_sec < 0)
    return false;
  tm.tm_year -= 1900;
  tm.tm_mon -= 1;
  tm.tm_isdst = -1;
  out = tm;
  return true;
}
}  // namespace

bool TimerHelper::IsStringValidTime(const std::string& text) {
  std::tm tm{};
  return ParseTime(text, tm) && std::mktime(&tm) != static_cast<time_t>(-1);
}

time_t TimerHelper::String2STLTime(const std::string& text) {
  std::tm tm{};
  if (!ParseTime(text, tm)) return 0;
  const time_t t = std::mktime(&tm);
  return t == static_cast<time_t>(-1) ? 0 : t;
}

std::string TimerHelper::TimeToString(time_t value) {
  std::tm tm{};
  if (!localtime_r(&value, &tm)) return {};
  char buf[32];
  std::strftime(buf, sizeof buf, "%Y-%m-%d %H:%M:%S", &tm);
  return buf;
}

TWLastError* TWLastError::Instance() {
  thread_local TWLastError instance;
  return &instance;
}

void TWLastError::SetTWError(const std::string& text, int code) {
  m_text = text;
  m_code = code;
}
