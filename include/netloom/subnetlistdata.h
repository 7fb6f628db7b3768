// Named sets of subnets. Route table comparisons and filters use them to pick
// the routes of interest; each subnet says how a route has to relate to it.
#pragma once

#include <set>
#include <string>

#include "netloom/export.h"
#include "netloom/ipaddress.h"

// One subnet of a list. Ordered by address, then mask; filterType is not part
// of the key, so a list holds each (address, mask) once.
struct NETLOOM_API SubnetEntry {
  unsigned int address = 0;
  unsigned int mask = 0;
  // 0 same location, 1 the location summarises this subnet, 2 the location
  // is a supernet of it, 3 the subnet's address lies in the location.
  int filterType = 0;
  IpAddress ipAddress;
  std::string description;

  bool operator<(const SubnetEntry& other) const {
    return address != other.address ? address < other.address : mask < other.mask;
  }
  bool operator==(const SubnetEntry& other) const {
    return address == other.address && mask == other.mask && filterType == other.filterType &&
           ipAddress == other.ipAddress && description == other.description;
  }
};

class NETLOOM_API SubnetListData {
 public:
  SubnetListData(const char* name = "", const char* description = "");
  SubnetListData(std::string& name, const std::set<SubnetEntry>& subnets);
  SubnetListData(const SubnetListData& other) = default;
  virtual SubnetListData& operator=(const SubnetListData& other);
  virtual ~SubnetListData() = default;

  // 1 when added (the count rises), 0 when an entry of that address and mask is present.
  int AddSubnetEntry(const SubnetEntry& entry);
  // 1 when removed (the count falls), else 0.
  int DelSubnetEntry(const SubnetEntry& entry);
  int FindSubnetEntry(const SubnetEntry& entry) const;
  // Adds what `other` has and this list lacks; null is ignored.
  void AddSubnetList(const SubnetListData* other);
  void SetSubnetList(const std::set<SubnetEntry>& subnets);
  const std::set<SubnetEntry>& GetSubnetList() const { return m_subnets; }

  const std::string& GetName() const { return m_name; }
  void SetName(const std::string& name) { m_name = name; }
  const std::string& GetDescription() const { return m_description; }
  void SetDescription(const std::string& description) { m_description = description; }
  bool IsSystemCreate() const { return m_systemCreated; }
  void SetIsSystemCreate(bool value) { m_systemCreated = value; }
  int GetCount() const { return m_count; }

  bool operator==(const SubnetListData& other) const;

  // Whether `location` relates to the entry's subnet as its filterType asks.
  static bool FilterEntry(const SubnetEntry& entry, const IpLocation& location);
  // Whether any entry of the list passes; false for an empty list.
  static bool FilterEntryList(const SubnetListData& list, const IpLocation& location);

 private:
  std::string m_name;
  std::string m_description;
  bool m_systemCreated = false;
  int m_count = 0;
  std::set<SubnetEntry> m_subnets;
};
