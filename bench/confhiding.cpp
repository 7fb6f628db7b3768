// Throughput of the one-pass secret hiding on a large configuration text.
//
// The text comes from NETLOOM_BENCH_CONFIG when set (the peer driver
// script writes one file for both contenders), otherwise it is generated
// here: about 100 MB of IOS-like configuration with 20 keywords.
// NETLOOM_BENCH_OUT, when set, receives the hidden text once, so the driver
// can check that both contenders produced the same bytes.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "netloom/conffilesecurity.h"

namespace {

const char kRules[] =
    "1|!|enable secret,enable password,username,snmp-server community,snmp-server host,tacacs-server key,"
    "radius-server key,key-string,crypto isakmp key,pre-shared-key,ip ospf authentication-key,"
    "ip ospf message-digest-key,ntp authentication-key,wpa-psk,isis password,area-password,domain-password,"
    "ppp chap password,password,secret\n";

std::string Generate(size_t bytes) {
    static const char* const keywords[] = {
        "enable secret", "username", "snmp-server community", "tacacs-server key", "key-string",
        "pre-shared-key", "ip ospf authentication-key", "ntp authentication-key", "password", "secret"};
    static const char* const plain[] = {
        "interface GigabitEthernet1/0/1", " description uplink to core", " switchport mode trunk",
        " switchport trunk allowed vlan 10,20,30", " ip address 10.20.30.40 255.255.255.0", "!",
        " no shutdown", "router ospf 100", " network 10.0.0.0 0.255.255.255 area 0", " spanning-tree portfast"};
    std::mt19937 rng(42);
    std::string text;
    text.reserve(bytes + 256);
    size_t n = 0;
    while (text.size() < bytes) {
        if (rng() % 8 == 0) {
            text += rng() % 2 ? " " : "";
            text += keywords[rng() % 10];
            text += " 7 0822455D0A16" + std::to_string(n++);
        } else {
            text += plain[rng() % 10];
        }
        text += '\n';
    }
    return text;
}

const std::string& Config() {
    static const std::string text = [] {
        if (const char* path = std::getenv("NETLOOM_BENCH_CONFIG")) {
            std::ifstream in(path, std::ios::binary);
            return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
        }
        return Generate(100u << 20);
    }();
    return text;
}

void BM_ModifyConfigFileContext1(benchmark::State& state) {
    CConfFileSecurity hiding;
    hiding.ParseFileString(kRules);
    const std::string& text = Config();
    std::string out;
    for (auto _ : state) {
        out = hiding.ModifyConfigFileContext1(text, 1);
        benchmark::DoNotOptimize(out.data());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(text.size()));
    state.counters["MB"] = static_cast<double>(text.size()) / 1e6;
    if (const char* path = std::getenv("NETLOOM_BENCH_OUT")) {
        std::ofstream(path, std::ios::binary | std::ios::trunc) << out;
    }
}
BENCHMARK(BM_ModifyConfigFileContext1)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

BENCHMARK_MAIN();
