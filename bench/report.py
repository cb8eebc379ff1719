#!/usr/bin/env python3
"""Runs the benchmarks and writes docs/data/performance.csv, docs/performance.md and its pictures.

report.py BUILD [FUNCTION...]                 measure, all functions when none is named
report.py BUILD --compare BASE [FUNCTION...]  measure this build and another one side by side, and write nothing
report.py BUILD --refused [FUNCTION...]       measure arrays with refused lanes, and write docs/refused-lanes.md and its data
report.py BUILD --library NAME [FUNCTION...]  measure the library of a layer, a2 or p0, against the peers for its instructions,
                                              and write docs/performance-NAME.md and its data

BUILD is a build folder; BASE a build folder or a library file."""

import argparse
import re
import shutil
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "tools"))
import catalogue
import port_bound
import refused_lanes
from runs import machine, merged, run_benchmarks

DATA = catalogue.ROOT / "docs/data/performance.csv"
PAGE = catalogue.ROOT / "docs/performance.md"
IMAGES = catalogue.ROOT / "docs/images/performance"
PARTS = ["function", "length", "who"]
# Peers whose results are as exact as the high tags' (1 ulp, or exact); the others allow up to 4 ulp, as the mid tags do.
EXACT_PEERS = {"sleef", "sleef_u05", "sleef_u10", "sleef_u15"}
EXACT_TAGS = ("A24", "A53", "")
MAIN_LENGTH = 4096

INTRODUCTION = """<!-- Written by `./run bench` (bench/report.py) from docs/data/performance.csv; do not edit. -->
# Performance

Nanoseconds and ticks of the time stamp counter an element, at arguments of everyday size, one thread. *ratio* is the time of the
fastest peer of the same accuracy class over ours: at A24 and A53 SLEEF's functions of 1 ulp, at the other tags the faster of those,
SLEEF's of 3.5 ulp and glibc's vector functions of 4 ulp. Where no peer has the function, *composed* is the well-known rational
function or formula on a peer's logarithm or erfc, and *plain* the formula of a complex product, vectorised by the compiler with
-ffast-math: neither cares for special values or the last digits. *scalar* is the time of a loop over the standard library's function over
ours. *floor* is what the loop must take by the processor's execution ports alone (llvm-mca, Ice Lake server model, in core cycles;
the time stamp counter runs at another frequency). All candidates of a function run interleaved in one process.

Arguments that the vector paths refuse have [a page of their own](refused-lanes.md).

Measured on {machine}. To repeat: `./run bench` (or `./run bench Exp`); `./run bench --compare BUILD Exp` sets two builds side by side.
"""


OVERVIEW = """
## Overview

The highest tags at length {length}: ns an element and, in parentheses, the time of the scalar loop and of the best peer over ours.

{table}

Names of which a peer is the faster one, with its time over ours:

{behind}

[What the figures mean](notes/speed.md).
"""


LIBRARIES = {"a2": "the library for AVX2 and FMA", "p0": "the portable library, built for any x86-64 processor"}
LIBRARY_PAGE = """<!-- Written by `./run bench --library {library}` (bench/report.py) from docs/data/performance-{library}.csv; do not edit. -->
# Performance of {what}

Nanoseconds and ticks of the time stamp counter an element at length {length}, and ns of a call of one element, measured as
[those of the AVX-512 library](performance.md) are, against functions for the same instructions. *ratio* is the time of the
fastest peer of the same accuracy class over ours, *scalar* that of a loop over the standard library's function.

Measured on {machine}. To repeat: `./run bench --library {library}` (or `./run bench --library {library} Exp`).

## Overview

The highest tags: ns an element and, in parentheses, the time of the scalar loop and of the best peer over ours.

{table}

Names of which a peer is the faster one, with its time over ours:

{behind}

## All names

| name | ns | ticks | ratio | scalar | one |
|---|---|---|---|---|---|
{names}
"""


def print_comparison(rows):
    base = {(r["function"], r["length"], r["who"][5:]): float(r["ns"]) for r in rows if r["who"].startswith("base:")}
    print(f"{'function':<16} {'tag':<6} {'length':>9} {'ns here':>10} {'ns base':>10} {'base/here':>10}")
    for r in sorted(rows, key=lambda row: (row["function"], row["who"], row["length"])):
        key = (r["function"], r["length"], r["who"])
        if key in base:
            here = float(r["ns"])
            print(f"{key[0]:<16} {key[2]:<6} {key[1]:>9} {here:>10.4g} {base[key]:>10.4g} {base[key] / here:>10.2f}")


