// MAC table. MAC addresses are numbers here, so the text of a file is turned
// into a number once at import, and the dotted text is rebuilt on the way out.
// The compare addresses rows in port-name order, as row numbers run.
#include "netloom/mactable.h"

#include <fstream>
#include <istream>
#include <ostream>
#include <tuple>
#include <unordered_set>

#include "netloom/commontablecompareresult.h"
#include "netloom/util/csvparser.h"
#include "netloom/util/stlhelper.h"
#include "netloom/util/textcheck.h"
#include "netloom/util/twfilesystem.h"
#include "tables/tablefile.h"

namespace netloom::detail::table {

constexpr unsigned int kNoVlan = 0x1000000;

// Twelve (or more, for out-of-range numbers) upper-case hex digits, a "." after each four.
std::string MacText(int64_t mac, bool dotted) {
  static const char kHex[] = "0123456789ABCDEF";
  uint64_t v = static_cast<uint64_t>(mac);
  std::string digits;
  do {
    digits.insert(digits.begin(), kHex[v & 0xF]);
    v >>= 4;
  } while (v);
  if (digits.size() < 12) digits.insert(0, 12 - digits.size(), '0');
  if (!dotted) return digits;
  std::string out;
  for (size_t i = 0; i < digits.size(); ++i) {
    if (i && i % 4 == 0) out += '.';
    out += digits[i];
  }
  return out;
}

}  // namespace netloom::detail::table

namespace {

using namespace netloom::detail::table;

const char* const kColumns[] = {"VLan ID", "Mac Address", "Port Name", "Vendor", "IP Address", "DNS Name", "VLan Name"};
constexpr size_t kRequiredColumns = 3;
constexpr size_t kVlanNameColumn = 6;
const char* const kFilterMacFile = "fix_FilterMac.def";
const char* const kFilterPortFile = "fix_FilterPort.def";



unsigned int ParseVlan(const std::string& text) {
  return AllDigits(text) ? static_cast<unsigned int>(Atoi(text)) : kNoVlan;
}

bool MatchesAny(const std::vector<std::string>& patterns, const std::string& text) {
  for (const std::string& p : patterns)
    if (StlHelper::MatchWithQuestionMark(p, text, true)) return true;
  return false;
}

// One pattern a line; blank lines and surrounding blanks don't count.
void ReadPatterns(const std::string& path, std::vector<std::string>& out) {
  std::ifstream in(StlHelper::AToW(path), std::ios::in | std::ios::binary);
  if (!in.is_open()) return;
  std::string line;
  while (std::getline(in, line)) {
    StlHelper::trim(line, " \r\t");
    if (!line.empty()) out.push_back(line);
  }
}

std::string SameKey(const MacRecord& r) {
  std::string key = std::to_string(r.Mac) + '/' + std::to_string(r.VlanId) + '/';
  key += AsciiLower(r.PortName);
  return key;
}

}  // namespace

std::vector<std::string> MacTable::mFilterMac;
std::vector<std::string> MacTable::mFilterPort;

MacTable::MacTable() = default;
MacTable::MacTable(const MacTable& other) = default;
MacTable::MacTable(MacTable&& other) noexcept = default;
MacTable& MacTable::operator=(const MacTable& other) = default;
MacTable& MacTable::operator=(MacTable&& other) noexcept = default;
MacTable::~MacTable() = default;

unsigned MacTable::size() const { return static_cast<unsigned>(m_portMap.size()); }

unsigned MacTable::GetRecordCount() const {
  size_t n = 0;
  for (const auto& port : m_portMap) n += port.second.size();
  return static_cast<unsigned>(n);
}

MacRecord* MacTable::operator[](unsigned index) {
  size_t left = index;
  for (auto& port : m_portMap) {
    if (left < port.second.size()) return &port.second[left];
    left -= port.second.size();
  }
  return nullptr;
}

std::vector<const MacRecord*> MacTable::RowsInOrder() const {
  std::vector<const MacRecord*> rows;
  for (const auto& port : m_portMap)
    for (const MacRecord& r : port.second) rows.push_back(&r);
  return rows;
}

void MacTable::Clear() {
  m_portMap.clear();
  m_macMap.clear();
}

void MacTable::InsertMacRecord(std::string& port, MacRecord& record) {
  // Either argument may live inside this table; copy before the maps grow.
  const std::string name = port;
  const MacRecord row = record;
  m_portMap[name].push_back(row);
  m_macMap[row.Mac].emplace(name, row.VlanId);
}

bool MacTable::GetPortByMac(int64_t& mac, PortVlanSet& out) const {
  const auto it = m_macMap.find(mac);
  if (it == m_macMap.end()) return false;
  out.insert(it->second.begin(), it->second.end());
  return true;
}

