#!/usr/bin/env python3
"""Writes src/frame/numbers.h, the roundings of known numbers, from src/frame/numbers.toml. With --check, compares instead. A table
there is a constant:

  value   an expression of numbers, + - * / ^, pi, e, ln2, ln10, sqrt()
  after   names of constants of the same format that are taken off first: what is left is a tail
  32f     how many significant bits of binary32 it has, or "all"; it has none of a format that is not given
  64f     the same of binary64
  note    what a reader should know beyond that

A constant is the multiple of its last bit next to the value."""

import argparse
import struct
import sys
import tomllib
from fractions import Fraction

import polynomials
from polynomials import ROOT

sys.path.insert(0, str(ROOT / "src/tables/generators"))
import binary  # noqa: E402

DECLARATIONS = ROOT / "src/frame/numbers.toml"
HEADER = ROOT / "src/frame/numbers.h"
FORMATS = {"32f": ("float", "f32", "<I", "<f"), "64f": ("double", "f64", "<Q", "<d")}


def value_of(record, format_, constants):
    value = binary.exact(polynomials.compiled(record["value"])())
    for name in record.get("after", []):
        value -= constants[name, format_]
    width, bits = int(format_[:2]), record[format_]
    return binary.to_binary(value, width) if bits == "all" else binary.to_significand(value, bits)


def literal(value, format_):
    width = int(format_[:2])
    word = binary.bits(value, width)
    assert binary.from_bits(word, width) == value
    _, name, code, number = FORMATS[format_]
    return f"{name}(0x{word:0{width // 4}X}, {struct.unpack(number, struct.pack(code, word))[0]!r})"


def text():
    lines = ["// Roundings of known numbers, for float and double. What is left of a number after others is a tail.",
             "// Written by tools/make_numbers.py from numbers.toml; do not edit, write it again by `./run generate`.",
             "// clang-format off", "#pragma once", "", '#include "frame/literals.h"', "",
             "namespace lum::inline LUM_LAYER::numbers {", ""]
    constants: dict[tuple[str, str], Fraction] = {}
    for name, record in tomllib.loads(DECLARATIONS.read_text()).items():
        after = "".join(f" - {other}<T>" for other in record.get("after", []))
        sizes = ", ".join(f"{record[f]} bits of {f}" for f in FORMATS if record.get(f, "all") != "all")
        lines.append(f"// {record['value']}{after}{f', {sizes}' if sizes else ''}{'. ' + record['note'] if 'note' in record else ''}")
        lines.append(f"template <class T> inline constexpr T {name};")
        for format_, (type_, *_) in FORMATS.items():
            if format_ in record:
                constants[name, format_] = value_of(record, format_, constants)
                lines.append(f"template <> inline constexpr {type_} {name}<{type_}> = {literal(constants[name, format_], format_)};")
        lines.append("")
    return "\n".join(lines + ["}  // namespace lum::inline LUM_LAYER::numbers", ""])


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true")
    fresh = text()
    if not parser.parse_args().check:
        HEADER.write_text(fresh)
    elif HEADER.read_text() != fresh:
        print("src/frame/numbers.h is not what make_numbers.py would write; run ./run generate")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
