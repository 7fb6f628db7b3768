// Route listing parse throughput (against TextFSM on the same text), the
// in-place conversion of a large listing file and its peak memory, CSV route
// files of 900k routes, and the comparison of two 900k tables.
//
// The TextFSM template is read from the shared peers folder beside the
// repository (../shared/peers), or from NETLOOM_PEERS_DIR.
//
//   bench_routefiles --benchmark_filter=TwFile    # memory figure: run it alone
//   bench_routefiles --benchmark_filter='Parse|Csv|Compare'
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "netloom/routingtable.h"
#include "netloom/routingtablecmp.h"
#include "routelisting.h"

namespace {

using netloom_bench::WriteListing;

std::string TempPath(const std::string& name) {
  const char* tmp = std::getenv("TMPDIR");
  return std::string(tmp ? tmp : "/tmp") + "/netloom_bench_" + name;
}

std::string PeersDir() {
  if (const char* dir = std::getenv("NETLOOM_PEERS_DIR")) return std::string(dir) + "/";
  return std::string(NETLOOM_SOURCE_DIR) + "../shared/peers/";
}

// Runs the TextFSM peer on a listing file; seconds spent parsing, or -1.
double RunPeer(const std::string& listing, size_t& records) {
  const std::string script = std::string(NETLOOM_SOURCE_DIR) + "bench/routeparse_peer.py";
  const std::string templ = PeersDir() + "cisco_ios_show_ip_route.textfsm";
  if (!std::filesystem::exists(templ)) return -1;
  const std::string cmd = "/usr/bin/python3 '" + script + "' '" + listing + "' '" + templ + "'";
  FILE* pipe = ::popen(cmd.c_str(), "r");
  if (!pipe) return -1;
  std::string out;
  char buf[512];
  while (std::fgets(buf, sizeof buf, pipe)) out += buf;
  if (::pclose(pipe) != 0) return -1;
  auto field = [&](const char* name) {
    const size_t at = out.find(std::string("\"") + name + "\": ");
    return at == std::string::npos ? -1.0 : std::atof(out.c_str() + at + std::strlen(name) + 4);
  };
  records = static_cast<size_t>(field("records"));
  return field("seconds");
}


// CPU time of this thread: the machine is shared, so wall time is noisy.
double ThreadCpuSeconds() {
  timespec ts{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
  return double(ts.tv_sec) + double(ts.tv_nsec) / 1e9;
}

// Peak resident memory since the last reset, in kB.
long StatusKb(const char* key) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.rfind(key, 0) == 0) return std::atol(line.c_str() + std::strlen(key));
  return -1;
}
void ResetPeakRss() { std::ofstream("/proc/self/clear_refs") << "5"; }

void BM_TwFileConversion(benchmark::State& state) {
  const size_t routes = static_cast<size_t>(state.range(0));
  const std::string path = TempPath("twfile.txt");
  size_t lines = 0, bytes = 0, converted = 0;
  long peakKb = 0;
  double seconds = 0;
  for (auto _ : state) {
    state.PauseTiming();
    {
      std::ofstream out(path, std::ios::binary | std::ios::trunc);
      lines = WriteListing(out, routes);
    }
    bytes = std::filesystem::file_size(path);
    ResetPeakRss();
    const long baseKb = StatusKb("VmRSS:");
    const double t0 = ThreadCpuSeconds();
    state.ResumeTiming();
    RoutingTable table("bench");
    const bool ok = table.ParseCmdString(("twfile://" + path).c_str(), nullptr, false);
    state.PauseTiming();
    seconds = ThreadCpuSeconds() - t0;
    peakKb = StatusKb("VmHWM:") - baseKb;
    RoutingTable back;
    converted = ok && back.ReadRTData(path.c_str()) ? back.GetSize() : 0;
    state.ResumeTiming();
  }
  std::filesystem::remove(path);
  if (converted < routes) state.SkipWithError("route file incomplete");
  state.counters["routes"] = double(converted);
  state.counters["cpu_s"] = seconds;
  state.counters["lines/s"] = double(lines) / seconds;
  state.counters["MB/s"] = double(bytes) / 1e6 / seconds;
  state.counters["peak_MB_above_base"] = double(peakKb) / 1024.0;
}

