// Interfaces bound to the Internet: for each device, which interface, with
// which address and what description. A set with a CSV file; no compare.
#pragma once

#include <iosfwd>
#include <set>
#include <string>
#include <vector>

#include "netloom/export.h"
#include "netloom/ipaddress.h"

struct NETLOOM_API BoundInterface {
  std::string DeviceName;
  int DeviceType = 0;
  std::string Interface;
  IpLocation IpAddress;
  int Id = 0;
  std::string Description;

  // Device, then interface, each ignoring case, then the address by its
  // location key. Type, id and description take no part.
  bool operator<(const BoundInterface& other) const;
};

class NETLOOM_API BoundInterfaceTable {
 public:
  BoundInterfaceTable() = default;
  BoundInterfaceTable(const BoundInterfaceTable&) = default;
  BoundInterfaceTable& operator=(const BoundInterfaceTable&) = default;
  virtual ~BoundInterfaceTable() = default;

  const std::set<BoundInterface>& GetAllEntries() const { return m_entries; }
  // False when an equal entry is held already; that one stays as it was.
  bool AddEntry(const BoundInterface& entry);
  void AddEntries(const std::set<BoundInterface>& entries);
  bool DeleteEntry(const BoundInterface& entry);
  bool IsEntryExist(const BoundInterface& entry) const;
  // Entries of a device (and interface), spelt exactly as given.
  std::vector<BoundInterface> FindEntries(const std::string& device) const;
  std::vector<BoundInterface> FindEntries(const std::string& device, const std::string& interface) const;

  bool LoadFromFile(const std::string& path);
  // Appends to the file: an existing file gets another copy of the table behind its text.
  bool SaveToFile(const std::string& path) const;

 protected:
  bool LoadFromStream(std::istream& in);
  bool SaveToStream(std::ostream& out) const;

 private:
  std::set<BoundInterface> m_entries;
};
