#!/usr/bin/env python3
"""Checks the committed accuracy figures: every exported function has been measured, those of one 32f input over all arguments,
and holds its tag's limit, at the inputs that random ones miss too: the borders of its kernels, the numbers closest to multiples of
pi/2, the unit circle. The wide search has been through all of them."""

import csv
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import catalogue
import make_borders
import measured_data

DATA = catalogue.ROOT / "docs/data/accuracy.csv"
# Exports that stand beyond their tag's limit: the limit in ulp that they do hold, and the reason.
OVERFLOWING_PRODUCT = "where the product for the exponents -2 to -4 overflows, its reciprocal is 0 in place of a denormal number"
ROUNDED_PRODUCT = "the product of exponent and logarithm is rounded: where its imaginary part is n turns, n 2^-53 turns are lost"
CARRIED_SUM = "just above 1/8, 1/16 and 1/32 the last sum is rounded in the units above the result's power of 2"
COARSE_LOGARITHM = "for x - 1 from 2^-11 to 2^-9 and powers near the ends of the range the logarithm lacks a bit"
EXCEPTIONS = {
    "lumsTanh_64f_A53": (1.01, CARRIED_SUM),
    "lumsPowx_32f_A11": (2**21, OVERFLOWING_PRODUCT),
    "lumsPowx_32f_A21": (2**21, OVERFLOWING_PRODUCT),
    "lumsPowx_64f_A26": (2**50, OVERFLOWING_PRODUCT),
    "lumsPowx_64f_A50": (2**50, OVERFLOWING_PRODUCT),
    "lumsPowx_64f_A53": (1.1, COARSE_LOGARITHM),
    **{f"lums{function}_64fc_{tag}": (2**30, ROUNDED_PRODUCT) for function in ("Pow", "Powx") for tag in ("A26", "A50", "A53")},
}


REDUCED = ("Sin", "Cos", "SinCos", "CIS", "Tan")  # by multiples of pi/2; of complex numbers also those of the imaginary part:
REDUCED_COMPLEX = REDUCED + ("Sinh", "Cosh", "Tanh", "Exp")


def input_classes():
    """Triples of a kind of inputs, what it is to a reader, and the rows of the catalogue that have to be measured there."""
    rows = catalogue.rows()
    with_borders = {(function, type_) for function, type_, *_ in make_borders.borders()}
    yield "borders", "at the borders of its kernels", [row for row in rows if (row.function, row.type) in with_borders]
    yield "quarter-turns", "next to multiples of pi/2", [
        row for row in rows if row.function in (REDUCED_COMPLEX if row.type.endswith("c") else REDUCED)]
    yield "unit-circle", "next to the unit circle", [
        row for row in rows if row.type.endswith("c") and row.shape != "ToComplex"
        and (row.shape != "TwoInputs" or row.function == "Pow")]


def complaints(export, row, is_complex):
    """What is wrong with one measured row."""
    limit = EXCEPTIONS[export][0] if export in EXCEPTIONS else float(row["bound_ulp"])
    # The limit of a complex result is on the whole number; a part may lose digits against the other.
    error = float(row["norm_ulp" if is_complex and row["norm_ulp"] else "max_ulp"])
    if error > limit or (limit == 1 and error >= 1):
        yield f"{export}: {error} ulp, the limit is {limit:g}"
    if int(row["wrong_class"]) != 0:
        yield f"{export}: {row['wrong_class']} results of the wrong class"


def complaints_of_hunt(exports):
    """What is wrong with the findings of the wide search."""
    hunted = measured_data.hunted()
    for row in catalogue.rows():
        for export, tag in row.exports():
            found = hunted.get((row.function, row.type, tag or "exact"))
            if found is None:
                yield f"{export}: not hunted"
                continue
            limit = EXCEPTIONS[export][0] if export in EXCEPTIONS else float(found["bound_ulp"])
            if float(found["max_ulp"]) > limit * (1 + 1e-6):  # figures of seven digits
                yield f"{export}: {found['max_ulp']} ulp in the wide search, the limit is {limit:g}"
            if int(found["wrong_class"]) != 0 and export not in EXCEPTIONS:
                yield f"{export}: results of the wrong class in the wide search, as at {found['wrong_at']}"


def complaints_over_all(export, row, sample):
    """What is wrong with a row over all 2^32 arguments beside that of a sample of them."""
    if int(row["count"]) != 2**32:
        yield f"{export}: {row['count']} arguments are not all"
    # The figures have four digits at least.
    if float(row["max_ulp"]) < float(sample["max_ulp"]) * (1 - 5e-4):
        yield f"{export}: {sample['max_ulp']} ulp in a sample, but {row['max_ulp']} over all arguments"


def main():
    with DATA.open() as file:
        measured = list(csv.DictReader(file))
    found, exports, exhaustive = [], {}, []
    for row in catalogue.rows():
        for export, _ in row.exports():
            exports[export] = row.type.endswith("c") and row.shape != "ToReal"
            if row.type == "32f" and row.shape in ("OneInput", "TwoOutputs"):
                exhaustive.append(export)
    sampled = {row["export"]: row for row in measured if row["inputs"] == "sample"}
    over_all = {row["export"]: row for row in measured if row["inputs"] == "all"}
    found += [f"{export}: not measured" for export in exports if export not in sampled]
    found += [f"{export}: not measured over all arguments" for export in exhaustive if export not in over_all]
    for inputs, where, rows in input_classes():
        there = {row["export"] for row in measured if row["inputs"] == inputs}
        found += [f"{export}: not measured {where}" for row in rows for export, _ in row.exports() if export not in there]
    for export, row in over_all.items():
        if export in sampled:
            found += complaints_over_all(export, row, sampled[export])
    for row in measured:
        if row["export"] not in exports:
            found.append(f"{row['export']}: measured, but not exported")
        else:
            found += complaints(row["export"], row, exports[row["export"]])
    found += complaints_of_hunt(exports)
    print("\n".join(found + [f"{len(exports)} exports, {len(measured)} measurements, {len(found)} complaints"]))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