void BM_ParseListing(benchmark::State& state) {
  const size_t routes = static_cast<size_t>(state.range(0));
  std::ostringstream gen;
  const size_t lines = WriteListing(gen, routes);
  const std::string text = gen.str();
  size_t parsed = 0;
  double ourSeconds = 0;
  for (auto _ : state) {
    RoutingTable table("bench");
    const double t0 = ThreadCpuSeconds();
    table.ParseCmdString(text.c_str(), nullptr, false);
    ourSeconds = ThreadCpuSeconds() - t0;
    parsed = table.GetSize();
  }
  // Rates of the parse alone, without building the text or freeing the table.
  state.counters["lines"] = double(lines);
  state.counters["routes"] = double(parsed);
  state.counters["parse_s"] = ourSeconds;
  state.counters["lines/s"] = double(lines) / ourSeconds;
  state.counters["MB/s"] = double(text.size()) / 1e6 / ourSeconds;

  // The peer, once, on the same text.
  const std::string path = TempPath("listing.txt");
  { std::ofstream(path, std::ios::binary) << text; }
  size_t peerRecords = 0;
  const double peerSeconds = RunPeer(path, peerRecords);
  std::filesystem::remove(path);
  if (peerSeconds > 0) {
    state.counters["peer_lines/s"] = double(lines) / peerSeconds;
    state.counters["peer_records"] = double(peerRecords);
    state.counters["peer_seconds"] = peerSeconds;
    state.counters["ratio"] = peerSeconds / ourSeconds;
  }
}

void FillTable(RoutingTable& table, size_t routes, bool changeEveryHundredth) {
  RoutingTableEntry e;
  e.Alg = RT_ALG_OSPF;
  e.Distance = 110;
  e.OutIf = "GigabitEthernet0/1";
  for (size_t i = 0; i < routes; ++i) {
    e.Index = static_cast<unsigned>(i + 1);
    e.DestIp = IpAddress(0x0B000000u + static_cast<unsigned>(i) * 64u);
    e.DestMask = IpAddress(0xFFFFFFC0u);
    e.NextHop = IpAddress(0x0A000001u + static_cast<unsigned>(i % 8));
    e.Metric = static_cast<unsigned>(i % 1000) + ((changeEveryHundredth && i % 100 == 0) ? 1 : 0);
    e.TimeStamp = 3600;
    table.AppendRoute(&e);
  }
}

void BM_CsvSaveAndRead(benchmark::State& state) {
  const size_t routes = static_cast<size_t>(state.range(0));
  RoutingTable table("bench");
  FillTable(table, routes, false);
  const std::string path = TempPath("routes.csv");
  double saveSeconds = 0, readSeconds = 0;
  for (auto _ : state) {
    auto t0 = std::chrono::steady_clock::now();
    if (!table.SaveRTData(path.c_str())) state.SkipWithError("save failed");
    auto t1 = std::chrono::steady_clock::now();
    RoutingTable back;
    if (!back.ReadRTData(path.c_str()) || back.GetSize() != routes) state.SkipWithError("read failed");
    auto t2 = std::chrono::steady_clock::now();
    saveSeconds = std::chrono::duration<double>(t1 - t0).count();
    readSeconds = std::chrono::duration<double>(t2 - t1).count();
  }
  state.counters["file_MB"] = double(std::filesystem::file_size(path)) / 1e6;
  state.counters["save_s"] = saveSeconds;
  state.counters["read_s"] = readSeconds;
  std::filesystem::remove(path);
}

void BM_CompareRT(benchmark::State& state) {
  const size_t routes = static_cast<size_t>(state.range(0));
  RoutingTable left("left"), right("right");
  FillTable(left, routes, false);
  FillTable(right, routes, true);
  RTCmpElement a{&left, nullptr}, b{&right, nullptr};
  size_t differences = 0;
  for (auto _ : state) {
    RoutingTableCmp cmp(&a, &b);
    cmp.CompareRT(false, nullptr);
    differences = cmp.GetCmpEntryList().size();
  }
  state.counters["routes"] = double(routes);
  state.counters["differences"] = double(differences);
}

}  // namespace

BENCHMARK(BM_TwFileConversion)->Arg(1000000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ParseListing)->Arg(420000)->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CsvSaveAndRead)->Arg(900000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CompareRT)->Arg(900000)->Iterations(1)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
