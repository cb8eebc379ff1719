#!/usr/bin/env python3
"""Checks that each exported function of a library is one jump through its slot of the entry table: stubs.py LIBRARY"""

import sys
from pathlib import Path

import disassembly

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import catalogue

# The parameter of these is a pair passed by value, which the stub copies.
COPYING = {("Powx", "64fc")}


def main():
    functions = disassembly.functions(sys.argv[1])
    wrong = count = 0
    for row in catalogue.rows():
        for name, _ in row.exports():
            if (row.function, row.type) in COPYING:
                continue
            count += 1
            code = [i for i in functions.get(name, []) if i.mnemonic not in ("endbr64", "nop", "nopw", "xchg", "int3")]
            if len(code) != 1 or code[0].mnemonic != "jmp" or "[rip+" not in code[0].operands:
                wrong += 1
                print(f"{name}: not a single jump: {[f'{i.mnemonic} {i.operands}' for i in code[:4]]}")
    print(f"{count} exported functions looked at, {wrong} are not a single jump")
    return 1 if wrong or not count else 0


if __name__ == "__main__":
    sys.exit(main())
