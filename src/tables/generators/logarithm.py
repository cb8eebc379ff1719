"""Logarithms of the short reciprocals c with which the logarithm kernels reduce their arguments.

With hi + lo pairs, hi is rounded to nearest on a grid of a power of 2, so that adding a multiple of the logarithm of 2 of the
same grid is exact; lo is the rest, rounded.
"""

from fractions import Fraction

from mpmath import log, log10, mpf

from binary import exact, from_bits, to_multiple, write

SCRIPT = "logarithm.py"


def of(function, c):
    """-function(c) of a Fraction c."""
    return -function(mpf(c.numerator) / c.denominator)


def split(value, grid):
    hi = to_multiple(value, grid)
    return [hi, exact(value) - hi]


def centred(n):
    """1 + i/n in the first half of the rows, (1 + i/n)/2 in the second: reciprocals from 3/4 to 3/2."""
    return [Fraction(n + i, n) / (1 if i < n // 2 else 2) for i in range(n)]


def above_one(n):
    return [Fraction(n + i, n) for i in range(n)]


def double_tables(directory):
    for name, function, n in (("ln", log, 8), ("log10", log10, 16), ("ln", log, 16)):
        values = [of(function, c) for c in centred(n)]
        rule = f"-{name} c, c = 1 + i/{n} for i < {n // 2}, (1 + i/{n})/2 from there on"
        write(f"{name}_{n}", SCRIPT, f"{rule}; rounded.", values, 64, directory)
        write(f"{name}_{n}_pairs", SCRIPT, f"{rule}; hi, a multiple of 2^-40, and lo.", [split(v, -40) for v in values], 64,
              directory)


def float_tables(directory):
    write("ln_float_16_pairs", SCRIPT, "-ln(1 + i/16): hi, a multiple of 2^-16, and lo.",
          [split(of(log, c), -16) for c in above_one(16)], 32, directory)
    for n in (16, 32):
        write(f"ln_float_{n}_half_pairs", SCRIPT, f"ln 2 - ln(1 + i/{n}): hi, a multiple of 2^-16, and lo.",
              [split(of(log, c / 2), -16) for c in above_one(n)], 32, directory)
    # Next to x = 1 the row 0 and the multiple of log10 2 cancel, so the row is the kernel's own split of log10 2.
    rows = [split(of(log10, c / 2), -18) for c in above_one(32)]
    rows[0] = [from_bits(0x3E9A2000, 32), from_bits(0x369A84FC, 32)]
    write("log10_float_32_half_pairs", SCRIPT, "log10 2 - log10(1 + i/32): hi, a multiple of 2^-18, and lo; row 0 the split of log10 2.",
          rows, 32, directory)


def routine_tables(directory):
    for name, function, width, grid in (("ln_routine", log, 64, -42), ("log10_routine", log10, 64, -42),
                                        ("log10_routine_float", log10, 32, -17)):
        rows = []
        for i in range(65):
            c = to_multiple(Fraction(64, 64 + i), -10)
            rows.append([c] + split(of(function, c), grid))
        write(name, SCRIPT, f"c = 64/(64 + i) to ten fraction bits; -{name.split('_')[0]} c: hi, a multiple of 2^{grid}, and lo.", rows,
              width, directory)


def generate(directory):
    double_tables(directory)
    float_tables(directory)
    routine_tables(directory)
