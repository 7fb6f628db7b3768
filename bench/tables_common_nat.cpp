// Common tables of 100,000 lines by 10 columns with two key columns: load,
// save, and both comparers on two tables that differ in 1% of lines. NAT:
// packets through a table of 1,000 rules.
//
// The input files are written to $NETLOOM_BENCH_DIR (default /tmp/netloom-bench)
// so that bench/run_tables_peer.sh can time pandas on the very same bytes.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <list>
#include <random>

#include "netloom/commontable.h"
#include "netloom/nattable.h"

namespace {

std::string BenchDir() {
  const char* d = std::getenv("NETLOOM_BENCH_DIR");
  std::string dir = d && *d ? d : "/tmp/netloom-bench";
  std::filesystem::create_directories(dir);
  return dir + "/";
}

// Writes a common table; lines whose number is a multiple of `changeEvery` get another state.
std::string WriteTable(const std::string& name, int lines, int changeEvery) {
  const std::string path = BenchDir() + name;
  std::ofstream out(path, std::ios::trunc);
  out << "version:1.0,procedure:interfaces,hostname:core1,tablename:intf\n"
         "key fields,device,interface\nignore fields,inPackets\n"
         "device,interface,state,speed,duplex,mtu,vlan,description,inPackets,address\n";
  for (int i = 0; i < lines; ++i) {
    const bool changed = changeEvery > 0 && i % changeEvery == 0;
    out << "sw" << i / 48 << ",Gi1/0/" << i % 48 << "," << (changed ? "down" : "up") << ",1000,full,1500,"
        << 10 + i % 200 << ",\"access port " << i << ", floor " << i % 7 << "\"," << i * 13 << ",10."
        << (i >> 16 & 255) << "." << (i >> 8 & 255) << "." << (i & 255) << "\n";
  }
  return path;
}

const std::string& LeftFile() {
  static const std::string p = WriteTable("common_left.csv", 100000, 0);
  return p;
}
const std::string& RightFile() {
  static const std::string p = WriteTable("common_right.csv", 100000, 100);
  return p;
}

void BM_CommonTableLoad(benchmark::State& state) {
  const std::string path = LeftFile();
  const auto bytes = std::filesystem::file_size(path);
  for (auto _ : state) {
    CommonTable t;
    benchmark::DoNotOptimize(t.LoadCommonTable(path, false));
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
  state.counters["lines"] = 100000;
}
BENCHMARK(BM_CommonTableLoad)->Unit(benchmark::kMillisecond);

void BM_CommonTableSave(benchmark::State& state) {
  CommonTable t;
  t.LoadCommonTable(LeftFile(), false);
  const std::string out = BenchDir() + "common_saved.csv";
  for (auto _ : state) benchmark::DoNotOptimize(t.SaveCommonTable(out));
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * std::filesystem::file_size(out)));
}
BENCHMARK(BM_CommonTableSave)->Unit(benchmark::kMillisecond);

void BM_CommonTableCompare(benchmark::State& state) {
  CommonTable l, r;
  l.LoadCommonTable(LeftFile(), false);
  r.LoadCommonTable(RightFile(), false);
  size_t diffs = 0;
  for (auto _ : state) {
    std::list<CommonTableCompareResult> out;
    if (state.range(0) == 0) {
      CommonTable::DiffInDetailBetweenTwoTable(l, r, out);
    } else {
      CommonTable::DiffInDetailBetweenTwoTableCA(l, r, out);
    }
    diffs = 0;
    for (const auto& x : out) diffs += x.GetCompareTableResult() != CommonTableCompareResult::m_iSame;
  }
  state.counters["differing"] = static_cast<double>(diffs);
  state.SetLabel(state.range(0) == 0 ? "plain (in order)" : "CA (keyed)");
}
BENCHMARK(BM_CommonTableCompare)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_NatTranslate(benchmark::State& state) {
  NATTable table;
  for (int i = 0; i < 1000; ++i) {
    NATEntry e;
    e.InsideLocal = "10." + std::to_string(i / 250) + "." + std::to_string(i % 250) + ".0/24";
    e.InsideGlobal = "203.0." + std::to_string(i / 250) + "." + std::to_string(i % 250);
    table.AppendEntry(&e);
  }
  std::mt19937 rng(1);
  std::vector<L3Packet> packets;
  for (int i = 0; i < 4096; ++i) {
    const int rule = static_cast<int>(rng() % 1100);  // about 9% match no rule
    packets.emplace_back("10." + std::to_string(rule / 250) + "." + std::to_string(rule % 250) + "." +
                             std::to_string(rng() % 250 + 1),
                         "198.51.100.7", 6, 1024, 443);
  }
  size_t matched = 0, i = 0;
  for (auto _ : state) {
    L3Packet p = packets[i++ & 4095];
    matched += table.LocalToGlobal(p) != nullptr;
  }
  state.SetItemsProcessed(static_cast<int64_t>(state.iterations()));
  state.counters["matched%"] = 100.0 * static_cast<double>(matched) / static_cast<double>(state.iterations());
}
BENCHMARK(BM_NatTranslate)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
