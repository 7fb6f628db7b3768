#!/usr/bin/python3
"""Peer of bench_devicetables: loads the same device-table CSV files with
pandas.read_csv and prints one line per file: "<path> <CPU seconds>".

The files carry one row of file information before the column names, so the
reader skips it; every cell is read as text, as the tables keep it.
"""
import sys
import time

import pandas


def load_seconds(path):
    # One untimed read first, as the benchmark does with its own loader.
    pandas.read_csv(path, skiprows=1, dtype=str, keep_default_na=False)
    start = time.process_time()
    frame = pandas.read_csv(path, skiprows=1, dtype=str, keep_default_na=False)
    elapsed = time.process_time() - start
    if frame.empty:
        raise SystemExit(f"{path}: no rows read")
    return elapsed


def main(paths):
    for path in paths:
        print(f"{path} {load_seconds(path):.6f}", flush=True)


if __name__ == "__main__":
    main(sys.argv[1:])
