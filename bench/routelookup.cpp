// Route lookup costs on device-sized and Internet-sized tables: our
// GetMatchedRoutingEntry and LookUp, building a table by AddRoute, the
// memory one route takes, and DPDK's rte_lpm on the same prefixes and
// probes. The prefixes and probes are also written to files so that the
// Python peer (routelookup_radix.py) measures the very same inputs.
//
// Environment: NETLOOM_BENCH_DATA (default /tmp/netloom-bench) for the files.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <unordered_set>
#include <vector>

#include "netloom/routingtable.h"

#ifdef NETLOOM_HAVE_DPDK
#include <rte_eal.h>
#include <rte_errno.h>
#include <rte_lpm.h>
#endif

namespace {

struct Prefix {
    unsigned int addr;
    int len;
};

// Length mix of a full Internet table: mostly /24, many /16-/23, a few
// shorter and longer ones, and one default route.
int DrawLength(std::mt19937& rng) {
    unsigned int r = rng() % 1000;
    if (r < 590) return 24;
    if (r < 890) return 16 + int(rng() % 8);  // /16 - /23
    if (r < 940) return 8 + int(rng() % 8);   // /8 - /15
    return 25 + int(rng() % 8);               // /25 - /32
}

unsigned int DrawUnicast(std::mt19937& rng) {
    for (;;) {
        unsigned int a = rng();
        unsigned int first = a >> 24;
        if (first >= 1 && first < 224 && first != 127) return a;
    }
}

struct Workload {
    std::vector<Prefix> prefixes;
    std::vector<unsigned int> probes;
};

constexpr size_t kProbes = 1u << 20;

const Workload& GetWorkload(size_t size) {
    static std::map<size_t, std::unique_ptr<Workload>> cache;
    auto& slot = cache[size];
    if (slot) return *slot;
    slot = std::make_unique<Workload>();
    std::mt19937 rng(static_cast<unsigned int>(size) * 2654435761u);
    std::unordered_set<uint64_t> seen;
    slot->prefixes.push_back({0, 0});
    seen.insert(0);
    while (slot->prefixes.size() < size) {
        int len = DrawLength(rng);
        unsigned int addr = DrawUnicast(rng) & IpAddress::getBitMaskByLength(len);
        if (seen.insert((uint64_t(addr) << 6) | unsigned(len)).second) slot->prefixes.push_back({addr, len});
    }
    // Probes: three in four fall inside a random table prefix (traffic goes
    // where routes are), the rest are random unicast addresses.
    slot->probes.reserve(kProbes);
    for (size_t i = 0; i < kProbes; ++i) {
        if (rng() % 4 != 0) {
            const Prefix& p = slot->prefixes[1 + rng() % (slot->prefixes.size() - 1)];
            slot->probes.push_back(p.addr | (rng() & ~IpAddress::getBitMaskByLength(p.len)));
        } else {
            slot->probes.push_back(DrawUnicast(rng));
        }
    }

    const char* env = std::getenv("NETLOOM_BENCH_DATA");
    std::filesystem::path dir = env != nullptr ? env : "/tmp/netloom-bench";
    std::filesystem::create_directories(dir);
    std::ofstream pf(dir / ("prefixes_" + std::to_string(size) + ".txt"));
    for (const Prefix& p : slot->prefixes) pf << IpAddress(p.addr).textForm() << '/' << p.len << '\n';
    std::ofstream qf(dir / ("probes_" + std::to_string(size) + ".txt"));
    for (unsigned int a : slot->probes) qf << IpAddress(a).textForm() << '\n';
    return *slot;
}

std::unique_ptr<RoutingTable> BuildTable(const Workload& w) {
    auto table = std::make_unique<RoutingTable>("bench");
    RoutingTableEntry e;
    e.NextHop = IpAddress(0x0A000001u);
    e.OutIf = "Gi0/0";
    e.Distance = 110;
    e.Metric = 20;
    e.Alg = RT_ALG_OSPF;
    for (const Prefix& p : w.prefixes) {
        e.DestIp = IpAddress(p.addr);
        e.DestMask = IpAddress(IpAddress::getBitMaskByLength(p.len));
        table->AddRoute(&e);
    }
    return table;
}

RoutingTable& GetTable(size_t size) {
    static std::map<size_t, std::unique_ptr<RoutingTable>> cache;
    auto& slot = cache[size];
    if (!slot) slot = BuildTable(GetWorkload(size));
    return *slot;
}

void SetRate(benchmark::State& state) {
    state.counters["lookups_per_s"] = benchmark::Counter(double(state.iterations()), benchmark::Counter::kIsRate);
}

void BM_GetMatchedRoutingEntry(benchmark::State& state) {
    const size_t size = size_t(state.range(0));
    const Workload& w = GetWorkload(size);
    RoutingTable& table = GetTable(size);
    std::vector<RoutingTableEntry*> out;
    size_t i = 0, hits = 0;
    for (auto _ : state) {
        IpAddress probe(w.probes[i++ & (kProbes - 1)]);
        hits += table.GetMatchedRoutingEntry(probe, out);
        benchmark::DoNotOptimize(out.data());
    }
    benchmark::DoNotOptimize(hits);
    SetRate(state);
}

void BM_LookUp(benchmark::State& state) {
    const size_t size = size_t(state.range(0));
    const Workload& w = GetWorkload(size);
    RoutingTable& table = GetTable(size);
    size_t i = 0;
    for (auto _ : state) {
        auto found = table.LookUp(IpAddress(w.probes[i++ & (kProbes - 1)]), true);
        benchmark::DoNotOptimize(found.data());
    }
    SetRate(state);
}

// Heap in use, small blocks and the large ones malloc maps on its own.
size_t HeapInUse() {
    struct mallinfo2 mi = mallinfo2();
    return mi.uordblks + mi.hblkhd;
}

// Whole-table build by AddRoute and a first lookup; also reports the heap
// bytes per route.
void BM_BuildTable(benchmark::State& state) {
    const Workload& w = GetWorkload(size_t(state.range(0)));
    double bytesPerRoute = 0;
    for (auto _ : state) {
        const size_t before = HeapInUse();
        auto table = BuildTable(w);
        // The first lookup builds the key index: part of being ready.
        benchmark::DoNotOptimize(table->LookUp(IpAddress(w.probes[0]), true).size());
        const size_t after = HeapInUse();
        bytesPerRoute = double(after - before) / double(w.prefixes.size());
        state.PauseTiming();
        table.reset();
        state.ResumeTiming();
    }
    state.counters["bytes_per_route"] = bytesPerRoute;
    state.counters["routes_per_s"] =
        benchmark::Counter(double(state.iterations() * w.prefixes.size()), benchmark::Counter::kIsRate);
}

#ifdef NETLOOM_HAVE_DPDK
bool g_eal = false;

// Kept to the end of the process: EAL cleanup releases their memory.
struct Lpm {
    rte_lpm* lpm = nullptr;
};

rte_lpm* BuildLpm(const Workload& w, const std::string& name) {
    rte_lpm_config config{};
    config.max_rules = static_cast<uint32_t>(w.prefixes.size() + 16);
    config.number_tbl8s = 1u << 17;
    rte_lpm* lpm = rte_lpm_create(name.c_str(), 0 /* SOCKET_ID_ANY may fail without NUMA info */, &config);
    if (lpm == nullptr) lpm = rte_lpm_create(name.c_str(), -1, &config);
    if (lpm == nullptr) {
        std::fprintf(stderr, "rte_lpm_create: %s\n", rte_strerror(rte_errno));
        return nullptr;
    }
    // Next hop = the route's Index in our table (Index = position + 1).
    // rte_lpm takes depths 1 to 32: the default route becomes two /1s.
    for (size_t i = 0; i < w.prefixes.size(); ++i) {
        const Prefix& p = w.prefixes[i];
        int rc = p.len == 0 ? rte_lpm_add(lpm, 0u, 1, uint32_t(i + 1)) | rte_lpm_add(lpm, 0x80000000u, 1, uint32_t(i + 1))
                            : rte_lpm_add(lpm, p.addr, uint8_t(p.len), uint32_t(i + 1));
        if (rc != 0) {
            std::fprintf(stderr, "rte_lpm_add: %s\n", rte_strerror(-rc));
            rte_lpm_free(lpm);
            return nullptr;
        }
    }
    return lpm;
}

rte_lpm* GetLpm(size_t size) {
    static std::map<size_t, std::unique_ptr<Lpm>> cache;
    auto& slot = cache[size];
    if (!slot) {
        slot = std::make_unique<Lpm>();
        slot->lpm = BuildLpm(GetWorkload(size), "nl" + std::to_string(size));
    }
    return slot->lpm;
}

void BM_RteLpmLookup(benchmark::State& state) {
    if (!g_eal) {
        state.SkipWithError("DPDK EAL did not start");
        return;
    }
    const size_t size = size_t(state.range(0));
    const Workload& w = GetWorkload(size);
    rte_lpm* lpm = GetLpm(size);
    if (lpm == nullptr) {
        state.SkipWithError("rte_lpm_create/add failed");
        return;
    }
    // Both structures must answer alike, or the comparison means nothing.
    RoutingTable& table = GetTable(size);
    size_t disagree = 0;
    for (size_t k = 0; k < 20000; ++k) {
        uint32_t hop = 0;
        IpAddress probe(w.probes[k]);
        std::vector<RoutingTableEntry*> out;
        bool ours = table.GetMatchedRoutingEntry(probe, out);
        bool theirs = rte_lpm_lookup(lpm, w.probes[k], &hop) == 0;
        if (ours != theirs || (ours && out.front()->Index != hop)) ++disagree;
    }
    state.counters["disagreements_of_20000"] = double(disagree);
    size_t i = 0;
    uint32_t sum = 0;
    for (auto _ : state) {
        uint32_t hop = 0;
        rte_lpm_lookup(lpm, w.probes[i++ & (kProbes - 1)], &hop);
        sum += hop;
    }
    benchmark::DoNotOptimize(sum);
    SetRate(state);
}

void BM_RteLpmBuild(benchmark::State& state) {
    if (!g_eal) {
        state.SkipWithError("DPDK EAL did not start");
        return;
    }
    const Workload& w = GetWorkload(size_t(state.range(0)));
    int round = 0;
    for (auto _ : state) {
        rte_lpm* lpm = BuildLpm(w, "build" + std::to_string(round++));
        if (lpm == nullptr) {
            state.SkipWithError("rte_lpm_create/add failed");
            return;
        }
        state.PauseTiming();
        rte_lpm_free(lpm);
        state.ResumeTiming();
    }
    state.counters["routes_per_s"] =
        benchmark::Counter(double(state.iterations() * w.prefixes.size()), benchmark::Counter::kIsRate);
}
#endif

void Sizes(benchmark::internal::Benchmark* b) { b->Arg(10000)->Arg(100000)->Arg(900000); }

}  // namespace

