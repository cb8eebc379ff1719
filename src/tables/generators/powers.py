"""Tables of the powers: base-2 logarithms of short reciprocals, the scalar routine's three stages of factors, and the large
tables that Powx gathers from.

With hi + lo pairs, hi is rounded on a grid of a power of 2, so that sums with exponent counts are exact; lo is the rest,
rounded.
"""

from fractions import Fraction

from mpmath import log, mpf

from binary import exact, from_bits, to_binary, to_multiple, to_significand, write

SCRIPT = "powers.py"


def log2_of(x):
    """log2 x of a Fraction."""
    return log(mpf(x.numerator) / x.denominator) / log(mpf(2))


def ln_of(x):
    return log(mpf(x.numerator) / x.denominator)


def split(value, grid, mode="nearest"):
    hi = to_multiple(value, grid, mode)
    return [hi, exact(value) - hi]


def vector_tables(directory):
    for width, grid in ((32, -16), (64, -40)):
        rows = [(1 if j >= 16 else 0) - log2_of(Fraction(32 + j, 32)) for j in range(32)]
        write("minus_log2", SCRIPT,
              f"-log2 c, c = 1 + j/32 for j = 0 to 15, (1 + j/32)/2 for j = 16 to 31: hi, rounded to a multiple of 2^{grid}, and lo, "
              "the rest.", [split(row, grid) for row in rows], width, directory, "pairs")
        rows = [(1 if i >= 8 else 0) - log2_of(Fraction(16 + i, 16)) for i in range(16)]
        write("minus_log2", SCRIPT, "-log2 c, c = 1 + i/16 for i = 0 to 7, (1 + i/16)/2 for i = 8 to 15; rounded to nearest.", rows,
              width, directory)


def centre(i, count, unit):
    """The middle of row i of a stage after the first: of 1 + 2 i units in the first rows; the last rows stand for numbers
    below 1, whose units are half as large. The last number of a row below 3/8 of the count, and the first one above, are
    out of reach."""
    return 1 + 2 * i * unit if 8 * i < 3 * (count - 1) else 1 - (count - 1 - i) * unit


# By type: rows of the stages, unit of the stages after the first (two units a row), grid of their reciprocals, scale, grid of
# the logarithms. The scale is a short number next to 1/ln 2.
STAGES = {
    32: ((9, 9, 17), (Fraction(1, 64), Fraction(1, 512)), (-6, -8, -8), from_bits(0x3FB88000, 32), -16),
    64: ((33, 33, 129), (Fraction(1, 1024), Fraction(1, 65536)), (-10, -13, -22), from_bits(0x3FF7154740000000, 64), -40),
}


def stage_factors(width):
    counts, units, grids, scale, _ = STAGES[width]
    first = [to_multiple(Fraction(counts[0] - 1, counts[0] - 1 + i), grids[0]) for i in range(counts[0])]
    second = [to_multiple(1 / centre(i, counts[1], units[0]), grids[1]) for i in range(counts[1])]
    third = [to_multiple(scale / centre(i, counts[2], units[1]), grids[2]) for i in range(counts[2])]
    return first, second, third


def check_reach(width):
    """The rows that a stage's results can fall in lie on their side of the border."""
    counts, units, _, scale, _ = STAGES[width]
    first, second, third = stage_factors(width)

    def sides(factors, centres, half_widths, unit, count):
        above = max(f * (c + h) for f, c, h in zip(factors, centres, half_widths)) - 1
        below = 1 - min(f * (c - h) for f, c, h in zip(factors, centres, half_widths))
        assert (above / unit + 1) / 2 < Fraction(3, 8) * (count - 1), (width, above)
        assert (2 * (count - 1) - below * 2 / unit) / 2 >= Fraction(3, 8) * (count - 1), (width, below)

    n = counts[0] - 1
    sides(first, [1 + Fraction(i, n) for i in range(n + 1)], [Fraction(1, 2 * n)] * (n + 1), units[0], counts[1])
    reached = [i for i in range(counts[1])]
    centres = [centre(i, counts[1], units[0]) for i in reached]
    widths = [units[0] if c >= 1 else units[0] / 2 for c in centres]
    sides(second, centres, widths, units[1], counts[2])
    for a in first:
        for b in second:
            for c in third:
                assert to_significand(a * b * c, 24 if width == 32 else 53) == a * b * c


