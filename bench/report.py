#!/usr/bin/env python3
"""Runs the benchmarks and writes docs/data/performance.csv and floors.csv, docs/performance.md and the pages of the families.

report.py BUILD [FUNCTION...]                 measure, all functions when none is named
report.py BUILD --compare BASE [FUNCTION...]  measure this build and another one side by side, and write nothing
report.py BUILD --special [FUNCTION...]       measure arrays with special arguments, and write docs/special-arguments.md and its data
report.py BUILD --assists [FUNCTION...]       count their microcode assists at denormal numbers; those of all functions go into
                                              docs/data/assists.csv
report.py BUILD --library NAME [FUNCTION...]  measure the library of a layer, a2, p0 or p0-v3, against the peers for its
                                              instructions, and write docs/performance-NAME.md and its data; with --special, its
                                              arrays with special arguments

BUILD is a build folder; BASE a build folder or a library file."""

import argparse
import shutil
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "tools"))
import accuracy_page
import catalogue
import function_pages
import measured_data as data
import port_bound
import special_arguments
import assists
from runs import machine, merged, run_benchmarks

DATA = catalogue.ROOT / "docs/data/performance.csv"
MACHINE = catalogue.ROOT / "docs/data/machine.txt"  # that of the figures
FLOORS = catalogue.ROOT / "docs/data/floors.csv"
PAGE = catalogue.ROOT / "docs/performance.md"
PARTS = ["function", "length", "who"]

INTRODUCTION = """<!-- Written by `./run bench` (bench/report.py) from docs/data/performance.csv; do not edit. -->
# Performance

Nanoseconds an element at arguments of everyday size, one thread; all candidates of a function run interleaved in one process.
Each function has its figures for all tags and a picture of its time over the length on the page of its family:

{families}

There, *ns* and *ticks* (of the time stamp counter) are those of an element in an array of {length}, *one element* is a call of
one. *best peer* is the time of the fastest peer of the same accuracy class over ours: at A24 and A53 SLEEF's functions of 1
ulp, at the other tags the faster of those, SLEEF's of 3.5 ulp and glibc's vector functions of 4 ulp. Where no peer has the
function, *composed* is the well-known rational function or formula on a peer's logarithm or erfc, and *plain* the formula of a
complex product, vectorised by the compiler with -ffast-math: neither cares for special values or the last digits. *C library
loop* is the time of a loop over the standard library's function over ours. *floor* is what the loop must take by the
processor's execution ports alone (llvm-mca, Ice Lake server model, in core cycles; the time stamp counter runs at another
frequency).

These are the figures of a processor with AVX-512. One with AVX2 alone takes [the layer for it](performance-a2.md), mostly two to
three times as long; an older one [the portable layer](performance-p0.md), which is there for its bits and is slower than a loop over
the standard library. Built for other processors with a fused multiply-add, [that layer](performance-p0-v3.md) is mostly faster than
the loop. Zeros, infinities and other special arguments have [a page of their own](special-arguments.md).

Measured on {machine}. To repeat: `./run bench` (or `./run bench Exp`); `./run bench --compare BUILD Exp` sets two builds side
by side. [data/performance.csv](data/performance.csv) has all figures."""


OVERVIEW = """
## Overview

The highest tags at length {length}: ns an element and, in parentheses, the time of the scalar loop and of the best peer over ours.

{table}

Names of which a peer is the faster one, with its time over ours:

{behind}

[What the figures mean](notes/speed.md).
"""


LIBRARIES = {"a2": "the library for AVX2 and FMA", "p0": "the portable library, built for any x86-64 processor",
             "p0-v3": "the portable library, built for processors with a fused multiply-add"}
LIBRARY_PAGE = """<!-- Written by `./run bench --library {library}` (bench/report.py) from docs/data/performance-{library}.csv; do not edit. -->
# Performance of {what}

Nanoseconds and ticks of the time stamp counter an element at length {length}, and ns of a call of one element, measured as
[those of the AVX-512 library](performance.md) are, against functions for the same instructions. *best peer* is the time of the
fastest peer of the same accuracy class over ours, *C library loop* that of a loop over the standard library's function.

Measured on {machine}. To repeat: `./run bench --library {library}` (or `./run bench --library {library} Exp`).

## Overview

The highest tags: ns an element and, in parentheses, the time of the scalar loop and of the best peer over ours.

{table}

Names of which a peer is the faster one, with its time over ours:

{behind}
{special}
## All names

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


def overview(stored):
    """Lines of a table of all functions at their highest tags: ns an element and, in parentheses, the times of scalar loop and best
    peer over ours; and of the names of which a peer is the faster one."""
    types = ("32f", "64f", "32fc", "64fc")
    cells, behind = {}, []
    for row in catalogue.rows():
        figures = data.at_length(row, stored)
        for export, tag in row.exports():
            peer = data.best_peer(figures, tag in data.EXACT_TAGS)
            who = tag or "lumvm"
            if peer and who in figures and peer[1] < figures[who]:
                behind.append(f"{export} {peer[1] / figures[who]:.2f} ({peer[0]})")
        own = figures.get(row.exports()[-1][1] or "lumvm")
        if own is None:
            continue
        peer = data.best_peer(figures, True)
        ratios = [f"{figures['scalar'] / own:.1f}" if "scalar" in figures else "-", f"{peer[1] / own:.2f}" if peer else "-"]
        cells[row.function, row.type] = f"{own:.3g} ({', '.join(ratios)})"
    lines = [f"| function | {' | '.join(types)} |", "|---" * (len(types) + 1) + "|"]
    for function in dict.fromkeys(function for function, _ in cells):
        lines.append(f"| {function} | {' | '.join(cells.get((function, type), '') for type in types)} |")
    return lines, behind


def write_page():
    stored = data.times()
    rows, behind = overview(stored)
    text = INTRODUCTION.format(machine=MACHINE.read_text().strip(), families=accuracy_page.families(), length=data.MAIN_LENGTH)
    text += OVERVIEW.format(length=data.MAIN_LENGTH, table="\n".join(rows), behind="\n".join(f"- {name}" for name in behind) or "none")
    catalogue.write_if_changed(PAGE, text)


def library_argument(build, library):
    """The program's argument for a library. The one for x86-64-v3 is that of the tests of other processors."""
    if library != "p0-v3":
        return library
    path = build / "cross/x86-64-v3/liblumvmp0.so"
    if not path.exists():
        sys.exit(f"bench: {path} is not built; ./run cross builds it")
    return str(path.resolve())


