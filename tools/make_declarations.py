#!/usr/bin/env python3
"""Writes what programs take from the functions' declarations as C++ initialisers: make_declarations.py KIND FILE

KIND is one of
  descriptions      texts, a line a title, for the command line tool; lists in them have an entry a line
  declarations      facts, a line a function and type, for tests and programs that go over all functions
  scalar_loops      a loop over the C++ library's function to compare with
  references        MPFR's and MPC's functions
  cheap_references  binary64 functions of a 32f input
  long_references   long double functions of the inputs of 64f and 64fc
  cpp_calls         a line an exported name with its function of lumvm.hpp, for a test
  names             a line a name of a function in C, C++ or Python, for the command line tool
  measured          a line an exported name with its largest error and its time, for the command line tool"""

import json
import math
import sys
from pathlib import Path

import catalogue
import measured_data


def number(value):
    if isinstance(value, float) and math.isinf(value):
        return "infinity" if value > 0 else "-infinity"
    return repr(value)


def point(row, arguments):
    """Parts of the first input, then of the second or of the parameter, as four numbers."""
    values = arguments if isinstance(arguments, list) else [arguments]
    is_complex = row.type.endswith("c") and row.shape != "ToComplex"
    parts = 2 if is_complex else 1
    inputs = 2 if row.shape in ("TwoInputs", "ScalarParameter") else 1
    if len(values) != parts * inputs:
        catalogue.fail(f"{row.function} {row.type}: {values} is not {inputs} argument(s) of {parts} part(s)")
    values = [v for i in range(inputs) for v in (values[i * parts:(i + 1) * parts] + [0.0] * (2 - parts))]
    return "{" + ", ".join(number(v) for v in values + [0.0] * (4 - len(values))) + "}"


def descriptions():
    for title, entry in sorted(catalogue.descriptions().items()):
        fields = [title, entry["summary"], entry["domain"], "\n".join(entry["special"]),
                  "\n".join(catalogue.status_lines(entry) or ["always lumStsOk"]), entry["family"]]
        yield "{" + ", ".join(json.dumps(field) for field in fields) + "},"


def names():
    """A name in another language stands for one function: the one that bears it, else the first that is called so."""
    meanings = {}
    own = {title.removesuffix(" (complex)").lower() for title in catalogue.descriptions()}
    for title, entry in sorted(catalogue.descriptions().items()):
        for name in filter(None, [entry.get("cpp"), entry.get("c"), *entry.get("python", [])]):
            if name.lower() not in own:
                meanings.setdefault(name.lower(), title.removesuffix(" (complex)"))
    for name, function in sorted(meanings.items()):
        yield f"{{{json.dumps(name)}, {json.dumps(function)}}},"


def measured():
    """Largest errors over all kinds of inputs, of a complex result as a whole, and times of an element in an array of 4096."""
    errors = {export: entry.worst for export, entry in measured_data.accuracy().items() if entry.errors}
    times = {(function, who): ns for (function, length, who), (ns, _) in measured_data.times().items()
             if length == measured_data.MAIN_LENGTH}
    for row in catalogue.rows():
        for export, tag in row.exports():
            worst = errors.get(export)
            error, bound, at = (worst.ulp, worst.limit, worst.at) if worst else (-1.0, 0.0, "")
            time = times.get((f"{row.function}_{row.type}", tag or "lumvm"), 0.0)
            scalar = times.get((f"{row.function}_{row.type}", "scalar"), 0.0)
            yield f"{{{json.dumps(export)}, {error!r}, {bound!r}, {json.dumps(at)}, {time!r}, {scalar!r}}},"


def facts(row):
    entry = row.declaration
    yield f".function = {json.dumps(row.function)}, .type = {json.dumps(row.type)}"
    if entry.get("exact"):
        yield ".is_exact = true"
    if row.scalar_core_tags:
        yield f".scalar_core_tags = {json.dumps(' '.join(row.scalar_core_tags))}"
    ordinary = catalogue.of_type(entry.get("ordinary"), row.type)
    if ordinary:
        yield f".ordinary = {{{number(ordinary[0])}, {number(ordinary[1])}}}"
        low, high = entry.get("everyday", (max(ordinary[0], -20), min(ordinary[1], 20)))
        yield f".everyday = {{{number(low)}, {number(high)}}}"
    if "thresholds" in entry:
        yield f".thresholds = {{{', '.join(number(float(x)) for x in entry['thresholds'])}}}"
    if "c" in entry:
        yield f".c_name = {json.dumps(entry['c'])}"
    statuses = []
    for status in entry.get("statuses", []):
        if row.type in status.get("types", [row.type]):
            points = [point(row, at) for at in catalogue.of_type(status["at"], row.type)]
            statuses.append(f"{{{status['status']}, {{{', '.join(points)}}}}}")
    if statuses:
        yield f".statuses = {{{', '.join(statuses)}}}"
    special = []
    for argument in entry.get("special_arguments", []):
        at = catalogue.of_type(argument["at"], row.type)
        if at is not None:
            tags = " ".join(argument.get("tags", []))
            special.append(f"{{{json.dumps(argument['what'])}, {point(row, at)}, {json.dumps(tags)}}}")
    if special:
        yield f".special_arguments = {{{', '.join(special)}}}"


def declarations():
    for row in catalogue.rows():
        yield "{" + ", ".join(facts(row)) + "},"


def scalar_expression(entry):
    """An expression of x and y, or two assignments to first and second; None where the C++ library has no such function."""
    if "scalar" in entry:
        return entry["scalar"]
    if "c" not in entry:
        return None
    two = entry.get("shape") in ("TwoInputs", "ScalarParameter")
    return f"std::{entry['c']}({'x, y' if two else 'x'})"


