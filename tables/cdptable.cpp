// CDP neighbour table. Its one feature beyond the common file idiom is the
// translation of names on load: a file not marked "translated:true" goes
// through the caller's translator row by row, and a load that changed
// anything rewrites the file so that the next load finds it translated.
#include "netloom/cdptable.h"

#include <fstream>
#include <istream>
#include <map>
#include <ostream>
#include <unordered_set>

#include "netloom/commontablecompareresult.h"
#include "netloom/util/csvparser.h"
#include "netloom/util/pathname.h"
#include "netloom/util/stlhelper.h"
#include "tables/tablefile.h"

namespace {

using namespace netloom::detail::table;

const char* const kVersion = "version:100";
const char* const kNameTag = "name:";
const char* const kTranslatedTrue = "translated:true";
const char* const kTranslatedFalse = "translated:false";
const char* const kColumns[] = {"ID", "Local Interface", "Device Name", "Interface Name", "Interface Address",
                                "Platform"};
constexpr size_t kRequiredColumns = 5;
constexpr size_t kAllColumns = 6;
// Joins the two parts of a key of the strict compare.
const char* const kKeySeparator = "__sep__";


// What operator== looks at, as one text.
std::string EntryKey(const CDPTableEntry& e) {
  std::string key;
  AppendKeyPart(key, AsciiLower(e.LocalInterface));
  AppendKeyPart(key, AsciiLower(e.InterfaceName));
  AppendKeyPart(key, AsciiLower(e.DeviceName));
  AppendKeyPart(key, AsciiLower(e.InterfaceAddress));
  key += e.Flag ? '1' : '0';
  return key;
}

}  // namespace

void CDPTableEntry::clear() {
  LocalInterface.clear();
  InterfaceName.clear();
  DeviceName.clear();
  InterfaceAddress.clear();
  Flag = true;
}

bool CDPTableEntry::operator==(const CDPTableEntry& other) const {
  // Folds as the duplicate check of the import does, so the two always agree.
  return EqualNoCase(LocalInterface, other.LocalInterface) && EqualNoCase(InterfaceName, other.InterfaceName) &&
         EqualNoCase(DeviceName, other.DeviceName) && EqualNoCase(InterfaceAddress, other.InterfaceAddress) &&
         Flag == other.Flag;
}

CDPTable::CDPTable() = default;
CDPTable::CDPTable(const CDPTable& other) = default;
CDPTable& CDPTable::operator=(const CDPTable& other) = default;
CDPTable::~CDPTable() = default;

std::vector<CDPTableEntry>& CDPTable::GetCdpEntryList() { return m_entries; }
const std::string& CDPTable::GetDeviceName() const { return m_deviceName; }
const std::string& CDPTable::GetFileName() const { return m_fileName; }
void CDPTable::SetFileName(const std::string& fileName) { m_fileName = fileName; }
int64_t CDPTable::GetTime() const { return m_time; }
void CDPTable::SetTime(int64_t time) { m_time = time; }
void CDPTable::SetParser(ITWTableParsor* parser) { m_parser = parser; }

void CDPTable::Clear() {
  m_entries.clear();
  m_deviceName.clear();
  m_time = 0;
}

bool CDPTable::IsCDPEntryImported(const CDPTableEntry& entry) {
  for (const CDPTableEntry& e : m_entries)
    if (e == entry) return true;
  return false;
}

// The translator's calls in their fixed order. A call that answers without
// changing anything leaves a name it couldn't translate, so the table no
// longer counts as translated.
void CDPTable::TranslateEntry(CDPTableEntry& e) {
  if (!m_parser) {
    m_translated = false;
    return;
  }
  bool changed = false;
  auto account = [&](bool answered) {
    if (!answered) return;
    if (changed)
      m_modified = true;
    else
      m_translated = false;
  };
  account(m_parser->TranslateInterface(m_deviceName, e.LocalInterface, changed));
  account(m_parser->TranslateDevice(e.InterfaceAddress, e.DeviceName, changed));
  account(m_parser->TranslateInterface(e.DeviceName, e.InterfaceName, changed));
  account(m_parser->TranslateLink(m_deviceName, e.LocalInterface, e.DeviceName, e.InterfaceName, changed));
  if (!e.InterfaceAddress.empty() && IsValidIp(e.InterfaceAddress) && !m_parser->IsKnownAddress(e.InterfaceAddress)) {
    e.InterfaceAddress.clear();
    m_modified = true;
  }
}

