"""The declarations of all functions, src/<family>/functions.toml, as Python sees them. A table holds what is known of one function:

  summary, domain, special     what it computes and where; its special values, a line each
  statuses                     the statuses that it reports: status, when, at (arguments that report it), types where not all do
  types                        the element types that it stands for: 32f, 64f, 32fc, 64fc
  shape                        OneInput where not given; TwoInputs, TwoOutputs, ScalarParameter, ToReal, ToComplex
  tags                         all where not given: low, middle, high; high: that one alone; none: one name without a tag
  kernels                      by type, where levels share one: the part of the kernels' names behind the type, low to high
  exact                        true: exact or correctly rounded
  scalar_core                  true: all levels are one scalar core of extended precision; or by type the tags that are one
  ordinary                     by type: the interval of arguments that samples take
  everyday                     the interval that benchmarks take, where it is not the ordinary one up to 20
  thresholds                   points whose neighbours are tried, with both signs: poles, zeros, ends of the domain, switches
  defined                      the interval outside of which the result is a NaN
  special_arguments            what, at: arguments that the first vector path refuses and that a user may well have; tags
  c                            its name in the C library, which vector libraries take over
  scalar                       in C++, of x and y, the loop to compare with, where it is no call of `c`; two outputs: first, second
  reference64                  the function of tools/accuracy/cheap_reference.cpp that gives it in binary64, where `scalar` does not
  mpfr, mpc                    the function of MPFR or MPC that gives it, or one of tools/accuracy/reference.cpp
  borders                      where its kernels change segments, tables or paths, in the words of make_borders.py
  python, cpp                  its names in Python, the first one being its own, and in C++
  example                      at, gives: arguments and what comes out, in Python, by its standard library: math and NORMAL, the
                               normal distribution; goes with `python`

A value that differs between types is a table by type. Arguments are numbers, or lists of them: the parts of the first input,
then those of the second or of the parameter."""

import argparse
import re
import sys
import tomllib
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
COSTS = ROOT / "src/frame/costs.def"
TAGS = {"32f": ("A11", "A21", "A24"), "64f": ("A26", "A50", "A53")}  # low, middle, high
TYPES = ("32f", "64f", "32fc", "64fc")
SHAPES = ("OneInput", "TwoInputs", "TwoOutputs", "ScalarParameter", "ToReal", "ToComplex")
KEYS = {"summary", "domain", "special", "statuses", "types", "shape", "tags", "kernels", "exact", "scalar_core", "ordinary",
        "defined", "special_arguments", "c", "scalar", "reference64", "mpfr", "mpc", "python", "cpp", "example",
        "borders", "everyday", "thresholds"}
EXPORTED = {"all": "Tagged", "high": "High", "none": "Untagged"}


def tags_of(type_):
    """Low, middle, high."""
    return TAGS[type_[:3]]


@dataclass
class Row:
    """A function and element type: a record of the entry table."""
    function: str
    type: str
    declaration: dict
    costs: dict  # cost figure by tag; zeros before they are measured

    @property
    def shape(self):
        return self.declaration.get("shape", "OneInput")

    @property
    def exported(self):
        return EXPORTED[self.declaration.get("tags", "all")]

    @property
    def scalar_core_tags(self):
        """The tags whose kernel is a scalar core, or computes as one would."""
        core = self.declaration.get("scalar_core", {})
        return tags_of(self.type) if core is True else tuple(core.get(self.type, ()))

    @property
    def kernels(self):
        """The kernels of the low, middle and high level."""
        low, mid, high = tags_of(self.type)
        by_default = {"Tagged": (low, mid, high), "High": (high,) * 3, "Untagged": ("",) * 3}[self.exported]
        if self.declaration.get("scalar_core") is True:
            by_default = ("",) * 3
        endings = self.declaration.get("kernels", {}).get(self.type, by_default)
        return tuple("_".join(filter(None, (self.function, self.type, ending))) for ending in endings)

    def exports(self):
        """Pairs of exported name and tag, the cheapest first; the tag of an untagged name is empty."""
        low, mid, high = tags_of(self.type)
        tags = {"Tagged": (low, mid, high), "High": (high,), "Untagged": ("",)}[self.exported]
        return [("_".join(filter(None, (f"lums{self.function}", self.type, tag))), tag) for tag in tags]


def of_type(value, type_, default=None):
    """The value of a key for a type: a table by type, or one value for all."""
    if isinstance(value, dict):
        return value.get(type_, default)
    return default if value is None else value


