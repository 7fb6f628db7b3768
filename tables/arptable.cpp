// ARP table: the pattern the other device tables follow. The CSV reader is
// strict about the header and silent about bad rows; the text-form reader is
// the fallback for files written before the CSV form existed, and since nothing
// marks the two apart, anything that is not our CSV is read as text.
#include "netloom/arptable.h"

#include <sys/types.h>

#include <cstdio>
#include <fstream>
#include <istream>
#include <ostream>
#include <unordered_map>
#include <unordered_set>

#include "netloom/commontablecompareresult.h"
#include "netloom/util/csvparser.h"
#include "netloom/util/pathname.h"
#include "netloom/util/stlhelper.h"
#include "netloom/util/textcheck.h"
#include "tables/tablefile.h"

namespace {

using namespace netloom::detail::table;

// Column names of row 2; the reader insists on the first three only.
const char* const kColumns[] = {"Interface", "IP Address", "MAC Address", "Vendor"};
constexpr size_t kRequiredColumns = 3;



// A row survives the import when each of these holds, in this order.
bool RowIsLawful(ArpRecord& r) {
  if (CountHexDigit(r.Mac) != 12) return false;
  r.Mac = NormalizeToMacAddress(r.Mac, 4);
  if (!IsValidIp(r.Ip)) return false;
  if (!IsValidMacAddress(r.Mac, true)) return false;
  return r.Interface.empty() || IsValidInterfaceName(r.Interface);
}

// Key of the compare's first pass: the three compared fields, case folded.
std::string SameKey(const ArpRecord& r) {
  std::string key;
  key.reserve(r.Ip.size() + r.Mac.size() + r.Interface.size() + 12);
  AppendKeyPart(key, AsciiLower(r.Ip));
  AppendKeyPart(key, AsciiLower(r.Mac));
  AppendKeyPart(key, AsciiLower(r.Interface));
  return key;
}

}  // namespace

ArpTable::ArpTable() = default;
ArpTable::ArpTable(const ArpTable& other) = default;
ArpTable& ArpTable::operator=(const ArpTable& other) = default;
ArpTable::~ArpTable() = default;

ArpRecord& ArpTable::operator[](unsigned index) { return m_records[index]; }
std::vector<ArpRecord>& ArpTable::GetRecords() { return m_records; }
unsigned ArpTable::GetCount() const { return static_cast<unsigned>(m_records.size()); }

std::string ArpTable::GetHostname() const { return m_hostName; }
void ArpTable::SetHostname(const std::string& hostname) { m_hostName = hostname; }
const std::string& ArpTable::GetFileName() const { return m_fileName; }
void ArpTable::SetFileName(const std::string& fileName) { m_fileName = fileName; }
int64_t ArpTable::GetTime() const { return m_time; }
void ArpTable::SetTime(int64_t time) { m_time = time; }

void ArpTable::Clear() {
  m_records.clear();
  ClearIndexOnIp();
}

void ArpTable::InsertArpRecord(ArpRecord& record) { AppendRow(record); }

void ArpTable::AppendRow(const ArpRecord& record) {
  m_records.push_back(record);
  // `record` may live in this very vector, so read the copy.
  m_index.emplace(m_records.back().Ip, static_cast<int>(m_records.size() - 1));
}

void ArpTable::RemoveArpRecord(std::string& mac) {
  const std::string key = mac;  // `mac` may name a row's own field
  std::vector<ArpRecord> kept;
  kept.reserve(m_records.size());
  for (ArpRecord& r : m_records)
    if (r.Mac != key) kept.push_back(std::move(r));
  m_records.swap(kept);
  if (m_indexValid) CreateIndexOnIp();
}

void ArpTable::RemoveArpRecord(unsigned index) {
  if (index < m_records.size()) {
    m_records.erase(m_records.begin() + index);
    return;  // the index keeps its old positions on purpose
  }
  if (m_indexValid) CreateIndexOnIp();
}

bool ArpTable::CreateIndexOnIp() {
  m_indexValid = false;
  m_index.clear();
  for (size_t i = 0; i < m_records.size(); ++i)
    if (!m_records[i].Ip.empty()) m_index.emplace(m_records[i].Ip, static_cast<int>(i));
  m_indexValid = true;
  return true;
}

bool ArpTable::ClearIndexOnIp() {
  m_index.clear();
  m_indexValid = false;
  return true;
}

