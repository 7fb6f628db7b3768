#!/usr/bin/python3
"""Peer for bench_routefiles: parses a route listing with TextFSM.

Usage: routeparse_peer.py LISTING TEMPLATE
Prints one JSON object: lines, bytes, records and the CPU seconds spent in
ParseText (reading the file is not timed, as on our side).
"""
import json
import sys
import time

import textfsm


def main() -> int:
    listing, template = sys.argv[1], sys.argv[2]
    with open(listing, encoding="latin-1") as f:
        text = f.read()
    with open(template) as t:
        fsm = textfsm.TextFSM(t)
    # CPU time, as on our side: the machine is shared with other work.
    start = time.process_time()
    records = fsm.ParseText(text)
    seconds = time.process_time() - start
    print(json.dumps({"lines": text.count("\n"), "bytes": len(text), "records": len(records),
                      "seconds": seconds}))
    return 0


if __name__ == "__main__":
    sys.exit(main())