def status_lines(declaration):
    """The statuses as the documentation names them."""
    lines = []
    for entry in declaration.get("statuses", []):
        types = " (complex types)" if entry.get("types") == ["32fc", "64fc"] else ""
        lines.append(f"{entry['status']}{types}: {entry['when']}")
    return lines


def read_costs():
    """Cost figures of a function and type, of the low, middle and high level. A new row has none before it is measured."""
    figures = re.findall(r"^LUM_COSTS\((\w+), (\w+), ([\d.]+)f, ([\d.]+)f, ([\d.]+)f\)$", COSTS.read_text(), re.M)
    return {(function, type_): tuple(float(c) for c in costs) for function, type_, *costs in figures}


def costs_text(costs):
    """The file of cost figures, for a dictionary as read_costs gives it."""
    lines = ["// Relative cost figures of the kernels of each level, low, middle, high: data that ranks them, a smaller one being cheaper.",
             "// tools/make_catalogue.py adds a row with zeros for a new function, tools/set_costs.py writes measured figures.",
             "// clang-format off"]
    for (function, type_), figures in sorted(costs.items(), key=lambda item: "_".join(item[0]) + "_"):
        lines.append(f"LUM_COSTS({function}, {type_}, {', '.join(f'{c!r}f' for c in figures)})")
    return "\n".join(lines) + "\n"


def fail(message):
    sys.exit(f"{Path(sys.argv[0]).name}: {message}")


def checked(path, name, entry):
    """A declaration whose keys are known and whose values fit together."""
    where = f"{path.relative_to(ROOT)}: [{name}]"
    for key in entry.keys() - KEYS:
        fail(f"{where} has an unknown key '{key}'")
    for key in ("summary", "domain", "special", "types"):
        if key not in entry:
            fail(f"{where} has no '{key}'")
    if ("python" in entry) != ("example" in entry):
        fail(f"{where}: 'python' and 'example' go together")
    for type_ in entry["types"]:
        if type_ not in TYPES:
            fail(f"{where} has an unknown type '{type_}'")
    if entry.get("shape", "OneInput") not in SHAPES:
        fail(f"{where} has an unknown shape '{entry['shape']}'")
    if entry.get("tags", "all") not in EXPORTED:
        fail(f"{where}: tags = '{entry['tags']}' is none of {', '.join(EXPORTED)}")
    return entry


def descriptions():
    """Title to declaration, with the family added. The title is the function's name; complex functions that are declared beside
    the real one of that name have " (complex)" behind it."""
    result = {}
    for path in sorted((ROOT / "src").glob("*/functions.toml")):
        family = path.parent.name
        for name, entry in tomllib.loads(path.read_text()).items():
            title = f"{name} (complex)" if family == "complex" else name
            result[title] = dict(checked(path, name, entry), family=family)
    return result


def rows(entries=None):
    """All rows, in the ASCII order of their exported names."""
    costs = read_costs()
    result = []
    for title, entry in (entries or descriptions()).items():
        function = title.removesuffix(" (complex)")
        for type_ in entry["types"]:
            figures = costs.get((function, type_), (0.0, 0.0, 0.0))
            result.append(Row(function, type_, entry, dict(zip(tags_of(type_), figures))))
    result.sort(key=lambda row: f"{row.function}_{row.type}_")
    for one, next_one in zip(result, result[1:]):
        if (one.function, one.type) == (next_one.function, next_one.type):
            fail(f"{one.function} {one.type} is declared twice")
    return result


def title_of(row, entries):
    """The title of the declaration of a row."""
    special = f"{row.function} (complex)"
    return special if row.type.endswith("c") and special in entries else row.function


def write_if_changed(path, text):
    """Writes a generated file, which keeps its time where nothing changed, so that nothing is built anew."""
    if not path.exists() or path.read_text() != text:
        path.write_text(text)


def write_or_check(path, text, tool, description):
    """The main function of a tool that writes one checked-in file, or with --check compares it: the exit status."""
    parser = argparse.ArgumentParser(description=description)
    parser.add_argument("--check", action="store_true")
    if parser.parse_args().check:
        same = path.exists() and path.read_text() == text()
        print(f"{path.name}: {'up to date' if same else f'differs from what tools/{tool} writes'}")
        return 0 if same else 1
    write_if_changed(path, text())
    return 0
