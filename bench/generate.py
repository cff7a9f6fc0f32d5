#!/usr/bin/env python3
"""Writes the record that the benchmarks read, in every form they need, from one description.

    generate.py FOLDER

The record has 100 members (60 reals, 15 integers, 10 booleans, 10 strings, 5 vectors) and 12 descriptors of 20 members,
11 of which are those of every component descriptor. All members have values; the values are the same in each form:
BenchFields.h (our classes), PlainRecord.h (a struct, its reader and writer for JSON), record.proto, and RecordTexts.h with
the three texts, two of them also with their members in another order. Numbers have the digits that parameter files have: most a few, one in six all that a double can hold.
"""

import json
import pathlib
import random
import sys

SUBJECTS = ["hull", "turret", "engine", "gearbox", "suspension", "fuel", "armor", "sensor", "cargo", "crew"]
REALS = ["max-speed", "drag-coefficient", "response-time", "mass", "cooling-rate", "height-above-ground"]
BASE = [
    ("string", "component-type"),
    ("real", "min-tick-period"),
    ("real", "min-tick-period-variance"),
    ("bool", "tick-period-uses-real-time"),
    ("string", "process-state-repository-name"),
    ("string", "process-state-repository-type"),
    ("bool", "is-enabled"),
    ("bool", "debug-detail"),
    ("real", "min-task-visualization-tick-period"),
    ("bool", "create-component"),
    ("bool", "create-on-remote-object"),
]
OWN = [
    ("real", "max-slew-rate"),
    ("real", "max-elevation"),
    ("real", "min-elevation"),
    ("real", "aiming-accuracy"),
    ("real", "reload-time"),
    ("real", "max-range"),
    ("real", "power-consumption"),
    ("int", "rounds-per-magazine"),
    ("vector", "mount-offset"),
]
DESCRIPTORS = 12
DESCRIPTOR_TYPE = "bench-component-descriptor"
CPP = {"real": "double", "int": "int", "bool": "bool", "string": "std::string", "vector": "std::array<double, 3>"}
MEMBER = {"real": "AxRwReal", "int": "AxRwInt", "bool": "AxRwBoolean", "string": "AxRwString", "vector": "AxRwVector"}
PROTO = {"real": "double", "int": "int32", "bool": "bool", "string": "string", "vector": "Vector"}


def record_members():
    members = []
    for place, subject in enumerate(SUBJECTS):
        members += [("real", f"{subject}-{real}") for real in REALS]
        members += [("int", f"{subject}-unit-count"), ("bool", f"{subject}-is-repairable"), ("string", f"{subject}-model")]
        members.append(("int", f"{subject}-priority") if place % 2 == 0 else ("vector", f"{subject}-position"))
    return members


def real(source):
    if source.random() < 1 / 6:
        return source.uniform(-10, 10)
    return round(source.uniform(0, 10 ** source.randint(0, 4)), source.randint(1, 3))


def value(kind, source):
    return {
        "real": lambda: real(source),
        "int": lambda: source.randint(0, 500),
        "bool": lambda: source.random() < 0.5,
        "string": lambda: f"{source.choice(SUBJECTS)} variant {source.randint(1, 99)}",
        "vector": lambda: [real(source) for _ in range(3)],
    }[kind]()


def values(members, source):
    return [(kind, keyword, value(kind, source)) for kind, keyword in members]


def identifier(keyword):
    return keyword.replace("-", "_")


def camel(keyword):
    return "my" + "".join(part.capitalize() for part in keyword.split("-"))


def our_value(kind, content):
    if kind == "bool":
        return "True" if content else "False"
    if kind == "string":
        return f'"{content}"'
    return " ".join(map(repr, content)) if kind == "vector" else repr(content)


def our_text(record, descriptors):
    lines = ["(record"]
    lines += [f"    ({keyword} {our_value(kind, content)})" for kind, keyword, content in record]
    lines.append("    (components")
    for name, members in descriptors:
        lines.append(f'        ({name} (component-descriptor-type "{DESCRIPTOR_TYPE}")')
        lines += [f"            ({keyword} {our_value(kind, content)})" for kind, keyword, content in members]
        lines.append("        )")
    return "\n".join(lines) + "\n    )\n)\n"


def proto_text(record, descriptors):
    def field(kind, keyword, content, indent):
        if kind == "vector":
            inner = "".join(f"{indent}  {axis}: {number!r}\n" for axis, number in zip("xyz", content))
            return f"{indent}{identifier(keyword)} {{\n{inner}{indent}}}\n"
        shown = json.dumps(content) if kind in ("string", "bool") else repr(content)
        return f"{indent}{identifier(keyword)}: {shown}\n"

    text = "".join(field(*member, "") for member in record)
    for name, members in descriptors:
        text += f'components {{\n  name: "{name}"\n  type: "{DESCRIPTOR_TYPE}"\n'
        text += "".join(field(*member, "  ") for member in members) + "}\n"
    return text


