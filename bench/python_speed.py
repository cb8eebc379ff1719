#!/usr/bin/env python3
"""Measures the Python package against NumPy and scipy.special, and writes docs/data/python.csv, the table in docs/python.md and its
picture: python_speed.py, with lumvm on the module path. All candidates of a function and size run interleaved; the least of the
repetitions counts."""

import csv
import sys
import timeit
from pathlib import Path

import lumvm
import numpy
from scipy import special

ROOT = Path(__file__).resolve().parents[1]
DATA, PAGE = ROOT / "docs/data/python.csv", ROOT / "docs/python.md"
PICTURE = ROOT / "docs/images/python.svg"
SIZES = (1, 100, 10**4, 10**6)
BEGIN, END = "<!-- written by ./run bench --python -->\n", "<!-- end -->\n"
# Our name, the other library's function, and the range of the arguments.
FUNCTIONS = [
    ("exp", numpy.exp, (-20, 20)), ("log", numpy.log, (0.1, 20)), ("sin", numpy.sin, (-20, 20)), ("tan", numpy.tan, (-20, 20)),
    ("tanh", numpy.tanh, (-5, 5)), ("arcsin", numpy.arcsin, (-1, 1)), ("arctan", numpy.arctan, (-20, 20)),
    ("sqrt", numpy.sqrt, (0, 20)), ("cbrt", numpy.cbrt, (-20, 20)), ("power", numpy.power, (0.1, 20)),
    ("hypot", numpy.hypot, (-10, 10)), ("erf", special.erf, (-4, 4)), ("ndtr", special.ndtr, (-5, 5)),
    ("ndtri", special.ndtri, (0.01, 0.99)), ("erfinv", special.erfinv, (-0.99, 0.99)),
]


def nanoseconds(candidates, size):
    """The least time of a call of each candidate, an element."""
    repetitions = max(1, min(20000, 2_000_000 // size) // 10)
    best = [float("inf")] * len(candidates)
    for _ in range(15 if size < 10**6 else 7):
        for i, call in enumerate(candidates):
            best[i] = min(best[i], timeit.timeit(call, number=repetitions) / repetitions)
    return [seconds * 1e9 / size for seconds in best]


def measure():
    random = numpy.random.default_rng(1)
    for dtype in (numpy.float64, numpy.float32):
        for name, other, (low, high) in FUNCTIONS:
            for size in SIZES:
                inputs = [random.uniform(low, high, size).astype(dtype)]
                if other.nin == 2:
                    inputs.append(random.uniform(0.1, 3, size).astype(dtype))
                out = numpy.empty_like(inputs[0])
                ours = [getattr(getattr(lumvm, level), name) for level in ("high", "mid", "low")]
                candidates = [(lambda f=f: f(*inputs, out)) for f in (*ours, other)]
                yield (name, numpy.dtype(dtype).name, size, *(f"{ns:.4g}" for ns in nanoseconds(candidates, size)))


def draw(rows):
    import matplotlib
    matplotlib.use("svg")
    from matplotlib import pyplot
    shown = [row for row in rows if row[1] == "float64" and row[2] == 10**4]
    figure, axes = pyplot.subplots(figsize=(8, 3.4))
    places = numpy.arange(len(shown))
    for i, (level, colour) in enumerate((("high", "#1b4965"), ("mid", "#5fa8d3"), ("low", "#bee3f8"))):
        axes.bar(places + (i - 1) * 0.28, [float(row[6]) / float(row[3 + i]) for row in shown], 0.28, label=level, color=colour)
    axes.axhline(1, color="black", linewidth=0.8)
    axes.set_yscale("log")
    axes.set_ylabel("times as fast as\nNumPy, SciPy")
    axes.set_xticks(places, [row[0] for row in shown], rotation=45, ha="right")
    axes.legend(frameon=False, ncols=3)
    figure.tight_layout()
    figure.savefig(PICTURE, facecolor="white", metadata={"Date": None})


def table(rows):
    lines = ["| function | type | 1 | 100 | 10 000 | 1 000 000 |", "|---|---|---|---|---|---|"]
    for name, dtype in dict.fromkeys((row[0], row[1]) for row in rows):
        cells = []
        for size in SIZES:
            row = next(row for row in rows if row[:3] == (name, dtype, size))
            other = float(row[6])
            cells.append(f"{float(row[3]):.3g} ({other / float(row[3]):.2g}, {other / float(row[4]):.2g}, {other / float(row[5]):.2g})")
        lines.append(f"| {name} | {dtype} | {' | '.join(cells)} |")
    return "\n".join(lines) + "\n"


def main():
    rows = list(measure())
    with DATA.open("w", newline="") as file:
        file.write("# Written by ./run bench --python: nanoseconds an element of each level and of NumPy or SciPy.\n")
        writer = csv.writer(file, lineterminator="\n")
        writer.writerow(["function", "dtype", "size", "high", "mid", "low", "other"])
        writer.writerows(rows)
    draw(rows)
    page = PAGE.read_text()
    before, rest = page.split(BEGIN)
    machine = next((line.split(": ")[1] for line in Path("/proc/cpuinfo").read_text().splitlines() if line.startswith("model name")), "")
    after = rest.split(END)[1]
    note = f"Measured on {machine}, layer {lumvm.layer()}, NumPy {numpy.__version__}.\n\n"
    PAGE.write_text(before + BEGIN + note + table(rows) + END + after)
    return 0


if __name__ == "__main__":
    sys.exit(main())
