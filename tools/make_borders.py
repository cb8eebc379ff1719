#!/usr/bin/env python3
"""Writes the borders of the functions' kernels as C++ initialisers for the accuracy report: make_borders.py FILE.

The `borders` of a function in functions.toml are lines of the form

    TYPES: QUANTITY = VALUE, VALUE, ...          the types may be left out where the line is for all of the function
    TYPES: QUANTITY = VALUE for k = 1 to 15      one value for every k; several ranges by commas: for j = -2 to 2, k = 0 to 7

with one of the quantities below. Values are expressions of numbers (hexadecimal ones as 0x1.8p3), pi, ln2, + - * / ^ and sqrt().
`within 2^-13` behind a line has arguments tried as far from the values as that, relative to them; 2^-20 otherwise."""

import ast
import itertools
import math
import re
import sys

from mpmath import ln, mp, mpf, pi, sqrt

import catalogue

# Words of the descriptions and names in C++.
QUANTITIES = {
    "x": "x", "|x|": "abs_x", "|y|": "abs_y", "|x/y|": "ratio_x_y", "|y log2 x|": "y_log2_x", "|re|": "abs_re", "|im|": "abs_im",
    "|re/im|": "ratio_re_im", "|z|^2": "abs_z_squared", "|z| |w|": "product_of_moduli", "|re re / im im|": "ratio_of_products",
}
LINE = re.compile(r"(?:(?P<types>[\d fc]+): )?(?P<quantity>.+?) = (?P<values>.+?)(?: for (?P<ranges>.+?))?(?: within (?P<width>\S+))?")


def number_of(text):
    """A number as written, exactly."""
    if "0x" not in text:
        return mpf(text)
    digits, _, exponent = text[2:].partition("p")
    whole, _, fraction = digits.partition(".")
    return mpf(int(whole + fraction, 16)) * mpf(2) ** (int(exponent or 0) - 4 * len(fraction))


def evaluate(text, names):
    """The value of an expression of the descriptions."""
    numbers = []

    def keep(match):
        numbers.append(number_of(match[0]))
        return f"n[{len(numbers) - 1}]"
    python = re.sub(r"0x[0-9a-fA-F.]+(?:p[+-]?\d+)?|(?<![A-Za-z_0-9])\d[\d.]*(?:e[+-]?\d+)?", keep, text).replace("^", "**")
    allowed = (ast.Expression, ast.BinOp, ast.UnaryOp, ast.Name, ast.Load, ast.Call, ast.Subscript, ast.Constant, ast.operator, ast.unaryop)
    tree = ast.parse(python.strip(), mode="eval")
    known = {"pi": +pi, "ln2": ln(2), "sqrt": sqrt, "n": numbers, **names}
    for node in ast.walk(tree):
        if not isinstance(node, allowed) or (isinstance(node, ast.Name) and node.id not in known):
            raise ValueError(f"'{text}' is no expression of a border")
    return eval(compile(tree, "border", "eval"), {"__builtins__": {}}, known)  # nothing but arithmetic is left


def values_of(line):
    """What a line stands for: the types it names or None, a quantity, values, and the width."""
    match = LINE.fullmatch(line)
    if not match or match["quantity"] not in QUANTITIES:
        raise ValueError(f"'{line}' is no line of borders")
    ranges = []
    for part in (match["ranges"] or "").split(",") if match["ranges"] else []:
        name, first, last = re.fullmatch(r"\s*([a-z]) = (-?\d+) to (-?\d+)\s*", part).groups()
        ranges.append([(name, mpf(k)) for k in range(int(first), int(last) + 1)])
    values = []
    for names in itertools.product(*ranges):
        values += [float(evaluate(text, dict(names))) for text in match["values"].split(",")]
    if any(math.isinf(value) for value in values):
        raise ValueError("a value is too large")
    width = float(evaluate(match["width"] or "2^-20", {}))
    return match["types"].split() if match["types"] else None, QUANTITIES[match["quantity"]], sorted(set(values)), width


def borders():
    """(function, type, quantity, value, width) of all functions."""
    for row in catalogue.rows():
        for line in row.declaration.get("borders", []):
            try:
                types, quantity, values, width = values_of(line)
            except (ValueError, SyntaxError, AttributeError, TypeError) as problem:
                catalogue.fail(f"{row.function}: {line}: {problem}")
            if types is None or row.type in types:
                for value in values:
                    yield row.function, row.type, quantity, value, width


def main():
    mp.prec = 120
    lines = [f'{{"{function}", "{type_}", Quantity::{quantity}, {value.hex()}, {width.hex()}}},\n'
             for function, type_, quantity, value, width in borders()]
    with open(sys.argv[1], "w") as file:
        file.writelines(lines)


if __name__ == "__main__":
    main()
