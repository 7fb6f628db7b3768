// route parse | lookup | diff
#include <sys/stat.h>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>

#include "commands.h"
#include "netloom/ipaddress.h"
#include "netloom/routingtable.h"
#include "netloom/routingtablecmp.h"
#include "netloom/util/pathname.h"

namespace netloom_tool {

extern bool g_json;

namespace {

std::string Prefix(const RoutingTableEntry& e) { return IpLocation(e.DestIp, e.DestMask).textFormByMaskLen(); }

std::string Number(unsigned value, unsigned unknown) {
  return value == unknown ? "-" : std::to_string(value);
}

std::vector<std::string> RouteCells(const RoutingTableEntry& e) {
  std::string code = RoutingTable::GetAlgorithmNameByType(e.Alg, e.CandidateDefault);
  while (!code.empty() && code.back() == ' ') code.pop_back();
  return {Prefix(e), code, e.NextHop.isNull() ? "-" : e.NextHop.textForm(), e.OutIf.empty() ? "-" : e.OutIf,
          Number(e.Distance, 65535), Number(e.Metric, 0xFFFFFFFFu),
          e.TimeStamp == 0xFFFFFFFFu ? "-" : RoutingTable::FormatSecondToTime(e.TimeStamp)};
}

const std::vector<std::string> kRouteColumns = {"prefix", "code", "next hop", "interface", "distance", "metric", "age"};

void LoadTable(RoutingTable& table, const std::string& path) {
  RequireReadableFile(path);
  if (!table.ReadRTData(path.c_str())) throw ToolError{"not a route table file: " + path};
}

std::string ReadWithProgress(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw ToolError{"cannot read: " + path};
  in.seekg(0, std::ios::end);
  const auto size = static_cast<uint64_t>(std::max<std::streamoff>(0, in.tellg()));
  in.seekg(0);
  Progress progress("reading " + Pathname(path).fileName(), size);
  std::string text;
  text.reserve(size);
  char buf[1 << 16];
  while (in.read(buf, sizeof buf) || in.gcount() > 0) {
    text.append(buf, static_cast<size_t>(in.gcount()));
    progress.Update(text.size());
  }
  return text;
}

}  // namespace

void RouteParse(const RouteParseOptions& o, Report& r, bool json) {
  RequireReadableFile(o.listing);
  RoutingTable table(Pathname(o.listing).fileHead().c_str());
  if (o.stream) {
    if (o.output.empty()) throw ToolError{"--stream converts into a file: name it with -o"};
    // The in-place mode turns the named file into a route file; work on a copy
    // so the listing itself stays.
    {
      std::ifstream in(o.listing, std::ios::binary);
      std::ofstream out(o.output, std::ios::binary | std::ios::trunc);
      if (!out) throw ToolError{"cannot write: " + o.output};
      out << in.rdbuf();
      if (!out) throw ToolError{"cannot write: " + o.output};
    }
    if (!table.ParseCmdString(("twfile://" + o.output).c_str(), nullptr, false)) {
      std::remove(o.output.c_str());
      throw ToolError{"no route listing found in " + o.listing};
    }
    RoutingTable check;
    const bool readable = check.ReadRTData(o.output.c_str());
    auto& s = r.Add("route table written");
    s.facts = {{"listing", o.listing}, {"table", o.output},
               {"routes", readable ? std::to_string(check.GetSize()) : "?"}};
    return;
  }

  const std::string text = ReadWithProgress(o.listing);
  if (!table.ParseCmdString(text.c_str(), nullptr, true)) throw ToolError{"no route listing found in " + o.listing};
  if (!o.output.empty()) {
    if (!table.SaveRTData(o.output.c_str())) throw ToolError{"cannot write: " + o.output};
    auto& s = r.Add("route table written", {"code", "routes"});
    s.facts = {{"listing", o.listing}, {"table", o.output}, {"routes", std::to_string(table.GetSize())}};
    std::map<std::string, int> byCode;
    for (const auto& kv : table.getEntryIndexMap()) {
      std::string code = RoutingTable::GetAlgorithmNameByType(kv.second->Alg);
      while (!code.empty() && code.back() == ' ') code.pop_back();
      ++byCode[code];
    }
    for (const auto& kv : byCode) s.rows.push_back({kv.first, std::to_string(kv.second)});
    if (table.GetLastResoltGateway())
      s.facts.push_back({"gateway of last resort", IpAddress(table.GetLastResoltGateway()).textForm()});
    return;
  }
  if (json) {
    auto& s = r.Add("routes", kRouteColumns);
    for (const auto& kv : table.getEntryIndexMap()) s.rows.push_back(RouteCells(*kv.second));
    return;
  }
  if (!table.SaveRTData(std::cout)) throw ToolError{"cannot write the route table"};
}

void RouteLookup(const RouteLookupOptions& o, Report& r) {
  RoutingTable table;
  LoadTable(table, o.table);
  std::vector<std::string> columns = {"address"};
  columns.insert(columns.end(), kRouteColumns.begin(), kRouteColumns.end());
  auto& s = r.Add(o.resolve ? "routes, next hops followed to an interface" : "matched routes", columns);
  s.facts = {{"table", o.table}, {"routes", std::to_string(table.GetSize())}};
  for (const auto& text : o.addresses) {
    if (!IpAddress::isValidIpAddress(text)) throw ToolError{"not an IPv4 address: " + text};
    IpAddress address(text);
    std::vector<RoutingTableEntry*> found;
    if (o.resolve) {
      if (RoutingTableEntry* e = table.IpRTLookUpFirst(address, true)) found.push_back(e);
    } else {
      table.GetMatchedRoutingEntry(address, found);
    }
    if (found.empty()) s.rows.push_back({text, "no route"});
    for (const auto* e : found) {
      std::vector<std::string> row = {text};
      auto cells = RouteCells(*e);
      row.insert(row.end(), cells.begin(), cells.end());
      s.rows.push_back(row);
    }
  }
}

namespace {
std::string RouteCodeText(unsigned code) {
  if (code == 0) return "same";
  if (code & RoutingTableCmp::kRemoved) return "only-in-A";
  if (code & RoutingTableCmp::kNew) return "only-in-B";
  static const std::pair<unsigned, const char*> kBits[] = {
      {RoutingTableCmp::kDestIpDiff, "prefix"},     {RoutingTableCmp::kDestMaskDiff, "mask"},
      {RoutingTableCmp::kNextHopDiff, "next-hop"},  {RoutingTableCmp::kOutIfDiff, "interface"},
      {RoutingTableCmp::kAlgDiff, "protocol"},      {RoutingTableCmp::kDistanceDiff, "distance"},
      {RoutingTableCmp::kMetricDiff, "metric"},     {RoutingTableCmp::kGroupDiff, "paths"}};
  std::string text;
  for (const auto& b : kBits)
    if (code & b.first) text += (text.empty() ? "" : "+") + std::string(b.second);
  return text.empty() ? "changed" : "changed:" + text;
}
}  // namespace

void RouteDiff(const DiffOptions& o, Report& r) {
  RoutingTable a, b;
  LoadTable(a, o.left);
  LoadTable(b, o.right);
  RTCmpElement left{&a, nullptr}, right{&b, nullptr};
  RoutingTableCmp cmp(&left, &right);
  if (!cmp.CompareRT(o.all, nullptr)) throw ToolError{"the tables could not be compared"};
  auto& s = r.Add("route differences", {"result", "prefix", "A next hop", "A interface", "A code", "B next hop",
                                         "B interface", "B code"});
  size_t changed = 0, onlyA = 0, onlyB = 0;
  for (const auto& e : cmp.GetCmpEntryList()) {
    const RoutingTableEntry* x = e.SrcIndex ? a.GetRTEntryByIndex(e.SrcIndex) : nullptr;
    const RoutingTableEntry* y = e.DstIndex ? b.GetRTEntryByIndex(e.DstIndex) : nullptr;
    if (!x && !y) continue;
    if (e.Code & RoutingTableCmp::kRemoved) ++onlyA;
    else if (e.Code & RoutingTableCmp::kNew) ++onlyB;
    else if (e.Code) ++changed;
    auto side = [](const RoutingTableEntry* z, std::vector<std::string>& row) {
      if (!z) {
        row.insert(row.end(), {"", "", ""});
        return;
      }
      auto cells = RouteCells(*z);
      row.insert(row.end(), {cells[2], cells[3], cells[1]});
    };
    std::vector<std::string> row = {RouteCodeText(e.Code), Prefix(x ? *x : *y)};
    side(x, row);
    side(y, row);
    s.rows.push_back(row);
  }
  s.facts = {{"A", o.left + " (" + std::to_string(a.GetSize()) + " routes)"},
             {"B", o.right + " (" + std::to_string(b.GetSize()) + " routes)"},
             {"unchanged", std::to_string(cmp.GetEqualCount())},
             {"changed", std::to_string(changed)},
             {"only in A", std::to_string(onlyA)},
             {"only in B", std::to_string(onlyB)}};
}

}  // namespace netloom_tool
