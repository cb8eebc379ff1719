"""The catalogue of functions and their descriptions, as Python sees them."""

import argparse
import re
import tomllib
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
TAGS = {"32f": ("A11", "A21", "A24"), "64f": ("A26", "A50", "A53")}


@dataclass
class Row:
    function: str
    type: str
    shape: str
    exported: str
    kernels: tuple  # of the low, mid and high tag
    costs: dict  # cost figure by tag

    def exports(self):
        """Pairs of exported name and tag, the cheapest first; the tag of an untagged name is empty."""
        low, mid, high = TAGS[self.type[:3]]
        tags = {"Tagged": (low, mid, high), "High": (high,), "Untagged": ("",)}[self.exported]
        return [("_".join(filter(None, (f"lums{self.function}", self.type, tag))), tag) for tag in tags]


def rows():
    text = (ROOT / "src/frame/catalogue.def").read_text()
    result = []
    for match in re.finditer(r"^LUM_ROW\((.*)\)$", text, re.M):
        function, type_, shape, exported, *kernels, mid, high, low = (c.strip() for c in match[1].split(","))
        low_tag, mid_tag, high_tag = TAGS[type_[:3]]
        costs = {low_tag: float(low.rstrip("f")), mid_tag: float(mid.rstrip("f")), high_tag: float(high.rstrip("f"))}
        result.append(Row(function, type_, shape, exported, (kernels[2], kernels[0], kernels[1]), costs))
    return result


def descriptions():
    """Title to description: summary, domain, special values, statuses, family. The title is the function's name; complex
    functions that are described beside the real one of that name have " (complex)" behind it."""
    result = {}
    for path in sorted((ROOT / "src").glob("*/functions.toml")):
        family = path.parent.name
        for name, entry in tomllib.loads(path.read_text()).items():
            title = f"{name} (complex)" if family == "complex" else name
            result[title] = dict(entry, family=family)
    return result


def title_of(row, entries):
    """The title of the description of a row."""
    special = f"{row.function} (complex)"
    return special if row.type.endswith("c") and special in entries else row.function


def write_or_check(path, text, tool, description):
    """The main function of a tool that writes one checked-in file, or with --check compares it: the exit status."""
    parser = argparse.ArgumentParser(description=description)
    parser.add_argument("--check", action="store_true")
    if parser.parse_args().check:
        same = path.exists() and path.read_text() == text()
        print(f"{path.name}: {'up to date' if same else f'differs from what tools/{tool} writes'}")
        return 0 if same else 1
    path.write_text(text())
    return 0
