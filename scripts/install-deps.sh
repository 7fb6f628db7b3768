#!/usr/bin/env bash
# Installs every Debian package Netloom needs. Idempotent and non-interactive.
#   scripts/install-deps.sh          build and test dependencies
#   scripts/install-deps.sh --bench  also the peers the benchmarks measure against
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config ccache clang libclang-rt-14-dev
  libboost-dev libboost-regex-dev libboost-thread-dev libboost-filesystem-dev
  libboost-system-dev libboost-python-dev
  python3-dev
  liblog4cpp5-dev rapidjson-dev libpugixml-dev libsqlite3-dev sqlite3 libssl-dev
  libgtest-dev libgmock-dev libbenchmark-dev libcli11-dev
)
if [[ "${1:-}" == "--bench" ]]; then
  packages+=(python3-pandas python3-textfsm python3-radix python3-networkx
             python3-netaddr dpdk-dev librte-lpm23 perl)
fi

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if ((${#missing[@]})); then
  SUDO=""
  [[ $(id -u) -eq 0 ]] || SUDO="sudo"
  export DEBIAN_FRONTEND=noninteractive
  $SUDO apt-get update -qq
  $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
