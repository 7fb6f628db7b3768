// CommonTable: loading, saving and editing. The header reader is strict and
// the writer is not its exact inverse (a table without key columns saves a
// key row the reader refuses); both are kept as the file form has them.
#include "netloom/commontable.h"

#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <sstream>

#include "netloom/util/logger.h"
#include "netloom/util/pathname.h"
#include "netloom/util/stlhelper.h"

namespace {
constexpr int kHeaderRows = 4;
const char kVersion[] = "version:1.0";
const char kProcedure[] = "procedure:";
const char kHostname[] = "hostname:";
const char kTableName[] = "tablename:";
const char kKeyFields[] = "key fields";
const char kIgnoreFields[] = "ignore fields";

bool StartsWith(const std::string& text, const char* prefix, std::string& rest) {
  if (!StlHelper::startsWith(text, prefix)) return false;
  rest = text.substr(std::char_traits<char>::length(prefix));
  return true;
}
}  // namespace

CommonTable::CommonTable() : m_cells("") {}

void CommonTable::Clear() {
  m_cells.Clear();
  m_fileName.clear();
  m_deviceName.clear();
  m_tableName.clear();
  m_columnsByName.clear();
  m_columns.clear();
  m_keyColumns.clear();
  m_ignoreColumns.clear();
}

bool CommonTable::LoadCommonTable(std::istream& in) {
  CSVLineParser row("");
  std::string rest;
  if (!row.ReadFromStream(in) || row.size() < 3 || row.Field(0) != kVersion) return false;
  if (!StartsWith(row.Field(1), kProcedure, rest)) return false;
  m_procedureName = rest;
  if (!StartsWith(row.Field(2), kHostname, rest)) return false;
  m_deviceName = rest;
  if (row.size() > 3) {
    if (!StartsWith(row.Field(3), kTableName, rest)) return false;
    m_tableName = rest;
  }

  if (!row.ReadFromStream(in) || row.size() < 2 || row.Field(0) != kKeyFields) return false;
  m_keyColumns.clear();
  m_keyColumns.insert(row.Fields().begin() + 1, row.Fields().end());

  if (!row.ReadFromStream(in) || row.size() == 0 || row.Field(0) != kIgnoreFields) return false;
  m_ignoreColumns.clear();
  m_ignoreColumns.insert(row.Fields().begin() + 1, row.Fields().end());

  if (!row.ReadFromStream(in) || row.size() == 0) return false;
  m_columns.clear();
  m_columnsByName.clear();
  for (size_t i = 0; i < row.size(); ++i) {
    m_columns[static_cast<int>(i)] = row.Field(i);
    m_columnsByName[row.Field(i)] = static_cast<int>(i);
  }
  m_cells.LoadFromStream(in);
  return true;
}

bool CommonTable::LoadCommonTable(const std::string& path, bool checkOnly) {
  if (checkOnly) return Pathname(path).exists();
  if (::access(path.c_str(), F_OK) != 0) return false;
  std::ifstream in(StlHelper::AToW(path), std::ios::binary);
  if (!in) return false;
  const bool ok = LoadCommonTable(in);
  if (ok) {
    m_fileName = path;
  } else {
    Clear();
  }
  return ok;
}

bool CommonTable::LoadCommonTableForTest(const char* text) {
  std::istringstream in(text ? text : "");
  return LoadCommonTable(in);
}

bool CommonTable::SaveCommonTable(std::ostream& out) {
  if (m_deviceName.empty() || m_columns.empty()) return false;
  m_cells.SetAt(0, 0, kVersion);
  m_cells.SetAt(0, 1, kProcedure + m_procedureName);
  m_cells.SetAt(0, 2, kHostname + m_deviceName);
  if (!m_tableName.empty()) m_cells.SetAt(0, 3, kTableName + m_tableName);
  m_cells.SetAt(1, 0, kKeyFields);
  int col = 1;
  for (const auto& key : m_keyColumns) m_cells.SetAt(1, col++, key);
  m_cells.SetAt(2, 0, kIgnoreFields);
  col = 1;
  for (const auto& name : m_ignoreColumns) m_cells.SetAt(2, col++, name);
  for (const auto& c : m_columns) m_cells.SetAt(3, c.first, c.second);
  m_cells.SaveToStream(out);
  return true;
}

bool CommonTable::SaveCommonTable(const std::string& path) {
  if (!path.empty()) m_fileName = path;
  if (m_fileName.empty()) return false;
  std::ofstream out(StlHelper::AToW(m_fileName), std::ios::binary | std::ios::trunc);
  if (!out) return false;
  return SaveCommonTable(out);
}

