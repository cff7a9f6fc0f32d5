#!/usr/bin/env python3
"""Prints a run of the benchmarks as a table: job, ours, each peer, ratio, target, met or not.

    report.py RUN.json... [--json] [--part]

Figures are medians of processor time over the repetitions of one run, so that ratios hold where the machine's speed and
load do not. A target ">= 8" is met when the peer's figure is at least eight times ours, "<= 1.2" when ours is at most
1.2 times the peer's; the ratio is taken the same way round. Where a figure stands for itself, the peer is the greatest
figure allowed. What the runs do not hold is "not measured", and its target not met; with --part, after a run of some of
the benchmarks, it is left out. --json: the same, a list of objects, for machines. Exit code 1 when a target is not met.
"""

import json
import pathlib
import re
import statistics
import sys

TO_NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def figures(paths):
    runs = {}
    for path in paths:
        for run in json.loads(pathlib.Path(path).read_text(encoding="utf-8"))["benchmarks"]:
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


def least(ratio):
    return ">=", ratio


def most(ratio):
    return "<=", ratio


def jobs(found):
    """(what, our job, the peer's or the greatest figure allowed or None, target or None), in the order of the table."""
    yield "read a record", "read/ours", "read/protobuf", least(8)
    yield "read a record", "read/ours", "read/json", least(1.7)
    yield "read a record", "read/ours", "floor/copy", None
    yield "read its keywords in any order", "read-shuffled/ours", "read-shuffled/protobuf", least(5.5)
    yield "read it by the cell operations", "read-cells/ours", "read/protobuf", least(4)
    yield "write it", "write/ours", "write/protobuf", least(7)
    yield "write it", "write/ours", "write/json", least(1.5)
    yield "read it from XML", "read-xml/ours", "read-xml/pugixml-and-text", most(1.5)
    yield "its tree", "xml-tree/ours", "xml-tree/pugixml", None
    yield "scan a data root, per file", "entity-scan/ours", "entity-scan/pugixml", most(1.5)
    yield "load an entity file", "entity-files/ours", "entity-files/pugixml-and-text", most(1.5)
    yield "copy it", "copy/ours", "copy/protobuf", most(1.2)
    yield "copy it over another", "copy-again/ours", "copy-again/protobuf", None
    yield "compare two equal ones", "compare/ours", "compare/protobuf", least(25)
    yield "compare two equal ones", "compare/ours", "compare/serialised", least(1)
    yield "construct, destroy; reading it", "construct/ours", "read/ours", least(5)
    yield "construct, destroy the largest one", "construct-largest/ours", 2000, most(1)
    yield "memory of the loaded record", "memory/ours", "memory/protobuf", most(1.6)
    yield "memory of a number member", "memory-number/ours", 64, most(1)
    yield "memory of an empty list", "memory-list/ours", 96, most(1)
    yield "allocations of loading it", "allocations/ours", 60, most(1)
    measured = {int(match[1]) for match in (re.match(r"lookup-exact-(\d+)/ours", name) for name in found) if match}
    sizes = sorted(measured | {1000, 10000, 100000, 1000000})
    for size in sizes:
        exact = f"lookup-exact-{size}/absl"
        yield f"look-up, exact, of {size}", f"lookup-exact-{size}/ours", exact, most(1.6)
        yield f"look-up, exact, of {size}", f"lookup-exact-{size}/ours", f"lookup-exact-{size}/map", least(1)
        yield f"look-up, exact, of {size}", f"lookup-exact-{size}/ours", f"lookup-exact-{size}/walk", None
        for kind in ("pattern", "miss"):
            yield f"look-up, {kind}, of {size}", f"lookup-{kind}-{size}/ours", exact, most(8)
        yield f"look-up, pattern, of {size}", f"lookup-pattern-{size}/ours", f"lookup-pattern-{size}/walk", None
    for kind in ("pattern", "miss"):
        yield f"look-up, {kind}, 41 shapes", f"lookup-{kind}-41-shapes/ours", "lookup-exact-41-shapes/absl", most(20)
    for kind in ("pattern", "miss"):
        for size, growth in ((100000, 2), (1000000, 3)):
            now, before = f"lookup-{kind}-{size}/ours", f"lookup-{kind}-1000/ours"
            yield f"growth of {kind}, 1000 to {size}", now, before, most(growth)
    for size in sizes:
        yield f"add all of {size} entries, each", f"insert-{size}/ours", f"insert-{size}/absl", most(8)
    last = sizes[-1]
    yield f"add one to {last}", f"add-one-{last}/ours", f"add-one-{sizes[0]}/ours", most(10)
    for size in sizes:
        yield f"memory of one of {size} entries", f"memory-entry-{size}/ours", None, None
    yield "damage query", "damage-query/ours", 1000, most(1)
    yield "hit or detection query", "hit-query/ours", 1000, most(1)
    yield "database file, per entry", "database-file/ours", "database-file/protobuf", least(8)
    yield "database file, per entry", "database-file/ours", "database-file/json", least(1.6)
    yield "load one of 10000 record files", "record-files/ours", "record-files/protobuf", least(5)
    yield "load one of 10000 record files", "record-files/ours", "record-files/json", least(1.3)
    yield "load one of 10000 record files", "record-files/ours", "record-files/open-read-close", most(6)
    counts = sorted({int(match[1]) for match in (re.match(r"(?:open|load|save)-(\d+)/ours", name) for name in found) if match})
    for job, words in (("open", "open a database of {}, an entry"), ("load", "load all of {} record files, each"),
                       ("save", "save all of {} records, each")):
        for count in counts:
            yield words.format(count), f"{job}-{count}/ours", None, None
    for job, count, growth in (("open", 100000, 2), ("open", 1000000, 3), ("load", 10000, 1.5), ("load", 100000, 1.5)):
        yield f"growth of {job}, 1000 to {count}", f"{job}-{count}/ours", f"{job}-1000/ours", most(growth)
    yield "growth of save, 100 to 1000", "save-1000/ours", "save-100/ours", most(1.5)
    yield "open a database of 1000000, an entry", "open-1000000/ours", "cells-1000000/ours", most(3)
    for command, reading in (("check", "read"), ("find", "read"), ("diff", "read-both")):
        yield f"zedparam {command}, per record file", f"tool-{command}/ours", f"tool-{reading}/ours", most(2)
        yield f"zedparam {command}, memory", f"memory-tool-{command}/all", f"memory-tool-{reading}/all", most(2)


