#!/usr/bin/env python3
"""Checks the loops over full blocks of all kernels in a library: hot_loops.py LIBRARY [--write]

Such a loop holds its constants in registers: it has no vector access to the stack, no load or broadcast of a constant, and no
call. Where the 32 registers of AVX-512, or the 16 of AVX2, are too few, or g++ forms a constant in the loop, the library's budget says how many instructions of
which kind a kernel's loops have; the count is compared exactly, so that a loop that grows worse is seen, and one that grows
better is written down. --write writes the budget anew."""

import argparse
import csv
import re
import sys
from collections import Counter
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import catalogue
from block_loops import block_loops, frame_registers, kernel_code

BUDGETS = {"k0": Path(__file__).with_name("loop_budget.csv"), "a2": Path(__file__).with_name("loop_budget_a2.csv")}
BUDGET_HEADING = "# Written by `tests/surface/hot_loops.py LIBRARY --write`: what the loops over full blocks have that they should not.\n"

VECTOR = re.compile(r"\b[xyz]mm\d+|[XYZ]MMWORD")


def kernels():
    """Names of all kernels in the catalogue, each once."""
    return list(dict.fromkeys(kernel for row in catalogue.rows() for kernel in row.kernels))


def complaint(instruction, stack):
    if instruction.mnemonic == "call":
        return "call"
    if not VECTOR.search(instruction.operands):
        return None
    if re.search(rf"\[({'|'.join(stack)})\b", instruction.operands):
        return "stack access"
    if "[rip" in instruction.operands:
        return "load of a constant"
    if "broadcast" in instruction.mnemonic or "{1to" in instruction.operands:
        return "broadcast"
    return None


def findings(name, code):
    """How many instructions of each kind a kernel's loops have that they should not."""
    stack = frame_registers(code)
    ways = block_loops(code, stack)
    if not ways:
        return Counter({"no loop over full blocks found": 1})
    return Counter(kind for way in ways for i in way if (kind := complaint(i, stack)))


def read_budget(path):
    with path.open() as file:
        rows = csv.DictReader(line for line in file if not line.startswith("#"))
        return {(r["kernel"], r["kind"]): int(r["count"]) for r in rows}


def write_budget(path, found):
    lines = [f"{kernel},{kind},{count}\n" for (kernel, kind), count in sorted(found.items())]
    catalogue.write_if_changed(path, BUDGET_HEADING + "kernel,kind,count\n" + "".join(lines))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("library")
    parser.add_argument("--write", action="store_true")
    arguments = parser.parse_args()
    budget_file = next((path for name, path in BUDGETS.items() if f"lumvm{name}" in arguments.library), None)
    if budget_file is None:
        parser.error(f"{arguments.library}: there is no budget for this library")
    by_name = kernel_code(arguments.library)
    found = {}
    for name in kernels():
        if name not in by_name:
            found[name, "not in the library"] = 1
        else:
            found.update({(name, kind): count for kind, count in findings(name, by_name[name]).items()})
    if arguments.write:
        write_budget(budget_file, found)
        return 0
    budget = read_budget(budget_file)
    wrong = [f"{kernel}: {kind}, {found.get((kernel, kind), 0)} times, the budget is {budget.get((kernel, kind), 0)}"
             for kernel, kind in sorted(found.keys() | budget.keys()) if found.get((kernel, kind)) != budget.get((kernel, kind))]
    print("\n".join(wrong + [f"{len(kernels())} kernels, {sum(budget.values())} instructions in the budget, {len(wrong)} complaints"]))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
