// A device's CDP neighbour table: for each local interface, the neighbour
// device and interface seen there, with its address and platform.
//
// A file may say that its names are not yet translated ("translated:false").
// Loading it then runs every row through the caller's ITWTableParsor, and when
// that changed anything the file is written back at once, marked as
// translated, so the work is done only once.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "netloom/export.h"

struct NETLOOM_API CDPTableEntry {
  std::string LocalInterface;
  std::string InterfaceName;     // the neighbour's interface
  std::string DeviceName;        // the neighbour
  std::string InterfaceAddress;  // the neighbour's address
  std::string Platform;
  bool Flag = true;

  // Empties every text but Platform and sets Flag.
  void clear();
  // The four names ignoring case, and Flag; Platform doesn't count.
  bool operator==(const CDPTableEntry& other) const;
};

struct NETLOOM_API CDPTableEntryPair {
  CDPTableEntry Left;
  CDPTableEntry Right;
  int Result = 0;  // a CommonTableCompareResult code
};

// The caller's translator of device and interface names. Every call may change
// its strings and sets `changed` when it did; the result says whether the
// translator could answer at all.
class NETLOOM_API ITWTableParsor {
 public:
  virtual bool TranslateLink(std::string& device, std::string& localInterface, std::string& neighbourDevice,
                             std::string& neighbourInterface, bool& changed) = 0;
  virtual bool TranslateInterface(std::string& device, std::string& interfaceName, bool& changed) = 0;
  virtual bool TranslateDevice(std::string& address, std::string& device, bool& changed) = 0;
  virtual bool IsKnownAddress(std::string& address) = 0;
  virtual ~ITWTableParsor() = default;
};

class NETLOOM_API CDPTable {
 public:
  CDPTable();
  CDPTable(const CDPTable& other);
  CDPTable& operator=(const CDPTable& other);
  ~CDPTable();

  std::vector<CDPTableEntry>& GetCdpEntryList();
  const std::string& GetDeviceName() const;
  const std::string& GetFileName() const;
  void SetFileName(const std::string& fileName);
  int64_t GetTime() const;
  void SetTime(int64_t time);
  // Not owned; the caller keeps it alive while the table loads.
  void SetParser(ITWTableParsor* parser);

  // Drops the entries, the device name and the time; file name, parser and flags stay.
  void Clear();
  bool LoadCdpTable(std::istream& in);
  // With `checkOnly`, only tells whether the file exists. A load that
  // translated something writes the file back.
  bool LoadCdpTable(const std::string& path, bool checkOnly);
  bool ImportCdpTable(std::istream& in, const std::string& unused1, int unused2);
  bool ImportCdpTable(const std::string& path, const std::string& unused1, int unused2);
  bool SaveCdpTable(std::ostream& out);
  bool SaveCdpTable(const std::string& path);

  // Rows matched by local interface, ignoring case.
  static void GetCdpCompareResult(CDPTable& left, CDPTable& right, std::vector<CDPTableEntryPair>& out);
  // Rows matched by local interface and neighbour device together, with case,
  // reported in key order.
  static bool GetCdpCompareResultCA(CDPTable& left, CDPTable& right, std::vector<CDPTableEntryPair>& out,
                                    bool sameOnly);
  static bool IsSameTable(CDPTable& left, CDPTable& right);
  static bool IsSameTableCA(CDPTable& left, CDPTable& right);

 protected:
  bool ImportFromCSV(std::istream& in);
  bool ExportToCSV(std::ostream& out);
  bool IsCDPEntryImported(const CDPTableEntry& entry);
  static bool GetCdpCompareResult(CDPTable& left, CDPTable& right, std::vector<CDPTableEntryPair>& out,
                                  bool sameOnly);

 private:
  void TranslateEntry(CDPTableEntry& entry);

  std::vector<CDPTableEntry> m_entries;
  std::string m_deviceName;
  std::string m_fileName;
  int64_t m_time = 0;
  ITWTableParsor* m_parser = nullptr;
  bool m_modified = false;
  bool m_translated = false;
};
