#!/usr/bin/env python3
"""Checks the loops over full blocks of all kernels in a library: hot_loops.py LIBRARY

Such a loop holds its constants in registers: it has no vector access to the stack, no load or broadcast of a constant, and no
call. A kernel's loop is found as a backward jump over both unmasked vector loads from and stores to the arrays; what counts is
the shortest way through it, since a rare second path may stand beside that one.
"""

import re
import sys
from pathlib import Path

import disassembly

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import catalogue

# Kernels without such a loop, or whose loop is allowed what it has, with the reason.
EXCEPTIONS = {
    "CIS_64fc_A53": "has more constants than there are registers",
    "SinCos_64f_A53": "has more constants than there are registers",
    "Sub_64fc_A53": "computes one element at a time",
}

VECTOR = re.compile(r"\b[xyz]mm\d+|[XYZ]MMWORD")
MEMORY = re.compile(r"[YZ]MMWORD PTR \[(\w+)[^\]]*\]")


def kernels():
    """Names of all kernels in the catalogue, each once."""
    text = (catalogue.ROOT / "src/frame/catalogue.def").read_text()
    names = []
    for match in re.finditer(r"^LUM_ROW\((.*)\)$", text, re.M):
        names += [c.strip() for c in match[1].split(",")[4:7]]
    return list(dict.fromkeys(names))


def frame_registers(code):
    """Registers that point to the stack."""
    has_frame_pointer = any(i.mnemonic == "mov" and i.operands == "rbp,rsp" for i in code)
    return ("rsp", "rbp") if has_frame_pointer else ("rsp",)


def is_array_access(instruction, stack):
    memory = MEMORY.search(instruction.operands)
    if not memory or "{k" in instruction.operands or "gather" in instruction.mnemonic:
        return False
    return memory[1] not in stack and memory[1] != "rip"


def is_store(instruction):
    return "MMWORD PTR" in instruction.operands.split(",")[0]


def shortest_way(body):
    """The instructions of the shortest way from the first to the last one; none if there is no such way."""
    index = {instruction.address: i for i, instruction in enumerate(body)}
    best = [None] * len(body)  # length of the way to here, and the instruction before
    best[0] = (0, None)
    for i, instruction in enumerate(body[:-1]):
        if best[i] is None:
            continue
        following = [] if instruction.mnemonic == "jmp" else [i + 1]
        if instruction.mnemonic.startswith("j") and index.get(instruction.target(), 0) > i:
            following.append(index[instruction.target()])
        for j in following:
            if best[j] is None or best[i][0] + 1 < best[j][0]:
                best[j] = (best[i][0] + 1, i)
    if best[-1] is None:
        return []
    way, i = [], len(body) - 1
    while i is not None:
        way.append(body[i])
        i = best[i][1]
    return way[::-1]


def block_loops(code, stack):
    """The ways through the loops over full blocks; loops around another one are left out."""
    ways = []
    for end, instruction in enumerate(code):
        target = instruction.target() if instruction.mnemonic.startswith("j") else None
        if target is None or not code[0].address <= target <= instruction.address:
            continue
        # Code placed behind its loop jumps back, too, but is not reached from where it jumps to.
        way = shortest_way([i for i in code[: end + 1] if i.address >= target])
        accesses = [i for i in way if is_array_access(i, stack)]
        if any(is_store(i) for i in accesses) and any(not is_store(i) for i in accesses):
            ways.append(way)
    spans = [(way[0].address, way[-1].address) for way in ways]
    return [way for way, (a, b) in zip(ways, spans) if not any((c, d) != (a, b) and a <= c and d <= b for c, d in spans)]


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


def check(name, code):
    """Complaints about a kernel, and how many loops it has."""
    stack = frame_registers(code)
    ways = block_loops(code, stack)
    found = [] if ways else ["no loop over full blocks found"]
    found += [f"{complaint(i, stack)}: {i.mnemonic} {i.operands}" for way in ways for i in way if complaint(i, stack)]
    return [f"{name}: {text}" for text in found], len(ways)


def kernel_code(library):
    """Instructions by kernel name; a kernel that only jumps to another function is that function."""
    functions = disassembly.functions(library)
    by_address = {code[0].address: code for code in functions.values() if code}
    result = {}
    for full_name, code in functions.items():
        if match := re.match(r"lum::(\w+)\([^)]*\)$", full_name):
            result[match[1]] = by_address.get(code[0].target(), code) if code[0].mnemonic == "jmp" else code
    return result


def main():
    by_name = kernel_code(sys.argv[1])
    complaints, loops, names = [], 0, kernels()
    for name in names:
        if name in EXCEPTIONS:
            print(f"{name} left out: {EXCEPTIONS[name]}")
            continue
        found, count = check(name, by_name[name]) if name in by_name else ([f"{name}: not in the library"], 0)
        complaints += found
        loops += count
    print("\n".join(complaints + [f"{len(names)} kernels, {loops} loops over full blocks, {len(complaints)} complaints"]))
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
