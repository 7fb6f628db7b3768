// Route table filters that take subnet lists: the routes whose location
// relates to a subnet, the routes that pass a subnet list and a set of next
// routers, and the routes that carry the addresses of a subnet list.

#include "netloom/routingtable.h"
#include "netloom/subnetlistdata.h"

namespace netloom::detail {
namespace {

// Calls `visit` for each entry of the input set, or of the whole table, in
// Index order; an Index the table doesn't have is passed over.
template <typename Visit>
void ForEachSelected(std::map<unsigned int, RoutingTableEntry*>& entries, std::set<unsigned int>* indexes,
                     Visit visit) {
  if (!indexes) {
    for (auto& [index, entry] : entries)
      if (entry) visit(entry);
    return;
  }
  for (unsigned int index : *indexes) {
    auto it = entries.find(index);
    if (it != entries.end() && it->second) visit(it->second);
  }
}

}  // namespace
}  // namespace netloom::detail

using namespace netloom::detail;

std::set<unsigned int> RoutingTable::FilterSubnet(SubnetEntry& subnet, std::set<unsigned int>* indexes) {
  std::set<unsigned int> result;
  ForEachSelected(m_entryIndexMap, indexes, [&](RoutingTableEntry* entry) {
    if (SubnetListData::FilterEntry(subnet, IpLocation(entry->DestIp, entry->DestMask)))
      result.insert(entry->Index);
  });
  return result;
}

bool RoutingTable::FilterRTStruct(const RoutingTableEntry* entry, RTFilterStruct& filter) {
  if (!entry) return false;
  if (filter.Subnets &&
      !SubnetListData::FilterEntryList(*filter.Subnets, IpLocation(entry->DestIp, entry->DestMask)))
    return false;
  if (filter.NextRouters && !filter.NextRouters->count(entry->NextHop.bitForm())) return false;
  return true;
}

std::set<unsigned int> RoutingTable::FilterCombination(RTFilterStruct& filter, std::set<unsigned int>* indexes) {
  std::set<unsigned int> result;
  ForEachSelected(m_entryIndexMap, indexes, [&](RoutingTableEntry* entry) {
    if (FilterRTStruct(entry, filter)) result.insert(entry->Index);
  });
  return result;
}

std::set<unsigned int> RoutingTable::FilterSubnetList(SubnetListData& subnets, std::set<unsigned int>* indexes) {
  std::set<unsigned int> result;
  for (const SubnetEntry& subnet : subnets.GetSubnetList()) {
    IpLocation host(subnet.address, 0xFFFFFFFFu);
    std::vector<RoutingTableEntry*> carriers = GetPossibleEntry(host);
    if (carriers.empty() && m_defaultRoute) carriers.push_back(m_defaultRoute);
    for (RoutingTableEntry* entry : carriers) {
      if (!entry) continue;
      if (!indexes || indexes->count(entry->Index)) result.insert(entry->Index);
    }
  }
  return result;
}
