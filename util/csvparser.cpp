// RFC 4180 reader and writer. The reader pulls physical lines with getline and
// joins them only while a quoted cell is open, so a row is copied a constant
// number of times however long it is.
#include "netloom/util/csvparser.h"

#include <fstream>
#include <istream>
#include <ostream>
#include <sstream>

#include "netloom/util/stlhelper.h"

namespace {

// Tracks whether a quoted cell is open while a row's text grows line by line,
// scanning each character once (a quote inside an unquoted cell is data).
struct QuoteScanner {
  bool inQuotes = false;
  bool atFieldStart = true;
  bool pendingQuote = false;  // a quote inside a quoted cell: closing or the first of a pair

  void Feed(const std::string& text, size_t from, char delim) {
    for (size_t i = from; i < text.size(); ++i) {
      const char c = text[i];
      if (pendingQuote) {
        pendingQuote = false;
        if (c == '"') continue;  // doubled quote, still inside
        inQuotes = false;
      }
      if (inQuotes) {
        if (c == '"') pendingQuote = true;
      } else if (c == '"' && atFieldStart) {
        inQuotes = true;
        atFieldStart = false;
      } else {
        atFieldStart = (c == delim);
      }
    }
  }
  // A quote that ended the text closes the cell.
  bool Open() const { return inQuotes && !pendingQuote; }
};

void ParseRow(const std::string& text, char delim, std::vector<std::string>& out) {
  out.clear();
  std::string field;
  size_t i = 0;
  const size_t n = text.size();
  for (;;) {
    field.clear();
    if (i < n && text[i] == '"') {
      ++i;
      while (i < n) {
        const char c = text[i];
        if (c == '"') {
          if (i + 1 < n && text[i + 1] == '"') {
            field += '"';
            i += 2;
            continue;
          }
          ++i;
          break;
        }
        const size_t next = text.find('"', i);
        const size_t stop = next == std::string::npos ? n : next;
        field.append(text, i, stop - i);
        i = stop;
      }
      // Anything between the closing quote and the delimiter is taken as it stands.
      const size_t d = text.find(delim, i);
      const size_t stop = d == std::string::npos ? n : d;
      field.append(text, i, stop - i);
      i = stop;
    } else {
      const size_t d = text.find(delim, i);
      const size_t stop = d == std::string::npos ? n : d;
      field.append(text, i, stop - i);
      i = stop;
    }
    out.push_back(field);
    if (i >= n) break;
    ++i;  // the delimiter
    if (i == n) {
      out.emplace_back();
      break;
    }
  }
}

bool NeedsQuotes(const std::string& s, char delim) {
  for (char c : s)
    if (c == delim || c == '"' || c == '\r' || c == '\n') return true;
  return false;
}

void WriteField(std::ostream& out, const std::string& s, char delim) {
  if (!NeedsQuotes(s, delim)) {
    out.write(s.data(), static_cast<std::streamsize>(s.size()));
    return;
  }
  out.put('"');
  size_t start = 0;
  for (;;) {
    const size_t q = s.find('"', start);
    if (q == std::string::npos) {
      out.write(s.data() + start, static_cast<std::streamsize>(s.size() - start));
      break;
    }
    out.write(s.data() + start, static_cast<std::streamsize>(q + 1 - start));
    out.put('"');
    start = q + 1;
  }
  out.put('"');
}

}  // namespace

CSVLineParser::CSVLineParser(const std::string& delimiter) : m_delim(delimiter.empty() ? ',' : delimiter[0]) {}

bool CSVLineParser::ReadFromStream(std::istream& in) {
  std::string row;
  if (!std::getline(in, row)) return false;
  // A quoted cell may span lines: keep joining while one is open.
  if (row.find('"') != std::string::npos) {
    QuoteScanner scan;
    scan.Feed(row, 0, m_delim);
    std::string more;
    while (scan.Open() && std::getline(in, more)) {
      const size_t from = row.size();
      row += '\n';
      row += more;
      scan.Feed(row, from, m_delim);
    }
  }
  // The CR of a CRLF row end; a CR inside an unterminated cell at end of input goes too.
  if (!row.empty() && row.back() == '\r') row.pop_back();
  if (row.empty()) {
    m_fields.clear();
    return true;
  }
  ParseRow(row, m_delim, m_fields);
  return true;
}

void CSVLineParser::ParseLine(const std::string& line) {
  if (line.empty()) {
    m_fields.clear();
    return;
  }
  ParseRow(line, m_delim, m_fields);
}

