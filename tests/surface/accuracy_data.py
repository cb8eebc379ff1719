#!/usr/bin/env python3
"""Checks the committed accuracy figures: every exported function has been measured and holds its tag's limit."""

import csv
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import catalogue

DATA = catalogue.ROOT / "docs/data/accuracy.csv"
# Exports that stand beyond their tag's limit: the limit in ulp that they do hold, and the reason.
OVERFLOWING_PRODUCT = "where the product for the exponents -2 to -4 overflows, its reciprocal is 0 in place of a denormal number"
ROUNDED_PRODUCT = "the product of exponent and logarithm is rounded: where its imaginary part is n turns, n 2^-53 turns are lost"
EXCEPTIONS = {
    "lumsPowx_32f_A11": (2**21, OVERFLOWING_PRODUCT),
    "lumsPowx_32f_A21": (2**21, OVERFLOWING_PRODUCT),
    "lumsPowx_64f_A26": (2**50, OVERFLOWING_PRODUCT),
    "lumsPowx_64f_A50": (2**50, OVERFLOWING_PRODUCT),
    **{f"lums{function}_64fc_{tag}": (2**30, ROUNDED_PRODUCT) for function in ("Pow", "Powx") for tag in ("A26", "A50", "A53")},
}


def complaints(export, row, is_complex):
    """What is wrong with one measured row."""
    limit = EXCEPTIONS[export][0] if export in EXCEPTIONS else float(row["bound_ulp"])
    # The limit of a complex result is on the whole number; a part may lose digits against the other.
    error = float(row["norm_ulp" if is_complex and row["norm_ulp"] else "max_ulp"])
    if error > limit or (limit == 1 and error >= 1):
        yield f"{export}: {error} ulp, the limit is {limit:g}"
    if int(row["wrong_class"]) != 0:
        yield f"{export}: {row['wrong_class']} results of the wrong class"


def main():
    with DATA.open() as file:
        measured = list(csv.DictReader(file))
    found, exports = [], {}
    for row in catalogue.rows():
        for export, _ in row.exports():
            exports[export] = row.type.endswith("c") and row.shape != "ToReal"
    sampled = {row["export"] for row in measured if row["inputs"] == "sample"}
    found += [f"{export}: not measured" for export in exports if export not in sampled]
    for row in measured:
        if row["export"] not in exports:
            found.append(f"{row['export']}: measured, but not exported")
        else:
            found += complaints(row["export"], row, exports[row["export"]])
    print("\n".join(found + [f"{len(exports)} exports, {len(measured)} measurements, {len(found)} complaints"]))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