void ArpTable::SetIndexValid() { m_indexValid = true; }

void ArpTable::RebuildIndexIfOutOfStep() {
  if (m_records.size() != m_index.size()) CreateIndexOnIp();
}

std::string ArpTable::GenLogOfUnmormalIndex() const {
  if (!m_indexValid || m_index.size() == m_records.size()) return std::string();
  char buf[200];
  std::snprintf(buf, sizeof buf, " Rcd %zd, index %zd, ", static_cast<ssize_t>(m_records.size()),
                static_cast<ssize_t>(m_index.size()));
  return buf;
}

ArpRecord ArpTable::FindMacfromArpTable(std::string ip) const {
  if (m_records.empty()) return ArpRecord();
  if (m_indexValid) {
    const auto it = m_index.find(ip);
    if (it == m_index.end() || it->second < 0 || static_cast<size_t>(it->second) >= m_records.size())
      return ArpRecord();
    return m_records[static_cast<size_t>(it->second)];
  }
  for (const ArpRecord& r : m_records)
    if (r.Ip == ip) return r;
  return ArpRecord();
}

void ArpTable::FilterArpTableWithIp(ArpTable& out, const std::string& filter) const {
  const size_t n = m_records.size();  // `out` may be this table
  for (size_t i = 0; i < n; ++i)
    if (m_records[i].Ip.find(filter) != std::string::npos) out.AppendRow(m_records[i]);
}

void ArpTable::FilterArpTableWithMac(ArpTable& out, const std::string& filter) const {
  const std::string upper = AsciiUpper(filter);
  const size_t n = m_records.size();
  for (size_t i = 0; i < n; ++i)
    if (AsciiUpper(m_records[i].Mac).find(upper) != std::string::npos)
      out.AppendRow(m_records[i]);
}

void ArpTable::FilterArpTableWithPort(ArpTable& out, const std::string& filter) const {
  const std::string upper = AsciiUpper(filter);
  const size_t n = m_records.size();
  for (size_t i = 0; i < n; ++i)
    if (AsciiUpper(m_records[i].Interface).find(upper) != std::string::npos)
      out.AppendRow(m_records[i]);
}

bool ArpTable::ImportFromCSV(std::istream& in) {
  in.clear();
  in.seekg(0);
  CSVLineParser row("");
  if (!row.ReadFromStream(in)) return false;
  TakeHostname(row, m_hostName);
  if (!row.ReadFromStream(in) || !HeaderMatches(row, kColumns, kRequiredColumns)) return false;

  // Exact duplicates, byte for byte after the MAC address is normalised.
  std::unordered_set<std::string> seen;
  while (row.ReadFromStream(in)) {
    if (row.size() < 3) continue;
    ArpRecord r;
    r.Interface = row.Field(0);
    r.Ip = row.Field(1);
    r.Mac = row.Field(2);
    if (!RowIsLawful(r)) continue;
    std::string key;
    AppendKeyPart(key, r.Mac);
    AppendKeyPart(key, r.Ip);
    AppendKeyPart(key, r.Interface);
    if (!seen.insert(std::move(key)).second) continue;
    InsertArpRecord(r);
  }
  RebuildIndexIfOutOfStep();
  return true;
}

bool ArpTable::LoadArpTable(std::istream& in) {
  Clear();
  if (ImportFromCSV(in)) return true;
  in.clear();
  in.seekg(0);
  std::string number;
  ArpRecord r;
  while (ReadTextLine(in, number) && ReadTextLine(in, r.Interface) && ReadTextLine(in, r.Ip) &&
         ReadTextLine(in, r.Mac)) {
    r.Number = Atoi(number);
    InsertArpRecord(r);
  }
  RebuildIndexIfOutOfStep();
  return true;
}

bool ArpTable::LoadArpTable(const std::string& path, bool checkOnly) {
  ClearIndexOnIp();
  if (checkOnly) return Pathname(path).exists();
  if (!CanAccess(path)) return false;
  std::ifstream in(StlHelper::AToW(path), std::ios::in | std::ios::binary);
  if (!in.is_open()) return false;
  LoadArpTable(in);
  in.close();
  m_fileName = path;
  m_time = FileTimeOrNow(path);
  RebuildIndexIfOutOfStep();
  return true;
}

