#!/usr/bin/env python3
"""Whether the compiler makes vector instructions of the portable layer's loops over lanes: vector_loops.py OBJDUMP LIBRARY

Counts the fused multiply-adds on whole vector registers in the code of some kernels."""

import re
import subprocess
import sys

# Kernels, and how many such instructions their functions have at least: a step of a polynomial takes one for each register of a
# vector.
LEAST = {"Exp_32f_A24": 16, "Exp_64f_A53": 24, "Sin_32f_A24": 16, "Sin_64f_A50": 24, "Ln_64f_A53": 24, "Erf_64f_A53": 24}
FUSED = re.compile(r"\s(fmla|fmls)\s+v\d+\.(4s|2d)")


def functions(objdump, library):
    """Names and lines of code of a library's functions."""
    text = subprocess.run([objdump, "--disassemble", "--demangle", "--no-show-raw-insn", library], capture_output=True, text=True,
                          check=True).stdout
    for block in text.split("\n\n"):
        heading = re.match(r"[0-9a-f]+ <(.*)>:\n", block)
        if heading:
            yield heading[1], block.splitlines()[1:]


def main():
    objdump, library = sys.argv[1:]
    counts = dict.fromkeys(LEAST, 0)
    for name, code in functions(objdump, library):
        fused = sum(1 for line in code if FUSED.search(line))
        for kernel in counts:
            function, kind, tag = kernel.split("_")
            if f"::{kernel}(" in name or f"::{function}" in name and f"{tag}_{kind}" in name:
                counts[kernel] += fused
    print("\n".join(f"{kernel}: {count} fused operations on vectors, at least {LEAST[kernel]}" for kernel, count in counts.items()))
    return 1 if any(count < LEAST[kernel] for kernel, count in counts.items()) else 0


if __name__ == "__main__":
    sys.exit(main())
