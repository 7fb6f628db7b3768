// Comparison of two common tables. Two matchers share one result form: the
// plain one walks the right lines for each left line (quadratic, first key
// match wins), the CA one matches through ordered multimaps of joined key and
// value texts and prefers an equal line among lines of equal key.
#include <cstdio>
#include <cstdlib>

#include "netloom/commontable.h"
#include "netloom/util/logger.h"
#include "netloom/util/stlhelper.h"

namespace {

using Lines = std::list<std::vector<std::string>>;

Lines AllLines(const CommonTable& table) {
  Lines lines;
  for (int i = 0; i < table.GetRecordCount(); ++i) {
    lines.emplace_back();
    table.GetLineValues(i, lines.back());
  }
  return lines;
}

// The cells of a line without the trailing line number.
std::vector<std::string> Cells(const std::vector<std::string>& line) {
  return line.empty() ? line : std::vector<std::string>(line.begin(), line.end() - 1);
}

int LineNumber(const std::vector<std::string>& line) { return line.empty() ? -1 : std::atoi(line.back().c_str()); }

CommonTableCompareResult MakeResult(int first, int second, int code, const std::vector<std::string>& left,
                                    const std::vector<std::string>& right) {
  CommonTableCompareResult r;
  r.SetCompareTableResult(first, second, code);
  r.AppendLineValue(left.begin(), left.end());
  r.AppendLineValue(right.begin(), right.end());
  return r;
}

std::vector<std::string> Blanks(const CommonTable& table) {
  return std::vector<std::string>(static_cast<size_t>(table.GetCollumnCount()));
}

}  // namespace

void CommonTableCompareResult::PrintCompareResult() const {
  char text[100];
  std::snprintf(text, sizeof text, "First:%d,Second:%d;Result:%d\n", m_first, m_second, m_result);
  NETLOOM_LOG("netloom", LOG_DEBUG, text);
}

// The first remaining right line with the key of `line` (CompareTwoLine 1 or
// 2), or end; `code` is that comparison's answer.
Lines::iterator CommonTable::FirstKeyMatch(const std::vector<std::string>& line, Lines& rights,
                                           const CommonTable& left, const CommonTable& right, int& code) {
  for (auto r = rights.begin(); r != rights.end(); ++r) {
    code = CompareTwoLine(line, *r, left, right);
    if (code == 1 || code == 2) return r;
  }
  return rights.end();
}

bool CommonTable::IsSameBetweenTwoTableForSpecialCase(CommonTable& left, CommonTable& right) {
  if (left.GetCollumnCount() != right.GetCollumnCount()) return false;
  std::set<std::string> a, b;
  left.GetColumnsSet(a);
  right.GetColumnsSet(b);
  return a == b && left.m_keyColumns == right.m_keyColumns && left.m_ignoreColumns == right.m_ignoreColumns;
}

void CommonTable::HandleSpecialCaseCompareResult(CommonTable& left, CommonTable& right,
                                                 std::list<CommonTableCompareResult>& out) {
  for (const auto& line : AllLines(left))
    out.push_back(MakeResult(LineNumber(line), -1, CommonTableCompareResult::m_iOnlyInleft, Cells(line), Blanks(right)));
  for (const auto& line : AllLines(right))
    out.push_back(MakeResult(-1, LineNumber(line), CommonTableCompareResult::m_iOnlyInRight, Blanks(left), Cells(line)));
}

int CommonTable::CompareTwoLine(const std::vector<std::string>& left, const std::vector<std::string>& right,
                                const CommonTable& leftTable, const CommonTable& rightTable) {
  if (left.size() != right.size()) return 0;
  auto position = [](const CommonTable& t, const std::string& name, int& pos) {
    auto it = t.m_columnsByName.find(name);
    if (it == t.m_columnsByName.end()) return false;
    pos = it->second;
    return true;
  };
  auto inside = [](int pos, const std::vector<std::string>& v) { return pos >= 0 && static_cast<size_t>(pos) < v.size(); };
  for (const auto& key : leftTable.m_keyColumns) {
    int l = 0, r = 0;
    if (!position(leftTable, key, l) || !position(rightTable, key, r) || !inside(l, left) || !inside(r, right)) return 0;
    if (left[static_cast<size_t>(l)] != right[static_cast<size_t>(r)]) return 0;
  }
  for (const auto& column : leftTable.m_columnsByName) {
    int r = 0;
    if (!position(rightTable, column.first, r)) return 0;
    if (leftTable.m_keyColumns.count(column.first) || leftTable.m_ignoreColumns.count(column.first)) continue;
    const int l = column.second;
    // A position outside a line reads as a difference, never as an access past its end.
    if (!inside(l, left) || !inside(r, right)) return 1;
    if (left[static_cast<size_t>(l)] != right[static_cast<size_t>(r)]) return 1;
  }
  return 2;
}

