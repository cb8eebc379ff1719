#!/usr/bin/env python3
"""Writes what the Python package takes from the functions' declarations: make_python.py KIND FILE

KIND is one of
  ufuncs   the table of the extension module: names, loops, functions of the levels, docstrings
  names    names and aliases, as a Python module
  stubs    the types of a module of functions, for type checkers"""

import json
import math
import statistics
import sys
import textwrap
from pathlib import Path

import catalogue
import measured_data

LEVELS = ("low", "mid", "high")
LETTERS = {"32f": "f", "64f": "d", "32fc": "F", "64fc": "D"}
ELEMENTS = {"32f": "float", "64f": "double", "32fc": "Lum32fc", "64fc": "Lum64fc"}
DTYPES = {"32f": "float32", "64f": "float64", "32fc": "complex64", "64fc": "complex128"}
TITLES = {"low": "about half the bits", "mid": "all but the last few bits", "high": "an error below 1 ulp, where not said otherwise"}

# What the declared examples may name: values come from the standard library of Python, not from ours.
NAMES_OF_EXAMPLES = {"math": math, "NORMAL": statistics.NormalDist()}
# Real functions of which not every special result has a status.
LOOKED_AT = {"Add", "Sub", "Mul", "Div", "Sqr", "Inv", "Pow", "Powx", "Hypot", "Pow3o2", "CIS"}


def by_python_name():
    """Python names to rows and declarations, in the order of the names."""
    entries = catalogue.descriptions()
    names = {title.removesuffix(" (complex)"): entry["python"] for title, entry in entries.items() if "python" in entry}
    result = {}
    for row in catalogue.rows(entries):
        if row.function not in names:
            catalogue.fail(f"{row.function} has no 'python'")
        result.setdefault(names[row.function][0], (names[row.function], []))[1].append(row)
    for name, (aliases, rows) in sorted(result.items()):
        rows.sort(key=lambda row: catalogue.TYPES.index(row.type))
        yield name, aliases, rows


def inputs(row):
    return 2 if row.shape in ("TwoInputs", "ScalarParameter") else 1


def kind(row):
    function = row.function
    reported = {status["status"] for status in row.declaration.get("statuses", [])}
    # Infinite results of finite arguments are poles where nothing overflows.
    infinity = "pole" if "lumStsSingularity" in reported and "lumStsOverflow" not in reported else "overflow"
    if function in ("Div",):
        infinity = "pole_of_zero_divisor"
    if function in ("Inv", "Pow", "Powx"):
        infinity = "pole_of_zero"
    if row.type.endswith("c") and function in ("Ln", "Log10", "Atan", "Atanh"):
        infinity = "pole"
    underflows = "lumStsUnderflow" in reported
    looks = row.type.endswith("c") or function in LOOKED_AT
    return f"{{Infinity::{infinity}, {str(underflows).lower()}, {str(looks).lower()}}}"


def loop(row):
    own, real = ELEMENTS[row.type], ELEMENTS[row.type.rstrip("c")]
    letters = {"ToReal": LETTERS[row.type] + LETTERS[row.type.rstrip("c")], "ToComplex": LETTERS[row.type.rstrip("c")] + LETTERS[row.type],
               "TwoOutputs": LETTERS[row.type] * 3}.get(row.shape, LETTERS[row.type] * (inputs(row) + 1))
    exchanged = str(row.function == "Modf").lower()  # NumPy gives the fraction first
    name = {"OneInput": f"OneInput<{own}, {own}>", "ToReal": f"OneInput<{own}, {real}>", "ToComplex": f"OneInput<{real}, {own}>",
            "TwoInputs": f"TwoInputs<{own}>", "ScalarParameter": f"Parameter<{own}>",
            "TwoOutputs": f"TwoOutputs<{own}, {exchanged}>"}[row.shape]
    exports = [export for export, _ in row.exports()]
    exports = exports if len(exports) == 3 else exports * 3
    functions = ", ".join(f"From({export}, {kind(row)})" for export in exports)
    return f"{{{name}, {json.dumps(letters)}, {{{functions}}}}}"


def measured():
    """The largest error of an export over all that was measured, in ulp."""
    return {export: entry.worst.ulp for export, entry in measured_data.accuracy().items() if entry.errors}


