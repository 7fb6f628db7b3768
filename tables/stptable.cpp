#include "netloom/stptable.h"

#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <fstream>

#include "netloom/commontablecompareresult.h"
#include "netloom/util/csvparser.h"
#include "netloom/util/pathname.h"
#include "netloom/util/stlhelper.h"

namespace {
constexpr size_t kMaxFileBytes = 10000000;
constexpr size_t kNameBuffer = 256;
}  // namespace

void STPTable::Clear() {
  m_entries.clear();
  m_text.clear();
  m_deviceName.clear();
  m_time = 0;
}

bool STPTable::LoadStpData(const char* text) {
  m_entries.clear();
  m_text.clear();
  if (!text || !*text) return false;
  if (std::strncmp(text, "version:100", 11) != 0) return false;
  CSVParser csv("");
  csv.Load(text);
  if (csv.size() < 2 || csv.GetRow(0).size() < 2) return false;
  // The name field is read through a fixed buffer: longer names are cut.
  std::string field = csv.GetRow(0).Field(1).substr(0, kNameBuffer - 1);
  const size_t name = field.find("name:");
  if (name != std::string::npos) {
    std::string device = field.substr(name + 5);
    device = device.substr(0, device.find('\r'));
    m_deviceName = device;
  }
  const CSVLineParser& head = csv.GetRow(1);
  if (head.size() < 3 || head.Field(0) != "ID" || head.Field(1) != "Blockedport" || head.Field(2) != "VLAN")
    return false;
  for (size_t row = 2; row < csv.size(); ++row) {
    const CSVLineParser& line = csv.GetRow(static_cast<int>(row));
    if (line.size() < 3) continue;
    m_entries.push_back(STPTableEntry{line.Field(1), line.Field(2), true});
  }
  m_text = text;
  return true;
}

bool STPTable::LoadStpTable(const std::string& path, bool checkOnly) {
  if (checkOnly) return Pathname(path).exists();
  if (::access(path.c_str(), F_OK) != 0) return false;
  const std::string content = FileHelper::GetFileContentByPath(path);
  return LoadStpData(content.c_str());
}

bool STPTable::ParseBinfile(const char* path) {
  m_entries.clear();
  if (!path || !*path) return false;
  std::ifstream in(StlHelper::AToW(path), std::ios::binary);
  if (!in) return false;
  in.seekg(0, std::ios::end);
  const std::streamoff size = in.tellg();
  if (size < 0 || static_cast<size_t>(size) > kMaxFileBytes) return false;
  in.seekg(0, std::ios::beg);
  std::string content(static_cast<size_t>(size), '\0');
  if (size > 0 && !in.read(&content[0], size)) return false;
  return LoadStpData(content.c_str());
}

bool STPTable::ImportStpTable(std::istream& in, const std::string&, int) {
  Clear();
  if (in.fail()) return false;
  const std::string content = StlHelper::fromStram(in);
  if (content.empty()) return false;
  return LoadStpData(content.c_str());
}

bool STPTable::ImportStpTable(const std::string& path, const std::string& unused, int unused2) {
  Clear();
  if (!Pathname(path).exists()) return false;
  std::ifstream in(StlHelper::AToW(path), std::ios::binary);
  return ImportStpTable(in, unused, unused2);
}

bool STPTable::SaveToFile(const char* path) const {
  if (!path) return false;
  std::ofstream out(StlHelper::AToW(path), std::ios::binary | std::ios::trunc);
  if (!out) return false;
  out.write(m_text.data(), static_cast<std::streamsize>(m_text.size()));
  return true;
}

int STPTable::GetBlockedVlans(const std::string& port, const std::set<int>& vlans, std::set<int>& out) const {
  for (const auto& e : m_entries) {
    if (e.BlockedPort != port) continue;
    std::string vlan = StlHelper::toLower(e.Vlan.substr(0, e.Vlan.find('\0')));
    // The word may stand anywhere; the first four characters go all the same.
    if (vlan.find("vlan") != std::string::npos) vlan = vlan.size() > 4 ? vlan.substr(4) : std::string();
    const int number = std::atoi(vlan.c_str());
    if (vlans.count(number)) out.insert(number);
  }
  return static_cast<int>(out.size());
}

void STPTable::CombineBlockPorts(std::map<std::string, std::string>& out) const {
  for (const auto& e : m_entries) {
    if (!e.Blocked) continue;
    auto it = out.find(e.Vlan);
    if (it != out.end()) {
      it->second += "," + e.BlockedPort;
    } else {
      out.emplace(e.Vlan, e.BlockedPort);
    }
  }
}

void STPTable::GetStpCompareResult(STPTable& left, STPTable& right, std::vector<STPTablePair>& out) const {
  std::map<std::string, std::string> lmap, rmap;
  left.CombineBlockPorts(lmap);
  right.CombineBlockPorts(rmap);
  for (const auto& l : lmap) {
    STPTablePair pair;
    pair.Left.BlockedPort = l.second;
    pair.Left.Vlan = l.first;
    auto r = rmap.find(l.first);
    if (r == rmap.end()) {
      pair.Code = CommonTableCompareResult::m_iOnlyInleft;
    } else {
      pair.Right.BlockedPort = r->second;
      pair.Right.Vlan = r->first;
      pair.Code = l.second == r->second ? CommonTableCompareResult::m_iSame : CommonTableCompareResult::m_iDiff;
      rmap.erase(r);
    }
    out.push_back(pair);
  }
  for (const auto& r : rmap) {
    STPTablePair pair;
    pair.Right.BlockedPort = r.second;
    pair.Right.Vlan = r.first;
    pair.Code = CommonTableCompareResult::m_iOnlyInRight;
    out.push_back(pair);
  }
}