void CommonTable::DiffInDetailBetweenTwoTable(CommonTable& left, CommonTable& right,
                                              std::list<CommonTableCompareResult>& out) {
  if (!IsSameBetweenTwoTableForSpecialCase(left, right)) {
    HandleSpecialCaseCompareResult(left, right, out);
    return;
  }
  if (left.GetRecordCount() == 0 && right.GetRecordCount() == 0) return;
  Lines lefts = AllLines(left), rights = AllLines(right);
  for (const auto& l : lefts) {
    int code = 0;
    auto match = FirstKeyMatch(l, rights, left, right, code);
    if (match != rights.end()) {
      out.push_back(MakeResult(LineNumber(l), LineNumber(*match),
                               code == 2 ? CommonTableCompareResult::m_iSame : CommonTableCompareResult::m_iDiff,
                               Cells(l), Cells(*match)));
      rights.erase(match);
    } else {
      out.push_back(MakeResult(LineNumber(l), -1, CommonTableCompareResult::m_iOnlyInleft, Cells(l), Blanks(right)));
    }
  }
  for (const auto& r : rights)
    out.push_back(MakeResult(-1, LineNumber(r), CommonTableCompareResult::m_iOnlyInRight, Blanks(left), Cells(r)));
}

void CommonTable::ParseValue(std::string& head, std::string& tail, const std::string& text) {
  const size_t comma = text.find(',');
  if (comma == std::string::npos) {
    head = text;
    tail.clear();
  } else {
    head = text.substr(0, comma);
    tail = text.substr(comma + 1);
  }
}

void CommonTable::CreateMultimap(std::multimap<std::string, std::string>& out, const CommonTable& table,
                                 std::vector<int> keyPositions, std::set<std::string> keyNames,
                                 std::set<std::string> ignoreNames) {
  std::vector<std::string> line;
  for (int i = 0; i < table.GetRecordCount(); ++i) {
    line.clear();
    table.GetLineValues(i, line);
    if (!line.empty()) line.pop_back();
    std::string key;
    bool ok = true;
    for (size_t k = 0; k < keyPositions.size() && ok; ++k) {
      const int pos = keyPositions[k];
      if (pos < 0 || static_cast<size_t>(pos) >= line.size()) ok = false;
      else key += (k ? "," : "") + line[static_cast<size_t>(pos)];
    }
    if (!ok) continue;
    std::string value = StlHelper::toString(i);
    for (const auto& column : table.m_columnsByName) {
      if (keyNames.count(column.first) || ignoreNames.count(column.first)) continue;
      const int pos = column.second;
      if (pos < 0 || static_cast<size_t>(pos) >= line.size()) {
        ok = false;
        break;
      }
      value += "," + line[static_cast<size_t>(pos)];
    }
    if (ok) out.emplace(key, value);  // equal keys keep table order: multimap inserts at the range's end
  }
}

void CommonTable::DiffInDetailBetweenTwoTableCA(CommonTable& left, CommonTable& right,
                                                std::list<CommonTableCompareResult>& out) {
  if (!IsSameBetweenTwoTableForSpecialCase(left, right)) {
    HandleSpecialCaseCompareResult(left, right, out);
    return;
  }
  std::vector<int> leftKeys, rightKeys;
  for (const auto& key : left.m_keyColumns) {
    auto l = left.m_columnsByName.find(key);
    auto r = right.m_columnsByName.find(key);
    if (l == left.m_columnsByName.end() || r == right.m_columnsByName.end()) continue;
    leftKeys.push_back(l->second);
    rightKeys.push_back(r->second);
  }
  if (left.GetRecordCount() == 0 && right.GetRecordCount() == 0) return;
  std::multimap<std::string, std::string> lmap, rmap;
  CreateMultimap(lmap, left, leftKeys, left.m_keyColumns, left.m_ignoreColumns);
  CreateMultimap(rmap, right, rightKeys, left.m_keyColumns, left.m_ignoreColumns);

  auto cellsOf = [](const CommonTable& t, int line) {
    std::vector<std::string> v;
    t.GetLineValues(line, v);
    if (!v.empty()) v.pop_back();
    return v;
  };
  std::string lhead, ltail, rhead, rtail;
  for (const auto& entry : lmap) {
    ParseValue(lhead, ltail, entry.second);
    const int lline = std::atoi(lhead.c_str());
    auto range = rmap.equal_range(entry.first);
    if (range.first == range.second) {
      out.push_back(MakeResult(lline, -1, CommonTableCompareResult::m_iOnlyInleft, cellsOf(left, lline), Blanks(right)));
      continue;
    }
    auto used = range.first;
    int code = CommonTableCompareResult::m_iDiff;
    for (auto it = range.first; it != range.second; ++it) {
      ParseValue(rhead, rtail, it->second);
      if (rtail == ltail) {
        used = it;
        code = CommonTableCompareResult::m_iSame;
        break;
      }
    }
    ParseValue(rhead, rtail, used->second);
    const int rline = std::atoi(rhead.c_str());
    out.push_back(MakeResult(lline, rline, code, cellsOf(left, lline), cellsOf(right, rline)));
    rmap.erase(used);
  }
  for (const auto& entry : rmap) {
    ParseValue(rhead, rtail, entry.second);
    const int rline = std::atoi(rhead.c_str());
    out.push_back(MakeResult(-1, rline, CommonTableCompareResult::m_iOnlyInRight, Blanks(left), cellsOf(right, rline)));
  }
}

bool CommonTable::IsSameBetweenTwoTable(CommonTable& left, CommonTable& right) {
  if (left.GetRecordCount() != right.GetRecordCount() || !IsSameBetweenTwoTableForSpecialCase(left, right))
    return false;
  Lines lefts = AllLines(left), rights = AllLines(right);
  for (const auto& l : lefts) {
    int code = 0;
    auto match = FirstKeyMatch(l, rights, left, right, code);
    if (match == rights.end() || code == 1) return false;
    rights.erase(match);
  }
  return rights.empty();
}