# The template that runs a function of one element over an array, and the function's parameters, by shape.
LOOPS = {
    "OneInput": ("OneInput", "auto x"), "ToReal": ("OneInput", "auto x"), "TwoInputs": ("TwoInputs", "auto x, auto y"),
    "TwoOutputs": ("TwoOutputs", "auto x, auto& first, auto& second"), "ScalarParameter": ("Parameter", "auto x, auto y"),
    "ToComplex": ("FromReal", "auto x"),
}


def scalar_loops():
    for row in catalogue.rows():
        expression = scalar_expression(row.declaration)
        if expression:
            loop, parameters = LOOPS[row.shape]
            returned = "" if row.shape == "TwoOutputs" else "return "
            yield (f'{{"{row.function}_{row.type}", '
                   f"{loop}<[]({parameters}) {{ {returned}{expression}; }}, Lum{row.type}>}},")


def reference(row):
    """The C++ name of a function of tools/accuracy/reference.cpp's kind for MPFR's or MPC's."""
    is_complex = row.type.endswith("c")
    name = row.declaration.get("mpc" if is_complex else "mpfr")
    if name is None:
        return None
    if row.shape in ("TwoOutputs", "ToComplex"):
        return name
    two = "2" if row.shape in ("TwoInputs", "ScalarParameter") else ""
    if not name.startswith(("mpfr_", "mpc_")):
        return f"{'Complex' if is_complex else 'Real'}{two}<{name}>"
    return f"LUM_{'MPC' if is_complex else 'MPFR'}{two}{'_REAL' if row.shape == 'ToReal' else ''}({name})"


def references():
    for row in catalogue.rows():
        if row.type in ("32f", "32fc") and (name := reference(row)):  # the same for both widths
            yield f'{{"{row.function}{"c" * row.type.endswith("c")}", {name}}},'


def cheap_references():
    for row in catalogue.rows():
        entry = row.declaration
        expression = f"{entry['reference64']}(x)" if "reference64" in entry else scalar_expression(entry)
        if row.type != "32f" or row.shape not in ("OneInput", "TwoOutputs") or not expression:
            continue
        if row.shape == "TwoOutputs":
            yield f'{{"{row.function}", TwoParts<[](double x, double& first, double& second) {{ {expression}; }}>}},'
        elif "defined" in entry:
            low, high = (number(end) for end in entry["defined"])
            yield f'{{"{row.function}", OnePart<[](double x) {{ return x >= {low} && x <= {high} ? {expression} : nan; }}>}},'
        else:
            yield f'{{"{row.function}", OnePart<[](double x) {{ return {expression}; }}>}},'


# The template that runs a function of long double over an array, by shape and whether the elements are complex.
LONG_LOOPS = {
    ("OneInput", False): ("RealOne", "auto x"), ("TwoInputs", False): ("RealTwo", "auto x, auto y"),
    ("ScalarParameter", False): ("RealTwo", "auto x, auto y"), ("TwoOutputs", False): ("RealBoth", "auto x, auto& first, auto& second"),
    ("OneInput", True): ("ComplexOne", "auto x"), ("TwoInputs", True): ("ComplexTwo", "auto x, auto y"),
    ("ScalarParameter", True): ("ComplexTwo", "auto x, auto y"), ("ToReal", True): ("ToReal", "auto x"),
    ("ToComplex", True): ("FromReal", "auto x"),
}


def long_references():
    for row in catalogue.rows():
        entry = row.declaration
        expression = f"{entry['reference64']}(x)" if "reference64" in entry else scalar_expression(entry)
        if row.type.startswith("64") and expression:
            loop, parameters = LONG_LOOPS[row.shape, row.type.endswith("c")]
            returned = "" if row.shape == "TwoOutputs" else "return "
            yield f'{{"{row.function}_{row.type}", {loop}<[]({parameters}) {{ {returned}{expression}; }}>}},'


ELEMENTS = {"32f": "float", "64f": "double", "32fc": "std::complex<float>", "64fc": "std::complex<double>"}


def cpp_calls():
    entries = catalogue.descriptions()
    for row in catalogue.rows(entries):
        real, own = ELEMENTS[row.type.rstrip("c")], ELEMENTS[row.type]
        compare = {"ToReal": f"(CompareOne<{own}, {real}>)", "ToComplex": f"(CompareOne<{real}, {own}>)",
                   "OneInput": f"(CompareOne<{own}, {own}>)", "TwoInputs": f"CompareTwoInputs<{own}>",
                   "TwoOutputs": f"CompareTwoOutputs<{own}>", "ScalarParameter": f"CompareParameter<{own}>"}[row.shape]
        cpp = next(entry["cpp"] for title, entry in entries.items()
                   if title.removesuffix(" (complex)") == row.function and "cpp" in entry)
        exports = row.exports()
        for (name, _), level in zip(exports, ("low", "mid", "high") if len(exports) == 3 else ("high",)):
            yield f"LUM_CPP({compare}, {name}, {cpp}, {level})"


KINDS = {kind.__name__: kind for kind in (descriptions, declarations, scalar_loops, references, cheap_references,
                                      long_references, cpp_calls, names, measured)}


def main():
    if len(sys.argv) != 3 or sys.argv[1] not in KINDS:
        catalogue.fail(f"usage: make_declarations.py {'|'.join(KINDS)} FILE")
    catalogue.write_if_changed(Path(sys.argv[2]), "".join(line + "\n" for line in KINDS[sys.argv[1]]()))
    return 0


if __name__ == "__main__":
    sys.exit(main())
