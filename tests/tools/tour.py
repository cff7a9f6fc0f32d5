#!/usr/bin/env python3
"""Takes the README's tour: runs its commands in their order in a copy of the example, and holds what they print against
what the README shows, as it does with the answer of scripts/run at its top. With --update the README is written anew."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

README = pathlib.Path("README.md")


def taken(block, folder):
    shown = []
    for command in re.findall(r"^\$ (.*)$", block, re.M):
        result = subprocess.run(["bash", "-c", command], cwd=folder, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.STDOUT, text=True, env=dict(os.environ, COLUMNS="100"))
        shown.append(f"$ {command}\n{result.stdout}")
    return "".join(shown)


def first_answer():
    """What scripts/run prints without arguments, once all is built."""
    arguments = re.search(r"^\[\[ \$# -gt 0 \]\] \|\| set -- (.*)$", pathlib.Path("scripts/run").read_text(), re.M)[1]
    return subprocess.run(f"zedparam {arguments}", shell=True, stdout=subprocess.PIPE, text=True, check=True).stdout


def main():
    readme = README.read_text()
    text = re.sub(r"(\$ scripts/run\n)(.*?)(```)", lambda block: block[1] + first_answer() + block[3], readme, count=1,
                  flags=re.S)
    begin = text.index("## A tour")
    end = text.index("\n## ", begin)
    with tempfile.TemporaryDirectory() as scratch:
        for name in ("force", "before"):
            shutil.copytree("examples/force", pathlib.Path(scratch) / name)
        tour = re.sub(r"(```console\n)(.*?)(```)",
                      lambda block: block[1] + taken(block[2], pathlib.Path(scratch) / "force") + block[3],
                      text[begin:end], flags=re.S)
        pages = sorted(path.name for path in (pathlib.Path(scratch) / "force/pages").glob("*.html"))
    print("pages: " + " ".join(pages))
    if "--update" in sys.argv:
        README.write_text(text[:begin] + tour + text[end:])
    elif text[:begin] + tour + text[end:] != readme:
        print("the tour went another way:\n" + text[:begin].partition("## The command")[0] + tour)
        return 1
    print("as the README tells")
    return 0


sys.exit(main())
