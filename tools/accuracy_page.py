#!/usr/bin/env python3
"""Writes docs/accuracy.md and its pictures: accuracy_page.py [CURVES], from docs/data/accuracy.csv and a folder of error curves.

Only the pictures of functions whose curves are in the folder are drawn anew."""

import csv
import math
import subprocess
import sys
from pathlib import Path

import catalogue

DATA = catalogue.ROOT / "docs/data/accuracy.csv"
PAGE = catalogue.ROOT / "docs/accuracy.md"
IMAGES = catalogue.ROOT / "docs/images/accuracy"

INTRODUCTION = """<!-- Written by `./run accuracy` (tools/accuracy_page.py) from docs/data/accuracy.csv; do not edit. -->
# Accuracy

Largest errors measured against MPFR (real functions) and MPC (complex ones), in units in the last place (ulp) of the exact
value. *Bits* is what the largest error means as a number of correct bits of the significand. *Rounded* is the share of results
that are the exact value rounded to nearest. *Wrong class* counts results that are a NaN or an infinity, or have a sign, where the
exact value is far from it. *Limit* is what the tag promises: below 1 ulp at A24 and A53 (up to 1.01 for Tanh 64f A53), half a
unit of the last promised bit at the others. For complex results the limit holds for the error of the whole number relative to its
modulus (*norm-wise*); the largest error of a single part stands beside it.

*all* marks figures over all 2^32 arguments, for functions of one 32f input. There the C library's binary64 functions settle what
is clear, and MPFR measures each error that may be the largest and decides on each result that may or may not be the rounded
value. *sample* marks figures of some ten thousand arguments: the ordinary range, all magnitudes, poles and zeros, denormal and
huge ones. The others are of arguments that such a sample would hardly meet. *borders*: both sides of every threshold of the kernels
and of every border of their tables and segments, from the neighbouring number to 2^-20 of it. *quarter-turns*: of every binade the
numbers closest to a multiple of pi/2, in the part that is reduced. *unit-circle*: complex numbers on the unit circle and next to it.
To repeat them:

    ./run accuracy                     # all functions, but not over all arguments
    ./run accuracy --inputs borders    # one kind of inputs, all functions
    ./run accuracy --exhaustive        # all arguments, all functions of one 32f input: an hour or more
    ./run accuracy --exhaustive Exp    # all arguments of the 32f tags of a function

The pictures show the largest error over the argument in intervals of a quarter of a binade (of eight
for very small and large arguments), one line a tag, relative to the tag's
limit: a line must stay below 1.

## Overview

The largest error of each tag over all kinds of inputs, low, middle and high, in ulp; of complex results as a whole. **Bold** is
beyond the limit: the tag's bits do not hold for all arguments of these, and [the list below](#beyond-the-limit) says where.

"""

BEYOND = """
## Beyond the limit

The figures of a kind of inputs that are larger than the limit, with the argument of the largest error. Of complex Pow and Powx the
product of exponent and logarithm is rounded, which takes digits from very large and very small results; Powx with the exponents
-2, -3 and -4 gives a zero or a number of few digits where the power itself leaves the range and its reciprocal is denormal.

| name | inputs | error | limit | at |
|---|---|---|---|---|
"""

TYPES = ("32f", "64f", "32fc", "64fc")


def read_rows():
    with DATA.open() as file:
        return {(row["export"], row["inputs"]): row for row in csv.DictReader(file)}


def error_of(row):
    return float(row["norm_ulp"] or row["max_ulp"])


def is_beyond(row):
    return error_of(row) > float(row["bound_ulp"])


def anchor(row):
    return f"{row.function}-{row.type}".lower()


def overview(rows, measured):
    """A table of all functions: links to the sections, and the largest errors of their tags."""
    cells = {}
    for row in rows:
        errors = []
        for name, _ in row.exports():
            figures = [figure for (export, _), figure in measured.items() if export == name]
            if figures:
                worst = max(figures, key=error_of)
                text = f"{error_of(worst):.3g}"
                errors.append(f"**{text}**" if any(map(is_beyond, figures)) else text)
        cells[row.function, row.type] = f"[{', '.join(errors)}](#{anchor(row)})"
    lines = [f"| function | {' | '.join(TYPES)} |", "|---" * (len(TYPES) + 1) + "|"]
    for function in dict.fromkeys(function for function, _ in cells):
        lines.append(f"| {function} | {' | '.join(cells.get((function, type_), '') for type_ in TYPES)} |")
    return "\n".join(lines)


