#!/usr/bin/python3
"""Peer timing for bench_csv: pandas read_csv / to_csv on the same files.

Prints one JSON object: {"name": bytes_per_second, ...}, with the names of
the Google Benchmark cases they stand beside.
"""
import json
import os
import sys
import time

import pandas as pd


def best_of(runs, fn):
    best = None
    for _ in range(runs):
        start = time.perf_counter()
        fn()
        took = time.perf_counter() - start
        best = took if best is None or took < best else best
    return best


def read(path):
    # Every cell as text, nothing turned into NaN: the same work our reader does.
    return pd.read_csv(path, header=None, dtype=str, keep_default_na=False, na_filter=False)


def main():
    folder = sys.argv[1]
    out = {}
    for stem, runs in (("rows", 5), ("quoted", 2)):
        path = os.path.join(folder, stem + ".csv")
        size = os.path.getsize(path)
        name = stem.capitalize()
        out["BM_Read" + name] = size / best_of(runs, lambda: read(path))
        frame = read(path)
        target = path + ".peer.out"
        took = best_of(runs, lambda: frame.to_csv(target, header=False, index=False))
        out["BM_Write" + name] = os.path.getsize(target) / took
        os.remove(target)
    json.dump(out, sys.stdout)
    print()


if __name__ == "__main__":
    main()
