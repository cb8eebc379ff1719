#!/usr/bin/env python3
"""Writes docs/properties.md from docs/data/properties.csv: what holds for all arguments of each function and tag."""

import sys

import catalogue
import make_reference
import measured_data as data

PAGE = catalogue.ROOT / "docs/properties.md"

INTRODUCTION = """<!-- Written by tools/properties_page.py from docs/data/properties.csv; do not edit. -->
# Properties

What holds of the results beside their error: that a sine is odd to the last bit, that no sine exceeds 1, that a cube root never
falls, that `pow(x, 1)` is x. A cell says

- **all**: it holds for all 2^32 arguments of a function of one 32f input, or for all cases of the line,
- **yes**: a search of {least:.1g} to {most:.1g} arguments (or pairs of neighbours) has found no violation; it is no proof,
- otherwise the share of violations and, behind it, the largest one, in representable numbers: `2e-6, 1` is a result in half a
  million that is off by one number. Of lines of exact values it is the number of cases that fail.

Tags stand in the order low, middle, high: A11, A21, A24 of 32f, A26, A50, A53 of 64f. Functions of one tag have one cell.

At the high tags everything on this page holds but

{high}

To repeat: `./run accuracy --properties` (an hour on two cores; `--share 256` takes one block in 256 of all 32f arguments). The
test `tools.properties` holds the library to [the data](data/properties.csv) with a part of the arguments."""

KINDS = [
    ("symmetry", "Symmetry", "Bit for bit, signs of zeros included but where the line says otherwise; a NaN is like any other."),
    ("range", "Ranges", "Bounds that are no numbers of the type are rounded to it, as results are."),
    ("rise", "Monotonicity", "Of neighbouring arguments, and in the searches also of arguments some powers of 2 of numbers apart: how many "
                             "pairs have results in the wrong order, and the largest step back. Where an error exceeds half a unit, a result may "
                             "fall behind its neighbour's by one number; at the low tags it may by as much as the tag's error."),
    ("exact", "Exact values", "Cases in which the exact result is a number of the type, or a bound of the range rounded to it."),
]


def cell(found):
    violations, count = int(found["violations"]), int(found["count"])
    if violations == 0:
        return "all" if found["how"] == "all" else "yes"
    if found["kind"] == "exact":
        return f"{violations} of {count} fail"
    largest = float(found["largest"])
    size = "sign of 0" if largest == 0 else f"{largest:.3g}" if largest < 1e17 else "NaN"
    return f"{violations / count:.1g}, {size}"


def table(kind, rows, stored):
    """Lines of a table of the properties of one kind; nothing where no function has one."""
    lines = []
    for row in rows:
        texts = dict.fromkeys(text for (export, of, text) in stored if of == kind and export in [e for e, _ in row.exports()])
        for text in texts:
            cells = [cell(stored[export, kind, text]) for export, _ in row.exports() if (export, kind, text) in stored]
            lines.append((row.function, text, row.type, cells))
    if not lines:
        return []
    merged = {}
    for function, text, type_, cells in lines:
        merged.setdefault((function, text), {})[type_] = cells
    types = ["32fc", "64fc"] if any(row.type.endswith("c") for row in rows) else ["32f", "64f"]
    out = [f"| function | property | {' | '.join(types)} |", "|---|---|---|---|"]
    for (function, text), by_type in merged.items():
        shown = []
        for type_ in types:
            cells = by_type.get(type_, [])
            shown.append(cells[0] if len(set(cells)) == 1 else "; ".join(cells))
        out.append(f"| {function} | {make_reference.escape(text)} | {' | '.join(shown)} |")
    return out


def main():
    stored = {(row["export"], row["kind"], row["property"]): row for row in data.read("properties.csv")}
    if not stored:
        sys.exit("properties_page.py: docs/data/properties.csv is not there; ./run accuracy --properties makes it")
    counts = [int(row["count"]) for row in stored.values() if row["how"] == "search"]
    high = []
    for row in catalogue.rows():
        for (export, kind, text), found in stored.items():
            if export == row.exports()[-1][0] and int(found["violations"]) > 0:
                high.append(f"- `{export}`, {make_reference.escape(text)}: {cell(found)}, as at `{found['at']}`")
    body = []
    for kind, heading, remark in KINDS:
        body += [f"\n## {heading}\n", remark, ""]
        for is_complex in (False, True):
            rows = [row for row in catalogue.rows() if row.type.endswith("c") == is_complex]
            lines = table(kind, rows, stored)
            if lines:
                body += [*(["", "Complex functions:", ""] if is_complex else []), *lines]
    text = INTRODUCTION.format(least=min(counts), most=max(counts), high="\n".join(high) or "- nothing")
    catalogue.write_if_changed(PAGE, text + "\n".join(body) + "\n")
    return 0


if __name__ == "__main__":
    sys.exit(main())
