#!/usr/bin/env python3
"""Checks that each exported function of a library is one jump through its slot of the entry table: stubs.py LIBRARY

Compilers write the jump through memory as one instruction, or as a load of the address and a jump to it.
"""

import re
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import catalogue
import disassembly

# The parameter of these is a pair passed by value, which the stub copies.
COPYING = {("Powx", "64fc")}


def is_jump_through_slot(code):
    text = [f"{i.mnemonic} {i.operands.split('#')[0].strip()}" for i in code]
    if len(text) == 1:
        return re.fullmatch(r"jmp QWORD PTR \[rip\+0x[0-9a-f]+\]", text[0]) is not None
    return len(text) == 2 and re.fullmatch(r"mov rax,QWORD PTR \[rip\+0x[0-9a-f]+\];jmp rax", ";".join(text)) is not None


def main():
    functions = disassembly.functions(sys.argv[1])
    wrong = count = 0
    for row in catalogue.rows():
        for name, _ in row.exports():
            if (row.function, row.type) in COPYING:
                continue
            count += 1
            code = [i for i in functions.get(name, []) if i.mnemonic not in ("endbr64", "nop", "nopw", "xchg", "int3")]
            if not is_jump_through_slot(code):
                wrong += 1
                print(f"{name}: not one jump: {[f'{i.mnemonic} {i.operands}' for i in code[:4]]}")
    print(f"{count} exported functions looked at, {wrong} are not one jump through their slot")
    return 1 if wrong or not count else 0


if __name__ == "__main__":
    sys.exit(main())
