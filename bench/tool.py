#!/usr/bin/env python3
"""Measures what the command costs beside the reading of the records, in processor time and memory.

    tool.py --tool ZEDPARAM --reader READER [--records 10000] [--repetitions 3] [OUT.json]

Two databases are made of copies of the records of the example force, under names and types of their own, with its
systems and tables. The reader reads every record and keeps none. A run over a tenth of the records tells how memory
grows. The figures are written in the form of the benchmark library, which report.py reads, or printed.
"""

import argparse
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

FORCE = pathlib.Path(__file__).resolve().parent.parent / "examples" / "force"


def generate(folder, number):
    for part in FORCE.iterdir():
        if part.is_dir() and part.name not in ("entities", "force"):
            shutil.copytree(part, folder / part.name)
    (folder / "force").mkdir()
    opd = (FORCE / "force.opd").read_text()
    begin = opd.index("(parameter-files") + len("(parameter-files")
    sources = sorted((FORCE / "force").glob("*.ope"))
    entries = []
    for place in range(number):
        source = sources[place % len(sources)]
        name = f"force/{source.stem}-{place}.ope"
        shutil.copyfile(source, folder / name)
        entries.append(f'\n    (parameter-entry (object-type 1 1 1 {place} 1 1 1 0) (filename "{name}"))')
    (folder / "force.opd").write_text(opd[:begin] + "".join(entries) + "))\n")


def measure(command):
    """Seconds of the processor and KiB of memory."""
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
    printed = process.stderr.read()
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode not in (0, 1):
        sys.exit(f"tool.py: {command} ends with {process.returncode}\n{printed.decode()}")
    return usage.ru_utime + usage.ru_stime, usage.ru_maxrss


def jobs(tool, reader, a, b):
    yield "read", [reader, a]
    yield "check", [tool, "check", a]
    yield "find", [tool, "find", a, "max-speed > 60 km/h and force = 1"]
    yield "read-both", [reader, a, b]
    yield "diff", [tool, "diff", a, b]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--tool", required=True)
    parser.add_argument("--reader", required=True)
    parser.add_argument("--records", type=int, default=10000)
    parser.add_argument("--repetitions", type=int, default=3)
    parser.add_argument("out", nargs="?")
    options = parser.parse_args()
    runs = []
    for size, number in (("tenth", options.records // 10), ("all", options.records)):
        with tempfile.TemporaryDirectory() as folder:
            databases = [pathlib.Path(folder) / name for name in ("a", "b")]
            for database in databases:
                database.mkdir()
                generate(database, number)
            for _ in range(options.repetitions if size == "all" else 1):
                for job, command in jobs(options.tool, options.reader, *(path / "force.opd" for path in databases)):
                    seconds, memory = measure(command)
                    common = {"run_type": "iteration"}
                    runs.append(common | {"name": f"memory-tool-{job}/{size}", "bytes": memory * 1024})
                    if size == "all":
                        runs.append(common | {"name": f"tool-{job}/ours", "cpu_time": seconds, "time_unit": "s",
                                              "items": number})
    text = json.dumps({"benchmarks": runs}, indent=1)
    pathlib.Path(options.out).write_text(text) if options.out else print(text)


if __name__ == "__main__":
    main()
