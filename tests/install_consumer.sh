#!/usr/bin/env bash
# Installs the build into a scratch prefix and builds the example consumer
# against it, so a broken install fails the tests.
set -euo pipefail
build_dir=$1; source_dir=$2
prefix=$(mktemp -d); work=$(mktemp -d)
trap 'rm -rf "$prefix" "$work"' EXIT
cmake --install "$build_dir" --prefix "$prefix" >/dev/null
cmake -S "$source_dir/examples/consumer" -B "$work" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work" >/dev/null
LD_LIBRARY_PATH="$prefix/lib:$prefix/lib/x86_64-linux-gnu" "$work/consumer"
