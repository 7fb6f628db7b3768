#!/usr/bin/env bash
# Builds Netloom and runs its tool on the bundled samples: parse a route
# listing, look up addresses, compare two days of routes and of ARP entries,
# hide the secrets of a configuration, expand interface names.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DNETLOOM_BUILD_TOOLS=ON >/dev/null
cmake --build build --target netloom_tool

nl=build/tools/netloom
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
step() { printf '\n\033[1m$ %s\033[0m\n' "$*"; "$@"; }

step $nl route parse samples/routes/core1-monday.txt -o "$work/core1-monday.csv"
step $nl route parse samples/routes/core1-tuesday.txt -o "$work/core1-tuesday.csv"
step $nl route parse samples/routes/branch-dotted.txt -o "$work/branch-dotted.csv"
step $nl route lookup "$work/core1-monday.csv" 20.0.12.5 10.255.255.1 10.0.0.6 8.8.8.8
step $nl route lookup --resolve "$work/core1-monday.csv" 203.0.113.115
step $nl route diff "$work/core1-monday.csv" "$work/core1-tuesday.csv"
step $nl arp diff samples/arp/core1-arp-monday.csv samples/arp/core1-arp-tuesday.csv
step $nl config hide --type 1 samples/config/edge1.cfg
step $nl ifname Gi0/1 Te1/0/1 Po1 Lo0 Vl10
