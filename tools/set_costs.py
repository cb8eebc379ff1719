#!/usr/bin/env python3
"""Writes measured cost figures into src/frame/costs.def: set_costs.py [FUNCTION...], all functions when none is named.

The figures of the reference rows are fixed and give the unit: the others are the measured ticks an element at 4096 elements
(docs/data/performance.csv), times the median ratio of fixed figure to measured ticks of the reference rows. A kernel that serves
several levels has one figure. Complex functions with a scalar core are measured as all others, in arrays, of which their vector paths
do most; of the reference rows, Acos 32fc, Powx 64fc and the high levels of Sqrt and Exp 64fc stand for the core alone."""

import csv
import statistics
import sys

import catalogue

# The functions whose figures are fixed: those in the test of the entry table.
REFERENCE = {"Abs_32f", "Sqr_32f", "Exp_32f", "Exp_64f", "Sin_64f", "Add_32fc", "Inv_64f", "Sqrt_64fc", "Exp_32fc", "Exp_64fc", "Ln_32fc",
             "Ln_64fc", "Acos_32fc", "Powx_64fc"}
# Those of them whose fixed figures stand for a vector path, as the measured ones do, and not for a scalar core: they give the unit.
UNIT = ("Abs_32f", "Exp_32f", "Exp_64f", "Sin_64f", "Inv_64f")


def main():
    functions = sys.argv[1:]
    with (catalogue.ROOT / "docs/data/performance.csv").open() as file:
        ticks = {(r["function"], r["who"]): float(r["ticks"]) for r in csv.DictReader(file) if r["length"] == "4096"}
    rows = catalogue.rows()
    for function in set(functions) - {row.function for row in rows}:
        catalogue.fail(f"no function '{function}'")
    ratios = [row.costs[tag] / ticks[name, tag] for row in rows if (name := f"{row.function}_{row.type}") in UNIT
              for _, tag in row.exports() if (name, tag) in ticks]
    unit = statistics.median(ratios)

    costs = catalogue.read_costs()
    for row in rows:
        name = f"{row.function}_{row.type}"
        if name in REFERENCE or (functions and row.function not in functions):
            continue
        measured = {kernel: ticks[name, tag or "lumvm"] for (_, tag), kernel in
                    zip(row.exports(), row.kernels if row.exported == "Tagged" else row.kernels[2:])
                    if (name, tag or "lumvm") in ticks}
        if not measured:
            catalogue.fail(f"{name} has not been measured: ./run bench {row.function}")
        # A kernel that no exported name reaches keeps the figure that it has.
        costs[row.function, row.type] = tuple(
            float(f"{measured[kernel] * unit:.3g}") if kernel in measured else row.costs[tag]
            for kernel, tag in zip(row.kernels, catalogue.tags_of(row.type)))
    catalogue.write_if_changed(catalogue.COSTS, catalogue.costs_text(costs))
    return 0


if __name__ == "__main__":
    sys.exit(main())
