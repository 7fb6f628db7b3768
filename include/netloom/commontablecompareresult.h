// One line of a table comparison, and the compare codes every device table
// reports: a line is the same on both sides, differs, or stands on one side
// only. The codes are separate bits so that callers can collect several kinds
// in one mask.
#pragma once

#include <string>
#include <vector>

#include "netloom/export.h"

class NETLOOM_API CommonTableCompareResult {
 public:
  static constexpr int m_iSame = 1;
  static constexpr int m_iDiff = 16;
  static constexpr int m_iOnlyInleft = 256;
  static constexpr int m_iOnlyInRight = 4096;

  CommonTableCompareResult() = default;

  int GetCompareTableResult() const { return m_result; }
  void GetCompareTableResult(int& first, int& second, int& result) const {
    first = m_first;
    second = m_second;
    result = m_result;
  }
  void SetCompareTableResult(int result) { m_result = result; }
  void SetCompareTableResult(int first, int second, int result) {
    m_first = first;
    m_second = second;
    m_result = result;
  }
  // The left line's cells, then the right line's cells.
  void GetLineValue(std::vector<std::string>& out) const { out = m_lineValues; }
  void SetLineValue(std::vector<std::string>& values) { m_lineValues = values; }
  void AppendLineValue(std::vector<std::string>::const_iterator first, std::vector<std::string>::const_iterator last) {
    m_lineValues.insert(m_lineValues.end(), first, last);
  }
  void AppendLineValue(std::vector<std::string>::iterator first, std::vector<std::string>::iterator last) {
    m_lineValues.insert(m_lineValues.end(), first, last);
  }
  const std::vector<std::string>& LineValues() const { return m_lineValues; }
  // Writes "First:..,Second:..;Result:.." to the debug log.
  void PrintCompareResult() const;

 private:
  int m_first = -1;   // left line, -1 when only on the right
  int m_second = -1;  // right line, -1 when only on the left
  int m_result = 1;
  std::vector<std::string> m_lineValues;
};
