// Feeds arbitrary bytes to the common-table, STP, NAT and bound-interface
// readers. Whatever loads must survive its queries and compares, and a common
// table that loaded must read back the same through its own writer.
#include <cstddef>
#include <cstdint>
#include <list>
#include <sstream>
#include <string>
#include <vector>

#include "netloom/boundinterfacetable.h"
#include "netloom/commontable.h"
#include "netloom/nattable.h"
#include "netloom/stptable.h"

namespace {
struct NatReader : NATTable {
  using NATTable::LoadFromStram;
};
struct BoundReader : BoundInterfaceTable {
  using BoundInterfaceTable::LoadFromStream;
};
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);

  CommonTable table;
  if (table.LoadCommonTableForTest(text.c_str())) {
    std::list<CommonTableCompareResult> out;
    CommonTable copy = table;
    CommonTable::DiffInDetailBetweenTwoTable(table, copy, out);
    CommonTable::DiffInDetailBetweenTwoTableCA(table, copy, out);
    (void)CommonTable::IsSameBetweenTwoTable(table, copy);
    std::vector<std::string> line;
    for (int i = 0; i < table.GetRecordCount() && i < 50; ++i) table.GetLineValues(i, line);
  }

  STPTable stp;
  if (stp.LoadStpData(text.c_str())) {
    std::vector<STPTablePair> pairs;
    STPTable other = stp;
    stp.GetStpCompareResult(stp, other, pairs);
    std::set<int> vlans{1, 10, 100}, blocked;
    if (stp.GetCount() > 0) stp.GetBlockedVlans(stp[0].BlockedPort, vlans, blocked);
  }

  NatReader nat;
  std::istringstream natIn(text);
  if (nat.LoadFromStram(natIn)) {
    L3Packet packet("10.0.0.1", "192.0.2.1", 6, 1000, 80);
    (void)nat.LocalToGlobal(packet);
    (void)nat.GlobalToLocal(packet);
    (void)nat.FilterByAddress(NetAddress(std::string("10.0.0.1")));
  }
  (void)NATEntry::CheckIsValidIps(text);

  BoundReader bound;
  std::istringstream boundIn(text);
  if (bound.LoadFromStream(boundIn) && !bound.GetAllEntries().empty())
    (void)bound.FindEntries(bound.GetAllEntries().begin()->DeviceName);
  return 0;
}
