#!/usr/bin/env python3
"""Computes the error of every polynomial and compares it with the one that its record states. Then disturbs coefficients, to see
that the comparison notices: of each family the first polynomial's constant term, changed by less and less until it no longer does."""

import copy
import contextlib
import dataclasses
import io
import struct
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import polynomials  # noqa: E402

# A constant term that is wrong by this part is always noticed.
NOTICED = 2.0 ** -8


def disturbed(polynomial, part):
    """The polynomial with its constant term changed by this part of it."""
    record = copy.deepcopy(polynomial.record)
    code = {32: ("<I", "<f", 8), 64: ("<Q", "<d", 16)}[polynomial.width]
    value = polynomial.values()[0] * (1 + part)
    record["coefficients"][0] = f"0x{struct.unpack(code[0], struct.pack(code[1], value))[0]:0{code[2]}X}"
    return dataclasses.replace(polynomial, record=record)


def is_noticed(polynomial):
    with contextlib.redirect_stdout(io.StringIO()):
        return polynomials.check_errors([polynomial]) != 0


def main():
    members = polynomials.polynomials()
    status = polynomials.check_errors(members)
    firsts = {id(p.family): p for p in reversed(members)}.values()
    for p in firsts:
        part = NOTICED
        while is_noticed(disturbed(p, part)):
            part /= 2
        if part == NOTICED:
            print(f"{p.name}: a constant term wrong by {NOTICED} of it is not noticed")
            status = 1
        else:
            print(f"{p.name}: a constant term wrong by {2 * part:.1e} of it is noticed")
    return status


if __name__ == "__main__":
    sys.exit(main())
