"""The catalogue of functions and their descriptions, as Python sees them."""

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
    """Function name to its description: summary, domain, special values, statuses, family."""
    result = {}
    for path in sorted((ROOT / "src").glob("*/functions.toml")):
        for name, entry in tomllib.loads(path.read_text()).items():
            result[name] = dict(entry, family=path.parent.name)
    return result
