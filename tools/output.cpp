#include "output.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <ostream>

namespace netloom_tool {

Section& Report::Add(const std::string& title, std::vector<std::string> columns) {
  sections.push_back(Section{title, std::move(columns), {}, {}});
  return sections.back();
}

void WriteJsonString(std::ostream& out, const std::string& text) {
  out << '"';
  for (unsigned char c : text) {
    switch (c) {
      case '"': out << "\\\""; break;
      case '\\': out << "\\\\"; break;
      case '\n': out << "\\n"; break;
      case '\r': out << "\\r"; break;
      case '\t': out << "\\t"; break;
      default:
        if (c < 0x20) {
          char buf[8];
          std::snprintf(buf, sizeof buf, "\\u%04x", c);
          out << buf;
        } else {
          out << static_cast<char>(c);
        }
    }
  }
  out << '"';
}

namespace {

// Display width of UTF-8 text: one column per code point.
size_t Width(const std::string& s) {
  size_t w = 0;
  for (unsigned char c : s) w += (c & 0xC0) != 0x80;
  return w;
}

void PrintText(std::ostream& out, const Section& s) {
  if (!s.title.empty()) out << s.title << "\n";
  size_t keyWidth = 0;
  for (const auto& f : s.facts) keyWidth = std::max(keyWidth, Width(f.first));
  for (const auto& f : s.facts) out << "  " << f.first << ":" << std::string(keyWidth - Width(f.first) + 1, ' ') << f.second << "\n";
  if (s.columns.empty()) return;
  std::vector<size_t> width(s.columns.size());
  for (size_t i = 0; i < s.columns.size(); ++i) width[i] = Width(s.columns[i]);
  for (const auto& row : s.rows)
    for (size_t i = 0; i < row.size() && i < width.size(); ++i) width[i] = std::max(width[i], Width(row[i]));
  auto line = [&](const std::vector<std::string>& cells) {
    std::string text = "  ";
    for (size_t i = 0; i < width.size(); ++i) {
      const std::string cell = i < cells.size() ? cells[i] : "";
      text += cell;
      if (i + 1 < width.size()) text += std::string(width[i] - Width(cell) + 2, ' ');
    }
    while (!text.empty() && text.back() == ' ') text.pop_back();
    out << text << "\n";
  };
  line(s.columns);
  if (s.rows.empty()) out << "  (none)\n";
  for (const auto& row : s.rows) line(row);
}

void PrintJson(std::ostream& out, const Report& r) {
  out << "{\"command\":";
  WriteJsonString(out, r.command);
  out << ",\"sections\":[";
  for (size_t k = 0; k < r.sections.size(); ++k) {
    const Section& s = r.sections[k];
    out << (k ? "," : "") << "\n {\"title\":";
    WriteJsonString(out, s.title);
    out << ",\"facts\":{";
    for (size_t i = 0; i < s.facts.size(); ++i) {
      out << (i ? "," : "");
      WriteJsonString(out, s.facts[i].first);
      out << ":";
      WriteJsonString(out, s.facts[i].second);
    }
    out << "},\"rows\":[";
    for (size_t i = 0; i < s.rows.size(); ++i) {
      out << (i ? "," : "") << "\n  {";
      for (size_t c = 0; c < s.columns.size(); ++c) {
        out << (c ? "," : "");
        WriteJsonString(out, s.columns[c]);
        out << ":";
        WriteJsonString(out, c < s.rows[i].size() ? s.rows[i][c] : "");
      }
      out << "}";
    }
    out << "]}";
  }
  out << "]}\n";
}

}  // namespace

void Report::Print(std::ostream& out, bool json) const {
  if (json) {
    PrintJson(out, *this);
    return;
  }
  for (size_t i = 0; i < sections.size(); ++i) {
    if (i) out << "\n";
    PrintText(out, sections[i]);
  }
}

Progress::Progress(const std::string& label, uint64_t total)
    : m_label(label), m_total(total), m_enabled(total > 10u * 1024 * 1024 && ::isatty(STDERR_FILENO)) {}

Progress::~Progress() {
  if (m_enabled && m_lastPercent >= 0) std::cerr << "\r\033[K" << std::flush;
}

void Progress::Update(uint64_t done) {
  if (!m_enabled || m_total == 0) return;
  const int percent = static_cast<int>(std::min<uint64_t>(100, done * 100 / m_total));
  if (percent == m_lastPercent) return;
  m_lastPercent = percent;
  const int bar = percent * 30 / 100;
  std::cerr << "\r" << m_label << " [" << std::string(static_cast<size_t>(bar), '#')
            << std::string(static_cast<size_t>(30 - bar), ' ') << "] " << percent << "%" << std::flush;
}

}  // namespace netloom_tool
