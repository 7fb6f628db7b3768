// How the tool shows results: aligned columns for a terminal, or JSON with
// --json. Commands build a Report and hand it over; nothing else prints to stdout.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

namespace netloom_tool {

// One block of output: a title, column names and rows of cells.
struct Section {
  std::string title;
  std::vector<std::string> columns;
  std::vector<std::vector<std::string>> rows;
  std::vector<std::pair<std::string, std::string>> facts;  // key: value lines above the rows
};

struct Report {
  std::string command;
  std::vector<Section> sections;

  Section& Add(const std::string& title, std::vector<std::string> columns = {});
  void Print(std::ostream& out, bool json) const;
};

// Writes text as a JSON string literal, escaping what JSON requires.
void WriteJsonString(std::ostream& out, const std::string& text);

// Shows progress on stderr while work runs over large inputs: only when stderr
// is a terminal and the input is over 10 MB; otherwise every call does nothing.
class Progress {
 public:
  Progress(const std::string& label, uint64_t total);
  ~Progress();
  void Update(uint64_t done);

 private:
  std::string m_label;
  uint64_t m_total;
  bool m_enabled;
  int m_lastPercent = -1;
};

// The one-line error a command gives before exiting non-zero.
struct ToolError {
  std::string message;
  int code = 1;
};

}  // namespace netloom_tool