int CommonTable::GetRecordCount() const {
  const int rows = static_cast<int>(m_cells.size());
  return rows < kHeaderRows ? 0 : rows - kHeaderRows;
}

void CommonTable::SetCollumns(const std::map<int, std::string>& columns) {
  m_columns = columns;
  m_columnsByName.clear();
  for (const auto& c : m_columns) m_columnsByName[c.second] = c.first;
}

void CommonTable::GetColumnsSet(std::set<std::string>& names) const {
  for (const auto& c : m_columns) names.insert(c.second);
}

std::string CommonTable::GetValue(int line, int col) const { return m_cells.GetAt(line + kHeaderRows, col); }

bool CommonTable::SetValue(const std::string& column, int line, const std::string& value) {
  auto it = m_columnsByName.find(column);
  if (it != m_columnsByName.end() && line >= 0) m_cells.SetAt(line + kHeaderRows, it->second, value);
  return false;
}

bool CommonTable::SetValue(int line, std::vector<std::string>& values) {
  if (values.size() != m_columnsByName.size() || line < 0) return false;
  for (size_t i = 0; i < values.size(); ++i) m_cells.SetAt(line + kHeaderRows, static_cast<int>(i), values[i]);
  return true;
}

bool CommonTable::SetCollumnVaues(const std::string& column, const std::list<std::string>& values) {
  auto it = m_columnsByName.find(column);
  if (it == m_columnsByName.end()) return false;
  int line = 0;
  for (const auto& v : values) m_cells.SetAt(kHeaderRows + line++, it->second, v);
  return true;
}

bool CommonTable::GetLineValues(int line, std::list<std::string>& values) {
  if (line < 0 || line >= GetRecordCount()) return false;
  for (int col = 0; col < GetCollumnCount(); ++col) values.push_back(m_cells.GetAt(line + kHeaderRows, col));
  return true;
}

void CommonTable::GetLineValues(int line, std::vector<std::string>& values) const {
  if (line < 0 || line >= GetRecordCount()) return;
  int col = 0;
  try {
    for (col = 0; col < GetCollumnCount(); ++col) values.push_back(m_cells.GetAt(line + kHeaderRows, col));
    char number[16];
    std::snprintf(number, sizeof number, "%d", line);
    values.push_back(number);
  } catch (const CSVLineParser::Range&) {
    ILogger::GetInstance()->LogVar("proxyServer", __FILE__, "CommonTable::GetLineValues", __LINE__,
                                   static_cast<ELogLevel>(2),
                                   "The data of table [row,col]=[%d,%d] doesn't exist.", line, col);
    values.clear();
  } catch (...) {
    ILogger::GetInstance()->LogVar("proxyServer", __FILE__, "CommonTable::GetLineValues", __LINE__,
                                   static_cast<ELogLevel>(3),
                                   "Parse the data of table [row,col]=[%d,%d] failed.", line, col);
    values.clear();
  }
}

void CommonTable::DeleteLine(int line) {
  if (line < 0) return;
  m_cells.Delete(line + kHeaderRows);
}

void CommonTable::AddCommonTable(CommonTable& other, bool append) {
  m_cells.Insert(other.m_cells, kHeaderRows, append, kHeaderRows);
}

void CommonTable::AddCommonTable(CNCTStaticCommonTable& other, bool append) {
  m_cells.Insert(other.GetCSVParser(), 1, append, kHeaderRows);
}

void CommonTable::accept(visitor& v) const {
  std::vector<std::string> values;
  for (int line = 0; line < GetRecordCount(); ++line) {
    GetLineValues(line, values);
    v.visit(values);
    values.clear();
  }
}

CNCTStaticCommonTable::CNCTStaticCommonTable() : m_cells("") {}

bool CNCTStaticCommonTable::LoadNCTStaticCommonTable(const std::string& path) {
  if (::access(path.c_str(), F_OK) != 0) return false;
  std::ifstream in(StlHelper::AToW(path), std::ios::binary);
  if (!in) return false;
  CSVLineParser row("");
  if (!row.ReadFromStream(in) || row.size() == 0) return false;
  m_columnInfo.clear();
  for (size_t i = 0; i < row.size(); ++i) m_columnInfo[static_cast<int>(i)] = row.Field(i);
  m_cells.LoadFromFile(path);
  return true;
}