def write_library_page(library):
    stored = data.times(f"performance-{library}.csv")
    rows, behind = overview(stored)
    page = LIBRARY_PAGE.format(library=library, what=LIBRARIES[library], length=data.MAIN_LENGTH, machine=machine(),
                               table="\n".join(rows), behind="\n".join(f"- {name}" for name in behind) or "none",
                               special=special_arguments.section(library),
                               names="\n".join(function_pages.speed_table(catalogue.rows(), stored)))
    catalogue.write_if_changed(catalogue.ROOT / f"docs/performance-{library}.md", page)


def write_machine(functions):
    """The processors of the figures: where some functions alone have been measured, those of the others stay."""
    machines = MACHINE.read_text().strip().split(" and ") if functions and MACHINE.exists() else []
    MACHINE.write_text(" and ".join(dict.fromkeys([*machines, machine()])) + "\n")


def write_floors(build, functions):
    """What the loops of the functions, or of all, must take by the execution ports, by exported name; the file stays as it is where
    llvm-mca is missing."""
    if not shutil.which("llvm-mca"):
        print("bench: llvm-mca is not installed: the floors stay as they are", file=sys.stderr)
        return
    rows = [row for row in catalogue.rows() if not functions or row.function in functions]
    output_bytes = {}
    for row in rows:
        parts = 2 if row.shape in ("TwoOutputs", "ToComplex") or (row.type.endswith("c") and row.shape != "ToReal") else 1
        for kernel in row.kernels:
            output_bytes[kernel] = parts * (4 if row.type.startswith("32") else 8)
    floors = port_bound.bounds(str(build / "liblumvmk0.so"), output_bytes)
    lines = []
    if functions and FLOORS.exists():
        measured = {export for row in rows for export, _ in row.exports()}
        lines = [line for line in FLOORS.read_text().splitlines(keepends=True)[1:] if line.split(",")[0] not in measured]
    for row in rows:
        for (export, _), kernel in zip(row.exports(), row.kernels if len(row.exports()) == 3 else row.kernels[2:]):
            if kernel in floors:
                lines.append(f"{export},{floors[kernel]:.2f}\n")
    FLOORS.write_text("export,ticks\n" + "".join(sorted(lines)))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", type=Path)
    parser.add_argument("functions", nargs="*")
    mode = parser.add_mutually_exclusive_group()
    mode.add_argument("--compare", type=Path, metavar="BASE")
    mode.add_argument("--special", action="store_true")
    mode.add_argument("--assists", action="store_true")
    mode.add_argument("--lengths", help="lengths of the arrays, separated by commas")
    mode.add_argument("--pages", action="store_true", help="measure nothing, write the page anew")
    parser.add_argument("--library", choices=LIBRARIES)
    arguments = parser.parse_intermixed_args()  # functions may stand behind options
    if arguments.pages:
        write_page()
        return 0
    if arguments.library and (arguments.compare or arguments.assists or arguments.lengths):
        parser.error("--library goes with --special alone")
    if arguments.special:
        measured = arguments.library and library_argument(arguments.build, arguments.library)
        special_arguments.measure(arguments.build, arguments.functions, arguments.library, measured)
        if arguments.library:
            write_library_page(arguments.library)
        else:
            special_arguments.write_page()
        return 0
    if arguments.assists:
        assists.report(arguments.build, arguments.functions)
        return 0
    if arguments.compare:
        base = arguments.compare / "liblumvmk0.so" if arguments.compare.is_dir() else arguments.compare
        if not base.exists():
            print(f"bench: {base}: no such library", file=sys.stderr)
            return 2
        extra = ["--base", str(base.resolve()), "--lengths", f"1,{data.MAIN_LENGTH}"]
        print_comparison(run_benchmarks(arguments.build, arguments.functions, extra, PARTS))
        return 0
    if arguments.library:
        rows = []
        measured = library_argument(arguments.build, arguments.library)
        for function in arguments.functions or dict.fromkeys(row.function for row in catalogue.rows()):
            extra = ["--library", measured, "--lengths", f"1,{data.MAIN_LENGTH}"]
            rows += run_benchmarks(arguments.build, [function], extra, PARTS)
        merged(rows, catalogue.ROOT / f"docs/data/performance-{arguments.library}.csv", PARTS)
        write_library_page(arguments.library)
        return 0
    # A function at a time: all candidates of one interleave, and the arrays of all would not fit into memory.
    rows = []
    for function in arguments.functions or dict.fromkeys(row.function for row in catalogue.rows()):
        rows += run_benchmarks(arguments.build, [function], ["--lengths", arguments.lengths] if arguments.lengths else [], PARTS)
    merged(rows, DATA, PARTS)
    write_machine(arguments.functions)
    write_floors(arguments.build, arguments.functions)
    write_page()
    subprocess.run([sys.executable, catalogue.ROOT / "tools/function_pages.py", "--pictures", *{r["function"].split("_")[0] for r in rows}],
                   check=True)
    return 0


if __name__ == "__main__":
    sys.exit(main())
