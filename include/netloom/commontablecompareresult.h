// The compare codes every device table reports in its compare results: a line
// is the same on both sides, differs, or stands on one side only. The codes are
// separate bits so that callers can collect several kinds in one mask.
#pragma once

#include "netloom/export.h"

class NETLOOM_API CommonTableCompareResult {
 public:
  static constexpr int m_iSame = 1;
  static constexpr int m_iDiff = 16;
  static constexpr int m_iOnlyInleft = 256;
  static constexpr int m_iOnlyInRight = 4096;
};
