#!/usr/bin/env python3
"""The polynomials of a family, src/<family>/polynomials.toml, and what is made from them. A table holds what is known of one:

  function      what is approximated, an expression in x
  form          how the polynomial P takes part, an expression in x and P(...); P(x) where not given: "x + x^3 * P(x^2)".
                Other polynomials of the family take part by their names, such as the denominator of a quotient
  interval      its two ends
  parameter     a second variable and its two ends, ["c", "0", "6"], where function and form have one
  over          what the error is divided by, an expression in x; the function itself where not given, 1 for an absolute error
  error         the largest |form - function| / |over| on the interval, of exact arithmetic, rounded up to three digits
  format        of the coefficients: 32f or 64f
  coefficients  the constant term first, by their bits
  note          what a reader of the kernel should know beyond that

Expressions have numbers (hexadecimal ones as 0x1.8p3), + - * / ^, pi, ln2, ln10, functions of mpmath, and
mean_exp(w, v), the integral of exp(-2 w s - v s^2) over s from 0 to 1.

polynomials.py           writes src/<family>/polynomials.h
polynomials.py --check   compares what it would write with what is there
polynomials.py --errors  computes the error of every polynomial and compares it with the one that is stated
polynomials.py --measure prints name, family and computed error, which a record need not state yet; with names, of these alone"""

import argparse
import re
import struct
import sys
import tomllib
from dataclasses import dataclass
from pathlib import Path

import mpmath
from mpmath import mpf

ROOT = Path(__file__).resolve().parent.parent
KEYS = {"function", "form", "interval", "parameter", "over", "error", "format", "coefficients", "note"}
FUNCTIONS = ("exp", "expm1", "log", "log1p", "sqrt", "cbrt", "sin", "cos", "tan", "asin", "acos", "atan", "sinh", "cosh", "tanh", "asinh",
             "acosh", "atanh", "erf", "erfc", "erfinv", "ncdf")
NUMBER = re.compile(r"(?<![A-Za-z_0-9.])(0x[0-9a-fA-F.]+p[+-]?\d+|(?:\d+\.?\d*|\.\d+)(?:e[+-]?\d+)?)")

mpmath.mp.prec = 200


def number_of(text):
    """A number as written."""
    if not text.startswith("0x"):
        return mpf(text)
    digits, _, exponent = text[2:].partition("p")
    whole, _, fraction = digits.partition(".")
    return mpf(int(whole + fraction, 16)) * mpf(2) ** (int(exponent) - 4 * len(fraction))


def mean_exp(w, v):
    """The integral of exp(-2 w s - v s^2) over s from 0 to 1, by its series, for small w and v."""
    total, outer, k = mpf(0), mpf(1), 0
    while k < 2 or abs(outer) > mpf(2) ** -190:
        inner, m = outer, 0
        while m < 2 or abs(inner) > mpf(2) ** -190:
            total += inner / (m + 2 * k + 1)
            m += 1
            inner *= -2 * w / m
        k += 1
        outer *= -v / k
    return total


def compiled(text, *parameters, **others):
    """An expression as a function of the named parameters; others are names that it may have besides."""
    python = NUMBER.sub(lambda match: f"number_of('{match[0]}')", text).replace("^", "**")
    names = {name: getattr(mpmath, name) for name in FUNCTIONS} | {"pi": +mpmath.pi, "ln2": mpmath.ln2 + 0, "ln10": mpmath.ln10 + 0,
                                                                   "number_of": number_of, "mean_exp": mean_exp} | others
    return eval(f"lambda {', '.join(parameters)}: {python}", {"__builtins__": {}, **names})


@dataclass
class Polynomial:
    family: dict  # its polynomials by name
    name: str
    record: dict
    folder: str  # of the family

    @property
    def width(self):
        return int(self.record["format"][:2])

    def values(self):
        """The coefficients as numbers of Python, which hold both formats."""
        code = {32: ("<I", "<f"), 64: ("<Q", "<d")}[self.width]
        return [struct.unpack(code[1], struct.pack(code[0], int(word, 16)))[0] for word in self.record["coefficients"]]

    def __call__(self, x):
        return mpmath.polyval([mpf(c) for c in reversed(self.values())], x)

    @property
    def form(self):
        return self.record.get("form", "P(x)")

    def error(self):
        """The largest error on the interval, for each of some values of the parameter where there is one."""
        if "parameter" not in self.record:
            return self.error_of({})
        name, *ends = self.record["parameter"]
        low, high = (compiled(end)() for end in ends)
        return max(self.error_of({name: low + (high - low) * i / 4}) for i in range(5))

    def error_of(self, parameter):
        """The largest error: at the ends and where it has its extrema between."""
        coefficients = [mpf(c) for c in reversed(self.values())]
        others = {name: self.family[name] for name in set(re.findall(r"\w+", self.form)) & set(self.family)} | parameter
        function = compiled(self.record["function"], "x", **parameter)
        form = compiled(self.form, "x", "P", **others)
        over = compiled(self.record["over"], "x", **parameter) if "over" in self.record else function

        def error(x):
            scale = over(x)
            if scale == 0:
                return mpf(0)  # a removable zero
            return abs((form(x, lambda t: mpmath.polyval(coefficients, t)) - function(x)) / scale)

        low, high = (compiled(end)() for end in self.record["interval"])
        count = 24 * (len(coefficients) + 2) if not parameter else 48
        points = [low + (high - low) * (1 - mpmath.cos(mpmath.pi * i / count)) / 2 for i in range(count + 1)]
        errors = [error(x) for x in points]
        worst = max(errors)
        for i in range(1, count):
            if errors[i - 1] <= errors[i] >= errors[i + 1] and errors[i] > worst / 2:
                worst = max(worst, extremum(error, points[i - 1], points[i + 1]))
        return worst


