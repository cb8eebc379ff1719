#!/usr/bin/env python3
"""Writes docs/reference.md from the functions' declarations. With --check, compares instead."""

import sys

import catalogue

PAGE = catalogue.ROOT / "docs/reference.md"

# Families in the order of the page: folder, title, what to know of all of its functions.
FAMILIES = [
    ("arith", "Sums, products, rounding", "Exact or correctly rounded, hence one tag or none."),
    ("roots", "Division, roots, fixed powers", "[How they work](notes/roots.md)."),
    ("explog", "Exponentials and logarithms", "[How they work](notes/explog.md)."),
    ("pow", "Powers", "[How they work](notes/powers.md)."),
    ("circular", "Circular functions", "Arguments in radians, of any size. [How they work](notes/circular.md)."),
    ("invcircular", "Inverse circular functions", "Results in radians. [How they work](notes/circular.md)."),
    ("hyperbolic", "Hyperbolic functions and their inverses", "[How they work](notes/hyperbolic.md)."),
    ("erf", "Error function and normal distribution", "[How they work](notes/erf.md)."),
    ("complex", "Complex functions",
     "`conj` stands for the conjugate, a b i for a number with real part a and imaginary part b. "
     "[How they work](notes/complex.md)."),
]

INTRODUCTION = """<!-- Written by tools/make_reference.py from src/*/functions.toml; do not edit, write it again by `./run generate`. -->
# Function reference

`lums<Function>_<type>_<tag>`, with the types and tags given at each function; [using.md](using.md) explains them, and statuses,
and what holds for all functions. Largest errors measured are in [accuracy.md](accuracy.md), speeds in
[performance.md](performance.md). Every function can return `lumStsOk`, `lumStsSizeErr` and `lumStsNullPtrErr`; others are
listed with it. +- means either sign, the same throughout a line.
"""

PARAMETERS = {
    "OneInput": "src, dst, len", "TwoInputs": "src1, src2, dst, len", "TwoOutputs": "src, dst1, dst2, len",
    "ScalarParameter": "src, value, dst, len", "ToReal": "src, dst, len", "ToComplex": "src, dst, len",
}
ARRAYS = {"ToReal": " (dst of real numbers)", "ToComplex": " (src of real numbers)"}


def escape(text):
    """Text that Markdown must not take for markup."""
    for character in "\\*_|<>[]":
        text = text.replace(character, "\\" + character)
    return text


def anchor(title):
    return title.lower().replace(" (complex)", "-complex")


def sections():
    """Pairs of family and its functions; a function is a title, its description and its rows of the catalogue."""
    entries = catalogue.descriptions()
    functions = {}
    for row in catalogue.rows():
        functions.setdefault(catalogue.title_of(row, entries), []).append(row)
    missing = {entries[title]["family"] for title in functions} - {folder for folder, _, _ in FAMILIES}
    if missing:
        sys.exit(f"make_reference.py: no section for {', '.join(sorted(missing))}")
    for family in FAMILIES:
        titles = sorted(title for title in functions if entries[title]["family"] == family[0])
        if titles:
            yield family, [(title, entries[title], functions[title]) for title in titles]


def function_lines(title, entry, rows):
    yield f"### {title}\n"
    yield f"`lums{rows[0].function}({PARAMETERS[rows[0].shape]})`{ARRAYS.get(rows[0].shape, '')}: {escape(entry['summary'])}\n"
    tags = []
    for row in rows:
        names = " ".join(tag for _, tag in row.exports()) or "no tag"
        tags.append(f"{row.type} {names}")
    yield f"- Types and tags: {'; '.join(tags)}"
    yield f"- Domain: {escape(entry['domain'])}"
    yield "- Special values:"
    for value in entry["special"]:
        yield f"  - {escape(value)}"
    statuses = catalogue.status_lines(entry)
    yield "- Statuses:" + ("" if statuses else " always lumStsOk")
    for status in statuses:
        yield f"  - {escape(status)}"
    yield ""


def text():
    contents, body = [], []
    for (_, heading, remark), functions in sections():
        links = ", ".join(f"[{title.removesuffix(' (complex)')}](#{anchor(title)})" for title, _, _ in functions)
        contents.append(f"- {heading}: {links}")
        body += [f"\n## {heading}\n", remark + "\n"]
        for title, entry, rows in functions:
            body += function_lines(title, entry, rows)
    return "\n".join([INTRODUCTION, *contents, *body]).rstrip() + "\n"


if __name__ == "__main__":
    sys.exit(catalogue.write_or_check(PAGE, text, "make_reference.py", __doc__))
