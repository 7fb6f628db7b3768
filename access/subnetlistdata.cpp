// Named sets of subnets and the tests by which a route's location passes one.

#include "netloom/subnetlistdata.h"

SubnetListData::SubnetListData(const char* name, const char* description)
    : m_name(name ? name : ""), m_description(description ? description : "") {}

SubnetListData::SubnetListData(std::string& name, const std::set<SubnetEntry>& subnets)
    : m_name(name), m_count(static_cast<int>(subnets.size())), m_subnets(subnets) {}

SubnetListData& SubnetListData::operator=(const SubnetListData& other) {
  if (this != &other) {
    m_name = other.m_name;
    m_description = other.m_description;
    m_systemCreated = other.m_systemCreated;
    m_count = other.m_count;
    m_subnets = other.m_subnets;
  }
  return *this;
}

int SubnetListData::AddSubnetEntry(const SubnetEntry& entry) {
  if (!m_subnets.insert(entry).second) return 0;
  ++m_count;
  return 1;
}

int SubnetListData::DelSubnetEntry(const SubnetEntry& entry) {
  if (m_subnets.erase(entry) == 0) return 0;
  --m_count;
  return 1;
}

int SubnetListData::FindSubnetEntry(const SubnetEntry& entry) const { return m_subnets.count(entry) ? 1 : 0; }

void SubnetListData::AddSubnetList(const SubnetListData* other) {
  if (!other || other == this) return;
  for (const SubnetEntry& entry : other->m_subnets) AddSubnetEntry(entry);
}

void SubnetListData::SetSubnetList(const std::set<SubnetEntry>& subnets) {
  m_subnets = subnets;
  m_count = static_cast<int>(m_subnets.size());
}

bool SubnetListData::operator==(const SubnetListData& other) const {
  if (m_name != other.m_name || m_description != other.m_description ||
      m_systemCreated != other.m_systemCreated || m_count != other.m_count ||
      m_subnets.size() != other.m_subnets.size())
    return false;
  auto a = m_subnets.begin();
  for (auto b = other.m_subnets.begin(); b != other.m_subnets.end(); ++a, ++b)
    if (!(*a == *b)) return false;
  return true;
}

bool SubnetListData::FilterEntry(const SubnetEntry& entry, const IpLocation& location) {
  const IpLocation subnet(entry.address, entry.mask);
  switch (entry.filterType) {
    case 0: return location == subnet;
    case 1: return location.isSummarynet(subnet);
    case 2: return location.isSupernet(subnet);
    case 3: return location.inSameNet(subnet);
    default: return false;
  }
}

bool SubnetListData::FilterEntryList(const SubnetListData& list, const IpLocation& location) {
  for (const SubnetEntry& entry : list.m_subnets)
    if (FilterEntry(entry, location)) return true;
  return false;
}
