#!/usr/bin/env python3
"""Writes include/lumvm_functions.hpp, the functions in C++, from their declarations. With --check, compares instead."""

import sys
import textwrap

import catalogue

HEADER = catalogue.ROOT / "include/lumvm_functions.hpp"

OPENING = """// Written by tools/make_hpp.py from src/<family>/functions.toml; do not edit, write it again by `./run generate`.
// The functions in C++. Include lumvm.hpp, which says what holds for all of them; statuses, special values and accuracy are those
// of the C functions in lumvm_functions.h.
#ifndef LUMVM_FUNCTIONS_HPP
#define LUMVM_FUNCTIONS_HPP

#include "lumvm.hpp"

namespace lumvm {
"""

CLOSING = """}  // namespace lumvm

#endif
"""

ELEMENTS = {"32f": "float", "64f": "double", "32fc": "std::complex<float>", "64fc": "std::complex<double>"}
# The parameters behind the way, the names that are passed on, and the constraint, by shape.
ONE = {"parameters": "const X& x, Y&& y", "types": "class X, class Y", "requires": "detail::gives<detail::{f}, X, Y>",
       "run": "run<detail::{f}, a>(way, detail::read(x), detail::view(y))"}
SHAPES = {
    "OneInput": ONE, "ToReal": ONE, "ToComplex": ONE,
    "TwoInputs": {"parameters": "const X1& x1, const X2& x2, Y&& y", "types": "class X1, class X2, class Y",
                  "requires": "detail::gives<detail::{f}, X1, Y> && detail::same_elements<X1, X2>",
                  "run": "run<detail::{f}, a>(way, detail::read(x1), detail::read(x2), detail::view(y))"},
    "ScalarParameter": {"parameters": "const X& x, element_of<X> value, Y&& y", "types": "input X, class Y",
                        "requires": "detail::gives<detail::{f}, X, Y>",
                        "run": "run_with<detail::{f}, a>(way, detail::read(x), value, detail::view(y))"},
    "TwoOutputs": {"parameters": "const X& x, Y1&& y1, Y2&& y2", "types": "class X, class Y1, class Y2",
                   "requires": "detail::gives<detail::{f}, X, Y1> && detail::gives<detail::{f}, X, Y2>",
                   "run": "run_two<detail::{f}, a>(way, detail::read(x), detail::view(y1), detail::view(y2))"},
}
# Functions that return their results as vectors: parameters, arguments, constraint.
RETURNING = {
    "OneInput": ("const X& x", "input X", "x", "detail::takes<detail::{f}, X>"),
    "TwoInputs": ("const X1& x1, const X2& x2", "class X1, class X2", "x1, x2",
                  "detail::takes<detail::{f}, X1> && detail::same_elements<X1, X2>"),
    "ScalarParameter": ("const X& x, element_of<X> value", "input X", "x, value", "detail::takes<detail::{f}, X>"),
    "TwoOutputs": ("const X& x", "input X", "x", "detail::takes<detail::{f}, X>"),
}
RETURNING["ToReal"] = RETURNING["ToComplex"] = RETURNING["OneInput"]


def argument_type(row):
    return row.type.rstrip("c") if row.shape == "ToComplex" else row.type


def result_type(row):
    return row.type.rstrip("c") if row.shape == "ToReal" else row.type


def exports_by_level(row):
    """Names of the low, middle and high level; a function without levels has one name for all."""
    names = [name for name, _ in row.exports()]
    return names if len(names) == 3 else names * 3


def calls(function, rows):
    yield f"struct {function};"
    for row in rows:
        argument, result = ELEMENTS[argument_type(row)], ELEMENTS[result_type(row)]
        shape = {"TwoInputs": f"two_inputs<{argument}>", "TwoOutputs": f"two_outputs<{argument}>",
                 "ScalarParameter": f"with_parameter<{argument}>"}.get(row.shape, f"one_input<{argument}, {result}>")
        yield f"template <> struct calls<{function}, {argument}> {{"
        yield f"  using result = {result};"
        yield f"  static constexpr {shape} at[] = {{{', '.join(exports_by_level(row))}}};"
        yield "};"


def comment(entries, rows):
    summaries = list(dict.fromkeys(entry["summary"] for entry in entries))
    lines = textwrap.wrap(" Complex: ".join(summaries), 124, initial_indent="// ", subsequent_indent="// ")
    exports = dict.fromkeys(f"lums{row.function}" for row in rows)
    types = ", ".join(ELEMENTS[argument_type(row)] for row in rows)
    return lines + textwrap.wrap(f"{', '.join(exports)}: {types}.", 124, initial_indent="// ", subsequent_indent="// ")


def functions(name, shape):
    """Into a range, and as a vector; both one after the other, and in another way such as lumvm::par."""
    form = SHAPES[shape]
    requires, run = form["requires"].format(f=name), form["run"].format(f=name)
    parameters, types, arguments, returning_requires = RETURNING[shape]
    first = arguments.split(", ")[0]
    element = f"detail::result_of<detail::{name}, element_of<{'X1' if first == 'x1' else 'X'}>>"
    for way_type, way_parameter, way in (("", "", "detail::sequential()"), ("detail::way W, ", "const W& way, ", "way")):
        yield f"template <accuracy a = high, {way_type}{form['types']}>"
        yield f"requires {requires}"
        yield f"status {name}({way_parameter}{form['parameters']}) {{"
        yield f"  return detail::{run.replace('(way, ', f'({way}, ')};"
        yield "}"
        yield f"template <accuracy a = high, {way_type}{types}>"
        yield f"requires {returning_requires.format(f=name)}"
        passed = f"way, {arguments}" if way_type else arguments
        if shape == "TwoOutputs":
            yield f"auto {name}({way_parameter}{parameters}) {{"
            yield f"  std::vector<{element}> y1(detail::view({first}).size()), y2(y1.size());"
            yield f"  {name}<a>({passed}, y1, y2);"
            yield "  return std::pair(std::move(y1), std::move(y2));"
        else:
            yield f"auto {name}({way_parameter}{parameters}) {{"
            yield f"  std::vector<{element}> y(detail::view({first}).size());"
            yield f"  {name}<a>({passed}, y);"
            yield "  return y;"
        yield "}"


def by_name():
    """C++ name to rows, in the order of the names; real and complex functions of one name stand together."""
    entries = catalogue.descriptions()
    names = {title.removesuffix(" (complex)"): entry["cpp"] for title, entry in entries.items() if "cpp" in entry}
    result = {}
    for row in catalogue.rows(entries):
        if row.function not in names:
            catalogue.fail(f"{row.function} has no 'cpp'")
        result.setdefault(names[row.function], []).append(row)
    for name, rows in sorted(result.items()):
        rows.sort(key=lambda row: catalogue.TYPES.index(row.type))
        yield name, rows, [row.declaration for row in rows]


def text():
    lines = [OPENING, "namespace detail {", ""]
    for name, rows, _ in by_name():
        lines += [*calls(name, rows), ""]
    lines += ["}  // namespace detail", ""]
    for name, rows, entries in by_name():
        lines += [*comment(entries, rows), *functions(name, rows[0].shape), ""]
    return "\n".join(lines) + CLOSING


if __name__ == "__main__":
    sys.exit(catalogue.write_or_check(HEADER, text, "make_hpp.py", __doc__))
