#!/usr/bin/env python3
"""Writes all generated tables: generate.py [DIRECTORY]. With --check, compares what it would write with what is checked in."""

import argparse
import filecmp
import importlib
import sys
import tempfile
from pathlib import Path

import binary

# Every module of this folder that has a function generate(directory).
HELPERS = {"generate", "binary"}


def generate_all(directory):
    here = Path(__file__).resolve().parent
    for path in sorted(here.glob("*.py")):
        if path.stem not in HELPERS:
            importlib.import_module(path.stem).generate(directory)


def check():
    with tempfile.TemporaryDirectory() as scratch:
        generate_all(scratch)
        fresh = {p.name for p in Path(scratch).iterdir()}
        stored = {p.name for p in binary.GENERATED.iterdir()}
        wrong = sorted(fresh ^ stored)
        wrong += [n for n in sorted(fresh & stored) if not filecmp.cmp(Path(scratch) / n, binary.GENERATED / n, shallow=False)]
    for name in wrong:
        print(f"differs or is missing on one side: {name}")
    print(f"{len(fresh)} generated tables compared, {len(wrong)} differ")
    return 1 if wrong else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("directory", nargs="?", default=binary.GENERATED)
    parser.add_argument("--check", action="store_true")
    arguments = parser.parse_args()
    if arguments.check:
        return check()
    generate_all(arguments.directory)
    return 0


if __name__ == "__main__":
    sys.exit(main())
