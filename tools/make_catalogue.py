#!/usr/bin/env python3
"""Writes src/frame/catalogue.def, and rows of zeros for new functions into src/frame/costs.def, from the functions'
declarations. With --check, compares instead."""

import argparse
import sys

import catalogue

CATALOGUE = catalogue.ROOT / "src/frame/catalogue.def"

INTRODUCTION = """// Written by tools/make_catalogue.py from src/*/functions.toml; do not edit, write it again by `./run generate`.
//
// The list of all functions, one row a function and element type, in the ASCII order of the exported names. Everything in C and
// C++ that enumerates functions is made from it: the entry table, the exported stubs, the version script, the tests.
//
// LUM_ROW(function, type, shape, exported, low, mid, high)
//   shape     OneInput, TwoInputs, TwoOutputs, ScalarParameter, ToReal, ToComplex
//   exported  Tagged: at all three tags; High: at the high tag alone; Untagged: one name without a tag
//   low, mid, high   kernels of the tags A11/A26, A21/A50, A24/A53 (and of names without a tag)
// clang-format off
"""


def catalogue_text():
    return INTRODUCTION + "".join(
        f"LUM_ROW({', '.join((row.function, row.type, row.shape, row.exported, *row.kernels))})\n" for row in catalogue.rows())


def costs_text():
    """The figures that are there, and those of rows that are gone left out."""
    return catalogue.costs_text({(row.function, row.type): tuple(row.costs.values()) for row in catalogue.rows()})


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--check", action="store_true")
    check = parser.parse_args().check
    status = 0
    for path, text in ((CATALOGUE, catalogue_text()), (catalogue.COSTS, costs_text())):
        if not check:
            catalogue.write_if_changed(path, text)
        elif path.read_text() != text:
            print(f"{path.name} differs from what tools/make_catalogue.py writes")
            status = 1
    return status


if __name__ == "__main__":
    sys.exit(main())
