"""The cost of lanes that vector paths refuse: measures it, and writes docs/data/refused.csv and docs/refused-lanes.md."""

import statistics
import subprocess
import sys

import catalogue
from runs import machine, merged, run_benchmarks

DATA = catalogue.ROOT / "docs/data/refused.csv"
PAGE = catalogue.ROOT / "docs/refused-lanes.md"
PARTS = ["function", "length", "who", "refused", "share"]
SHARES = ["none", "1 of 1000", "1 of 32", "all"]

INTRODUCTION = """<!-- Written by `./run bench --refused` (bench/refused_lanes.py) from docs/data/refused.csv; do not edit. -->
# The cost of refused lanes

A vector path refuses the lanes that it cannot finish: poles, infinities, arguments outside the domain or beyond its reduction,
results next to the ends of the range. A block with such a lane (8 to 64 elements) is computed once more and spilled, and a
scalar routine finishes the refused lanes one by one ([architecture](architecture.md)). Here are arrays of 4096 elements of
everyday size in which no element, one of 1000, one of 32 or each one is replaced by an argument that is refused. Of the
arguments that a function refuses, the tables have those that a user may well have.

The figures are ticks of the time stamp counter an element, the least of nine repetitions, and in parentheses the time of a loop
over the standard library's function on the same array in the same run, over ours: below 1 the loop is the faster one. There is
no such function for CdfNormInv, ErfInv and ErfcInv; that of CdfNorm is composed of erfc. [data/refused.csv](data/refused.csv)
holds all figures.

These real functions refuse nothing and have no line: {nothing_refused}.

Measured on {machine}. To repeat: `./run bench --refused` (or `./run bench --refused Exp`).

## What is seen

| share refused | lines | slower than the loop | loop over ours, median |
|---|---|---|---|
{summary}

A refused lane in a block costs {lane_cost:.0f} ticks (the median of the lines): the block is computed twice, goes through memory,
and a function is called. So rare refused elements are hardly noticed, but one in every block takes away most of what the
vectors gain.

With all elements refused, these lines of the high tags and of functions without tags are slower than the loop (the loop's time
over ours): {slower}.

[The reasons](notes/speed.md#special-arguments).
"""


def functions_with_refused_lanes(build):
    """Their names, in the order of the benchmarks."""
    command = [build / "bench/bench", "--refused", "--benchmark_list_tests=true"]
    result = subprocess.run(command, capture_output=True, text=True)
    if result.returncode != 0:
        print(result.stderr, file=sys.stderr, end="")
        sys.exit(result.returncode)
    return list(dict.fromkeys(line.split("_")[0] for line in result.stdout.splitlines()))


class Line:
    """A tag of a function with one kind of refused argument: ticks by share, and the loop's time over ours or nothing."""

    def __init__(self, row, tag, refused, figures):
        self.tag, self.refused, self.is_high = tag, refused, tag in ("A24", "A53", "lumvm")
        self.type = row.type
        self.name = f"{row.function} {row.type}" + ("" if tag == "lumvm" else f" {tag}")
        self.ticks = {share: float(figures[tag, share]["ticks"]) for share in SHARES}
        self.ratio = {share: float(figures["scalar", share]["ns"]) / float(figures[tag, share]["ns"])
                      for share in SHARES if ("scalar", share) in figures}

    def table_line(self):
        cells = (f"{self.ticks[s]:.3g}" + (f" ({self.ratio[s]:.2g})" if s in self.ratio else "") for s in SHARES)
        return f"| {self.name} | {self.refused} | {' | '.join(cells)} |"


def lines_of(row, stored):
    name = f"{row.function}_{row.type}"
    kinds = dict.fromkeys(r["refused"] for r in stored.values() if r["function"] == name)
    for refused in kinds:
        figures = {(r["who"], r["share"]): r for r in stored.values() if r["function"] == name and r["refused"] == refused}
        for tag in (tag or "lumvm" for _, tag in row.exports()):
            if (tag, "none") in figures:
                yield Line(row, tag, refused, figures)


def write_page(stored):
    lines = [line for row in catalogue.rows() for line in lines_of(row, stored)]
    known = {r["function"].split("_")[0] for r in stored.values()}
    whole = dict.fromkeys(row.function for row in catalogue.rows() if not row.type.endswith("c") and row.function not in known)
    compared = [line for line in lines if line.ratio]
    summary = "\n".join(f"| {share} | {len(compared)} | {sum(line.ratio[share] < 1 for line in compared)} | "
                        f"{statistics.median(line.ratio[share] for line in compared):.2g} |" for share in SHARES)
    slower = sorted((line for line in compared if line.is_high and line.ratio["all"] < 1), key=lambda line: line.ratio["all"])
    page = INTRODUCTION.format(
        machine=machine(), nothing_refused=", ".join(whole), summary=summary,
        lane_cost=statistics.median(32 * (line.ticks["1 of 32"] - line.ticks["none"]) for line in lines),
        slower="\n".join(f"- {line.name}, {line.refused}: {line.ratio['all']:.2g}" for line in slower) or "none")
    for type_ in ("32f", "64f"):
        page += f"\n## {type_}\n\n| name | refused | {' | '.join(SHARES)} |\n|---|---|{'---|' * len(SHARES)}\n"
        page += "".join(line.table_line() + "\n" for line in lines if line.type == type_)
    PAGE.write_text(page)


def report(build, functions):
    rows = []
    for function in functions or functions_with_refused_lanes(build):
        rows += run_benchmarks(build, [function], ["--refused"], PARTS, repetitions=9, of_all=min)
    write_page(merged(rows, DATA, PARTS))
