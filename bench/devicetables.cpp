// Load, save and compare of the ARP, MAC and CDP tables on generated files of
// one large device, and the same files read by pandas (bench/devicetables_pandas.py)
// in the same run for a ratio of load times.
//
// The files go to a scratch folder; NETLOOM_CONF_DIR points at an empty
// folder so that no site filter list drops MAC rows.
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "netloom/arptable.h"
#include "netloom/cdptable.h"
#include "netloom/mactable.h"

namespace {

namespace fs = std::filesystem;

constexpr int kArpRows = 100000;
constexpr int kCdpRows = 100000;
constexpr int kMacRows = 20000;

std::string g_dir;

std::string MacText(uint64_t n) {
  char buf[32];
  std::snprintf(buf, sizeof buf, "%04x.%04x.%04x", static_cast<unsigned>((n >> 32) & 0xFFFF),
                static_cast<unsigned>((n >> 16) & 0xFFFF), static_cast<unsigned>(n & 0xFFFF));
  return buf;
}

std::string Ip(int n) {
  return "10." + std::to_string((n >> 16) & 0xFF) + "." + std::to_string((n >> 8) & 0xFF) + "." +
         std::to_string(n & 0xFF);
}

std::string ArpPath(int rows) { return g_dir + "arp_" + std::to_string(rows) + ".csv"; }
std::string MacPath(int rows) { return g_dir + "mac_" + std::to_string(rows) + ".csv"; }
std::string CdpPath(int rows) { return g_dir + "cdp_" + std::to_string(rows) + ".csv"; }

void WriteArp(int rows) {
  std::ofstream out(ArpPath(rows));
  out << "version:1.0,hostname:core-1\nInterface,IP Address,MAC Address,Vendor\n";
  for (int i = 0; i < rows; ++i)
    out << "Vlan" << (i % 4000) + 1 << ',' << Ip(i + 1) << ',' << MacText(0x00AA00000000ull + i * 7919ull) << ",Acme\n";
}

void WriteMac(int rows) {
  std::ofstream out(MacPath(rows));
  out << "version:1.0,hostname:access-1\nVLan ID,Mac Address,Port Name,Vendor,IP Address,DNS Name,VLan Name\n";
  for (int i = 0; i < rows; ++i)
    out << (i % 50) + 1 << ',' << MacText(0x00BB00000000ull + i * 104729ull) << ",GigabitEthernet1/0/" << (i % 48) + 1
        << ",Acme," << Ip(i + 1) << ",host" << i << ".example.net,vlan" << (i % 50) + 1 << '\n';
}

void WriteCdp(int rows) {
  std::ofstream out(CdpPath(rows));
  out << "version:100,name:core-1,translated:true\n"
         "ID,Local Interface,Device Name,Interface Name,Interface Address,Platform\n";
  for (int i = 0; i < rows; ++i)
    out << i + 1 << ",GigabitEthernet" << i / 48 << '/' << i % 48 << ",switch-" << i << ".example.net,"
        << "TenGigabitEthernet1/" << i % 8 << ',' << Ip(i + 1) << ",WS-C3850\n";
}

// The right side of a compare: every 20th row changed, every 100th gone.
void Perturb(std::vector<ArpRecord>& rows) {
  std::vector<ArpRecord> kept;
  for (size_t i = 0; i < rows.size(); ++i) {
    if (i % 100 == 99) continue;
    kept.push_back(rows[i]);
    if (i % 20 == 0) kept.back().Mac = "ffff.0000." + std::to_string(1000 + i % 9000);
  }
  rows.swap(kept);
}

ArpTable LoadArp(int rows) {
  ArpTable t;
  if (!t.LoadArpTable(ArpPath(rows), false) || t.GetCount() != static_cast<unsigned>(rows)) std::abort();
  return t;
}

MacTable LoadMac(int rows) {
  MacTable t;
  if (!t.LoadMacTable(MacPath(rows)) || t.GetRecordCount() != static_cast<unsigned>(rows)) std::abort();
  return t;
}

CDPTable LoadCdp(int rows) {
  CDPTable t;
  if (!t.LoadCdpTable(CdpPath(rows), false) || t.GetCdpEntryList().size() != static_cast<size_t>(rows)) std::abort();
  return t;
}

// ---------------------------------------------------------------- ARP

void BM_ArpLoad(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(LoadArp(rows));
  state.SetItemsProcessed(state.iterations() * rows);
}

void BM_ArpSave(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  ArpTable t = LoadArp(rows);
  const std::string path = g_dir + "arp_saved.csv";
  for (auto _ : state)
    if (!t.SaveArpTable(path)) state.SkipWithError("save failed");
  state.SetItemsProcessed(state.iterations() * rows);
}

void BM_ArpCompare(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  ArpTable left = LoadArp(rows), right = left;
  Perturb(right.GetRecords());
  for (auto _ : state) {
    std::vector<ArpRecordPair> out;
    left.GetArpCompareResult(left, right, out);
    benchmark::DoNotOptimize(out.data());
  }
  state.SetItemsProcessed(state.iterations() * rows);
}

// ---------------------------------------------------------------- MAC

// The full compare is protected; IsSameTable would stop at the first difference.
struct MacCompare : MacTable {
  using MacTable::GetMacCompareResult;
};

void BM_MacLoad(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(LoadMac(rows));
  state.SetItemsProcessed(state.iterations() * rows);
}

void BM_MacSave(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  MacTable t = LoadMac(rows);
  const std::string path = g_dir + "mac_saved.csv";
  for (auto _ : state)
    if (!t.SaveMacTable(path)) state.SkipWithError("save failed");
  state.SetItemsProcessed(state.iterations() * rows);
}

void BM_MacCompare(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  MacTable left = LoadMac(rows);
  MacTable right;
  unsigned n = 0;
  for (auto& port : left.GetPortMacMap())
    for (MacRecord r : port.second) {
      ++n;
      if (n % 100 == 0) continue;
      std::string name = port.first;
      if (n % 20 == 0) name = "GigabitEthernet2/0/1";  // moved
      r.PortName = name;
      right.InsertMacRecord(name, r);
    }
  for (auto _ : state) {
    std::vector<MacRecordPair> out;
    MacCompare::GetMacCompareResult(left, right, out, false);
    benchmark::DoNotOptimize(out.data());
  }
  state.SetItemsProcessed(state.iterations() * rows);
}

// ---------------------------------------------------------------- CDP

void BM_CdpLoad(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(LoadCdp(rows));
  state.SetItemsProcessed(state.iterations() * rows);
}

void BM_CdpSave(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  CDPTable t = LoadCdp(rows);
  const std::string path = g_dir + "cdp_saved.csv";
  for (auto _ : state)
    if (!t.SaveCdpTable(path)) state.SkipWithError("save failed");
  state.SetItemsProcessed(state.iterations() * rows);
}

CDPTable PerturbedCdp(const CDPTable& from) {
  CDPTable right = from;
  std::vector<CDPTableEntry> kept;
  auto& rows = right.GetCdpEntryList();
  for (size_t i = 0; i < rows.size(); ++i) {
    if (i % 100 == 99) continue;
    kept.push_back(rows[i]);
    if (i % 20 == 0) kept.back().InterfaceName = "Ethernet9/9";
  }
  rows.swap(kept);
  return right;
}

void BM_CdpCompare(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  CDPTable left = LoadCdp(rows);
  CDPTable right = PerturbedCdp(left);
  for (auto _ : state) {
    std::vector<CDPTableEntryPair> out;
    CDPTable::GetCdpCompareResult(left, right, out);
    benchmark::DoNotOptimize(out.data());
  }
  state.SetItemsProcessed(state.iterations() * rows);
}

void BM_CdpCompareCA(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  CDPTable left = LoadCdp(rows);
  CDPTable right = PerturbedCdp(left);
  for (auto _ : state) {
    std::vector<CDPTableEntryPair> out;
    CDPTable::GetCdpCompareResultCA(left, right, out, false);
    benchmark::DoNotOptimize(out.data());
  }
  state.SetItemsProcessed(state.iterations() * rows);
}

// The big sizes run once: the machine is shared.
#define NETLOOM_TABLE_BENCH(fn, rows) \
  BENCHMARK(fn)->Arg(rows)->Iterations(1)->Unit(benchmark::kMillisecond)->UseRealTime()

NETLOOM_TABLE_BENCH(BM_ArpLoad, kArpRows);
NETLOOM_TABLE_BENCH(BM_ArpSave, kArpRows);
NETLOOM_TABLE_BENCH(BM_ArpCompare, kArpRows);
NETLOOM_TABLE_BENCH(BM_MacLoad, kMacRows);
NETLOOM_TABLE_BENCH(BM_MacSave, kMacRows);
NETLOOM_TABLE_BENCH(BM_MacCompare, kMacRows);
NETLOOM_TABLE_BENCH(BM_CdpLoad, kCdpRows);
NETLOOM_TABLE_BENCH(BM_CdpSave, kCdpRows);
NETLOOM_TABLE_BENCH(BM_CdpCompare, kCdpRows);
NETLOOM_TABLE_BENCH(BM_CdpCompareCA, kCdpRows);

// Keeps the CPU times of the loads for the ratio against the peer.
class CapturingReporter : public benchmark::ConsoleReporter {
 public:
  std::map<std::string, double> cpuMillis;
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& r : runs) cpuMillis[r.benchmark_name()] = r.GetAdjustedCPUTime();
    ConsoleReporter::ReportRuns(runs);
  }
};