bool CDPTable::ImportFromCSV(std::istream& in) {
  in.clear();
  in.seekg(0);
  CSVLineParser row("");
  if (!row.ReadFromStream(in) || row.size() < 2) return false;
  const size_t at = row.Field(1).find(kNameTag);
  if (at != std::string::npos) m_deviceName = row.Field(1).substr(at + std::char_traits<char>::length(kNameTag));
  const bool fileTranslated = row.size() > 2 && row.Field(2) == kTranslatedTrue;
  if (!row.ReadFromStream(in) || !HeaderMatches(row, kColumns, kRequiredColumns)) return false;

  m_modified = false;
  m_translated = true;
  // operator== over the table, kept as a set so that large files stay linear.
  std::unordered_set<std::string> present;
  for (const CDPTableEntry& e : m_entries) present.insert(EntryKey(e));
  while (row.ReadFromStream(in)) {
    if (row.size() < kRequiredColumns) continue;
    CDPTableEntry e;
    e.LocalInterface = row.Field(1);
    e.DeviceName = row.Field(2);
    e.InterfaceName = row.Field(3);
    e.InterfaceAddress = row.Field(4);
    if (!fileTranslated) TranslateEntry(e);
    if (row.size() == kAllColumns) e.Platform = row.Field(5);
    if (!present.insert(EntryKey(e)).second) continue;
    m_entries.push_back(std::move(e));
  }
  return true;
}

bool CDPTable::ExportToCSV(std::ostream& out) {
  out.clear();
  out.seekp(0);
  if (out.fail()) return false;
  CSVLineParser row("");
  row.SetAt(0, kVersion);
  row.SetAt(1, kNameTag + m_deviceName);
  row.SetAt(2, m_translated ? kTranslatedTrue : kTranslatedFalse);
  row.WriteToStream(out);
  for (size_t i = 0; i < kAllColumns; ++i) row.SetAt(static_cast<int>(i), kColumns[i]);
  row.WriteToStream(out);
  for (size_t n = 0; n < m_entries.size(); ++n) {
    const CDPTableEntry& e = m_entries[n];
    row.SetAt(0, std::to_string(n + 1));
    row.SetAt(1, e.LocalInterface);
    row.SetAt(2, e.DeviceName);
    row.SetAt(3, e.InterfaceName);
    row.SetAt(4, e.InterfaceAddress);
    row.SetAt(5, e.Platform);
    row.WriteToStream(out);
  }
  return true;
}

bool CDPTable::LoadCdpTable(std::istream& in) {
  Clear();
  return ImportFromCSV(in);
}

bool CDPTable::LoadCdpTable(const std::string& path, bool checkOnly) {
  if (checkOnly) return Pathname(path).exists();
  Clear();
  if (!Pathname(path).exists()) return false;
  std::ifstream in(StlHelper::AToW(path), std::ios::in | std::ios::binary);
  if (!in.is_open()) return false;
  Clear();
  const bool ok = ImportFromCSV(in);
  in.close();
  m_fileName = path;
  m_time = FileTimeOrNow(path);
  // Only a file that was read may be rewritten: a failed read would otherwise
  // leave the flag of an earlier load standing and overwrite the file with nothing.
  if (ok && m_modified) SaveCdpTable(path);
  return ok;
}

bool CDPTable::ImportCdpTable(std::istream& in, const std::string& /*unused1*/, int /*unused2*/) {
  Clear();
  if (in.fail()) return false;
  return ImportFromCSV(in);
}

bool CDPTable::ImportCdpTable(const std::string& path, const std::string& /*unused1*/, int /*unused2*/) {
  Clear();
  if (!Pathname(path).exists()) return false;
  std::ifstream in(StlHelper::AToW(path), std::ios::in | std::ios::binary);
  if (!in.is_open()) return false;
  return ImportFromCSV(in);
}

bool CDPTable::SaveCdpTable(std::ostream& out) { return ExportToCSV(out); }

bool CDPTable::SaveCdpTable(const std::string& path) {
  std::ofstream out(StlHelper::AToW(path), std::ios::out | std::ios::trunc | std::ios::binary);
  if (!ExportToCSV(out)) return false;
  out.close();
  return !out.fail();
}

