"""Logarithms of the short reciprocals c with which the logarithm kernels reduce their arguments.

In the names, below_one and above_one say that c is from 1/2 to 1 or from 1 to 2; otherwise it is from 3/4 to 3/2.
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
        rule = f"-{name} c, c = 1 + i/{n} for i = 0 to {n // 2 - 1}, (1 + i/{n})/2 for i = {n // 2} to {n - 1}"
        write(f"minus_{name}", SCRIPT, f"{rule}; rounded to nearest.", values, 64, directory)
        write(f"minus_{name}", SCRIPT, f"{rule}: hi, rounded to a multiple of 2^-40, and lo, the rest.",
              [split(v, -40) for v in values], 64, directory, "pairs")


def float_tables(directory):
    write("minus_ln_above_one", SCRIPT, "-ln c, c = 1 + i/16, i = 0 to 15: hi, rounded to a multiple of 2^-16, and lo, the rest.",
          [split(of(log, c), -16) for c in above_one(16)], 32, directory, "pairs")
    for n in (16, 32):
        write("minus_ln_below_one", SCRIPT,
              f"-ln c, c = (1 + i/{n})/2, i = 0 to {n - 1}: hi, rounded to a multiple of 2^-16, and lo, the rest.",
              [split(of(log, c / 2), -16) for c in above_one(n)], 32, directory, "pairs")
    # Next to x = 1 the row 0 and the multiple of log10 2 cancel, so the row is the kernel's own split of log10 2.
    rows = [split(of(log10, c / 2), -18) for c in above_one(32)]
    rows[0] = [from_bits(0x3E9A2000, 32), from_bits(0x369A84FC, 32)]
    write("minus_log10_below_one", SCRIPT,
          "-log10 c, c = (1 + i/32)/2, i = 0 to 31: hi, rounded to a multiple of 2^-18, and lo, the rest; row 0 is the kernel's own "
          "split of log10 2.", rows, 32, directory, "pairs")


def routine_tables(directory):
    for name, function, width, grid in (("ln", log, 64, -42), ("log10", log10, 64, -42), ("log10", log10, 32, -17)):
        rows = []
        for i in range(65):
            c = to_multiple(Fraction(64, 64 + i), -10)
            rows.append([c] + split(of(function, c), grid))
        write(f"{name}_routine", SCRIPT,
              f"c = 64/(64 + i), i = 0 to 64, rounded to ten fraction bits; -{name} c: hi, rounded to a multiple of 2^{grid}, and lo, "
              "the rest.", rows, width, directory)


def generate(directory):
    double_tables(directory)
    float_tables(directory)
    routine_tables(directory)
