#!/usr/bin/env python3
"""Writes src/frame/numbers.h, the roundings of known numbers, from src/frame/numbers.toml. With --check, compares instead. A table
there is a constant:

  value   an expression of numbers, + - * / ^, pi, ln2, ln10, sqrt() and other functions; or values, a list of them for an array
  after   names of constants of the same format that are taken off first: what is left is a tail
  32f     how many significant bits of binary32 it has, or "all"; it has none of a format that is not given
  64f     the same of binary64
          A list is that of parts, of which each but the last leaves something to the next; "20 toward zero" cuts a part off
  note    what a reader should know beyond that

A constant is the multiple of its last bit next to the value. It is a template over float and double, parts are an array."""

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


def part_of(value, size, format_):
    """The number of that many bits next to the value."""
    if size == "all":
        return binary.to_binary(value, int(format_[:2]))
    bits, _, mode = str(size).partition(" toward ")
    return binary.to_significand(value, int(bits), mode or "nearest")


def parts_of(record, format_, constants):
    if "values" in record:
        return [part_of(binary.exact(polynomials.compiled(value)()), record[format_], format_) for value in record["values"]]
    value = binary.exact(polynomials.compiled(record["value"])())
    for name in record.get("after", []):
        value -= constants[name, format_][0]
    sizes, parts = record[format_], []
    for size in sizes if isinstance(sizes, list) else [sizes]:
        parts.append(part_of(value, size, format_))
        value -= parts[-1]
    return parts


def literal(value, format_):
    width = int(format_[:2])
    word = binary.bits(value, width)
    assert binary.from_bits(word, width) == value
    _, name, code, number = FORMATS[format_]
    return f"{name}(0x{word:0{width // 4}X}, {struct.unpack(number, struct.pack(code, word))[0]!r})"


def described(sizes):
    return ", ".join(str(size) for size in sizes) + " bits" if isinstance(sizes, list) else f"{sizes} bits"


def text():
    lines = ["// Roundings of known numbers, for float and double. What is left of a number after others is a tail.",
             "// Written by tools/make_numbers.py from numbers.toml; do not edit, write it again by `./run generate`.",
             "// clang-format off", "#pragma once", "", '#include "frame/literals.h"', "",
             "namespace lum::inline LUM_LAYER::numbers {", ""]
    constants: dict[tuple[str, str], list[Fraction]] = {}
    for name, record in tomllib.loads(DECLARATIONS.read_text()).items():
        after = "".join(f" - {other}<T>" for other in record.get("after", []))
        sizes = "".join(f", {described(record[f])} of {f}" for f in FORMATS if record.get(f, "all") != "all")
        lines.append(f"// {record.get('value') or ', '.join(record['values'])}{after}{sizes}{'. ' + record['note'] if 'note' in record else ''}")
        count = {len(record[f]) for f in FORMATS if isinstance(record.get(f), list)} | ({len(record["values"])} if "values" in record else set())
        bound = f"[{count.pop()}]" if count else ""
        if count:
            sys.exit(f"{DECLARATIONS.name}: {name} has as many parts in one format as in the other")
        lines.append(f"template <class T> inline constexpr T {name}{bound}{' = {}' if bound else ''};")
        for format_, (type_, *_) in FORMATS.items():
            if format_ in record:
                parts = constants[name, format_] = parts_of(record, format_, constants)
                literals = ", ".join(literal(part, format_) for part in parts)
                lines.append(f"template <> inline constexpr {type_} {name}<{type_}>{bound} = "
                             + (f"{{{literals}}};" if bound else f"{literals};"))
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
