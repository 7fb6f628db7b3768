// A device's MAC forwarding table: which MAC address was learnt on which port
// in which VLAN. Rows are grouped by port and reverse-indexed by MAC address.
// Reads the CSV form (dropping rows that match the site's filter files) and the
// older three-lines-a-row text form, writes CSV, filters and compares.
//
// The site filters, "fix_FilterMac.def" and "fix_FilterPort.def" in the
// configuration folder, hold one pattern a line with "?" for any one character;
// they are read once per process, by the first import that finds them.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "netloom/export.h"

struct NETLOOM_API MacRecord {
  int64_t Mac = 0;
  unsigned int VlanId = 0x1000000;  // no VLAN known
  std::string PortName;
  int Reserved1 = 0;
  int Reserved2 = 1;
  std::string Ip;
  std::string DnsName;
  std::string VlanName;
  std::string Vendor;  // written, never read
};

struct NETLOOM_API MacRecordPair {
  MacRecord Left;
  MacRecord Right;
  int Result = 0;  // a CommonTableCompareResult code
};

class NETLOOM_API MacTable {
 public:
  using PortVlanSet = std::set<std::pair<std::string, unsigned int>>;
  using PortMacMap = std::map<std::string, std::vector<MacRecord>>;
  using MacPortMap = std::map<int64_t, PortVlanSet>;

  MacTable();
  MacTable(const MacTable& other);
  MacTable(MacTable&& other) noexcept;
  MacTable& operator=(const MacTable& other);
  MacTable& operator=(MacTable&& other) noexcept;
  ~MacTable();

  // Number of ports.
  unsigned size() const;
  // Number of rows over all ports.
  unsigned GetRecordCount() const;
  // The n-th row, ports in ascending name order; null past the end. Linear in n.
  MacRecord* operator[](unsigned index);

  void Clear();
  void InsertMacRecord(std::string& port, MacRecord& record);
  // Adds the (port, VLAN) pairs of `mac` to `out`; false if the address is unknown.
  bool GetPortByMac(int64_t& mac, PortVlanSet& out) const;

  PortMacMap& GetPortMacMap();
  MacPortMap& GetMacPortMap();
  const MacPortMap& GetMacPortMap() const;

  std::string GetHostname() const;
  void SetHostname(const std::string& hostname);
  const std::string& GetFileName() const;
  void SetFileName(const std::string& fileName);
  int64_t GetTime() const;
  void SetTime(int64_t time);

  // CSV first; if its header is not there, the old text form. Always true.
  bool LoadMacTable(std::istream& in);
  bool LoadMacTable(const std::string& path);
  bool ExportMacTable(std::ostream& out);
  bool ExportMacTable(const std::string& path);
  bool SaveMacTable(const std::string& path);
  // CSV form only; the host name given overrides the file's.
  bool ImportMacTable(std::istream& in, const std::string& hostname);
  bool ImportMacTable(const std::string& path, const std::string& hostname, int unused);

  // Offer matching rows to `out` (not cleared first). A MAC filter holding "."
  // looks in the dotted text, otherwise in the twelve bare digits.
  void FilterMacTableWithMac(MacTable& out, const std::string& filter) const;
  void FilterMacTableWithPort(MacTable& out, const std::string& filter) const;
  void FilterMacTableWithVlan(MacTable& out, const std::string& filter) const;

  // Same rows by MAC address, port and VLAN; Ip, DnsName, VlanName and Vendor don't count.
  static bool IsSameTable(MacTable& left, MacTable& right);

 protected:
  bool ImportFromCSV(std::istream& in);
  static void LoadFilter();
  static bool GetMacCompareResult(MacTable& left, MacTable& right, std::vector<MacRecordPair>& out,
                                  bool sameOnly);

  static std::vector<std::string> mFilterMac;
  static std::vector<std::string> mFilterPort;

 private:
  static std::mutex& FilterMutex();
  std::vector<const MacRecord*> RowsInOrder() const;

  PortMacMap m_portMap;
  MacPortMap m_macMap;
  int64_t m_time = 0;
  std::string m_fileName;
  std::string m_hostName;
};