def json_text(record, descriptors):
    document = {keyword: content for _, keyword, content in record}
    document["components"] = [
        {"name": name, "type": DESCRIPTOR_TYPE} | {keyword: content for _, keyword, content in members}
        for name, members in descriptors
    ]
    return json.dumps(document, indent=4)


def proto_file(record, descriptor):
    def fields(members, first):
        return "".join(
            f"  optional {PROTO[kind]} {identifier(keyword)} = {number};\n"
            for number, (kind, keyword) in enumerate(members, first)
        )

    entry = "".join(f"  optional int32 {field} = {number};\n" for number, field in enumerate(
        ["super_type", "kind", "domain", "country", "category", "subcategory", "specific", "extra"], 1))
    return (
        'syntax = "proto2";\npackage peer;\n'
        "message Vector {\n  optional double x = 1;\n  optional double y = 2;\n  optional double z = 3;\n}\n"
        "message Descriptor {\n  optional string name = 1;\n  optional string type = 2;\n" + fields(descriptor, 3) + "}\n"
        "message Record {\n" + fields(record, 1) + f"  repeated Descriptor components = {len(record) + 1};\n}}\n"
        "message Entry {\n" + entry + "  optional string file = 9;\n  optional bool is_pattern = 10;\n}\n"
        "message Database {\n  optional int32 version = 1;\n  repeated Entry entries = 2;\n}\n"
    )


def our_header(record):
    def member(kind, keyword, registry):
        return f'    {MEMBER[kind]} {camel(keyword)}{{{{"{keyword}", "", "A value."}}, {registry}}};\n'

    return (
        '#pragma once\n#include "AxComponentDescriptorList.h"\n#include "AxDescriptorOf.h"\n#include "AxRwInt.h"\n'
        '#include "AxRwVector.h"\n'
        "class BenchDescriptor : public AxDescriptorOf<BenchDescriptor, AxComponentDescriptor, "
        f'"{DESCRIPTOR_TYPE}">\n{{\npublic:\n    using AxDescriptorOf::AxDescriptorOf;\n'
        + "".join(member(kind, keyword, "registry()") for kind, keyword in OWN)
        + "};\ntemplate <class Base>\nclass BenchFields : public Base\n{\npublic:\n    using Base::Base;\n"
        + "".join(member(kind, keyword, "this->registry()") for kind, keyword in record)
        + '    AxComponentDescriptorList myComponents{{"components", "", "Components."}, this->registry()};\n};\n'
    )


def plain_header(record, descriptor):
    def struct(name, members, extra):
        fields = "".join(f"    {CPP[kind]} {identifier(keyword)}{{}};\n" for kind, keyword in members)
        table = "".join(
            f'        {{"{keyword}", &{name}::{identifier(keyword)}}},\n' for _, keyword in members
        )
        return (
            f"struct {name}\n{{\n{extra}{fields}    using Field = PlainField<{name}>;\n"
            f"    static inline Field const table[] = {{\n{table}    }};\n}};\n"
        )

    extended = [("string", "name"), ("string", "type")] + descriptor
    members = "".join(f"    {CPP[kind]} T::*, " for kind in CPP).replace("    ", "").rstrip(", ")
    return (
        "#pragma once\n#include <array>\n#include <string>\n#include <string_view>\n#include <variant>\n#include <vector>\n"
        "template <class T>\nstruct PlainField\n{\n    std::string_view name;\n"
        f"    std::variant<{members}> place;\n}};\n"
        + struct("PlainDescriptor", extended, "")
        + struct("PlainRecord", record, "    std::vector<PlainDescriptor> components;\n")
    )


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    source = random.Random(1)
    members = record_members()
    descriptor = BASE + OWN
    record = values(members, source)
    descriptors = [(f"component-{number}", values(descriptor, source)) for number in range(1, DESCRIPTORS + 1)]
    shuffled = random.Random(2)
    disordered = (
        shuffled.sample(record, len(record)),
        [(name, shuffled.sample(members, len(members))) for name, members in descriptors],
    )
    texts = {
        "ourSource": our_text(record, descriptors),
        "ourShuffled": our_text(*disordered),
        "messageSource": proto_text(record, descriptors),
        "messageShuffled": proto_text(*disordered),
        "jsonSource": json_text(record, descriptors),
    }
    literals = "".join(f'inline constexpr char {name}[] = R"~({text})~";\n' for name, text in texts.items())
    files = {
        "record.proto": proto_file(members, descriptor),
        "BenchFields.h": our_header(members),
        "PlainRecord.h": plain_header(members, descriptor),
        "RecordTexts.h": "#pragma once\n" + literals,
    }
    for name, content in files.items():
        (folder / name).write_text(content, encoding="utf-8")


if __name__ == "__main__":
    main()
