#!/usr/bin/env bash
# Fuzzing campaign over every reader of outside text or bytes.
#   scripts/fuzz.sh [SECONDS] [TARGET...]
# Builds the libFuzzer targets with clang, ASan and UBSan (the library itself
# carries coverage counters), then runs each target SECONDS (default 600) from
# its checked-in seeds and dictionary. Grown corpora and findings stay under
# build-fuzz/ (not in git). Exits non-zero on any crash, leak, sanitizer report
# or time-out, after printing what each target did.
#   FUZZ_JOBS=N   targets run side by side (default: the number of cores)
set -euo pipefail
cd "$(dirname "$0")/.."
top=$PWD

seconds=${1:-600}
[[ "$seconds" =~ ^[0-9]+$ ]] || { echo "usage: scripts/fuzz.sh [SECONDS] [TARGET...]" >&2; exit 2; }
shift || true

bash scripts/install-deps.sh
build=build-fuzz
CC=clang CXX=clang++ cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DNETLOOM_BUILD_FUZZ=ON -DNETLOOM_BUILD_TESTS=OFF -DNETLOOM_BUILD_TOOLS=OFF \
  -DNETLOOM_SANITIZE=address,undefined >/dev/null
cmake --build "$build"

targets=("$@")
if ((${#targets[@]} == 0)); then
  for src in tests/fuzz/*.cpp; do targets+=("$(basename "$src" .cpp)"); done
fi

export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1:strict_string_checks=1"
export LSAN_OPTIONS="suppressions=$top/tests/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
# Readers that load resources or Python find them in the tree, never in a prefix.
export NETLOOM_RESOURCE_DIR="$top/resources/"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export NETLOOM_TEMP_DIR="$scratch/tmp/" NETLOOM_CONF_DIR="$scratch/conf/" NETLOOM_LOG_DIR="$scratch/log/"

mkdir -p "$build/corpus" "$build/findings" "$build/logs"
run_one() {
  local name=$1 exe="$build/tests/fuzz/fuzz_$1" corpus="$build/corpus/$1"
  mkdir -p "$corpus"
  local args=(-max_total_time="$seconds" -timeout=20 -rss_limit_mb=3072 -print_final_stats=1
              -artifact_prefix="$build/findings/$name-" "$corpus")
  [[ -d "tests/fuzz/${name}_seeds" ]] && args+=("tests/fuzz/${name}_seeds")
  [[ -f "tests/fuzz/$name.dict" ]] && args=(-dict="tests/fuzz/$name.dict" "${args[@]}")
  if "$exe" "${args[@]}" >"$build/logs/$name.log" 2>&1; then echo "$name ok"; else echo "$name FAILED"; fi
}
export -f run_one
export build seconds

jobs=${FUZZ_JOBS:-$(nproc)}
printf '%s\n' "${targets[@]}" | xargs -P "$jobs" -I{} bash -c 'run_one {}' | sort >"$build/results.txt"

# One line a target: the final counters libFuzzer prints.
failed=0
printf '%-22s %-7s %12s %8s %8s %10s\n' target result executions cov ft corpus
while read -r name result; do
  log="$build/logs/$name.log"
  runs=$(grep -o 'stat::number_of_executed_units: *[0-9]*' "$log" | grep -o '[0-9]*$' || true)
  last=$(grep -E '^#[0-9]+' "$log" | tail -n 1 || true)
  cov=$(grep -o 'cov: [0-9]*' <<<"$last" | grep -o '[0-9]*' || true)
  ft=$(grep -o 'ft: [0-9]*' <<<"$last" | grep -o '[0-9]*' || true)
  corp=$(grep -o 'corp: [0-9]*' <<<"$last" | grep -o '[0-9]*' || true)
  printf '%-22s %-7s %12s %8s %8s %10s\n' "$name" "$result" "${runs:--}" "${cov:--}" "${ft:--}" "${corp:--}"
  if [[ "$result" != ok ]]; then
    failed=1
    echo "---- $log (tail) ----"
    tail -n 40 "$log"
  fi
done <"$build/results.txt"
exit "$failed"