std::map<std::string, double> RunPeer(const std::vector<std::string>& files) {
  std::string cmd = "/usr/bin/python3 " + std::string(NETLOOM_SOURCE_DIR) + "bench/devicetables_pandas.py";
  for (const std::string& f : files) cmd += " '" + f + "'";
  std::map<std::string, double> seconds;
  FILE* pipe = ::popen(cmd.c_str(), "r");
  if (!pipe) return seconds;
  char path[4096];
  double s = 0;
  while (std::fscanf(pipe, "%4095s %lf", path, &s) == 2) seconds[path] = s;
  ::pclose(pipe);
  return seconds;
}

}  // namespace

int main(int argc, char** argv) {
  g_dir = (fs::temp_directory_path() / ("netloom-bench-tables-" + std::to_string(::getpid()))).string() + "/";
  fs::create_directories(g_dir + "conf");
  ::setenv("NETLOOM_CONF_DIR", (g_dir + "conf/").c_str(), 1);
  WriteArp(kArpRows);
  WriteMac(kMacRows);
  WriteCdp(kCdpRows);

  // One untimed load of each file first, so that the timed single runs don't
  // pay for the page cache and the first growth of the heap; the peer does the same.
  LoadArp(kArpRows);
  LoadMac(kMacRows);
  LoadCdp(kCdpRows);

  benchmark::Initialize(&argc, argv);
  CapturingReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();

  const std::vector<std::pair<std::string, std::string>> loads = {
      {"BM_ArpLoad/" + std::to_string(kArpRows) + "/iterations:1/real_time", ArpPath(kArpRows)},
      {"BM_MacLoad/" + std::to_string(kMacRows) + "/iterations:1/real_time", MacPath(kMacRows)},
      {"BM_CdpLoad/" + std::to_string(kCdpRows) + "/iterations:1/real_time", CdpPath(kCdpRows)}};
  std::vector<std::string> files;
  for (const auto& l : loads) files.push_back(l.second);
  const std::map<std::string, double> peer = RunPeer(files);
  // CPU time on both sides: the machine is shared, and wall time swings with its load.
  std::printf("\n%-44s %14s %16s %8s\n", "load of the same file", "ours (CPU ms)", "pandas (CPU ms)", "ratio");
  for (const auto& [name, file] : loads) {
    const auto ours = reporter.cpuMillis.find(name);
    const auto theirs = peer.find(file);
    if (ours == reporter.cpuMillis.end() || theirs == peer.end()) continue;
    const double peerMs = theirs->second * 1000.0;
    std::printf("%-44s %14.1f %16.1f %8.2f\n", fs::path(file).filename().c_str(), ours->second, peerMs,
                ours->second / peerMs);
  }
  std::error_code ec;
  fs::remove_all(g_dir, ec);
  return 0;
}