def routine_tables(directory):
    for width in (32, 64):
        check_reach(width)
        counts, units, grids, scale, log_grid = STAGES[width]
        first, second, third = stage_factors(width)
        half = (counts[0] - 1) // 2
        hi_and_lo = f"hi, rounded to a multiple of 2^{log_grid}, and lo, the rest"
        write("power_stage1", SCRIPT,
              f"c = 1/(1 + i/{counts[0] - 1}), i = 0 to {counts[0] - 1}, rounded to a multiple of 2^{grids[0]}; -log2 c, 1 less from "
              f"row {half} on: {hi_and_lo}.",
              [[c] + split(exact(-log2_of(c)) - (1 if i >= half else 0), log_grid) for i, c in enumerate(first)], width, directory)
        write("power_stage2", SCRIPT,
              f"c, the reciprocal of the row's middle, rounded to a multiple of 2^{grids[1]}; -log2 c: {hi_and_lo}. Rows of "
              f"{2 * units[0]}, those in front for numbers from 1 on, those behind for numbers below.",
              [[c] + split(-log2_of(c), log_grid) for c in second], width, directory)
        write("power_stage3", SCRIPT,
              f"c, the scale over the row's middle, rounded to a multiple of 2^{grids[2]}; log2(scale/c): {hi_and_lo}. Rows of "
              f"{2 * units[1]}, those in front for numbers from 1 on, those behind for numbers below.",
              [[c] + split(log2_of(scale / c), log_grid) for c in third], width, directory)
        powers = [exact(mpf(2) ** (mpf(i) / 128)) for i in range(128)]
        write("exp2", SCRIPT, "2^(i/128), i = 0 to 127: rounded to nearest, and what that lacks.",
              [[to_binary(p, width), p - to_binary(p, width)] for p in powers], width, directory, "pairs")


def gathered_tables(directory):
    rows = []
    for i in range(65):
        c = to_multiple(Fraction(64, 64 + i), -8)
        rows.append(split(-ln_of(c), -13) + [c])
    write("powx_ln", SCRIPT,
          "-ln c: hi, rounded to a multiple of 2^-13, and lo, the rest; then c = 1/(1 + i/64), i = 0 to 64, rounded to a multiple of "
          "2^-8.", rows, 32, directory)
    write("powx_ln", SCRIPT, "ln(512/c) for c = 512 to 724, ln(1024/c) for c = 725 to 1024; rounded to nearest.",
          [ln_of(Fraction(512 if c <= 724 else 1024, c)) for c in range(512, 1025)], 64, directory)
    balance = exact(mpf(0.9999999928394805))
    write("powx_exp2", SCRIPT,
          "0.9999999928394805 times 2^(i/2048), i = 0 to 2047, rounded to nearest. The factor balances the error of a linear step.",
          [exact(mpf(2) ** (mpf(i) / 2048)) * balance for i in range(2048)], 64, directory)
    scale = STAGES[64][3]
    reciprocals = [to_significand(scale * 1024 / (1024 + i), 23, "zero") for i in range(1025)]
    rule = "c = 1.442694902420044/(1 + i/1024), i = 0 to 1024, cut to 23 significant bits"
    write("powx_reciprocal", SCRIPT, f"{rule}.", reciprocals, 64, directory)
    write("powx_log2", SCRIPT,
          f"log2(1.442694902420044/c) for {rule}; 1 less from row 512 on: hi, cut to a multiple of 2^-30, and lo, the rest.",
          [split(exact(log2_of(scale / c)) - (1 if i >= 512 else 0), -30, "zero") for i, c in enumerate(reciprocals)], 64, directory, "pairs")


def generate(directory):
    vector_tables(directory)
    routine_tables(directory)
    gathered_tables(directory)
