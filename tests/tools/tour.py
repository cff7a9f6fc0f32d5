#!/usr/bin/env python3
"""Takes the README's tour: runs its commands in their order in a copy of the example, and holds what they print against
what the README shows. With --update the README is written anew."""

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
        printed = result.stdout.replace(f"{folder.parent}/", "../")
        shown.append(f"$ {command}\n{printed}")
    return "".join(shown)


def main():
    text = README.read_text()
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
    elif tour != text[begin:end]:
        print("the tour went another way:\n" + tour)
        return 1
    print("as the README tells")
    return 0


sys.exit(main())
