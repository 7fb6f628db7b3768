// arp diff, mac diff, cdp diff
#include <cinttypes>
#include <cstdio>

#include "commands.h"
#include "netloom/arptable.h"
#include "netloom/cdptable.h"
#include "netloom/commontablecompareresult.h"
#include "netloom/mactable.h"

namespace netloom_tool {

namespace {

bool Keep(int code, bool all) { return all || code != CommonTableCompareResult::m_iSame; }

void Count(Section& s, const std::vector<int>& codes) {
  size_t n[4] = {0, 0, 0, 0};
  for (int c : codes)
    n[c == CommonTableCompareResult::m_iSame ? 0 : c == CommonTableCompareResult::m_iDiff ? 1
                                                : c == CommonTableCompareResult::m_iOnlyInleft ? 2 : 3]++;
  s.facts.push_back({"same", std::to_string(n[0])});
  s.facts.push_back({"changed", std::to_string(n[1])});
  s.facts.push_back({"only in A", std::to_string(n[2])});
  s.facts.push_back({"only in B", std::to_string(n[3])});
}

// The compare is offered to derived tables; the tool is one.
struct MacCompare : MacTable {
  using MacTable::GetMacCompareResult;
};

std::string MacText(int64_t mac) {
  if (mac == 0) return "";
  char buf[32];
  const uint64_t v = static_cast<uint64_t>(mac);
  std::snprintf(buf, sizeof buf, "%04" PRIx64 ".%04" PRIx64 ".%04" PRIx64, (v >> 32) & 0xFFFF, (v >> 16) & 0xFFFF,
                v & 0xFFFF);
  return buf;
}

std::string VlanText(unsigned vlan) { return vlan >= 0x1000000 ? "-" : std::to_string(vlan); }

}  // namespace

void ArpDiff(const DiffOptions& o, Report& r) {
  RequireReadableFile(o.left);
  RequireReadableFile(o.right);
  ArpTable a, b;
  if (!a.LoadArpTable(o.left, false)) throw ToolError{"not an ARP table: " + o.left};
  if (!b.LoadArpTable(o.right, false)) throw ToolError{"not an ARP table: " + o.right};
  std::vector<ArpRecordPair> out;
  a.GetArpCompareResult(a, b, out);
  auto& s = r.Add("ARP differences", {"result", "A address", "A MAC", "A interface", "B address", "B MAC", "B interface"});
  std::vector<int> codes;
  for (const auto& p : out) {
    codes.push_back(p.Result);
    if (Keep(p.Result, o.all))
      s.rows.push_back({CompareCodeName(p.Result), p.Left.Ip, p.Left.Mac, p.Left.Interface, p.Right.Ip, p.Right.Mac,
                        p.Right.Interface});
  }
  s.facts = {{"A", o.left}, {"B", o.right}};
  Count(s, codes);
}

void MacDiff(const DiffOptions& o, Report& r) {
  RequireReadableFile(o.left);
  RequireReadableFile(o.right);
  MacTable a, b;
  if (!a.LoadMacTable(o.left)) throw ToolError{"not a MAC table: " + o.left};
  if (!b.LoadMacTable(o.right)) throw ToolError{"not a MAC table: " + o.right};
  std::vector<MacRecordPair> out;
  MacCompare::GetMacCompareResult(a, b, out, false);
  auto& s = r.Add("MAC differences", {"result", "A MAC", "A VLAN", "A port", "B MAC", "B VLAN", "B port"});
  std::vector<int> codes;
  for (const auto& p : out) {
    codes.push_back(p.Result);
    if (Keep(p.Result, o.all))
      s.rows.push_back({CompareCodeName(p.Result), MacText(p.Left.Mac), p.Left.Mac ? VlanText(p.Left.VlanId) : "",
                        p.Left.PortName, MacText(p.Right.Mac), p.Right.Mac ? VlanText(p.Right.VlanId) : "",
                        p.Right.PortName});
  }
  s.facts = {{"A", o.left}, {"B", o.right}};
  Count(s, codes);
}

void CdpDiff(const DiffOptions& o, Report& r) {
  RequireReadableFile(o.left);
  RequireReadableFile(o.right);
  CDPTable a, b;
  if (!a.LoadCdpTable(o.left, false)) throw ToolError{"not a CDP table: " + o.left};
  if (!b.LoadCdpTable(o.right, false)) throw ToolError{"not a CDP table: " + o.right};
  std::vector<CDPTableEntryPair> out;
  CDPTable::GetCdpCompareResult(a, b, out);
  auto& s = r.Add("CDP differences", {"result", "local interface", "A neighbour", "A port", "B neighbour", "B port"});
  std::vector<int> codes;
  for (const auto& p : out) {
    codes.push_back(p.Result);
    if (Keep(p.Result, o.all))
      s.rows.push_back({CompareCodeName(p.Result),
                        p.Left.LocalInterface.empty() ? p.Right.LocalInterface : p.Left.LocalInterface,
                        p.Left.DeviceName, p.Left.InterfaceName, p.Right.DeviceName, p.Right.InterfaceName});
  }
  s.facts = {{"A", o.left}, {"B", o.right}};
  Count(s, codes);
}

}  // namespace netloom_tool
