#!/usr/bin/env python3
"""Checks that the objects of several layers share no symbol but the exported stubs, which the library with all layers leaves out:
symbols.py NM OBJECT_FOLDER..."""

import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import catalogue


def defined(nm, folder):
    objects = sorted(str(path) for path in Path(folder).rglob("*.o"))
    if not objects:
        catalogue.fail(f"no objects in {folder}")
    output = subprocess.run([nm, "--extern-only", "--defined-only", *objects], check=True, capture_output=True, text=True).stdout
    return {line.split()[2] for line in output.splitlines() if len(line.split()) == 3}


def main():
    nm, *folders = sys.argv[1:]
    agreed = {name for row in catalogue.rows() for name, _ in row.exports()} | {"lumvmGetLibVersion"}
    symbols = [defined(nm, folder) for folder in folders]
    wrong = []
    for i, first in enumerate(symbols):
        wrong += [f"{name} is in {folders[i]} and in {folders[j]}" for j in range(i) for name in sorted((first & symbols[j]) - agreed)]
    print("\n".join(wrong + [f"{', '.join(str(len(s)) for s in symbols)} symbols, {len(wrong)} complaints"]))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
