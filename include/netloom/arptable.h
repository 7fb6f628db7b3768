// A device's ARP table: rows of interface, IP address and MAC address, with the
// host name, the file they came from and the time of the data. Reads the CSV
// form and the older four-lines-a-row text form, writes CSV, filters rows by
// substring, finds the row of an IP address and compares two tables.
//
// The table is a value type without a lock; one thread uses it at a time.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include "netloom/export.h"

struct NETLOOM_API ArpRecord {
  int Number = 0;  // first line of a row in the text form; never interpreted
  std::string Mac;
  std::string Ip;
  std::string Interface;
  std::string Extra;   // carried through copies only
  std::string Vendor;  // written to CSV, filled by callers only
  unsigned int Flag = 0;
};

struct NETLOOM_API ArpRecordPair {
  ArpRecord Left;
  ArpRecord Right;
  int Result = 0;  // a CommonTableCompareResult code
};

class NETLOOM_API ArpTable {
 public:
  ArpTable();
  ArpTable(const ArpTable& other);
  ArpTable& operator=(const ArpTable& other);
  ~ArpTable();

  // Row by position; no bounds check.
  ArpRecord& operator[](unsigned index);
  std::vector<ArpRecord>& GetRecords();
  unsigned GetCount() const;

  std::string GetHostname() const;
  void SetHostname(const std::string& hostname);
  const std::string& GetFileName() const;
  void SetFileName(const std::string& fileName);
  int64_t GetTime() const;
  void SetTime(int64_t time);

  // Drops rows and index; file name, host name and time stay.
  void Clear();
  // Appends a copy; the index learns the row's position but keeps its valid flag.
  void InsertArpRecord(ArpRecord& record);
  // Removes every row whose MAC text is exactly `mac`; a valid index is rebuilt.
  void RemoveArpRecord(std::string& mac);
  // Erases row `index` and leaves the index as it was, stale positions and all,
  // until the next rebuild. Past the end: only a valid index is rebuilt.
  void RemoveArpRecord(unsigned index);
  void SetIndexValid();
  // " Rcd <rows>, index <size>, " when a valid index has lost track of the rows; else empty.
  std::string GenLogOfUnmormalIndex() const;

  // The first row holding the IP address `ip`, or an empty record.
  ArpRecord FindMacfromArpTable(std::string ip) const;

  // Append matching rows to `out` (not cleared first). Ip: case-sensitive
  // substring; Mac and Port: substring ignoring case. An empty filter matches all.
  void FilterArpTableWithIp(ArpTable& out, const std::string& filter) const;
  void FilterArpTableWithMac(ArpTable& out, const std::string& filter) const;
  void FilterArpTableWithPort(ArpTable& out, const std::string& filter) const;

  // CSV first; if its header is not there, the old text form. Always true.
  bool LoadArpTable(std::istream& in);
  // With `checkOnly`, only tells whether the file exists.
  bool LoadArpTable(const std::string& path, bool checkOnly);
  bool SaveArpTable(std::ostream& out);
  bool SaveArpTable(const std::string& path);
  bool ExportArpTable(const std::string& path);
  // CSV form only; the host name given overrides the file's.
  bool ImportArpTable(std::istream& in, const std::string& hostname, int unused);
  bool ImportArpTable(const std::string& path, const std::string& hostname, int unused);

  // Appends the pairs of `left` against `right` to `out`: same rows, then the
  // rest of the left rows, then rows only on the right.
  void GetArpCompareResult(ArpTable& left, ArpTable& right, std::vector<ArpRecordPair>& out) const;

 protected:
  bool ExportToCSV(std::ostream& out);
  bool ImportFromCSV(std::istream& in);

 private:
  bool CreateIndexOnIp();
  bool ClearIndexOnIp();
  void RebuildIndexIfOutOfStep();
  void AppendRow(const ArpRecord& record);

  std::vector<ArpRecord> m_records;
  int64_t m_time = 0;
  std::string m_fileName;
  std::string m_hostName;
  bool m_indexValid = false;
  std::map<std::string, int> m_index;
};
