#!/usr/bin/env python3
"""Writes generated tables: generate.py [--into DIRECTORY] [MODULE...], the modules of this folder (exp2), all when none is named.
With --check, compares what they would write with what is checked in."""

import argparse
import filecmp
import importlib
import sys
import tempfile
from pathlib import Path

import binary

# Every module of this folder that has a function generate(directory).
HELPERS = {"generate", "binary"}


def all_modules():
    here = Path(__file__).resolve().parent
    return [path.stem for path in sorted(here.glob("*.py")) if path.stem not in HELPERS]


def generate(modules, directory):
    for module in modules:
        importlib.import_module(module).generate(directory)


def check(modules):
    with tempfile.TemporaryDirectory() as scratch:
        generate(modules, scratch)
        fresh = {p.name for p in Path(scratch).iterdir()}
        stored = {p.name for p in binary.GENERATED.iterdir()}
        # With some modules alone it is not known which files are the others'.
        wrong = sorted(fresh ^ stored if modules == all_modules() else fresh - stored)
        wrong += [n for n in sorted(fresh & stored) if not filecmp.cmp(Path(scratch) / n, binary.GENERATED / n, shallow=False)]
    for name in wrong:
        print(f"differs or is missing on one side: {name}")
    print(f"{len(fresh)} generated tables compared, {len(wrong)} differ")
    return 1 if wrong else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--into", metavar="DIRECTORY", default=binary.GENERATED)
    parser.add_argument("--check", action="store_true")
    parser.add_argument("modules", nargs="*")
    arguments = parser.parse_args()
    for module in arguments.modules:
        if module not in all_modules():
            parser.error(f"no module '{module}'; there are {', '.join(all_modules())}")
    modules = arguments.modules or all_modules()
    if arguments.check:
        return check(modules)
    generate(modules, arguments.into)
    return 0


if __name__ == "__main__":
    sys.exit(main())
