// Feeds arbitrary bytes to the ARP table readers. Whatever loads must survive
// every query, and a table the CSV import accepted must come back unchanged
// through its own writer and compare equal to itself.
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include "netloom/arptable.h"
#include "netloom/commontablecompareresult.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);

  ArpTable loaded;
  std::istringstream in(text);
  if (!loaded.LoadArpTable(in)) __builtin_trap();
  if (loaded.GetCount() > 0) {
    const std::string ip = loaded[loaded.GetCount() - 1].Ip;
    (void)loaded.FindMacfromArpTable(ip);
    ArpTable filtered;
    loaded.FilterArpTableWithIp(filtered, ip.substr(0, 3));
    loaded.FilterArpTableWithMac(filtered, "a");
    loaded.FilterArpTableWithPort(filtered, "");
    loaded.SetIndexValid();
    loaded.RemoveArpRecord(0u);
    (void)loaded.GenLogOfUnmormalIndex();
    (void)loaded.FindMacfromArpTable(ip);
    loaded.RemoveArpRecord(loaded.GetCount() + 3);
  }

  ArpTable imported;
  std::istringstream again(text);
  if (!imported.ImportArpTable(again, "fuzz", 0)) return 0;

  std::ostringstream out;
  if (!imported.SaveArpTable(out)) __builtin_trap();
  ArpTable back;
  std::istringstream reread(out.str());
  if (!back.ImportArpTable(reread, "fuzz", 0) || back.GetCount() != imported.GetCount()) __builtin_trap();
  for (unsigned i = 0; i < back.GetCount(); ++i)
    if (back[i].Ip != imported[i].Ip || back[i].Mac != imported[i].Mac || back[i].Interface != imported[i].Interface)
      __builtin_trap();

  std::vector<ArpRecordPair> pairs;
  imported.GetArpCompareResult(imported, back, pairs);
  if (pairs.size() != imported.GetCount()) __builtin_trap();
  for (const ArpRecordPair& p : pairs)
    if (p.Result != CommonTableCompareResult::m_iSame) __builtin_trap();
  return 0;
}
