#include "netloom/boundinterfacetable.h"

#include <strings.h>

#include <cstdlib>
#include <fstream>

#include "netloom/util/csvparser.h"
#include "netloom/util/stlhelper.h"

namespace {
constexpr int kColumnCount = 6;
const char* const kColumns[kColumnCount] = {"Id", "Device Name", "Device Type", "Interface", "IP Address", "Description"};
}  // namespace

bool BoundInterface::operator<(const BoundInterface& other) const {
  int c = ::strcasecmp(DeviceName.c_str(), other.DeviceName.c_str());
  if (c) return c < 0;
  c = ::strcasecmp(Interface.c_str(), other.Interface.c_str());
  if (c) return c < 0;
  return IpAddress < other.IpAddress;
}

bool BoundInterfaceTable::AddEntry(const BoundInterface& entry) { return m_entries.insert(entry).second; }

void BoundInterfaceTable::AddEntries(const std::set<BoundInterface>& entries) {
  for (const auto& e : entries) m_entries.insert(e);
}

bool BoundInterfaceTable::DeleteEntry(const BoundInterface& entry) { return m_entries.erase(entry) > 0; }

bool BoundInterfaceTable::IsEntryExist(const BoundInterface& entry) const { return m_entries.count(entry) > 0; }

std::vector<BoundInterface> BoundInterfaceTable::FindEntries(const std::string& device,
                                                             const std::string& interface) const {
  BoundInterface key;
  key.DeviceName = device;
  key.Interface = interface;
  std::vector<BoundInterface> out;
  // The order ignores case and the walk doesn't: a differently spelt entry ends it.
  for (auto it = m_entries.lower_bound(key); it != m_entries.end(); ++it) {
    if (it->DeviceName != device || it->Interface != interface) break;
    out.push_back(*it);
  }
  return out;
}

std::vector<BoundInterface> BoundInterfaceTable::FindEntries(const std::string& device) const {
  BoundInterface key;
  key.DeviceName = device;
  std::vector<BoundInterface> out;
  for (auto it = m_entries.lower_bound(key); it != m_entries.end(); ++it) {
    if (it->DeviceName != device) break;
    out.push_back(*it);
  }
  return out;
}

bool BoundInterfaceTable::LoadFromFile(const std::string& path) {
  std::ifstream in(StlHelper::AToW(path), std::ios::binary);
  if (!in) return false;
  return LoadFromStream(in);
}

bool BoundInterfaceTable::SaveToFile(const std::string& path) const {
  std::ofstream out(StlHelper::AToW(path), std::ios::out | std::ios::app | std::ios::binary);
  if (!out) return false;
  return SaveToStream(out);
}

bool BoundInterfaceTable::LoadFromStream(std::istream& in) {
  CSVParser csv("");
  csv.LoadFromStream(in);
  if (csv.size() < 2) return false;
  const CSVLineParser& names = csv.GetRow(1);
  if (names.size() < kColumnCount) return false;
  for (int i = 0; i < kColumnCount; ++i)
    if (names.Field(static_cast<size_t>(i)) != kColumns[i]) return false;
  m_entries.clear();
  for (size_t row = 2; row < csv.size(); ++row) {
    const CSVLineParser& line = csv.GetRow(static_cast<int>(row));
    if (line.size() != kColumnCount) continue;
    BoundInterface e;
    e.Id = std::atoi(line.Field(0).c_str());
    e.DeviceName = line.Field(1);
    e.DeviceType = std::atoi(line.Field(2).c_str());
    e.Interface = line.Field(3);
    e.IpAddress = IpLocation(line.Field(4));
    e.Description = line.Field(5);
    AddEntry(e);
  }
  return true;
}

bool BoundInterfaceTable::SaveToStream(std::ostream& out) const {
  CSVParser csv("");
  csv.SetAt(0, 0, "version:1.0");
  csv.SetAt(0, 1, "Internet Bound Interface");
  for (int i = 0; i < kColumnCount; ++i) csv.SetAt(1, i, kColumns[i]);
  int row = 2;
  for (const auto& e : m_entries) {
    csv.SetAt(row, 0, StlHelper::toString(e.Id));
    csv.SetAt(row, 1, e.DeviceName);
    csv.SetAt(row, 2, StlHelper::toString(e.DeviceType));
    csv.SetAt(row, 3, e.Interface);
    csv.SetAt(row, 4, e.IpAddress.textForm());
    csv.SetAt(row, 5, e.Description);
    ++row;
  }
  csv.SaveToStream(out);
  return true;
}