def best_peer(figures, is_high):
    """Name and ns of the fastest peer of the class, or None. What a user would write himself stands in where no peer has it."""
    peers = {who: ns for who, ns in figures.items() if who.startswith(("sleef", "libmvec")) and (not is_high or who in EXACT_PEERS)}
    peers = peers or {who: ns for who, ns in figures.items() if who.startswith(("composed", "plain"))}
    return min(peers.items(), key=lambda item: item[1]) if peers else None


def figures_of(row, stored):
    """ns an element at the main length, by candidate."""
    name = f"{row.function}_{row.type}"
    return {who: float(r["ns"]) for (f, length, who), r in stored.items() if f == name and length == MAIN_LENGTH}


def overview(stored):
    """Lines of a table of all functions at their highest tags: ns an element and, in parentheses, the times of scalar loop and best
    peer over ours; and of the names of which a peer is the faster one."""
    types = ("32f", "64f", "32fc", "64fc")
    cells, behind = {}, []
    for row in catalogue.rows():
        figures = figures_of(row, stored)
        for export, tag in row.exports():
            peer = best_peer(figures, tag in EXACT_TAGS)
            who = tag or "lumvm"
            if peer and who in figures and peer[1] < figures[who]:
                behind.append(f"{export} {peer[1] / figures[who]:.2f} ({peer[0]})")
        own = figures.get(row.exports()[-1][1] or "lumvm")
        if own is None:
            continue
        peer = best_peer(figures, True)
        ratios = [f"{figures['scalar'] / own:.1f}" if "scalar" in figures else "-", f"{peer[1] / own:.2f}" if peer else "-"]
        cells[row.function, row.type] = f"{own:.3g} ({', '.join(ratios)})"
    lines = [f"| function | {' | '.join(types)} |", "|---" * (len(types) + 1) + "|"]
    for function in dict.fromkeys(function for function, _ in cells):
        lines.append(f"| {function} | {' | '.join(cells.get((function, type), '') for type in types)} |")
    return lines, behind


def table(row, stored, floors):
    """Lines of one function and type at the main length, and the call of one element."""
    name = f"{row.function}_{row.type}"
    figures = figures_of(row, stored)
    ticks = {who: r["ticks"] for (f, length, who), r in stored.items() if f == name and length == MAIN_LENGTH}
    single = {who: r["ns"] for (f, length, who), r in stored.items() if f == name and length == 1}
    lines = []
    for (export, tag), kernel in zip(row.exports(), row.kernels if len(row.exports()) == 3 else row.kernels[2:]):
        who = tag or "lumvm"
        if who not in figures:
            continue
        peer = best_peer(figures, tag in EXACT_TAGS)
        against = f"{peer[1] / figures[who]:.2f} ({peer[0]})" if peer else ""
        scalar = f"{figures['scalar'] / figures[who]:.1f}" if "scalar" in figures else ""
        floor = f"{floors[kernel]:.2f}" if kernel in floors else ""
        lines.append(f"| `{export}` | {figures[who]:.3g} | {ticks[who]} | {floor} | {against} | {scalar} | {single.get(who, '')} |")
    return lines


def write_library_page(library, stored):
    rows, behind = overview(stored)
    # The column of floors is that of another library.
    names = [re.sub(r"^((?:\|[^|]*){3})\|[^|]*", r"\1", line) for row in catalogue.rows() for line in table(row, stored, {})]
    page = LIBRARY_PAGE.format(library=library, what=LIBRARIES[library], length=MAIN_LENGTH, machine=machine(),
                               table="\n".join(rows), behind="\n".join(f"- {name}" for name in behind) or "none",
                               names="\n".join(names))
    (catalogue.ROOT / f"docs/performance-{library}.md").write_text(page)