void CDPTable::GetCdpCompareResult(CDPTable& left, CDPTable& right, std::vector<CDPTableEntryPair>& out) {
  GetCdpCompareResult(left, right, out, false);
}

bool CDPTable::GetCdpCompareResult(CDPTable& left, CDPTable& right, std::vector<CDPTableEntryPair>& out,
                                   bool sameOnly) {
  const std::vector<CDPTableEntry>& L = left.m_entries;
  const std::vector<CDPTableEntry>& R = right.m_entries;
  if (sameOnly && L.size() != R.size()) return false;
  std::vector<bool> leftDone(L.size()), rightDone(R.size());

  // Right entries of one local interface pair off in order; every pairing marks both.
  RowQueues<std::string> waiting(R.size());
  for (size_t j = 0; j < R.size(); ++j) waiting.Add(AsciiLower(R[j].LocalInterface), j);
  for (size_t i = 0; i < L.size(); ++i) {
    const size_t j = waiting.Take(AsciiLower(L[i].LocalInterface));
    if (j == waiting.npos) continue;
    const bool same = EqualNoCase(L[i].DeviceName, R[j].DeviceName) &&
                      EqualNoCase(L[i].InterfaceAddress, R[j].InterfaceAddress) &&
                      EqualNoCase(L[i].InterfaceName, R[j].InterfaceName);
    if (!same && sameOnly) return false;
    leftDone[i] = rightDone[j] = true;
    if (!same)
      out.push_back({L[i], R[j], CommonTableCompareResult::m_iDiff});
    else if (!sameOnly)
      out.push_back({L[i], R[j], CommonTableCompareResult::m_iSame});
  }
  // These run in the yes-or-no mode too and leave its answer alone: the plain
  // compare identifies rows by local interface only.
  for (size_t i = 0; i < L.size(); ++i)
    if (!leftDone[i]) out.push_back({L[i], CDPTableEntry(), CommonTableCompareResult::m_iOnlyInleft});
  for (size_t j = 0; j < R.size(); ++j)
    if (!rightDone[j]) out.push_back({CDPTableEntry(), R[j], CommonTableCompareResult::m_iOnlyInRight});
  return true;
}

bool CDPTable::GetCdpCompareResultCA(CDPTable& left, CDPTable& right, std::vector<CDPTableEntryPair>& out,
                                     bool sameOnly) {
  using KeyedEntries = std::multimap<std::string, CDPTableEntry>;
  auto build = [](const std::vector<CDPTableEntry>& entries) {
    KeyedEntries keyed;
    for (const CDPTableEntry& e : entries) keyed.emplace(e.LocalInterface + kKeySeparator + e.DeviceName, e);
    return keyed;
  };
  const KeyedEntries L = build(left.m_entries);
  KeyedEntries R = build(right.m_entries);
  if (sameOnly && L.size() != R.size()) return false;

  bool answer = true;
  for (const auto& [key, entry] : L) {
    auto [first, last] = R.equal_range(key);
    if (first == last) {
      out.push_back({entry, CDPTableEntry(), CommonTableCompareResult::m_iOnlyInleft});
      answer = false;
      continue;
    }
    auto used = first;
    while (used != last && !(used->second.InterfaceAddress == entry.InterfaceAddress &&
                             used->second.InterfaceName == entry.InterfaceName))
      ++used;
    if (used == last) {
      used = first;
      out.push_back({entry, used->second, CommonTableCompareResult::m_iDiff});
      answer = false;
    } else {
      out.push_back({entry, used->second, CommonTableCompareResult::m_iSame});
    }
    R.erase(used);
  }
  for (const auto& rest : R) {
    out.push_back({CDPTableEntry(), rest.second, CommonTableCompareResult::m_iOnlyInRight});
    answer = false;
  }
  return answer;
}

bool CDPTable::IsSameTable(CDPTable& left, CDPTable& right) {
  std::vector<CDPTableEntryPair> scratch;
  return GetCdpCompareResult(left, right, scratch, true);
}

bool CDPTable::IsSameTableCA(CDPTable& left, CDPTable& right) {
  std::vector<CDPTableEntryPair> scratch;
  return GetCdpCompareResultCA(left, right, scratch, true);
}
