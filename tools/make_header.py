#!/usr/bin/env python3
"""Writes include/lumvm_functions.h from the functions' declarations. With --check, compares instead."""

import sys
import textwrap

import catalogue

HEADER = catalogue.ROOT / "include/lumvm_functions.h"

OPENING = """/* Written by tools/make_header.py from src/<family>/functions.toml; do not edit, write it again by `./run generate`.
 * The array functions. Include lumvm.h, which says what holds for all of them. */
#ifndef LUMVM_FUNCTIONS_H
#define LUMVM_FUNCTIONS_H

#include "lumvm_types.h"

#ifdef __cplusplus
extern "C" {
#endif
"""

CLOSING = """#ifdef __cplusplus
}
#endif

#endif
"""

PARAMETERS = {
    "OneInput": "const {T}* src, {T}* dst, int32_t len",
    "TwoInputs": "const {T}* src1, const {T}* src2, {T}* dst, int32_t len",
    "TwoOutputs": "const {T}* src, {T}* dst1, {T}* dst2, int32_t len",
    "ScalarParameter": "const {T}* src, {T} value, {T}* dst, int32_t len",
    "ToReal": "const {T}* src, {R}* dst, int32_t len",
    "ToComplex": "const {R}* src, {T}* dst, int32_t len",
}


def comment_lines(label, text):
    return textwrap.wrap(text, 116, initial_indent=f" * {label}: ", subsequent_indent=" *   ")


def comment(name, entry, rows):
    lines = textwrap.wrap(entry["summary"], 116, initial_indent=f"/* {name}: ", subsequent_indent=" *   ")
    lines += comment_lines("Domain", entry["domain"])
    lines += comment_lines("Special values", "; ".join(entry["special"]))
    lines += comment_lines("Status", "; ".join(catalogue.status_lines(entry) or ["always lumStsOk"]))
    costs = []
    for row in rows:
        tags = [tag for _, tag in row.exports()]
        figures = [f"{tag} {row.costs[tag]:g}" if tag else f"{row.costs[catalogue.tags_of(row.type)[2]]:g}" for tag in tags]
        costs.append(f"{row.type} {', '.join(figures)}")
    lines += comment_lines("Relative cost", "; ".join(costs))
    return lines[:-1] + [lines[-1] + " */"]


def declarations(row):
    types = {"T": f"Lum{row.type}", "R": f"Lum{row.type.rstrip('c')}"}
    for name, _ in row.exports():
        yield f"LUM_API LumStatus {name}({PARAMETERS[row.shape].format(**types)});"


def text():
    entries = catalogue.descriptions()
    by_title = {}
    for row in catalogue.rows(entries):
        by_title.setdefault(catalogue.title_of(row, entries), []).append(row)
    lines = [OPENING]
    for title, rows in by_title.items():
        lines += comment(title, entries[title], rows)
        for row in rows:
            lines += declarations(row)
        lines.append("")
    return "\n".join(lines) + CLOSING


if __name__ == "__main__":
    sys.exit(catalogue.write_or_check(HEADER, text, "make_header.py", __doc__))