def draw(row, stored):
    """Time over length, one line a candidate."""
    name = f"{row.function}_{row.type}"
    series = {}
    for (function, length, who), r in sorted(stored.items()):
        if function == name:
            series.setdefault(who, []).append(f"{length} {r['ns']}")
    if not series or not shutil.which("gnuplot"):
        return
    IMAGES.mkdir(parents=True, exist_ok=True)
    blocks = "".join(f"${i} << EOD\n" + "\n".join(points) + "\nEOD\n" for i, points in
                     ((f"d{n}", p) for n, p in enumerate(series.values())))
    plots = ", ".join(f"$d{n} with linespoints pt 7 ps 0.4 title '{who}' noenhanced" for n, who in enumerate(series))
    script = f"""{blocks}set terminal svg size 720,300 font 'sans,11' background 'white'
set output '{IMAGES / f"{name}.svg"}'
set logscale xy
set xlabel 'length'
set ylabel 'ns an element'
set key outside right
set grid
plot {plots}
"""
    subprocess.run(["gnuplot"], input=script, text=True, check=True)


def write_page(stored, floors, measured):
    rows, behind = overview(stored)
    lines = [INTRODUCTION.format(machine=machine()),
             OVERVIEW.format(length=MAIN_LENGTH, table="\n".join(rows), behind="\n".join(f"- {name}" for name in behind) or "none")]
    for row in catalogue.rows():
        body = table(row, stored, floors)
        if not body:
            continue
        lines += [f"\n## {row.function} {row.type}\n", f"Length {MAIN_LENGTH}; the last column is a call of one element, in ns.\n",
                  "| name | ns | ticks | floor | ratio | scalar | one |", "|---|---|---|---|---|---|---|", *body]
        if f"{row.function}_{row.type}" in measured:
            draw(row, stored)
        image = IMAGES / f"{row.function}_{row.type}.svg"
        if image.exists():
            lines.append(f"\n![Time of {row.function} {row.type} over the length](images/performance/{image.name})")
    PAGE.write_text("\n".join(lines) + "\n")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", type=Path)
    parser.add_argument("functions", nargs="*")
    mode = parser.add_mutually_exclusive_group()
    mode.add_argument("--compare", type=Path, metavar="BASE")
    mode.add_argument("--refused", action="store_true")
    mode.add_argument("--library", choices=LIBRARIES)
    mode.add_argument("--lengths", help="lengths of the arrays, separated by commas")
    arguments = parser.parse_intermixed_args()  # functions may stand behind options
    if arguments.refused:
        refused_lanes.report(arguments.build, arguments.functions)
        return 0
    if arguments.compare:
        base = arguments.compare / "liblumvmk0.so" if arguments.compare.is_dir() else arguments.compare
        if not base.exists():
            print(f"bench: {base}: no such library", file=sys.stderr)
            return 2
        extra = ["--base", str(base.resolve()), "--lengths", f"1,{MAIN_LENGTH}"]
        print_comparison(run_benchmarks(arguments.build, arguments.functions, extra, PARTS))
        return 0
    if arguments.library:
        rows = []
        for function in arguments.functions or dict.fromkeys(row.function for row in catalogue.rows()):
            extra = ["--library", arguments.library, "--lengths", f"1,{MAIN_LENGTH}"]
            rows += run_benchmarks(arguments.build, [function], extra, PARTS)
        data = catalogue.ROOT / f"docs/data/performance-{arguments.library}.csv"
        write_library_page(arguments.library, merged(rows, data, PARTS))
        return 0
    # A function at a time: all candidates of one interleave, and the arrays of all would not fit into memory.
    rows = []
    for function in arguments.functions or dict.fromkeys(row.function for row in catalogue.rows()):
        rows += run_benchmarks(arguments.build, [function], ["--lengths", arguments.lengths] if arguments.lengths else [], PARTS)
    output_bytes = {}
    for row in catalogue.rows():
        parts = 2 if row.shape in ("TwoOutputs", "ToComplex") or (row.type.endswith("c") and row.shape != "ToReal") else 1
        for kernel in row.kernels:
            output_bytes[kernel] = parts * (4 if row.type.startswith("32") else 8)
    floors = {}
    if shutil.which("llvm-mca"):
        floors = port_bound.bounds(str(arguments.build / "liblumvmk0.so"), output_bytes)
    else:
        print("bench: llvm-mca is not installed: the floors are left out", file=sys.stderr)
    write_page(merged(rows, DATA, PARTS), floors, {r["function"] for r in rows})
    return 0


if __name__ == "__main__":
    sys.exit(main())
