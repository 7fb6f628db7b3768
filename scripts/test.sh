#!/usr/bin/env bash
# Installs what is missing, configures, builds and runs every test.
#   scripts/test.sh              the normal build, in build/
#   scripts/test.sh --sanitize   AddressSanitizer + UndefinedBehaviorSanitizer, in build-asan/
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh

build=build
flags=(-DCMAKE_BUILD_TYPE=RelWithDebInfo)
if [[ "${1:-}" == "--sanitize" ]]; then
  build=build-asan
  flags=(-DCMAKE_BUILD_TYPE=Debug -DNETLOOM_SANITIZE=address,undefined)
  export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0:strict_string_checks=1:detect_stack_use_after_return=0"
  export LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp:print_suppressions=0"
  export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
fi

cmake -S . -B "$build" -G Ninja "${flags[@]}"
cmake --build "$build"
ctest --test-dir "$build" --output-on-failure -j "$(nproc)"
