// Generic device tables: text cells under named columns, kept as a CSV file
// with a four-row header naming the procedure, the device and the table, and
// saying which columns identify a line (key fields) and which don't count in a
// comparison (ignore fields). The whole file image stays in memory: parser
// rows 0 to 3 are the header and data line n is parser row n + 4.
#pragma once

#include <iosfwd>
#include <list>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "netloom/commontablecompareresult.h"
#include "netloom/export.h"
#include "netloom/util/csvparser.h"

class CNCTStaticCommonTable;

class NETLOOM_API CommonTable {
 public:
  // Walks the lines of a table; accept() hands each line's cells, line number last.
  class NETLOOM_API visitor {
   public:
    virtual ~visitor() = default;
    virtual void visit(std::vector<std::string>& line) = 0;
  };

  CommonTable();
  CommonTable(const CommonTable&) = default;
  CommonTable& operator=(const CommonTable&) = default;
  ~CommonTable() = default;

  // Empties everything but the procedure name.
  void Clear();
  bool LoadCommonTable(std::istream& in);
  // With `checkOnly`, only whether the file exists.
  bool LoadCommonTable(const std::string& path, bool checkOnly);
  bool LoadCommonTableForTest(const char* text);
  bool SaveCommonTable(const std::string& path);

  std::string GetFileName() const { return m_fileName; }
  void SetFileName(const std::string& name) { m_fileName = name; }
  const std::string GetDeviceName() const { return m_deviceName; }
  void SetDeviceName(const std::string& name) { m_deviceName = name; }
  const std::string GetProcedureName() const { return m_procedureName; }
  void SetProcedureName(const std::string& name) { m_procedureName = name; }
  const std::string GetTableName() const { return m_tableName; }
  void SetTableName(const std::string& name) { m_tableName = name; }

  int GetCollumnCount() const { return static_cast<int>(m_columns.size()); }
  int GetRecordCount() const;
  const std::map<int, std::string>& GetCollumns() const { return m_columns; }
  const std::map<std::string, int>& GetCollumnsByName() const { return m_columnsByName; }
  void SetCollumns(const std::map<int, std::string>& columns);
  void GetColumnsSet(std::set<std::string>& names) const;
  const std::set<std::string>& GetKeyCollumns() const { return m_keyColumns; }
  const std::set<std::string>& GetIgnoreCollumns() const { return m_ignoreColumns; }
  void SetKeyCollumns(const std::set<std::string>& keys) { m_keyColumns = keys; }
  void SetIgnoreCollumns(const std::set<std::string>& ignores) { m_ignoreColumns = ignores; }

  // The cell of data line `line`; throws CSVLineParser::Range when it is missing.
  std::string GetValue(int line, int col) const;
  // Sets the cell when the column is known. Always false: callers use the effect.
  bool SetValue(const std::string& column, int line, const std::string& value);
  bool SetValue(int line, std::vector<std::string>& values);
  bool SetCollumnVaues(const std::string& column, const std::list<std::string>& values);
  bool GetLineValues(int line, std::list<std::string>& values);
  // Appends the cells and then the line number; logs and empties on a missing cell.
  void GetLineValues(int line, std::vector<std::string>& values) const;
  void DeleteLine(int line);
  void AddCommonTable(CommonTable& other, bool append);
  void AddCommonTable(CNCTStaticCommonTable& other, bool append);
  void accept(visitor& v) const;

  CSVParser& GetCSVParser() { return m_cells; }
  const CSVParser& GetCSVParser() const { return m_cells; }

  // Comparison of two tables; results are appended to `out`.
  static void DiffInDetailBetweenTwoTable(CommonTable& left, CommonTable& right,
                                          std::list<CommonTableCompareResult>& out);
  static void DiffInDetailBetweenTwoTableCA(CommonTable& left, CommonTable& right,
                                            std::list<CommonTableCompareResult>& out);
  static bool IsSameBetweenTwoTable(CommonTable& left, CommonTable& right);
  // 0 not the same line, 1 same key and other values, 2 the same.
  static int CompareTwoLine(const std::vector<std::string>& left, const std::vector<std::string>& right,
                            const CommonTable& leftTable, const CommonTable& rightTable);

 private:
  bool SaveCommonTable(std::ostream& out);
  static bool IsSameBetweenTwoTableForSpecialCase(CommonTable& left, CommonTable& right);
  static void HandleSpecialCaseCompareResult(CommonTable& left, CommonTable& right,
                                             std::list<CommonTableCompareResult>& out);
  static void CreateMultimap(std::multimap<std::string, std::string>& out, const CommonTable& table,
                             std::vector<int> keyPositions, std::set<std::string> keyNames,
                             std::set<std::string> ignoreNames);
  static void ParseValue(std::string& head, std::string& tail, const std::string& text);
  static std::list<std::vector<std::string>>::iterator FirstKeyMatch(const std::vector<std::string>& line,
                                                                     std::list<std::vector<std::string>>& rights,
                                                                     const CommonTable& left, const CommonTable& right,
                                                                     int& code);

  CSVParser m_cells;
  std::string m_fileName;
  std::string m_deviceName;
  std::string m_procedureName;
  std::string m_tableName;
  std::map<std::string, int> m_columnsByName;
  std::map<int, std::string> m_columns;
  std::set<std::string> m_keyColumns;
  std::set<std::string> m_ignoreColumns;
};

// A plain CSV table whose first row names the columns; its rows can be merged
// into a CommonTable.
class NETLOOM_API CNCTStaticCommonTable {
 public:
  CNCTStaticCommonTable();
  CNCTStaticCommonTable(const CNCTStaticCommonTable&) = default;
  CNCTStaticCommonTable(CNCTStaticCommonTable&&) = default;
  CNCTStaticCommonTable& operator=(const CNCTStaticCommonTable&) = default;
  CNCTStaticCommonTable& operator=(CNCTStaticCommonTable&&) = default;

  bool LoadNCTStaticCommonTable(const std::string& path);
  std::map<int, std::string>& GetColumnInfo() { return m_columnInfo; }
  CSVParser& GetCSVParser() { return m_cells; }

 private:
  std::map<int, std::string> m_columnInfo;
  CSVParser m_cells;
};
