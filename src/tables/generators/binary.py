"""Rounding of exact or high-precision values to IEEE binary formats, and the format of the generated files.

A generated file holds bit patterns in hexadecimal, one row of the table a line, each followed by a comma, below a comment
that says what the rows are and which script wrote them. Its name says the same in short: what is tabulated, the format of the
entries, the number of rows, and where there are several forms of the same, which one: cosine_64f_16_head, erfc_64f_3488_packed.
In `pairs` every number is followed by what its rounded value lacks.
"""

import shutil
import subprocess
import textwrap
from fractions import Fraction
from pathlib import Path

import mpmath

mpmath.mp.prec = 400

GENERATED = Path(__file__).resolve().parent.parent / "generated"

# Significand bits and smallest exponent of the last place.
FORMATS = {32: (24, -149, 127), 64: (53, -1074, 1023)}


def exact(x):
    """An mpf or number as a Fraction, exactly."""
    if isinstance(x, mpmath.mpf):
        sign, man, exp, _ = x._mpf_
        value = Fraction(int(man)) * Fraction(2) ** int(exp)  # man may be of a faster integer type, which Fraction mistakes
        return -value if sign else value
    return Fraction(x)


def floor_log2(x):
    """floor(log2 x) of a positive Fraction."""
    e = x.numerator.bit_length() - x.denominator.bit_length()
    return e if x >= Fraction(2) ** e else e - 1


def to_multiple(x, exponent, mode="nearest"):
    """x rounded to a multiple of 2^exponent: "nearest" (ties to even), "down" or "zero"."""
    q = exact(x) / Fraction(2) ** exponent
    if mode == "nearest":
        n = round(q)  # Fraction rounds ties to even
    elif mode == "down":
        n = q.numerator // q.denominator
    else:
        n = abs(q.numerator) // q.denominator * (1 if q >= 0 else -1)
    return n * Fraction(2) ** exponent


def to_significand(x, significand_bits, mode="nearest"):
    """x rounded to that many significant bits, with no bound on the exponent."""
    x = exact(x)
    if x == 0:
        return x
    return to_multiple(x, floor_log2(abs(x)) - significand_bits + 1, mode)


def to_binary(x, width, mode="nearest"):
    """x rounded to binary32 or binary64, as a Fraction."""
    significand, last_place, _ = FORMATS[width]
    x = exact(x)
    if x == 0:
        return x
    return to_multiple(x, max(floor_log2(abs(x)) - significand + 1, last_place), mode)


def bits(x, width, mode="nearest"):
    """The bit pattern of x rounded to binary32 or binary64 (zero as +0)."""
    significand, last_place, bias = FORMATS[width]
    x = to_binary(x, width, mode)
    if x == 0:
        return 0
    magnitude = abs(x)
    exponent = max(floor_log2(magnitude), 1 - bias)
    integer = magnitude / Fraction(2) ** (exponent - significand + 1)
    assert integer.denominator == 1
    fraction = integer.numerator
    normal = fraction >> (significand - 1)
    field = exponent + bias if normal else 0
    assert field <= 2 * bias
    pattern = field << (significand - 1) | (fraction & ((1 << (significand - 1)) - 1))
    return pattern | (1 << (width - 1)) if x < 0 else pattern


def from_bits(pattern, width):
    """The value of a bit pattern of a finite number, as a Fraction."""
    significand, last_place, bias = FORMATS[width]
    field = pattern >> (significand - 1) & ((1 << (width - significand)) - 1)
    fraction = pattern & ((1 << (significand - 1)) - 1)
    if field:
        fraction |= 1 << (significand - 1)
    value = Fraction(fraction) * Fraction(2) ** (max(field, 1) - bias - significand + 1)
    return -value if pattern >> (width - 1) else value


def rows_of(values, width):
    """Lines of a table; a row is a value to round, a bit pattern given as str, or a list of these."""
    lines = []
    for row in values:
        cells = row if isinstance(row, (list, tuple)) else [row]
        words = [c if isinstance(c, str) else f"0x{bits(c, width):0{width // 4}X}" for c in cells]
        lines.append(", ".join(words) + ",")
    return lines


def write(subject, script, comment, values, width, directory=GENERATED, part="", size=None, format=None):
    """Writes generated/<subject>_<format>_<size>[_<part>].inc; format and size are those of the values, if not given."""
    name = "_".join(filter(None, [subject, format or f"{width}f", str(size or len(values)), part]))
    sentences = [line for paragraph in comment.split("\n") for line in textwrap.wrap(paragraph, 125)]
    lines = [f"// {line}" for line in sentences + [f"Written by src/tables/generators/{script}."]] + rows_of(values, width)
    (Path(directory) / f"{name}.inc").write_text("\n".join(lines) + "\n")


def run_sollya(module, what):
    """The lines that the Sollya script beside a module writes; `what` it fits is for the message where Sollya is missing."""
    if shutil.which("sollya") is None:
        raise SystemExit(f"generate.py: {what} by sollya, which is not installed")
    script = Path(module).with_suffix(".sollya")
    return subprocess.run(["sollya", str(script)], check=True, capture_output=True, text=True).stdout.splitlines()


def fitted_rows(module, what):
    """(word, number) -> row -> coefficients, exactly, of a script whose lines are these and the coefficients."""
    tables = {}
    for line in run_sollya(module, what):
        name, degree, row, *coefficients = line.split()
        tables.setdefault((name, int(degree)), {})[int(row)] = [Fraction(c) for c in coefficients]
    return tables
