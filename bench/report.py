#!/usr/bin/env python3
"""Prints a run of the benchmarks as a table: job, ours, peer, ratio, target, met or not.

    report.py RUN.json

Figures are medians of processor time over the repetitions of one run, so that ratios hold where the machine's speed and
load do not. A ratio is the peer's figure over ours: greater is better for us. Where there is no peer, the target is the
greatest figure allowed, and the ratio that figure over ours. Exit code 1 when a target is missed.
"""

import json
import re
import statistics
import sys

TO_NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def figures(path):
    runs = {}
    with open(path, encoding="utf-8") as stream:
        for run in json.load(stream)["benchmarks"]:
            if run["run_type"] != "iteration":
                continue
            name = "/".join(run["name"].split("/")[:2])
            if run.get("error_occurred"):
                sys.exit(f"{name}: {run['error_message']}")
            if "bytes" in run or "count" in run:
                value = run.get("bytes", run.get("count"))
            else:
                value = run["cpu_time"] * TO_NANOSECONDS[run["time_unit"]] / run.get("items", 1)
            runs.setdefault(name, []).append(value)
    return {name: statistics.median(values) for name, values in runs.items()}


def jobs(found):
    """(what, our job, the peer's, least ratio or greatest figure or None), in the order of the table."""
    yield "read a record", "read/ours", "read/protobuf", 8
    yield "read a record", "read/ours", "read/json", 1.7
    yield "read its keywords in any order", "read-shuffled/ours", "read-shuffled/protobuf", 5.5
    yield "write it", "write/ours", "write/protobuf", 7
    yield "write it", "write/ours", "write/json", 1.5
    yield "read it from XML", "read-xml/ours", "read-xml/pugixml-and-text", 1 / 1.5
    yield "scan a data root, per file", "entity-scan/ours", None, None
    yield "copy it", "copy/ours", "copy/protobuf", 1 / 1.2
    yield "copy it over another", "copy-again/ours", "copy-again/protobuf", None
    yield "compare two equal ones", "compare/ours", "compare/protobuf", 25
    yield "compare two equal ones", "compare/ours", "compare/serialised", 1
    yield "construct, destroy; reading it", "construct/ours", "read/ours", 5
    yield "construct, destroy the largest one", "construct-largest/ours", None, 2000
    yield "memory of the loaded record", "memory/ours", "memory/protobuf", 1 / 1.6
    yield "allocations of loading it", "allocations/ours", None, 60
    sizes = sorted({int(match[1]) for match in (re.match(r"lookup-exact-(\d+)/ours", name) for name in found) if match})
    for size in sizes:
        yield f"look-up, exact, of {size}", f"lookup-exact-{size}/ours", f"lookup-exact-{size}/map", 1
        yield f"look-up, exact, of {size}", f"lookup-exact-{size}/ours", f"lookup-exact-{size}/walk", None
        yield f"look-up, pattern, of {size}", f"lookup-pattern-{size}/ours", f"lookup-exact-{size}/map", 1 / 4
        yield f"look-up, pattern, of {size}", f"lookup-pattern-{size}/ours", f"lookup-pattern-{size}/walk", None
        yield f"look-up, miss, of {size}", f"lookup-miss-{size}/ours", f"lookup-exact-{size}/map", 1 / 4
    if len(sizes) > 1:
        for kind in ("exact", "pattern", "miss"):
            least, most = f"lookup-{kind}-{sizes[0]}/ours", f"lookup-{kind}-{sizes[-1]}/ours"
            yield f"growth of {kind}, {sizes[0]} to {sizes[-1]}", most, least, None if kind == "exact" else 1 / 2
    for size in sizes:
        yield f"add one of {size} entries", f"insert-{size}/ours", None, None
    yield "damage query", "damage-query/ours", None, 1000
    yield "load one of 10000 record files", "record-files/ours", "record-files/protobuf", 4
    yield "database file, per entry", "database-file/ours", "database-file/protobuf", 3


def shown(value, name):
    if name.startswith("memory"):
        return f"{value:.0f} B"
    if name.startswith("allocations"):
        return f"{value:.0f}"
    return f"{value:.1f} ns" if value < 1000 else f"{value / 1000:.2f} us"


def main():
    found = figures(sys.argv[1])
    missed = 0
    print(f"{'job':36}{'ours':>12}{'peer':>12}  {'which':30}{'ratio':>8}{'target':>8}")
    for what, ours, peer, target in jobs(found):
        if ours not in found or (peer and peer not in found):
            continue
        line = f"{what:36}{shown(found[ours], ours):>12}"
        least = target
        if peer or target is not None:
            allowed = found[peer] if peer else target
            least = target if peer else 1
            ratio = allowed / found[ours]
            line += f"{shown(allowed, peer or ours):>12}  {peer or 'allowed':30}{ratio:8.2f}"
        if least is not None:
            met = ratio >= least
            missed += not met
            line += f"{least:8.2f}  {'met' if met else 'MISSED'}"
        print(line)
    print(f"{missed} targets missed" if missed else "all targets met")
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
