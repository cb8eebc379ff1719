"""The loops over full blocks in the machine code of the kernels.

A kernel's loop is found as a backward jump over both unmasked vector loads from and stores to the arrays; what counts is the
shortest way through it, since a rare second path may stand beside that one.
"""

import re

import disassembly

MEMORY = re.compile(r"[YZ]MMWORD PTR \[(\w+)[^\]]*\]")


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


def kernel_code(library):
    """Instructions by kernel name; a kernel that only jumps to another function is that function."""
    functions = disassembly.functions(library)
    by_address = {code[0].address: code for code in functions.values() if code}
    result = {}
    for full_name, code in functions.items():
        if match := re.match(r"lum::(?:avx512::)?(\w+)\([^)]*\)$", full_name):
            result[match[1]] = by_address.get(code[0].target(), code) if code[0].mnemonic == "jmp" else code
    return result