MacTable::PortMacMap& MacTable::GetPortMacMap() { return m_portMap; }
MacTable::MacPortMap& MacTable::GetMacPortMap() { return m_macMap; }
const MacTable::MacPortMap& MacTable::GetMacPortMap() const { return m_macMap; }

std::string MacTable::GetHostname() const { return m_hostName; }
void MacTable::SetHostname(const std::string& hostname) { m_hostName = hostname; }
const std::string& MacTable::GetFileName() const { return m_fileName; }
void MacTable::SetFileName(const std::string& fileName) { m_fileName = fileName; }
int64_t MacTable::GetTime() const { return m_time; }
void MacTable::SetTime(int64_t time) { m_time = time; }

std::mutex& MacTable::FilterMutex() {
  static std::mutex m;
  return m;
}

void MacTable::LoadFilter() {
  std::lock_guard<std::mutex> lock(FilterMutex());
  const std::string folder = TWFileSystem::GetSystemConfFolder();
  if (mFilterMac.empty()) ReadPatterns(folder + kFilterMacFile, mFilterMac);
  if (mFilterPort.empty()) ReadPatterns(folder + kFilterPortFile, mFilterPort);
}

bool MacTable::ImportFromCSV(std::istream& in) {
  in.clear();
  in.seekg(0);
  CSVLineParser row("");
  if (!row.ReadFromStream(in)) return false;
  TakeHostname(row, m_hostName);
  if (!row.ReadFromStream(in) || !HeaderMatches(row, kColumns, kRequiredColumns)) return false;
  const bool hasVlanName = row.size() > kVlanNameColumn && row.Field(kVlanNameColumn) == kColumns[kVlanNameColumn];

  LoadFilter();
  std::set<std::tuple<unsigned int, int64_t, std::string, std::string, std::string>> seen;
  while (row.ReadFromStream(in)) {
    if (row.size() < 3) continue;
    MacRecord r;
    r.VlanId = ParseVlan(row.Field(0));
    const std::string& macText = row.Field(1);
    if (!IsValidMacAddress(macText, false) || MatchesAny(mFilterMac, macText)) continue;
    r.Mac = Str2LongLong(macText);
    std::string port = row.Field(2);
    StlHelper::trim(port, " ");
    if (MatchesAny(mFilterPort, port)) continue;
    r.PortName = port;
    if (row.size() > 4) r.Ip = row.Field(4);
    if (row.size() > 5) r.DnsName = row.Field(5);
    if (hasVlanName && row.size() > kVlanNameColumn) r.VlanName = row.Field(kVlanNameColumn);
    if (!seen.emplace(r.VlanId, r.Mac, r.PortName, r.Ip, r.DnsName).second) continue;
    InsertMacRecord(port, r);
  }
  return true;
}

bool MacTable::LoadMacTable(std::istream& in) {
  Clear();
  if (ImportFromCSV(in)) return true;
  in.clear();
  in.seekg(0);
  std::string vlan, mac, port;
  while (ReadTextLine(in, vlan) && ReadTextLine(in, mac) && ReadTextLine(in, port)) {
    MacRecord r;
    r.VlanId = ParseVlan(vlan);
    r.Mac = Str2LongLong(mac);
    r.PortName = port;
    InsertMacRecord(port, r);
  }
  return true;
}

bool MacTable::LoadMacTable(const std::string& path) {
  if (!CanAccess(path)) return false;
  std::ifstream in(StlHelper::AToW(path), std::ios::in | std::ios::binary);
  if (!in.is_open()) return false;
  LoadMacTable(in);
  in.close();
  m_fileName = path;
  m_time = FileTimeOrNow(path);
  return true;
}

bool MacTable::ImportMacTable(std::istream& in, const std::string& hostname) {
  Clear();
  if (in.fail()) return false;
  const bool ok = ImportFromCSV(in);
  if (ok) {
    m_time = Now();
    m_hostName = hostname;
  }
  return ok;
}

bool MacTable::ImportMacTable(const std::string& path, const std::string& hostname, int /*unused*/) {
  Clear();
  if (!CanAccess(path)) return false;
  std::ifstream in(StlHelper::AToW(path), std::ios::in | std::ios::binary);
  if (!in.is_open()) return false;
  return ImportMacTable(in, hostname);
}

bool MacTable::ExportMacTable(std::ostream& out) {
  if (out.fail()) return false;
  CSVLineParser row("");
  WriteTableHead(out, row, m_hostName, kColumns, 7);
  for (const auto& port : m_portMap) {
    for (const MacRecord& r : port.second) {
      row.SetAt(0, r.VlanId == kNoVlan ? std::string() : std::to_string(r.VlanId));
      row.SetAt(1, MacText(r.Mac, true));
      row.SetAt(2, r.PortName);
      row.SetAt(3, r.Vendor);
      row.SetAt(4, r.Ip);
      row.SetAt(5, r.DnsName);
      row.SetAt(6, r.VlanName);
      row.WriteToStream(out);
    }
  }
  return true;
}

