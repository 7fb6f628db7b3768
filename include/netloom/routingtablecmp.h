// Comparison of two route tables, or of selected routes of each. Routes pair
// up by prefix; the routes of one prefix on one side (a load-balanced group)
// are matched as a group. Each pair carries a code of what differs; the list
// of pairs can be kept in a small binary file.
#pragma once

#include <set>
#include <vector>

#include "netloom/export.h"
#include "netloom/routingtable.h"

class SubnetListData;

// One side of a comparison: a table and the Index values to look at (null: all).
struct NETLOOM_API RTCmpElement {
  RoutingTable* Table = nullptr;
  std::set<unsigned int>* Indexes = nullptr;
};

// Code 0 means equal. Index 0 means no route on that side.
struct NETLOOM_API RTCmpEntry {
  unsigned int Code = 0;
  unsigned int SrcIndex = 0;
  unsigned int DstIndex = 0;
};

class NETLOOM_API RoutingTableCmp {
 public:
  // Code bits.
  static constexpr unsigned int kDestIpDiff = 0x20000;
  static constexpr unsigned int kDestMaskDiff = 0x10000;
  static constexpr unsigned int kRemoved = 0x8000;
  static constexpr unsigned int kNew = 0x4000;
  static constexpr unsigned int kNextHopDiff = 0x2000;
  static constexpr unsigned int kOutIfDiff = 0x1000;
  static constexpr unsigned int kAlgDiff = 0x800;
  static constexpr unsigned int kDistanceDiff = 0x400;
  static constexpr unsigned int kMetricDiff = 0x200;
  static constexpr unsigned int kGroupDiff = 0x100;
  static constexpr unsigned int kCarried = 0x8;
  // Flag word value that leaves metrics out of the comparison.
  static constexpr unsigned int kIgnoreMetric = 1;

  RoutingTableCmp(RTCmpElement* source = nullptr, RTCmpElement* destination = nullptr);
  virtual ~RoutingTableCmp() = default;

  void SetSrcRT(RTCmpElement* source) { m_source = source; }
  void SetDstRT(RTCmpElement* destination) { m_destination = destination; }
  void setFlag(unsigned int flag) { m_flag |= flag; }
  unsigned int getFlag() const { return m_flag; }

  // Replaces the results. The equal count goes on adding across runs.
  bool CompareRT(bool keepEqual, SubnetListData* subnets);
  // As CompareRT, pairing routes by the fields of `key` and testing the others.
  bool CompareRTEx(bool keepEqual, SubnetListData* subnets, const std::vector<CompareItem>& key);

  std::vector<RTCmpEntry>& GetCmpEntryList() { return m_results; }
  unsigned int GetEqualCount() const { return m_equalCount; }
  bool GetKeepEqual() const { return m_keepEqual; }

  bool SaveRTCmpData(const char* path);
  bool ReadRTCmpData(const char* path);

 protected:
  using EntryList = std::vector<RoutingTableEntry*>;

  unsigned int CompareEntry(const RoutingTableEntry* a, const RoutingTableEntry* b) const;
  unsigned int CompareEntryEx(const RoutingTableEntry* a, const RoutingTableEntry* b,
                              const std::vector<CompareItem>& key) const;
  bool EntryIsEqual(const RoutingTableEntry* a, const RoutingTableEntry* b,
                    const std::vector<CompareItem>& key) const;
  bool CmpDestIpMask(const RoutingTableEntry* a, const RoutingTableEntry* b) const;
  void CmpLBEntryList(EntryList& sources, EntryList& destinations);
  void CmpOther(EntryList& sources, EntryList& destinations, const std::vector<CompareItem>& key);
  void ForEntryComparable(EntryList& destinations, RoutingTableEntry* route);

 private:
  bool CollectEntries(RTCmpElement* side, SubnetListData* subnets, EntryList& out) const;
  void Record(unsigned int code, unsigned int src, unsigned int dst);
  // Pairs a group; `code` decides what counts as the same route.
  template <typename CodeFn>
  void MatchGroups(EntryList& sources, EntryList& destinations, CodeFn code);

  std::vector<RTCmpEntry> m_results;
  bool m_keepEqual = true;
  unsigned int m_equalCount = 0;
  RTCmpElement* m_source = nullptr;
  RTCmpElement* m_destination = nullptr;
  unsigned int m_flag = 0;
};
