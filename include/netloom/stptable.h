// A device's spanning-tree result: which ports are blocked in which VLAN. The
// table keeps the file's whole text beside the parsed rows and saving writes
// that text back unchanged: rows can be read and compared, not edited.
#pragma once

#include <iosfwd>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "netloom/export.h"

struct NETLOOM_API STPTableEntry {
  std::string BlockedPort;  // in a compare result: the comma-joined ports of the VLAN
  std::string Vlan;         // as the file gives it, e.g. "VLAN0010"
  bool Blocked = false;     // set by a load; rows without it stay out of a compare
};

struct NETLOOM_API STPTablePair {
  STPTableEntry Left;
  STPTableEntry Right;
  int Code = 0;
};

class NETLOOM_API STPTable {
 public:
  STPTable() = default;
  STPTable(const STPTable&) = default;
  STPTable(STPTable&&) = default;
  STPTable& operator=(const STPTable&) = default;
  STPTable& operator=(STPTable&&) = default;
  ~STPTable() = default;

  // Empties entries, text and device name; the file name stays.
  void Clear();
  bool LoadStpData(const char* text);
  bool LoadStpTable(const std::string& path, bool checkOnly);
  // Reads a file of at most 10,000,000 bytes.
  bool ParseBinfile(const char* path);
  bool ImportStpTable(std::istream& in, const std::string& unused = "", int unused2 = 0);
  bool ImportStpTable(const std::string& path, const std::string& unused, int unused2);
  bool SaveToFile(const char* path) const;

  // The VLANs of `vlans` in which `port` is blocked, into `out`; returns out's size.
  int GetBlockedVlans(const std::string& port, const std::set<int>& vlans, std::set<int>& out) const;
  // Appends one pair per VLAN; uses nothing of this object.
  void GetStpCompareResult(STPTable& left, STPTable& right, std::vector<STPTablePair>& out) const;

  std::vector<STPTableEntry>& GetStpEntryList() { return m_entries; }
  STPTableEntry& operator[](unsigned index) { return m_entries[index]; }
  unsigned GetCount() const { return static_cast<unsigned>(m_entries.size()); }
  const std::string& GetText() const { return m_text; }
  const std::string& GetDeviceName() const { return m_deviceName; }
  const std::string& GetFileName() const { return m_fileName; }
  void SetFileName(const std::string& name) { m_fileName = name; }
  void SetTime(int time) { m_time = time; }

 private:
  void CombineBlockPorts(std::map<std::string, std::string>& out) const;

  std::vector<STPTableEntry> m_entries;
  std::string m_text;
  std::string m_deviceName;
  std::string m_fileName;
  int m_time = 0;
};
