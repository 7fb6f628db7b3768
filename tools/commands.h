// The tool's commands. Each fills a Report or throws ToolError; main prints.
#pragma once

#include <string>
#include <vector>

#include "output.h"

namespace netloom_tool {

struct RouteParseOptions {
  std::string listing;
  std::string output;  // empty: the table goes to stdout as the route file form
  bool stream = false;
};
struct RouteLookupOptions {
  std::string table;
  std::vector<std::string> addresses;
  bool resolve = false;
};
struct DiffOptions {
  std::string left, right;
  bool all = false;  // also list the rows that are the same
};
struct HideOptions {
  int type = 0;
  std::vector<std::string> files;
  bool inPlace = false;
  std::string rules;  // a rule file to use instead of the site's
};
struct IfNameOptions {
  std::string driver;
  std::vector<std::string> names;
};

// Route commands print the route file themselves when no output is named,
// so they get the stream; the others only fill the report.
void RouteParse(const RouteParseOptions& o, Report& r, bool json);
void RouteLookup(const RouteLookupOptions& o, Report& r);
void RouteDiff(const DiffOptions& o, Report& r);
void ConfigHide(const HideOptions& o, Report& r);
void IfName(const IfNameOptions& o, Report& r);
void ArpDiff(const DiffOptions& o, Report& r);
void MacDiff(const DiffOptions& o, Report& r);
void CdpDiff(const DiffOptions& o, Report& r);

// Shared checks.
void RequireReadableFile(const std::string& path);
std::string CompareCodeName(int code);

}  // namespace netloom_tool