def extremum(f, low, high):
    """The largest value of f between two points, where it has one maximum, by golden section."""
    ratio = (mpmath.sqrt(5) - 1) / 2
    a, b = high - ratio * (high - low), low + ratio * (high - low)
    fa, fb = f(a), f(b)
    for _ in range(18):
        if fa < fb:
            low, a, fa = a, b, fb
            b = low + ratio * (high - low)
            fb = f(b)
        else:
            high, b, fb = b, a, fa
            a = high - ratio * (high - low)
            fa = f(a)
    return max(fa, fb)


def stated(error):
    """Rounded up to three digits."""
    exponent = int(mpmath.floor(mpmath.log10(error)))
    digits = int(mpmath.ceil(error / mpf(10) ** (exponent - 2)))
    return f"{float(mpf(digits) * mpf(10) ** (exponent - 2)):.2e}"


def polynomials(paths=None, states_error=True):
    required = {"function", "interval", "format", "coefficients"} | ({"error"} if states_error else set())
    result = []
    for path in paths or sorted((ROOT / "src").rglob("polynomials.toml")):
        family = {}
        for name, record in tomllib.loads(path.read_text()).items():
            missing = required - set(record)
            if missing or set(record) - KEYS:
                sys.exit(f"{path}: {name} lacks {', '.join(sorted(missing)) or 'nothing'} and has "
                         f"{', '.join(sorted(set(record) - KEYS)) or 'nothing'} that is no key")
            family[name] = Polynomial(family, name, record, str(path.parent.relative_to(ROOT / "src")))
        result += family.values()
    return result


def wrapped(words, first, rest, width=128):
    """Lines of words with a space between."""
    lines = [first]
    for word in words:
        if len(lines[-1]) + len(word) > width:
            lines[-1] = lines[-1].rstrip()
            lines.append(rest)
        lines[-1] += word + " "
    return [line.rstrip() for line in lines]


def definition(p):
    """The lines of one polynomial in C++."""
    low, high = p.record["interval"]
    over = p.record.get("over")
    kind = "relative error" if over is None else "error" if over == "1" else f"error over {over}"
    parameter = "{0} in [{1}, {2}] and ".format(*p.record["parameter"]) if "parameter" in p.record else ""
    text = (f"{p.record['function']} = {p.form} for {parameter}x in [{low}, {high}]: {kind} {p.record['error']} at most."
            + (" " + p.record["note"] if "note" in p.record else ""))
    type_, literal = {32: ("float", "f32"), 64: ("double", "f64")}[p.width]
    words = [f"{literal}({word}, {value!r})," for word, value in zip(p.record["coefficients"], p.values())]
    words[-1] = words[-1][:-1] + "}};"
    return wrapped(text.split(), "// ", "// ") + wrapped(words, f"inline constexpr Polynomial<{type_}, {len(words)}> {p.name}{{{{", "    ")


def header(family, members):
    lines = [f"// Written by tools/polynomials.py from src/{family}/polynomials.toml; do not edit, write it again by `./run generate`.",
             "// The errors are those of exact arithmetic; tests compute them anew.", "// clang-format off", "#pragma once", "",
             '#include "frame/literals.h"', '#include "frame/polynomial.h"', "",
             f"namespace lum::inline LUM_LAYER::{family.split('/')[-1]} {{", ""]
    for p in members:
        lines += definition(p) + [""]
    lines += [f"}}  // namespace lum::inline LUM_LAYER::{family.split('/')[-1]}", ""]
    return "\n".join(lines)


def headers():
    for path in sorted((ROOT / "src").rglob("polynomials.toml")):
        yield path.with_suffix(".h"), header(str(path.parent.relative_to(ROOT / "src")), polynomials([path]))


def check_errors(members):
    """Compares computed errors with the stated ones, which are these rounded up: a larger or a much smaller one is wrong."""
    wrong = 0
    for p in members:
        error, claim = p.error(), mpf(p.record["error"])
        if not claim * mpf("0.985") < error <= claim:
            print(f"{p.name}: the error is {stated(error)}, stated is {p.record['error']}")
            wrong += 1
    print(f"{len(members)} polynomials, {wrong} with another error than stated")
    return 1 if wrong or not members else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--errors", action="store_true")
    parser.add_argument("--measure", action="store_true")
    parser.add_argument("names", nargs="*")
    arguments = parser.parse_args()
    if arguments.errors or arguments.measure:
        members = polynomials(states_error=not arguments.measure)
        if unknown := set(arguments.names) - {p.name for p in members}:
            parser.error(f"no polynomial {', '.join(sorted(unknown))}")
        members = [p for p in members if not arguments.names or p.name in arguments.names]
        if arguments.errors:
            return check_errors(members)
        for p in members:
            print(f"{p.name} ({p.folder}) {stated(p.error())}")
        return 0
    status = 0
    for path, text in headers():
        if not arguments.check:
            path.write_text(text)
        elif not path.exists() or path.read_text() != text:
            print(f"{path.relative_to(ROOT)} is not what polynomials.py would write; run ./run generate")
            status = 1
    return status


if __name__ == "__main__":
    sys.exit(main())