void CSVLineParser::WriteToStream(std::ostream& out) const {
  // A lone empty cell would be a blank line, which reads back as a row of no
  // cells; quoting it keeps the row.
  if (m_fields.size() == 1 && m_fields[0].empty()) {
    out.write("\"\"\n", 3);
    return;
  }
  for (size_t i = 0; i < m_fields.size(); ++i) {
    if (i) out.put(m_delim);
    WriteField(out, m_fields[i], m_delim);
  }
  out.put('\n');
}

std::string CSVLineParser::ToString() const {
  std::ostringstream ss;
  WriteToStream(ss);
  std::string s = ss.str();
  s.pop_back();
  return s;
}

std::string CSVLineParser::GetAt(int index) const {
  if (index < 0 || static_cast<size_t>(index) >= m_fields.size())
    throw Range("CSV field " + std::to_string(index) + " out of range");
  return m_fields[static_cast<size_t>(index)];
}

const std::string& CSVLineParser::Field(size_t index) const { return m_fields[index]; }

void CSVLineParser::SetAt(int index, const std::string& value) {
  if (index < 0) return;
  if (static_cast<size_t>(index) >= m_fields.size()) m_fields.resize(static_cast<size_t>(index) + 1);
  m_fields[static_cast<size_t>(index)] = value;
}

CSVParser::CSVParser(const std::string& delimiter) : m_delimText(delimiter) {}

std::string CSVParser::GetAt(int row, int col) const { return GetRow(row).GetAt(col); }

const CSVLineParser& CSVParser::GetRow(int row) const {
  if (row < 0 || static_cast<size_t>(row) >= m_rows.size())
    throw CSVLineParser::Range("CSV row " + std::to_string(row) + " out of range");
  return m_rows[static_cast<size_t>(row)];
}

CSVLineParser& CSVParser::GetAt(int row) { return const_cast<CSVLineParser&>(GetRow(row)); }

void CSVParser::SetAt(int row, int col, const std::string& value) {
  if (row < 0 || col < 0) return;
  if (static_cast<size_t>(row) >= m_rows.size()) m_rows.resize(static_cast<size_t>(row) + 1, CSVLineParser(m_delimText));
  m_rows[static_cast<size_t>(row)].SetAt(col, value);
}

void CSVParser::SetAt(int row, const CSVLineParser& line) {
  if (row < 0) return;
  if (static_cast<size_t>(row) >= m_rows.size()) m_rows.resize(static_cast<size_t>(row) + 1, CSVLineParser(m_delimText));
  m_rows[static_cast<size_t>(row)] = line;
}

void CSVParser::Append(const CSVLineParser& line) { m_rows.push_back(line); }

void CSVParser::Delete(int row) {
  if (row < 0 || static_cast<size_t>(row) >= m_rows.size()) return;
  m_rows.erase(m_rows.begin() + row);
}

void CSVParser::Insert(const CSVParser& source, int fromRow, bool append, int atRow) {
  if (fromRow < 0) fromRow = 0;
  if (atRow < 0) atRow = 0;
  if (static_cast<size_t>(fromRow) >= source.m_rows.size()) return;
  // Copy first: the source may be this parser.
  std::vector<CSVLineParser> rows(source.m_rows.begin() + fromRow, source.m_rows.end());
  if (m_rows.size() < static_cast<size_t>(atRow)) m_rows.resize(static_cast<size_t>(atRow), CSVLineParser(m_delimText));
  const size_t at = append ? m_rows.size() : static_cast<size_t>(atRow);
  m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(at), rows.begin(), rows.end());
}

bool CSVParser::Load(const std::string& text) {
  std::istringstream in(text);
  return LoadFromStream(in);
}

bool CSVParser::LoadFromStream(std::istream& in) {
  m_rows.clear();
  // The parser holds the whole file, whatever its reader already took: a table
  // reads its header row by row and then loads everything, header included.
  in.clear();
  in.seekg(0, std::ios::beg);
  if (!in) in.clear();  // not seekable: read on from where it stands
  if (!in.good()) return false;
  CSVLineParser line(m_delimText);
  while (line.ReadFromStream(in)) m_rows.push_back(line);
  return true;
}

bool CSVParser::LoadFromFile(const std::string& path) {
  std::ifstream in(StlHelper::AToW(path), std::ios::binary);
  if (!in) {
    m_rows.clear();
    return false;
  }
  return LoadFromStream(in);
}

void CSVParser::SaveToStream(std::ostream& out) const {
  for (const auto& row : m_rows) row.WriteToStream(out);
}

bool CSVParser::SaveToFile(const std::string& path) const {
  std::ofstream out(StlHelper::AToW(path), std::ios::binary | std::ios::trunc);
  if (!out) return false;
  SaveToStream(out);
  return static_cast<bool>(out);
}
