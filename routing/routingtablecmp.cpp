// Comparison of two route tables. Both sides are sorted by prefix and walked
// together: a prefix with one route on each side gives one pair, a prefix
// with more routes on either side is matched as a load-balanced group, and a
// source route without a partner is looked up among the destination's
// covering routes before it is called removed.

#include "netloom/routingtablecmp.h"

#include <algorithm>
#include <fstream>

#include "netloom/subnetlistdata.h"
#include "netloom/util/stlhelper.h"
#include "routing/routetext.h"

using netloom::detail::ReadByte;
using netloom::detail::ReadLE32;
using netloom::detail::WriteLE32;

namespace netloom::detail {
namespace {

constexpr uint8_t kHeadMark = 0x80;
constexpr uint8_t kCountMark = 0x40;
constexpr unsigned int kUnknownDistance = 65535;
constexpr unsigned int kUnknownMetric = 0xFFFFFFFFu;

// Bit of each CompareItem in a code of CompareEntryEx.
constexpr unsigned int kItemBits[] = {
    RoutingTableCmp::kDestIpDiff,   RoutingTableCmp::kDestMaskDiff, RoutingTableCmp::kNextHopDiff,
    RoutingTableCmp::kOutIfDiff,    RoutingTableCmp::kAlgDiff,      RoutingTableCmp::kDistanceDiff,
    RoutingTableCmp::kMetricDiff,
};

bool SamePrefix(const RoutingTableEntry* a, const RoutingTableEntry* b) {
  return a->DestIp == b->DestIp && a->DestMask == b->DestMask;
}

// The merge walk shared by both compares. `less` orders two routes, `sameKey`
// tells whether they belong to one group, `single` handles one route on each
// side, `group` a group, `source`/`destination` the routes left over.
template <typename Less, typename SameKey, typename Single, typename Group, typename OnlySource,
          typename OnlyDestination>
void MergeWalk(std::vector<RoutingTableEntry*>& src, std::vector<RoutingTableEntry*>& dst, Less less,
               SameKey sameKey, Single single, Group group, OnlySource onlySource,
               OnlyDestination onlyDestination) {
  size_t i = 0, j = 0;
  while (i < src.size() && j < dst.size()) {
    RoutingTableEntry* a = src[i];
    RoutingTableEntry* b = dst[j];
    if (less(a, b)) {
      onlySource(a);
      ++i;
    } else if (less(b, a)) {
      onlyDestination(b);
      ++j;
    } else if (sameKey(a, b)) {
      const bool moreSrc = i + 1 < src.size() && sameKey(src[i + 1], a);
      const bool moreDst = j + 1 < dst.size() && sameKey(dst[j + 1], b);
      if (!moreSrc && !moreDst) {
        single(a, b);
        ++i;
        ++j;
      } else {
        std::vector<RoutingTableEntry*> groupSrc, groupDst;
        while (i < src.size() && sameKey(src[i], a)) groupSrc.push_back(src[i++]);
        while (j < dst.size() && sameKey(dst[j], b)) groupDst.push_back(dst[j++]);
        group(groupSrc, groupDst);
      }
    } else {
      // Neither is less, yet they don't group: an order the keys can't tell
      // apart. Take the source route alone so that the walk always advances.
      onlySource(a);
      ++i;
    }
  }
  for (; i < src.size(); ++i) onlySource(src[i]);
  for (; j < dst.size(); ++j) onlyDestination(dst[j]);
}

}  // namespace
}  // namespace netloom::detail

using namespace netloom::detail;

RoutingTableCmp::RoutingTableCmp(RTCmpElement* source, RTCmpElement* destination)
    : m_source(source), m_destination(destination) {}

unsigned int RoutingTableCmp::CompareEntry(const RoutingTableEntry* a, const RoutingTableEntry* b) const {
  unsigned int code = 0;
  if (a->NextHop != b->NextHop) code |= kNextHopDiff;
  if (a->OutIf != b->OutIf) code |= kOutIfDiff;
  if (a->Alg != b->Alg) code |= kAlgDiff;
  // Unknown values never count as a difference.
  if (a->Distance < kUnknownDistance && b->Distance < kUnknownDistance && a->Distance != b->Distance)
    code |= kDistanceDiff;
  if (a->Metric != kUnknownMetric && b->Metric < kUnknownMetric && m_flag != kIgnoreMetric &&
      a->Metric != b->Metric)
    code |= kMetricDiff;
  return code;
}

