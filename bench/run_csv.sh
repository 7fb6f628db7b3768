#!/usr/bin/env bash
# CSV throughput against pandas, same files, same run.
#   bench/run_csv.sh [build-dir]     (default: build-bench, configured here with -DNETLOOM_BUILD_BENCH=ON)
# Generates rows.csv (100,000 rows of 4 cells) and quoted.csv (50 MB of quoted
# cells with doubled quotes and line breaks), runs bench_csv and
# bench/csv_peer.py on them and prints MB/s and the ratio ours/peer.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build-bench}
if [[ ! -x "$build/bench/bench_csv" ]]; then
  cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DNETLOOM_BUILD_BENCH=ON \
    -DNETLOOM_BUILD_TESTS=OFF -DNETLOOM_BUILD_TOOLS=OFF >/dev/null
fi
cmake --build "$build" --target bench_csv >/dev/null

data=$(mktemp -d /tmp/netloom-csv-bench.XXXXXX)
trap 'rm -rf "$data"' EXIT
/usr/bin/python3 - "$data" <<'PY'
import os, random, sys
d = sys.argv[1]
rnd = random.Random(1)
with open(os.path.join(d, "rows.csv"), "w", newline="") as f:
    for i in range(100000):
        f.write("10.%d.%d.0/24,GigabitEthernet%d/%d,192.168.%d.%d,%d\n" % (
            i >> 8 & 255, i & 255, i % 4, i % 48, i % 256, rnd.randrange(256), rnd.randrange(100000)))
target = 50 * 1000 * 1000
with open(os.path.join(d, "quoted.csv"), "w", newline="") as f:
    size, i = 0, 0
    while size < target:
        note = "line one\nline two" if i % 10 == 0 else "plain note %d" % i
        row = '"host-%d, site %d","he said ""up"" at %d","%s",%d\n' % (i, i % 97, i, note, rnd.randrange(10**6))
        f.write(row)
        size += len(row)
        i += 1
PY

CSV_BENCH_DIR="$data" "$build/bench/bench_csv" --benchmark_format=json >"$data/ours.json"
/usr/bin/python3 bench/csv_peer.py "$data" >"$data/peer.json"

/usr/bin/python3 - "$data" <<'PY'
import json, os, sys
d = sys.argv[1]
ours = {b["name"].split("/")[0]: b for b in json.load(open(os.path.join(d, "ours.json")))["benchmarks"]}
peer = json.load(open(os.path.join(d, "peer.json")))
# pandas loads a whole frame: it stands beside both our row reader and our whole-file load.
for stem in ("Rows", "Quoted"):
    peer["BM_Load" + stem] = peer["BM_Read" + stem]
mb = lambda v: v / 1e6
print("%-16s %12s %12s %8s" % ("case", "ours MB/s", "pandas MB/s", "ratio"))
for name, b in ours.items():
    rate = b.get("bytes_per_second", 0.0)
    p = peer.get(name)
    if p:
        print("%-16s %12.1f %12.1f %8.1f" % (name, mb(rate), mb(p), rate / p))
    else:
        print("%-16s %12.1f %12s %8s" % (name, mb(rate), "-", "-"))
PY
