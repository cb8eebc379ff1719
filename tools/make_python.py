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

NORMAL = statistics.NormalDist()
# An argument and what comes out, for the examples: by the standard library of Python, not by ours.
EXAMPLES = {
    "absolute": ((-2.5,), 2.5), "add": ((1.5, 2.0), 3.5), "angle": ((1j,), math.pi / 2), "arccos": ((0.5,), math.acos(0.5)),
    "arccosh": ((2.0,), math.acosh(2)), "arcsin": ((0.5,), math.asin(0.5)), "arcsinh": ((0.5,), math.asinh(0.5)),
    "arctan": ((0.5,), math.atan(0.5)), "arctan2": ((1.0, -1.0), math.atan2(1, -1)), "arctanh": ((0.5,), math.atanh(0.5)),
    "cbrt": ((27.0,), 3.0), "ceil": ((1.2,), 2.0), "conjugate": ((1 + 2j,), 1 - 2j), "cos": ((0.5,), math.cos(0.5)),
    "cosh": ((0.5,), math.cosh(0.5)), "divide": ((1.0, 4.0), 0.25), "erf": ((0.5,), math.erf(0.5)),
    "erfc": ((0.5,), math.erfc(0.5)), "erfinv": ((0.5,), NORMAL.inv_cdf(0.75) / math.sqrt(2)),
    "erfcinv": ((0.5,), -NORMAL.inv_cdf(0.25) / math.sqrt(2)), "exp": ((1.0,), math.e), "expm1": ((0.5,), math.expm1(0.5)),
    "floor": ((-1.2,), -2.0), "frac": ((-1.25,), -0.25), "hypot": ((3.0, 4.0), 5.0), "invcbrt": ((8.0,), 0.5),
    "invsqrt": ((4.0,), 0.5), "log": ((2.0,), math.log(2)), "log10": ((1000.0,), 3.0), "log1p": ((0.5,), math.log1p(0.5)),
    "mulbyconj": ((1j, 1j), 1 + 0j), "multiply": ((1.5, 2.0), 3.0), "ndtr": ((1.0,), NORMAL.cdf(1)),
    "ndtri": ((0.75,), NORMAL.inv_cdf(0.75)), "nearbyint": ((2.5,), 2.0), "pow2o3": ((8.0,), 4.0), "pow3o2": ((4.0,), 8.0),
    "power": ((2.0, 0.5), math.sqrt(2)), "powx": ((3.0, 2.0), 9.0), "reciprocal": ((4.0,), 0.25), "rint": ((1.5,), 2.0),
    "round_half_away": ((2.5,), 3.0), "sin": ((0.5,), math.sin(0.5)), "sinh": ((0.5,), math.sinh(0.5)),
    "sqrt": ((2.0,), math.sqrt(2)), "square": ((1.5,), 2.25), "subtract": ((1.5, 2.0), -0.5), "tan": ((0.5,), math.tan(0.5)),
    "tanh": ((0.5,), math.tanh(0.5)), "trunc": ((-1.5,), -1.0), "cis": ((0.0,), 1 + 0j),
    "sincos": ((0.5,), (math.sin(0.5), math.cos(0.5))), "modf": ((1.25,), (0.25, 1.0)),
}
# Functions whose infinite results of finite arguments are poles, and others' where an argument is zero.
POLES = {"Ln", "Log10", "Log1p", "InvSqrt", "InvCbrt", "Atanh", "ErfInv", "ErfcInv", "CdfNormInv"}
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
    infinity = "pole" if function in POLES else "overflow"
    if function in ("Div",):
        infinity = "pole_of_zero_divisor"
    if function in ("Inv", "Pow", "Powx"):
        infinity = "pole_of_zero"
    if row.type.endswith("c") and function in ("Ln", "Log10", "Atan", "Atanh"):
        infinity = "pole"
    underflows = any(status["status"] == "lumStsUnderflow" for status in row.declaration.get("statuses", []))
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
    arguments, value = EXAMPLES[name]
    digits = {"low": 3, "mid": 6, "high": 6}[level]
    call = f"lumvm.{level}.{name}({', '.join(repr(a) for a in arguments)})"
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