unsigned int RoutingTableCmp::CompareEntryEx(const RoutingTableEntry* a, const RoutingTableEntry* b,
                                             const std::vector<CompareItem>& key) const {
  const bool differs[] = {
      !(a->DestIp == b->DestIp), !(a->DestMask == b->DestMask), !(a->NextHop == b->NextHop), a->OutIf != b->OutIf,
      a->Alg != b->Alg,        a->Distance != b->Distance, a->Metric != b->Metric,
  };
  unsigned int code = 0;
  for (int item = CI_DEST_IP; item <= CI_METRIC; ++item) {
    if (std::find(key.begin(), key.end(), static_cast<CompareItem>(item)) != key.end()) continue;
    if (differs[item]) code |= kItemBits[item];
  }
  return code;
}

bool RoutingTableCmp::EntryIsEqual(const RoutingTableEntry* a, const RoutingTableEntry* b,
                                   const std::vector<CompareItem>& key) const {
  return a && b && a->compare(*b, key) == 0;
}

bool RoutingTableCmp::CmpDestIpMask(const RoutingTableEntry* a, const RoutingTableEntry* b) const {
  return a && b && SamePrefix(a, b);
}

void RoutingTableCmp::Record(unsigned int code, unsigned int src, unsigned int dst) {
  m_results.push_back(RTCmpEntry{code, src, dst});
}

template <typename CodeFn>
void RoutingTableCmp::MatchGroups(EntryList& sources, EntryList& destinations, CodeFn code) {
  std::vector<RTCmpEntry> pairs;
  EntryList leftSources;
  EntryList freeDestinations = destinations;
  for (RoutingTableEntry* source : sources) {
    auto match = std::find_if(freeDestinations.begin(), freeDestinations.end(),
                              [&](RoutingTableEntry* d) { return code(source, d) == 0; });
    if (match == freeDestinations.end()) {
      leftSources.push_back(source);
      continue;
    }
    pairs.push_back(RTCmpEntry{0, source->Index, (*match)->Index});
    freeDestinations.erase(match);
  }

  if (leftSources.empty() && freeDestinations.empty()) {
    m_equalCount += static_cast<unsigned int>(pairs.size());
    if (m_keepEqual) m_results.insert(m_results.end(), pairs.begin(), pairs.end());
    return;
  }

  // The group changed: every route of it is marked, the equal pairs too.
  for (RTCmpEntry& pair : pairs) {
    pair.Code |= kGroupDiff;
    m_results.push_back(pair);
  }
  const size_t n = std::max(leftSources.size(), freeDestinations.size());
  for (size_t k = 0; k < n; ++k) {
    const unsigned int src = k < leftSources.size() ? leftSources[k]->Index : 0;
    const unsigned int dst = k < freeDestinations.size() ? freeDestinations[k]->Index : 0;
    Record(kGroupDiff, src, dst);
  }
}

void RoutingTableCmp::CmpLBEntryList(EntryList& sources, EntryList& destinations) {
  MatchGroups(sources, destinations,
              [this](const RoutingTableEntry* a, const RoutingTableEntry* b) { return CompareEntry(a, b); });
}

void RoutingTableCmp::CmpOther(EntryList& sources, EntryList& destinations, const std::vector<CompareItem>& key) {
  MatchGroups(sources, destinations, [this, &key](const RoutingTableEntry* a, const RoutingTableEntry* b) {
    return CompareEntryEx(a, b, key);
  });
}

void RoutingTableCmp::ForEntryComparable(EntryList& destinations, RoutingTableEntry* route) {
  IpLocation location(route->DestIp, route->DestMask);
  for (RoutingTableEntry* candidate : RoutingTable::GetPossibleEntry(destinations, location)) {
    if (!candidate) continue;
    const unsigned int code = CompareEntry(candidate, route);
    if (!(code & (kNextHopDiff | kOutIfDiff))) {
      Record(code | kRemoved | kCarried, route->Index, candidate->Index);
      return;
    }
  }
  Record(kRemoved, route->Index, 0);
}

bool RoutingTableCmp::CollectEntries(RTCmpElement* side, SubnetListData* subnets, EntryList& out) const {
  if (!side || !side->Table) return false;
  if (subnets) {
    std::set<unsigned int> selected = side->Table->FilterSubnetList(*subnets, side->Indexes);
    out = side->Table->GetRTEntryList(&selected);
  } else {
    out = side->Table->GetRTEntryList(side->Indexes);
  }
  out.erase(std::remove(out.begin(), out.end(), nullptr), out.end());
  return true;
}