def beyond(measured):
    lines = [f"| `{row['export']}` | {row['inputs']} | {error_of(row):.3g} | {row['bound_ulp']} | `{row['at']}` |"
             for row in measured.values() if is_beyond(row)]
    return BEYOND + "\n".join(lines) + "\n" if lines else ""


def table_row(name, row, is_complex):
    at = row["at"]
    cells = [f"`{name}`", row["inputs"], row["max_ulp"], row["norm_ulp"] if is_complex else None, row["bits"],
             f"{float(row['correctly_rounded_percent']):.2f} %", row["wrong_class"], f"`{at}`",
             row["bound_ulp"] + (" **beyond**" if is_beyond(row) else "")]
    return "| " + " | ".join(c for c in cells if c is not None) + " |"


def place(x):
    """Where an argument stands on the axis: logarithmic on both sides of zero."""
    return math.copysign(math.log10(abs(x) + 1e-3) + 3, x)


def tics(low, high):
    """Labels of the axis, far enough from one another to be read."""
    shown = {0.0: "0"} if low <= 0 <= high else {}
    for exponent in (0, 3, 10, 15, 30, 100, 200, 300, 20, 50, 150, 250):
        label = {0: "1", 3: "1000"}.get(exponent, f"1e{exponent}")
        for at, text in ((place(10.0 ** exponent), label), (place(-10.0 ** exponent), "-" + label)):
            if low <= at <= high and all(abs(at - other) > (high - low) / 12 for other in shown):
                shown[at] = text
    return ", ".join(f"'{text}' {at}" for at, text in sorted(shown.items()))


def draw(function, type_, exports, bounds, curves):
    """One picture a function and type; nothing where no curve was measured."""
    names = [(name, tag) for name, tag in exports if (curves / f"{name}.dat").exists()]
    if not names:
        return
    IMAGES.mkdir(parents=True, exist_ok=True)
    arguments = [place(float(line.split()[0])) for name, _ in names for line in (curves / f"{name}.dat").read_text().splitlines()
                 if line and not line.startswith("#")]
    plots = ", ".join(
        f"'{curves / (name + '.dat')}' using (sgn($1)*(log10(abs($1)+1e-3)+3)):($2/{bounds[name]}) with lines title '{tag or name}'"
        for name, tag in names)
    script = f"""set terminal svg size 720,260 font 'sans,11' background 'white'
set output '{IMAGES / f"{function}_{type_}.svg"}'
set yrange [0:1.1]
set ylabel 'error / limit'
set xlabel 'x'
set xtics ({tics(min(arguments), max(arguments))})
set key outside right
set grid ytics
plot {plots}
"""
    subprocess.run(["gnuplot"], input=script, text=True, check=True)


def main():
    measured = read_rows()
    families = {}
    descriptions = catalogue.descriptions()
    for row in catalogue.rows():
        family = descriptions[catalogue.title_of(row, descriptions)]["family"]
        families.setdefault(family, []).append(row)
    lines = [INTRODUCTION + overview(catalogue.rows(), measured) + "\n" + beyond(measured)]
    for family, rows in families.items():
        lines.append(f"\n## {family}\n")
        for row in rows:
            is_complex = row.type.endswith("c") and row.shape != "ToReal"
            norm = " norm-wise |" if is_complex else ""
            lines.append(f"### {row.function} {row.type}\n")
            lines.append(f"| name | inputs | ulp |{norm} bits | rounded | wrong class | at | limit |")
            lines.append("|---|---|---|" + ("---|" if is_complex else "") + "---|---|---|---|---|")
            bounds = {}
            for name, _ in row.exports():
                # The figures over all arguments say all that those of a sample do.
                general = "all" if (name, "all") in measured else "sample"
                for inputs in (general, "borders", "quarter-turns", "unit-circle"):
                    if (name, inputs) in measured and (general != "all" or inputs == "all"):
                        lines.append(table_row(name, measured[name, inputs], is_complex))
                        bounds[name] = measured[name, inputs]["bound_ulp"]
            if len(sys.argv) > 1:
                draw(row.function, row.type, row.exports(), bounds, Path(sys.argv[1]))
            image = IMAGES / f"{row.function}_{row.type}.svg"
            if image.exists():
                lines.append(f"\n![Error of {row.function} {row.type}](images/accuracy/{image.name})")
            lines.append("")
    PAGE.write_text("\n".join(lines))
    return 0


if __name__ == "__main__":
    sys.exit(main())