bool MacTable::ExportMacTable(const std::string& path) {
  std::ofstream out(StlHelper::AToW(path), std::ios::out | std::ios::trunc | std::ios::binary);
  if (!ExportMacTable(out)) return false;
  out.close();
  return !out.fail();
}

bool MacTable::SaveMacTable(const std::string& path) { return ExportMacTable(path); }

namespace {

// Collects first, inserts after: `out` may be the table being walked.
template <typename Match>
void FilterInto(const MacTable::PortMacMap& ports, MacTable& out, Match match) {
  std::vector<std::pair<std::string, MacRecord>> hits;
  for (const auto& port : ports)
    for (const MacRecord& r : port.second)
      if (match(r)) hits.emplace_back(port.first, r);
  for (auto& hit : hits) out.InsertMacRecord(hit.first, hit.second);
}

}  // namespace

void MacTable::FilterMacTableWithMac(MacTable& out, const std::string& filter) const {
  const bool dotted = filter.find('.') != std::string::npos;
  FilterInto(m_portMap, out, [&](const MacRecord& r) {
    return StlHelper::findIgnoreCase(MacText(r.Mac, dotted), filter) != std::string::npos;
  });
}

void MacTable::FilterMacTableWithPort(MacTable& out, const std::string& filter) const {
  FilterInto(m_portMap, out,
             [&](const MacRecord& r) { return StlHelper::findIgnoreCase(r.PortName, filter) != std::string::npos; });
}

void MacTable::FilterMacTableWithVlan(MacTable& out, const std::string& filter) const {
  const unsigned int vlan = static_cast<unsigned int>(Atoi(filter));
  FilterInto(m_portMap, out, [&](const MacRecord& r) {
    if (filter.empty()) return true;
    if (!r.VlanName.empty()) return StlHelper::findIgnoreCase(r.VlanName, filter) != std::string::npos;
    return r.VlanId == vlan;
  });
}

bool MacTable::GetMacCompareResult(MacTable& left, MacTable& right, std::vector<MacRecordPair>& out,
                                   bool sameOnly) {
  const std::vector<const MacRecord*> L = left.RowsInOrder();
  const std::vector<const MacRecord*> R = right.RowsInOrder();
  if (sameOnly && L.size() != R.size()) return false;
  std::vector<bool> leftDone(L.size()), rightDone(R.size());

  // Pass 1: same address, port and VLAN; right rows of a key pair off in order.
  {
    RowQueues<std::string> waiting(R.size());
    for (size_t j = 0; j < R.size(); ++j) waiting.Add(SameKey(*R[j]), j);
    for (size_t i = 0; i < L.size(); ++i) {
      const size_t j = waiting.Take(SameKey(*L[i]));
      if (j == waiting.npos) continue;
      leftDone[i] = rightDone[j] = true;
      out.push_back({*L[i], *R[j], CommonTableCompareResult::m_iSame});
    }
  }

  // Pass 2: same address only; the right row is used up here.
  {
    RowQueues<int64_t> waiting(R.size());
    for (size_t j = 0; j < R.size(); ++j)
      if (!rightDone[j]) waiting.Add(R[j]->Mac, j);
    for (size_t i = 0; i < L.size(); ++i) {
      if (leftDone[i]) continue;
      MacRecordPair pair{*L[i], MacRecord(), CommonTableCompareResult::m_iOnlyInleft};
      const size_t j = waiting.Take(L[i]->Mac);
      if (j != waiting.npos) {
        rightDone[j] = true;
        const bool same = EqualNoCase(L[i]->PortName, R[j]->PortName) && L[i]->VlanId == R[j]->VlanId;
        pair.Right = *R[j];
        pair.Result = same ? CommonTableCompareResult::m_iSame : CommonTableCompareResult::m_iDiff;
      }
      if (sameOnly && pair.Result != CommonTableCompareResult::m_iSame) return false;
      out.push_back(std::move(pair));
    }
  }

  // Pass 3: right rows whose address no pair in `out` holds on its left.
  std::unordered_set<int64_t> leftMacs;
  for (const MacRecordPair& p : out) leftMacs.insert(p.Left.Mac);
  for (size_t j = 0; j < R.size(); ++j) {
    if (rightDone[j] || leftMacs.count(R[j]->Mac)) continue;
    if (sameOnly) return false;
    out.push_back({MacRecord(), *R[j], CommonTableCompareResult::m_iOnlyInRight});
    leftMacs.insert(MacRecord().Mac);
  }
  return true;
}

bool MacTable::IsSameTable(MacTable& left, MacTable& right) {
  std::vector<MacRecordPair> scratch;
  return GetMacCompareResult(left, right, scratch, true);
}
