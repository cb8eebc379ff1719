#!/usr/bin/env python3
"""Writes docs/names.md, the functions' names in each language, from their declarations. With --check, compares instead."""

import sys

import catalogue

PAGE = catalogue.ROOT / "docs/names.md"

INTRODUCTION = """<!-- Written by tools/make_names.py from src/*/functions.toml; do not edit, write it again by `./run generate`. -->
# Names

A function's name in C (and in Fortran, where it is the same) carries the type and the tag: `lumsExp_64f_A53`. In C++ the type is
that of the elements and the accuracy a template argument: `lumvm::exp<lumvm::high>(x, y)`. [using.md](using.md) is the guide to
C, [cpp.md](cpp.md) to C++ and Fortran, [reference.md](reference.md) describes every function.

| function | C, Fortran | types and tags | C++ |
|---|---|---|---|
"""


def tags(row):
    return " ".join(tag for _, tag in row.exports() if tag) or "no tag"


def text():
    entries = catalogue.descriptions()
    functions = {}
    for row in catalogue.rows(entries):
        functions.setdefault(row.function, []).append(row)
    lines = []
    for function, rows in sorted(functions.items(), key=lambda item: item[0].lower()):
        cpp = next(entry["cpp"] for title, entry in entries.items() if title.removesuffix(" (complex)") == function and "cpp" in entry)
        rows.sort(key=lambda row: catalogue.TYPES.index(row.type))
        types = "; ".join(f"{row.type} {tags(row)}" for row in rows)
        lines.append(f"| {function} | `lums{function}_...` | {types} | `lumvm::{cpp}` |")
    return INTRODUCTION + "\n".join(lines) + "\n"


if __name__ == "__main__":
    sys.exit(catalogue.write_or_check(PAGE, text, "make_names.py", __doc__))
