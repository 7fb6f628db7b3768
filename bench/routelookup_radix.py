#!/usr/bin/python3
"""Peer measurement for bench_routelookup: Debian's python3-radix (a C radix
tree behind a Python API) on the same prefixes and probes that the C++
benchmark wrote. Run bench_routelookup first; then

    /usr/bin/python3 bench/routelookup_radix.py [DATA_DIR] [SIZE ...]

Reports build time, memory per route (resident set growth), and
search_best time per lookup with dotted-text probes (the packed= form of
search_best fails under Python 3.11 in this release: "PY_SSIZE_T_CLEAN
macro must be defined for '#' formats"). The
per-call cost of the Python interpreter is part of what this peer costs a
caller, so it is measured, not subtracted.
"""
import os
import sys
import time

import radix


def rss_bytes():
    with open("/proc/self/statm") as f:
        return int(f.read().split()[1]) * os.sysconf("SC_PAGE_SIZE")


def run(data_dir, size, probe_count=200000):
    with open(os.path.join(data_dir, "prefixes_%d.txt" % size)) as f:
        prefixes = [line.strip() for line in f if line.strip()]
    with open(os.path.join(data_dir, "probes_%d.txt" % size)) as f:
        probes = [line.strip() for line in f][:probe_count]

    before = rss_bytes()
    t0 = time.perf_counter()
    tree = radix.Radix()
    for i, p in enumerate(prefixes):
        tree.add(p).data["i"] = i + 1
    build = time.perf_counter() - t0
    grown = rss_bytes() - before

    t0 = time.perf_counter()
    hits = 0
    for p in probes:
        if tree.search_best(p) is not None:
            hits += 1
    text_ns = (time.perf_counter() - t0) / len(probes) * 1e9

    print("radix size=%d build_ms=%.0f routes_per_s=%.0f bytes_per_route=%.0f "
          "search_best_ns=%.0f lookups_per_s=%.0f hits=%d/%d"
          % (size, build * 1e3, len(prefixes) / build, grown / len(prefixes),
             text_ns, 1e9 / text_ns, hits, len(probes)))


def main():
    data_dir = sys.argv[1] if len(sys.argv) > 1 else os.environ.get("NETLOOM_BENCH_DATA", "/tmp/netloom-bench")
    sizes = [int(s) for s in sys.argv[2:]] or [10000, 100000, 900000]
    for size in sizes:
        run(data_dir, size)


if __name__ == "__main__":
    main()