bool RoutingTableCmp::CompareRT(bool keepEqual, SubnetListData* subnets) {
  m_keepEqual = keepEqual;
  m_results.clear();
  EntryList src, dst;
  if (!CollectEntries(m_source, subnets, src) || !CollectEntries(m_destination, subnets, dst)) return false;
  RoutingTable::SortRTEntryList(src);
  RoutingTable::SortRTEntryList(dst);

  EntryList onlySource;
  MergeWalk(
      src, dst, [](const RoutingTableEntry* a, const RoutingTableEntry* b) { return *a < *b; },
      [](const RoutingTableEntry* a, const RoutingTableEntry* b) { return SamePrefix(a, b); },
      [this](RoutingTableEntry* a, RoutingTableEntry* b) {
        const unsigned int code = CompareEntry(a, b);
        if (code == 0) {
          ++m_equalCount;
          if (!m_keepEqual) return;
        }
        Record(code, a->Index, b->Index);
      },
      [this](EntryList& a, EntryList& b) { CmpLBEntryList(a, b); },
      [&onlySource](RoutingTableEntry* a) { onlySource.push_back(a); },
      [this](RoutingTableEntry* b) { Record(kNew, 0, b->Index); });
  for (RoutingTableEntry* route : onlySource) ForEntryComparable(dst, route);

  std::stable_sort(m_results.begin(), m_results.end(),
                   [](const RTCmpEntry& a, const RTCmpEntry& b) { return a.Code < b.Code; });
  return true;
}

bool RoutingTableCmp::CompareRTEx(bool keepEqual, SubnetListData* subnets, const std::vector<CompareItem>& key) {
  m_keepEqual = keepEqual;
  m_results.clear();
  EntryList src, dst;
  if (!CollectEntries(m_source, subnets, src) || !CollectEntries(m_destination, subnets, dst)) return false;
  RoutingTable::SortRTEntryList(src, key);
  RoutingTable::SortRTEntryList(dst, key);

  // ForEntryComparable searches by address, so it needs the prefix order.
  EntryList dstByPrefix = dst;
  RoutingTable::SortRTEntryList(dstByPrefix);

  EntryList onlySource;
  MergeWalk(
      src, dst, [&key](const RoutingTableEntry* a, const RoutingTableEntry* b) { return a->compare(*b, key) < 0; },
      [this, &key](const RoutingTableEntry* a, const RoutingTableEntry* b) { return EntryIsEqual(a, b, key); },
      [this, &key](RoutingTableEntry* a, RoutingTableEntry* b) {
        const unsigned int code = CompareEntryEx(a, b, key);
        if (code == 0) {
          ++m_equalCount;
          if (!m_keepEqual) return;
        }
        Record(code, a->Index, b->Index);
      },
      [this, &key](EntryList& a, EntryList& b) { CmpOther(a, b, key); },
      [&onlySource](RoutingTableEntry* a) { onlySource.push_back(a); },
      [this](RoutingTableEntry* b) { Record(kNew, 0, b->Index); });
  for (RoutingTableEntry* route : onlySource) ForEntryComparable(dstByPrefix, route);

  std::stable_sort(m_results.begin(), m_results.end(),
                   [](const RTCmpEntry& a, const RTCmpEntry& b) { return a.Code < b.Code; });
  return true;
}

bool RoutingTableCmp::SaveRTCmpData(const char* path) {
  if (!path || !*path) return false;
  std::ofstream out(StlHelper::AToW(path), std::ios::out | std::ios::binary | std::ios::trunc);
  if (!out) return false;
  out.put(static_cast<char>(kHeadMark));
  out.put(m_keepEqual ? 1 : 0);
  out.put(static_cast<char>(kCountMark));
  WriteLE32(out, m_equalCount);
  for (const RTCmpEntry& entry : m_results) {
    out.put(0);
    WriteLE32(out, entry.Code);
    WriteLE32(out, entry.SrcIndex);
    WriteLE32(out, entry.DstIndex);
  }
  out.flush();
  return out.good();
}

bool RoutingTableCmp::ReadRTCmpData(const char* path) {
  m_results.clear();
  if (!path || !*path) return false;
  std::ifstream in(StlHelper::AToW(path), std::ios::in | std::ios::binary);
  if (!in) return false;
  uint8_t mark = 0, keep = 0;
  uint32_t count = 0;
  if (!ReadByte(in, mark) || !(mark & kHeadMark)) return false;
  if (!ReadByte(in, keep)) return false;
  if (!ReadByte(in, mark) || !(mark & kCountMark)) return false;
  if (!ReadLE32(in, count)) return false;
  m_keepEqual = keep == 1;
  m_equalCount = count;
  for (;;) {
    if (!ReadByte(in, mark)) return true;
    RTCmpEntry entry;
    if (!ReadLE32(in, entry.Code) || !ReadLE32(in, entry.SrcIndex) || !ReadLE32(in, entry.DstIndex)) return false;
    m_results.push_back(entry);
  }
}
