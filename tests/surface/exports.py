#!/usr/bin/env python3
"""Checks that libraries export exactly the catalogue's names and lumvmGetLibVersion: exports.py [--choosing] LIBRARY...
With --choosing, the two names of the library that chooses its layer are expected, too."""

import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import catalogue


def exported(library):
    lines = subprocess.run(["nm", "-D", "--defined-only", library], check=True, capture_output=True, text=True).stdout.splitlines()
    # An absolute symbol is the name of the version itself.
    return [line.split()[-1].split("@")[0] for line in lines if " A " not in line]


def main():
    expected = {name for row in catalogue.rows() for name, _ in row.exports()} | {"lumvmGetLibVersion"}
    libraries = sys.argv[1:]
    if libraries[0] == "--choosing":
        expected |= {"lumvmGetLayer", "lumvmSetLayer"}
        libraries = libraries[1:]
    good = True
    for library in libraries:
        names = exported(library)
        for name in sorted(set(names) - expected):
            print(f"{library}: {name} is exported and not in the catalogue")
        for name in sorted(expected - set(names)):
            print(f"{library}: {name} is missing")
        good &= sorted(names) == sorted(expected)
        print(f"{Path(library).name}: {len(names)} exported names, {len(expected)} expected")
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
