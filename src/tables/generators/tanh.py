"""The segment tables of tanh: a polynomial in d = |x| - centre for each segment. The first segment begins at zero, the others
are equal parts of each power of 2. The values and slopes at the centres follow from the rule, the higher coefficients come from
tanh.sollya; the first row of binary32 is pinned but for its cubic coefficient, the last row is the constant 1.
"""

from fractions import Fraction

import mpmath
from mpmath import linspace, mpf

from binary import exact, fitted_rows, to_binary, to_multiple, write

SCRIPT = "tanh.py and tanh.sollya"
# Row 0 of binary32, from d^2 up; the cubic coefficient is the best binary32 number next to -1/3.
FIRST_FLOAT_ROW = ["-6.55696e-10", None, "-1.41763e-05", "0.133854", "-0.00867829"]


def fitted():
    """(format, degree) -> row -> coefficients from d^2 up, exactly."""
    return fitted_rows(__file__, "the tables of tanh are fitted")


def border(row, parts, first_exponent, offset):
    """Where a row begins: parts segments a power of 2, the first of them at (1 + offset/parts) 2^first_exponent."""
    power, part = divmod(row - 1 + offset, parts)
    return (1 + Fraction(part, parts)) * Fraction(2) ** (first_exponent + power)


def segments(name):
    if name == "float":
        borders = [border(i, 4, -5, 3) for i in range(1, 32)]
    else:
        borders = [border(i, 2, -3, 1) for i in range(1, 16)]
    return list(zip([Fraction(0)] + borders[:-1], borders))


def relative_error(low, high, centre, value, coefficients):
    """The largest on a fine grid, value being the exact one at the centre."""
    worst = mpf(0)
    for x in linspace(mpf(low.numerator) / low.denominator, mpf(high.numerator) / high.denominator, 201):
        if x == 0:
            continue
        d = x - mpf(centre.numerator) / centre.denominator
        p = mpf(0)
        for c in reversed(coefficients):
            p = (p + mpf(c.numerator) / c.denominator) * d
        worst = max(worst, abs((value + p) / mpmath.tanh(x) - 1))
    return worst


def first_float_row(low, high):
    ulp = -25
    start = to_multiple(Fraction(-1, 3), ulp)
    rows = []
    for step in range(-16, 17):
        row = [start + step * Fraction(2) ** ulp if c is None else to_binary(Fraction(c), 32) for c in FIRST_FLOAT_ROW]
        rows.append((relative_error(low, high, low, mpf(0), [Fraction(1)] + row), row))
    return min(rows)[1]


def table(name, width, higher):
    """Rows of centre, value, slope, higher coefficients and what the value lacks; the largest relative error."""
    rows, errors = [], []
    for i, (low, high) in enumerate(segments(name)):
        centre = (low + high) / 2 if i else low
        exact_value = mpmath.tanh(mpf(centre.numerator) / centre.denominator)
        value = to_binary(exact_value, width)
        slope = to_binary(1 - exact_value**2, width)
        rest = first_float_row(low, high) if (name, i) == ("float", 0) else higher[i]
        rows.append([centre, value, slope] + rest + [exact(exact_value) - value])
        errors.append(relative_error(low, high, centre, exact_value, [slope] + rest))
    rows.append([Fraction(0), Fraction(1)] + [Fraction(0)] * (len(rows[0]) - 2))
    return rows, max(errors)


def generate(directory):
    tables = fitted()
    for (name, degree), higher in tables.items():
        width = 32 if name == "float" else 64
        rows, error = table(name, width, higher)
        ends, parts = [high for _, high in segments(name)], 4 if name == "float" else 2
        pinned = "; row 0 is pinned" if name == "float" else ""
        comment = "\n".join([
            f"tanh on segments: the centre, the coefficients of 1, d, ... d^{degree} for d = |x| - centre, "
            "what the first of them lacks.",
            f"Segments: from 0 to {float(ends[0]):g}, then {parts} equal parts of each power of 2, to {float(ends[-1]):g}. Weight: 1/d^2, with value and slope given{pinned}.",
            f"Largest relative error, with what the value lacks added: {float(error):.2e}. The last row is 1."])
        write("tanh", SCRIPT, comment, rows, width, directory, f"degree_{degree}")
