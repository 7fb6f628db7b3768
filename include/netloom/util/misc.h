// Small services: time texts and the per-thread last error.
#pragma once

#include <ctime>
#include <string>

#include "netloom/export.h"

// Time texts in local time, "YYYY-MM-DD HH:MM:SS" ("YYYY-MM-DD" alone reads as midnight).
class NETLOOM_API TimerHelper {
 public:
  static bool IsStringValidTime(const std::string& text);
  // 0 when the text is not a valid time.
  static time_t String2STLTime(const std::string& text);
  static std::string TimeToString(time_t value);
};

// The last error text and code of the calling thread.
class NETLOOM_API TWLastError {
 public:
  static TWLastError* Instance();
  void SetTWError(const std::string& text, int code);
  const std::string& GetTWError() const { return m_text; }
  int GetTWErrorCode() const { return m_code; }
  void Clear() { SetTWError("", 0); }

 private:
  std::string m_text;
  int m_code = 0;
};
