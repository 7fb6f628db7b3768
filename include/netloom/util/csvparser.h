// CSV rows and files, the storage form of every device table and route file.
//
// Quoting follows RFC 4180: a cell holding the delimiter, a double quote, CR or
// LF is written between double quotes with inner quotes doubled, so every cell
// round-trips byte for byte. Reading accepts LF and CRLF row ends, keeps line
// breaks inside quoted cells, takes characters after a closing quote literally,
// and ends an unterminated quoted cell at the end of input. Rows are written
// with LF.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <stdexcept>
#include <string>
#include <vector>

#include "netloom/export.h"

class NETLOOM_API CSVLineParser {
 public:
  // Thrown by GetAt for a field the row doesn't have.
  class NETLOOM_API Range : public std::out_of_range {
   public:
    explicit Range(const std::string& what) : std::out_of_range(what) {}
  };

  // `delimiter`: its first character separates fields; empty means ",".
  explicit CSVLineParser(const std::string& delimiter = std::string());

  // Reads the next row, replacing the current fields. False at the end of the stream.
  bool ReadFromStream(std::istream& in);
  // Parses one row from text (line breaks outside quotes are kept as data).
  void ParseLine(const std::string& line);
  // Writes the current fields as one row and a LF.
  void WriteToStream(std::ostream& out) const;
  std::string ToString() const;

  std::string GetAt(int index) const;       // throws Range
  const std::string& Field(size_t index) const;  // unchecked
  // Sets a field, adding empty fields in between as needed; negative does nothing.
  void SetAt(int index, const std::string& value);
  size_t size() const { return m_fields.size(); }
  void Clear() { m_fields.clear(); }
  const std::vector<std::string>& Fields() const { return m_fields; }
  std::vector<std::string>& Fields() { return m_fields; }
  char Delimiter() const { return m_delim; }

  bool operator==(const CSVLineParser& other) const { return m_fields == other.m_fields; }

 private:
  std::vector<std::string> m_fields;
  char m_delim;
};

class NETLOOM_API CSVParser {
 public:
  explicit CSVParser(const std::string& delimiter = std::string());

  size_t size() const { return m_rows.size(); }
  std::string GetAt(int row, int col) const;  // throws CSVLineParser::Range
  CSVLineParser& GetAt(int row);              // throws CSVLineParser::Range
  const CSVLineParser& GetRow(int row) const; // throws CSVLineParser::Range
  // Creates the row and cell as needed; negative indexes do nothing.
  void SetAt(int row, int col, const std::string& value);
  void SetAt(int row, const CSVLineParser& line);
  void Append(const CSVLineParser& line);
  // Removes a row; out of range does nothing.
  void Delete(int row);
  // Copies the rows of `source` from `fromRow` on into this parser.
  // append false: they are inserted at `atRow`, before the rows that stood there.
  // append true: they go behind the last row, but never before `atRow`.
  // Missing rows up to `atRow` are added empty.
  void Insert(const CSVParser& source, int fromRow, bool append, int atRow);
  void Clear() { m_rows.clear(); }

  // Loads replace the whole content with every row of the source: a stream is
  // read from its start when it can seek, even if a reader took rows already.
  // They return false only when nothing could be read.
  bool Load(const std::string& text);
  bool LoadFromStream(std::istream& in);
  bool LoadFromFile(const std::string& path);
  void SaveToStream(std::ostream& out) const;
  bool SaveToFile(const std::string& path) const;

 private:
  std::vector<CSVLineParser> m_rows;
  std::string m_delimText;
};
