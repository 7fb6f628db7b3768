// Interface-name normalisation calls per second, answered from the cache
// (a small working set of names and drivers) and from the table (a new
// driver id on every call, so every call misses and the cache keeps
// pruning), from one and two threads.
#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdlib>
#include <string>
#include <vector>

#include "netloom/ifnametransfermgr.h"

namespace {

const char* const kNames[] = {"Gi0/1", "Te1/1/1", "Po10", "Lo0", "Vl20", "Eth1/49", "Hu0/0/0/1", "Se0/0/0"};

IfNameTransfersMgr* Loaded() {
    static IfNameTransfersMgr* mgr = [] {
        ::setenv("NETLOOM_RESOURCE_DIR", NETLOOM_SOURCE_DIR "resources/", 0);
        IfNameTransfersMgr* m = IfNameTransfersMgr::Instant();
        if (!m->LoadData()) std::abort();
        return m;
    }();
    return mgr;
}

void BM_Cached(benchmark::State& state) {
    IfNameTransfersMgr* mgr = Loaded();
    const std::string drivers[] = {"ios", "nxos", "eos", "vrp"};
    size_t i = static_cast<size_t>(state.thread_index()) * 7;
    for (auto _ : state) {
        benchmark::DoNotOptimize(mgr->GetFullIfNameFromPossibleName(drivers[i % 4], kNames[i % 8]));
        ++i;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_Cached)->Threads(1)->Threads(2)->UseRealTime();

std::atomic<unsigned long> g_driver{0};

void BM_Uncached(benchmark::State& state) {
    IfNameTransfersMgr* mgr = Loaded();
    // Driver ids made ahead, so the loop times lookups, not string building.
    std::vector<std::string> drivers(1 << 16);
    for (auto& d : drivers) d = "driver-" + std::to_string(g_driver++);
    size_t i = 0;
    for (auto _ : state) {
        if (i == drivers.size()) {
            state.PauseTiming();
            for (auto& d : drivers) d = "driver-" + std::to_string(g_driver++);
            i = 0;
            state.ResumeTiming();
        }
        benchmark::DoNotOptimize(mgr->GetFullIfNameFromPossibleName(drivers[i], kNames[i % 8]));
        ++i;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_Uncached)->Threads(1)->Threads(2)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();
