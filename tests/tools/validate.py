#!/usr/bin/python3
"""Holds every record of the example, in both notations, against the JSON Schema that zedparam prints, and some that are
wrong, which must not pass."""

import concurrent.futures
import copy
import json
import pathlib
import subprocess

import jsonschema

FORCE = pathlib.Path("examples/force")


def printed(*arguments):
    return json.loads(subprocess.run(["zedparam", *arguments], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout)


def main():
    validator = jsonschema.Draft202012Validator(printed("schema", "--json"))
    for folder, database in (("force", "force.opd"), ("entities", "entities.opd")):
        files = sorted((FORCE / folder).iterdir())
        with concurrent.futures.ThreadPoolExecutor(2) as pool:
            converted = pool.map(lambda file: printed("convert", str(file), "--to", "json", "--database",
                                                      str(FORCE / database)), files)
            for file, records in zip(files, converted):
                for error in validator.iter_errors(records):
                    print(f"{file}: {list(error.absolute_path)}: {error.message}")
        print(f"{folder}: {len(files)} files")

    tank = printed("convert", str(FORCE / "force/m1a2.ope"), "--to", "json", "--database", str(FORCE / "force.opd"))
    for keyword, wrong in (("mass", -1.0), ("max-speed", "fast"), ("is-organized", 1), ("bounding-volume", [1, 2]),
                           ("radios", {}), ("display-name", True)):
        changed = copy.deepcopy(tank)
        changed[0]["values"][keyword] = wrong
        for error in validator.iter_errors(changed):
            print(f"{keyword} {wrong}: {error.message}")
    tank[0]["kind"] = "tank-param"
    print(f"kind: {'passes' if validator.is_valid(tank) else 'does not pass'}")


main()
