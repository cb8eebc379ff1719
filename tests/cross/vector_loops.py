#!/usr/bin/env python3
"""Whether the compiler makes vector instructions of the portable layer's loops over lanes: vector_loops.py OBJDUMP FOLDER

Counts the fused multiply-adds on whole vector registers in the object files of some kernels below the folder."""

import re
import subprocess
import sys
from pathlib import Path

SOURCES = ["explog/exp.cpp", "explog/ln.cpp", "circular/sin.cpp", "erf/erf.cpp", "roots/cbrt.cpp", "invcircular/atan.cpp"]
LEAST = 24  # four steps of a polynomial in each of six kernels: one instruction a step, in a loop over the registers of a vector
FUSED = re.compile(r"\s(fmla|fmls)\s+v\d+\.(4s|2d)")


def main():
    objdump, folder = sys.argv[1:]
    has_failed = False
    for source in SOURCES:
        objects = list(Path(folder).rglob(f"{source}.o"))
        if len(objects) != 1:
            sys.exit(f"vector_loops.py: {len(objects)} object files of {source} below {folder}")
        code = subprocess.run([objdump, "--disassemble", "--no-show-raw-insn", objects[0]], capture_output=True, text=True, check=True)
        count = sum(1 for line in code.stdout.splitlines() if FUSED.search(line))
        print(f"{source}: {count} fused operations on vectors, at least {LEAST}")
        has_failed |= count < LEAST
    return 1 if has_failed else 0


if __name__ == "__main__":
    sys.exit(main())
