#!/usr/bin/env python3
"""Checks that the table of operations has every immediate that kernels use: immediates.py PORTABLE_LIBRARY

They are found in the portable library: most operations that have one are functions of their own there, one an immediate, and their
symbols name it. ternary and fpclass are inlined there; their truth tables stand in the sources as expressions of A, B and C, their
classes as sums of the names in frame/immediates.h.
"""

import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
COMPUTED = ("getmant", "rndscale")


def computed():
    symbols = subprocess.run(["nm", sys.argv[1]], check=True, capture_output=True, text=True).stdout
    pattern = rf"N3lum8portable\d+({'|'.join(COMPUTED)})ILi(\d+)E"
    return {(name, int(immediate)) for name, immediate in re.findall(pattern, symbols)}


def class_sets():
    """The named sets of classes, by name."""
    names = {}
    code = (ROOT / "src/frame/immediates.h").read_text()
    for name, value in re.findall(r"constexpr int (\w+) = ([\w |]+);", code[code.index("namespace classes") : code.index("}  //")]):
        names[name] = eval(value, {}, names)
    return names


def written():
    used = set()
    classes = class_sets()
    for path in sorted((ROOT / "src").rglob("*")):
        if path.suffix not in (".h", ".cpp") or path.parent.name in ("portable", "avx2", "avx512"):
            continue
        code = re.sub(r"//.*", "", path.read_text())
        for table in re.findall(r"\bternary<([^<>;]*)>\(", code):
            if not re.fullmatch(r"[ABC&|^~() ]+", table):
                sys.exit(f"{path}: ternary<{table}> is no expression of A, B and C")
            used.add(("ternary", eval(table, {"A": 0xF0, "B": 0xCC, "C": 0xAA}) & 0xFF))
        for united in re.findall(r"classes::\w+(?:\s*\|\s*classes::\w+)*", code):
            used.add(("fpclass", eval(re.sub(r"classes::|\s", "", united), {}, classes)))
    return used


def tested():
    lines = (ROOT / "tests/frame/recorded_operations.txt").read_text()
    return {(name, int(immediate, 16)) for name, immediate in re.findall(r"^(\w+)<(0x[0-9A-F]+)> ", lines, re.MULTILINE)}


def main():
    in_library, in_sources = computed(), written()
    used = in_library | in_sources
    missing = sorted(used - tested())
    for name, immediate in missing:
        print(f"{name}<0x{immediate:X}> is used and not tested")
    print(f"{len(used)} operations with an immediate are used, {len(missing)} are not tested")
    unseen = set(COMPUTED) - {name for name, _ in in_library}
    if unseen:
        print(f"the library has no symbols of {', '.join(sorted(unseen))}")
    return 1 if missing or unseen or {name for name, _ in in_sources} != {"ternary", "fpclass"} else 0


if __name__ == "__main__":
    sys.exit(main())