bool ArpTable::ImportArpTable(std::istream& in, const std::string& hostname, int /*unused*/) {
  Clear();
  if (in.fail()) return false;
  const bool ok = ImportFromCSV(in);
  if (ok) {
    m_time = Now();
    m_hostName = hostname;
  }
  RebuildIndexIfOutOfStep();
  return ok;
}

bool ArpTable::ImportArpTable(const std::string& path, const std::string& hostname, int unused) {
  Clear();
  if (!CanAccess(path)) return false;
  std::ifstream in(StlHelper::AToW(path), std::ios::in | std::ios::binary);
  if (!in.is_open()) return false;
  const bool ok = ImportArpTable(in, hostname, unused);
  in.close();
  RebuildIndexIfOutOfStep();
  return ok;
}

bool ArpTable::ExportToCSV(std::ostream& out) {
  if (out.fail()) return false;
  CSVLineParser row("");
  WriteTableHead(out, row, m_hostName, kColumns, 4);
  for (const ArpRecord& r : m_records) {
    row.SetAt(0, r.Interface);
    row.SetAt(1, r.Ip);
    row.SetAt(2, r.Mac);
    row.SetAt(3, r.Vendor);
    row.WriteToStream(out);
  }
  return true;
}

bool ArpTable::SaveArpTable(std::ostream& out) { return ExportToCSV(out); }
bool ArpTable::SaveArpTable(const std::string& path) { return ExportArpTable(path); }

bool ArpTable::ExportArpTable(const std::string& path) {
  std::ofstream out(StlHelper::AToW(path), std::ios::out | std::ios::trunc | std::ios::binary);
  if (!ExportToCSV(out)) return false;
  out.close();
  return !out.fail();  // a full disk must not pass for a saved table
}

void ArpTable::GetArpCompareResult(ArpTable& left, ArpTable& right, std::vector<ArpRecordPair>& out) const {
  const std::vector<ArpRecord>& L = left.m_records;
  const std::vector<ArpRecord>& R = right.m_records;
  std::vector<bool> leftDone(L.size()), rightDone(R.size());
  out.reserve(out.size() + L.size() + R.size() / 8);

  // Pass 1: same rows. Right rows of one key wait in order; the first unmatched one pairs.
  {
    RowQueues<std::string> waiting(R.size());
    for (size_t j = 0; j < R.size(); ++j) waiting.Add(SameKey(R[j]), j);
    for (size_t i = 0; i < L.size(); ++i) {
      const size_t j = waiting.Take(SameKey(L[i]));
      if (j == waiting.npos) continue;
      leftDone[i] = rightDone[j] = true;
      out.push_back({L[i], R[j], CommonTableCompareResult::m_iSame});
    }
  }

  // Pass 2: the rest of the left rows against the first unmatched right row of
  // their address. That row stays unmarked, so it may pair with several left rows.
  {
    std::unordered_map<std::string, size_t> firstByIp;
    for (size_t j = 0; j < R.size(); ++j)
      if (!rightDone[j]) firstByIp.emplace(AsciiLower(R[j].Ip), j);
    for (size_t i = 0; i < L.size(); ++i) {
      if (leftDone[i]) continue;
      const auto it = firstByIp.find(AsciiLower(L[i].Ip));
      if (it == firstByIp.end()) {
        out.push_back({L[i], ArpRecord(), CommonTableCompareResult::m_iOnlyInleft});
        continue;
      }
      const ArpRecord& r = R[it->second];
      const bool same = EqualNoCase(L[i].Mac, r.Mac) && EqualNoCase(L[i].Interface, r.Interface);
      out.push_back({L[i], r, same ? CommonTableCompareResult::m_iSame : CommonTableCompareResult::m_iDiff});
    }
  }

  // Pass 3: right rows whose address no pair in `out` has on its left, earlier
  // pairs included. Each right-only pair adds an empty left address.
  std::unordered_set<std::string> leftIps;
  for (const ArpRecordPair& p : out) leftIps.insert(AsciiLower(p.Left.Ip));
  for (size_t j = 0; j < R.size(); ++j) {
    if (rightDone[j] || leftIps.count(AsciiLower(R[j].Ip))) continue;
    out.push_back({ArpRecord(), R[j], CommonTableCompareResult::m_iOnlyInRight});
    leftIps.insert(std::string());
  }
}
