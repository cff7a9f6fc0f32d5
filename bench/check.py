#!/usr/bin/env python3
"""Tells what `zedparam check` costs beside the reading of the records: generates a database, checks it, prints the ratio.

    check.py --tool ZEDPARAM [--records 10000] [--most 2.0]

The records are copies of those of the example force under names and types of their own, with its systems and tables. The times, of
the processor, are what the tool itself tells with --timing. A second run over a tenth of the records tells what memory a
record costs. Exit code 1: more than `--most` times the time of reading.
"""

import argparse
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

FORCE = pathlib.Path(__file__).resolve().parent.parent / "examples" / "force"
TIMING = re.compile(r"read records in ([\d.]+) s, all in ([\d.]+) s; at most (\d+) KiB")


def generate(folder, number):
    for part in FORCE.iterdir():
        if part.is_dir() and part.name != "entities":
            shutil.copytree(part, folder / part.name)
    opd = (FORCE / "force.opd").read_text()
    begin = opd.index("(parameter-files") + len("(parameter-files")
    sources = [file for file in sorted((FORCE / "force").glob("*.ope"))]
    entries = []
    for place in range(number):
        source = sources[place % len(sources)]
        name = f"{source.stem}-{place}.ope"
        shutil.copyfile(source, folder / "force" / name)
        entries.append(f'\n    (parameter-entry (object-type 1 1 1 {place} 1 1 1 0) (filename "force/{name}"))')
    for source in sources:
        (folder / "force" / source.name).unlink()
    (folder / "force.opd").write_text(opd[:begin] + "".join(entries) + "))\n")
    return folder / "force.opd"


def measure(tool, database):
    subprocess.run([tool, "check", database], stdout=subprocess.DEVNULL)  # so that the files are in memory
    result = subprocess.run([tool, "check", "--timing", database], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    found = TIMING.search(result.stderr)
    if not found:
        sys.exit(f"check.py: no timing\n{result.stderr}")
    return float(found[1]), float(found[2]), int(found[3]), result.stdout.splitlines()[-1]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--tool", required=True)
    parser.add_argument("--records", type=int, default=10000)
    parser.add_argument("--most", type=float, default=2.0)
    options = parser.parse_args()
    peaks = []
    ratio = 0.0
    for number in (options.records // 10, options.records):
        with tempfile.TemporaryDirectory() as folder:
            reading, whole, peak, summary = measure(options.tool, generate(pathlib.Path(folder), number))
        ratio = whole / reading
        peaks.append(peak)
        print(f"{summary}; reading {reading:.3f} s, check {whole:.3f} s, {ratio:.2f} times, at most {peak} KiB")
    grown = (peaks[1] - peaks[0]) * 1024 / (options.records - options.records // 10)
    print(f"{grown:.0f} bytes for each further record")
    return 0 if ratio <= options.most else 1


if __name__ == "__main__":
    sys.exit(main())