BENCHMARK(BM_GetMatchedRoutingEntry)->Apply(Sizes);
BENCHMARK(BM_LookUp)->Apply(Sizes);
BENCHMARK(BM_BuildTable)->Apply(Sizes)->Iterations(1)->Unit(benchmark::kMillisecond);
#ifdef NETLOOM_HAVE_DPDK
BENCHMARK(BM_RteLpmLookup)->Apply(Sizes);
BENCHMARK(BM_RteLpmBuild)->Apply(Sizes)->Iterations(1)->Unit(benchmark::kMillisecond);
#endif

int main(int argc, char** argv) {
#ifdef NETLOOM_HAVE_DPDK
    // No hugepages, no devices, one core, memory from the ordinary heap.
    const char* ealArgs[] = {"netloom-bench", "--no-huge", "--no-pci", "-m", "1024", "-l", "0",
                             "--no-shconf", "--log-level=error", "--iova-mode=va"};
    int ealArgc = int(sizeof(ealArgs) / sizeof(ealArgs[0]));
    g_eal = rte_eal_init(ealArgc, const_cast<char**>(ealArgs)) >= 0;
    if (!g_eal) std::fprintf(stderr, "rte_eal_init failed: %s\n", rte_strerror(rte_errno));
#endif
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
#ifdef NETLOOM_HAVE_DPDK
    if (g_eal) rte_eal_cleanup();
#endif
    return 0;
}