def docstring(name, aliases, rows, level, errors):
    parameters = ["x1", "x2"] if inputs(rows[0]) == 2 else ["x"]
    if rows[0].shape == "ScalarParameter":
        parameters = ["x", "value"]
    outputs = 2 if rows[0].shape == "TwoOutputs" else 1
    declarations = list({id(row.declaration): row.declaration for row in rows}.values())
    lines = [" ".join(dict.fromkeys(d["summary"] for d in declarations)).replace("src1", "x1").replace("src2", "x2"), "",
             "Parameters", "----------"]
    dtypes = ", ".join(DTYPES[row.type.rstrip("c") if row.shape == "ToComplex" else row.type] for row in rows)
    for parameter in parameters:
        lines += [f"{parameter} : array_like of {dtypes}"]
    lines += ["out, where, dtype, casting, order, subok", "    As for any ufunc of NumPy.", "", "Returns", "-------"]
    lines += [f"y{i + 1 if outputs == 2 else ''} : ndarray or scalar" for i in range(outputs)]
    lines += ["", "Notes", "-----"]
    for declaration in declarations:
        what = "Complex: " if declaration.get("family") == "complex" else ""
        lines += [f"{what}Domain: {declaration['domain']}.", "", f"{what}Special values: {'; '.join(declaration['special'])}.", ""]
    lines.append(f"Level {level}: {TITLES[level]}. Largest errors measured, in units of the last place:")
    figures = []
    for row in rows:
        exports = [export for export, _ in row.exports()]
        export = exports[LEVELS.index(level)] if len(exports) == 3 else exports[0]
        if export in errors:
            figures.append(f"{DTYPES[row.type]} {measured_data.ulp_text(errors[export])}")
    lines += [", ".join(figures) + ".", "", "Examples", "--------", ">>> import lumvm"]
    example = next(d["example"] for d in declarations if d.get("python", [None])[0] == name)
    value = eval(example["gives"], {"__builtins__": {}, **NAMES_OF_EXAMPLES})
    digits = {"low": 3, "mid": 6, "high": 6}[level]
    call = f"lumvm.{level}.{name}({example['at']})"
    is_complex = any(isinstance(v, complex) for v in (value if isinstance(value, tuple) else (value,)))
    if outputs == 2:
        lines += [f">>> [round(float(y), {digits}) for y in {call}]", str([round(v, digits) for v in value])]
    elif is_complex:
        lines += [f">>> y = {call}", f">>> round(float(y.real), {digits}), round(float(y.imag), {digits})",
                  str((round(value.real, digits), round(value.imag, digits)))]
    else:
        lines += [f">>> round(float({call}), {digits})", str(round(float(value), digits))]
    wrapped = []
    for line in lines:
        is_prose = not line.startswith((">>>", "[", "(", "-", " ", "x", "y", "out")) or line.startswith("x^")
        wrapped += textwrap.wrap(line, 79) or [""] if is_prose else [line]
    return "\n".join(wrapped) + "\n"


def ufuncs():
    errors = measured()
    for name, aliases, rows in by_python_name():
        docs = ", ".join(json.dumps(docstring(name, aliases, rows, level, errors)) for level in LEVELS)
        outputs = 2 if rows[0].shape == "TwoOutputs" else 1
        yield f'{{"{name}", {inputs(rows[0])}, {outputs}, {{{docs}}}, {{{", ".join(loop(row) for row in rows)}}}}},'


def names():
    yield '"""Names of the functions and their aliases, made from the functions\' declarations."""'
    yield "ALIASES = {"
    for name, aliases, _ in by_python_name():
        yield f"    {name!r}: {tuple(aliases[1:])!r},"
    yield "}"


def stubs():
    yield "from numpy import ufunc"
    yield ""
    for name, aliases, _ in by_python_name():
        yield from (f"{alias}: ufunc" for alias in aliases)
    yield ""
    yield "__all__: list[str]"


KINDS = {kind_.__name__: kind_ for kind_ in (ufuncs, names, stubs)}


def main():
    if len(sys.argv) != 3 or sys.argv[1] not in KINDS:
        catalogue.fail(f"usage: make_python.py {'|'.join(KINDS)} FILE")
    catalogue.write_if_changed(Path(sys.argv[2]), "".join(line + "\n" for line in KINDS[sys.argv[1]]()))
    return 0


if __name__ == "__main__":
    sys.exit(main())