def rows(found, is_part):
    for job, ours, peer, target in jobs(found):
        if ours not in found or (isinstance(peer, str) and peer not in found):
            if is_part:
                continue
            row = {"job": job, "peer": peer if isinstance(peer, str) else "allowed" if peer else ""}
            yield row | ({"target": f"{target[0]} {target[1]:g}", "met": False} if target else {})
            continue
        row = {"job": job, "ours": found[ours], "unit": unit(ours)}
        if peer is not None:
            theirs = found[peer] if isinstance(peer, str) else peer
            direction = target[0] if target else ">="
            ratio = theirs / found[ours] if direction == ">=" else found[ours] / theirs
            row |= {"peer": peer if isinstance(peer, str) else "allowed", "theirs": theirs, "ratio": ratio}
        if target:
            met = ratio >= target[1] if direction == ">=" else ratio <= target[1]
            row |= {"target": f"{direction} {target[1]:g}", "met": met}
        yield row


def unit(name):
    return "B" if name.startswith("memory") else "" if name.startswith("allocations") else "ns"


def shown(value, unit):
    if unit == "ns":
        return f"{value:.1f} ns" if value < 1000 else f"{value / 1000:.2f} us"
    return f"{value:.0f} {unit}".rstrip()


def main():
    is_part = "--part" in sys.argv[2:]
    table = list(rows(figures([word for word in sys.argv[1:] if not word.startswith("--")]), is_part))
    missed = sum(not row.get("met", True) for row in table)
    if "--json" in sys.argv[2:]:
        print(json.dumps(table, indent=2))
        return 1 if missed else 0
    print(f"{'job':36}{'ours':>12}{'peer':>12}  {'which':31}{'ratio':>9}  {'target':8}")
    for row in table:
        if "ours" not in row:
            print(f"{row['job']:36}{'not measured':>12}{'':12}  {row['peer']:31}{'':9}  {row.get('target', '')}".rstrip())
            continue
        line = f"{row['job']:36}{shown(row['ours'], row['unit']):>12}"
        if "peer" in row:
            line += f"{shown(row['theirs'], row['unit']):>12}  {row['peer']:31}{row['ratio']:9.2f}"
        if "met" in row:
            line += f"  {row['target']:8}{'met' if row['met'] else 'MISSED'}"
        print(line)
    unmeasured = sum("ours" not in row and "target" in row for row in table)
    rest = f", {unmeasured} not measured" if unmeasured else " of those measured" if is_part else ""
    print(f"{missed - unmeasured} targets missed{rest}" if missed else f"all targets met{rest}")
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
