#!/usr/bin/env python3
"""Checks the loops over full blocks of all kernels in a library: hot_loops.py LIBRARY

Such a loop holds its constants in registers: it has no vector access to the stack, no load or broadcast of a constant, and no
call.
"""

import re
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import catalogue
from block_loops import block_loops, frame_registers, kernel_code

# Kernels without such a loop, with the reason.
WITHOUT_LOOP = {
    "Sub_64fc_A53": "computes one element at a time",
}
PAIRED = ("Acos", "Acosh", "Asin", "Asinh", "Atan", "Atanh", "Cos", "Cosh", "Log10", "Pow", "Powx", "Sin", "Sinh", "Tan", "Tanh")
# What single loops are allowed: the kind of complaint, or several, and the reason.
ALLOWED = {
    **{f"{function}_{type}": (("stack access", "load of a constant", "broadcast"), "pairs of numbers, their tables and constants")
       for function in PAIRED for type in ("32fc", "64fc")},
    "Sqrt_64fc_A53": ("stack access", "as in Acos_64f_A50"),
    "Acos_64f_A50": ("stack access", "its constants and two streams need more than the 32 registers"),
    "Acos_64f_A53": ("stack access", "as in Acos_64f_A50"),
    "Acosh_64f_A50": ("stack access", "as in Acos_64f_A50"),
    "Acosh_64f_A53": ("stack access", "as in Acos_64f_A50"),
    "Arg_32fc_A24": ("broadcast", "as in Log1p_32f_A11"),
    "Arg_64fc_A50": ("stack access", "as in Acos_64f_A50"),
    "Arg_64fc_A53": ("stack access", "as in Acos_64f_A50"),
    "Asin_64f_A50": ("stack access", "as in Acos_64f_A50"),
    "Asin_64f_A53": ("stack access", "as in Acos_64f_A50"),
    "Asinh_64f_A50": ("stack access", "as in Acos_64f_A50"),
    "Asinh_64f_A53": ("stack access", "as in Acos_64f_A50"),
    "Atan2_32f_A24": ("broadcast", "a pattern that is also held as a number, as in Log1p_32f_A11"),
    "Atan2_64f_A50": ("stack access", "as in Acos_64f_A50"),
    "Atan2_64f_A53": ("stack access", "as in Acos_64f_A50"),
    "Atanh_64f_A53": ("stack access", "as in Acos_64f_A50"),
    "CIS_64fc_A53": ("stack access", "has more constants than there are registers"),
    "CdfNormInv_32f_A21": ("stack access", "its tables and constants need more than the 32 registers"),
    "CdfNormInv_32f_A24": ("stack access", "as in CdfNormInv_32f_A21"),
    "CdfNormInv_64f_A26": ("broadcast", "as in Log1p_32f_A11"),
    "CdfNormInv_64f_A50": (("stack access", "broadcast"), "as in Acos_64f_A50 and Log1p_32f_A11"),
    "CdfNormInv_64f_A53": (("stack access", "broadcast"), "as in Acos_64f_A50 and Log1p_32f_A11"),
    "CdfNorm_32f_A11": ("broadcast", "as in Log1p_32f_A11"),
    "CdfNorm_32f_A21": ("broadcast", "as in Log1p_32f_A11"),
    "CdfNorm_32f_A24": (("stack access", "broadcast"), "as in Acos_64f_A50 and Log1p_32f_A11"),
    "CdfNorm_64f_A26": ("broadcast", "as in Log1p_32f_A11"),
    "CdfNorm_64f_A50": (("stack access", "broadcast"), "as in Acos_64f_A50 and Log1p_32f_A11"),
    "CdfNorm_64f_A53": (("stack access", "broadcast"), "as in Acos_64f_A50 and Log1p_32f_A11"),
    "ErfInv_32f_A21": ("stack access", "as in CdfNormInv_32f_A21"),
    "ErfInv_32f_A24": ("stack access", "as in CdfNormInv_32f_A21"),
    "ErfInv_64f_A26": ("broadcast", "as in Log1p_32f_A11"),
    "ErfInv_64f_A50": ("broadcast", "as in Log1p_32f_A11"),
    "ErfInv_64f_A53": (("stack access", "broadcast"), "as in Acos_64f_A50 and Log1p_32f_A11"),
    "Erf_32f_A24": ("load of a constant", "eight streams and its constants need more than the 32 registers"),
    "Erf_64f_A53": ("stack access", "as in Acos_64f_A50"),
    "ErfcInv_32f_A21": ("stack access", "as in CdfNormInv_32f_A21"),
    "ErfcInv_32f_A24": ("stack access", "as in CdfNormInv_32f_A21"),
    "ErfcInv_64f_A26": ("broadcast", "as in Log1p_32f_A11"),
    "ErfcInv_64f_A50": (("stack access", "broadcast"), "as in Acos_64f_A50 and Log1p_32f_A11"),
    "ErfcInv_64f_A53": (("stack access", "broadcast"), "as in Acos_64f_A50 and Log1p_32f_A11"),
    "Erfc_32f_A21": ("broadcast", "as in Log1p_32f_A11"),
    "Erfc_32f_A24": ("broadcast", "as in Log1p_32f_A11"),
    "Erfc_64f_A26": ("broadcast", "as in Log1p_32f_A11"),
    "Erfc_64f_A50": (("stack access", "broadcast"), "as in Acos_64f_A50 and Log1p_32f_A11"),
    "Erfc_64f_A53": (("stack access", "broadcast"), "as in Acos_64f_A50 and Log1p_32f_A11"),
    "Exp_32fc_A11": (("stack access", "broadcast"), "as in Acos_64f_A50 and Log1p_32f_A11"),
    "Exp_32fc_A24": (("stack access", "broadcast"), "as in Acos_64f_A50 and Log1p_32f_A11"),
    "Exp_64fc_A26": ("stack access", "as in Acos_64f_A50"),
    "Exp_64fc_A53": ("stack access", "as in Acos_64f_A50"),
    "Ln_32fc_A11": ("stack access", "as in Acos_64f_A50"),
    "Ln_32fc_A21": ("stack access", "as in Acos_64f_A50"),
    "Ln_32fc_A24": (("stack access", "broadcast"), "as in Acos_64f_A50 and Log1p_32f_A11"),
    "Ln_64fc_A26": ("stack access", "as in Acos_64f_A50"),
    "Ln_64fc_A50": ("stack access", "as in Acos_64f_A50"),
    "Ln_64fc_A53": ("stack access", "as in Acos_64f_A50"),
    "Log1p_32f_A11": ("broadcast", "g++ broadcasts the pattern of 1, which it also holds as a number, from a general register"),
    "Log1p_32f_A21": ("broadcast", "as in Log1p_32f_A11"),
    "Pow_64f_A50": ("stack access", "as in Acos_64f_A50, with eight registers of tables"),
    "Pow_64f_A53": ("stack access", "as in Pow_64f_A50"),
    "Powx_32f_A21": ("broadcast", "its constants and two streams need more than the 32 registers"),
    "Powx_64f_A50": ("stack access", "as in Acos_64f_A50"),
    "Powx_64f_A53": ("stack access", "as in Acos_64f_A50"),
    "SinCos_64f_A53": ("stack access", "as in CIS_64fc_A53"),
    "Sinh_64f_A53": ("stack access", "as in Acos_64f_A50"),
    "Sqrt_32fc_A21": ("broadcast", "as in Log1p_32f_A11"),
    "Sqrt_64fc_A50": ("broadcast", "as in Log1p_32f_A11"),
    "Tanh_32f_A24": ("stack access", "as in Tanh_64f_A26"),
    "Tanh_64f_A26": ("stack access", "has more table columns than there are registers"),
    "Tanh_64f_A50": ("stack access", "as in Tanh_64f_A26"),
    "Tanh_64f_A53": ("stack access", "as in Tanh_64f_A26"),
}

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


def check(name, code):
    """Complaints about a kernel, and how many loops it has."""
    stack = frame_registers(code)
    ways = block_loops(code, stack)
    kinds = ALLOWED.get(name, (None,))[0]
    allowed = {None, *kinds} if isinstance(kinds, tuple) else {None, kinds}
    found = [] if ways else ["no loop over full blocks found"]
    for instruction in (i for way in ways for i in way):
        if (kind := complaint(instruction, stack)) not in allowed:
            found.append(f"{kind}: {instruction.mnemonic} {instruction.operands}")
    return [f"{name}: {text}" for text in found], len(ways)


def main():
    by_name = kernel_code(sys.argv[1])
    complaints, loops, names = [], 0, kernels()
    for name in names:
        if name in WITHOUT_LOOP:
            print(f"{name} left out: {WITHOUT_LOOP[name]}")
            continue
        found, count = check(name, by_name[name]) if name in by_name else ([f"{name}: not in the library"], 0)
        complaints += found
        loops += count
    print("\n".join(complaints + [f"{len(names)} kernels, {loops} loops over full blocks, {len(complaints)} complaints"]))
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
