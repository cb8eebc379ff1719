"""The measured figures of docs/data, by exported name."""

import csv
from dataclasses import dataclass, field

import catalogue

DATA = catalogue.ROOT / "docs/data"
MAIN_LENGTH = 4096
# Peers whose results are as exact as the high tags' (1 ulp, or exact); the others allow up to 4 ulp, as the mid tags do.
EXACT_PEERS = {"sleef", "sleef_u05", "sleef_u10", "sleef_u15"}
EXACT_TAGS = ("A24", "A53", "")
SHARES = ("within_050", "within_051", "within_060", "within_075", "within_100", "mean_ulp")
PEER_NAMES = {"sleef_u10": "SLEEF 1 ulp", "sleef_u05": "SLEEF 0.5 ulp", "sleef_u15": "SLEEF 1.5 ulp", "sleef_u35": "SLEEF 3.5 ulp",
              "sleef": "SLEEF", "libmvec": "glibc vector", "scalar": "C library loop", "libm": "glibc",
              "plain_fast_math": "plain formula"}


def peer_name(who):
    if who.startswith("composed_"):
        return "composed of " + peer_name(who.removeprefix("composed_"))
    return PEER_NAMES.get(who, who)


@dataclass
class Error:
    """The largest error known of a name, of complex results as a whole, and where it was found."""
    ulp: float
    at: str
    how: str
    limit: float

    @property
    def is_beyond(self):
        return self.ulp > self.limit


@dataclass
class Figures:
    """What is known of an exported name."""
    errors: list = field(default_factory=list)  # of every kind of search
    bits: float = 0.0
    wrong_class: int = 0
    hunt: dict = None

    @property
    def worst(self):
        return max(self.errors, key=lambda error: error.ulp)


def ulp_text(ulp):
    """Three digits, or as many as it takes to tell on which side of 1 an error is."""
    if 0.995 <= ulp < 1.05 and ulp != 1:
        return next(text for text in (f"{ulp:.{digits}g}" for digits in range(4, 9)) if float(text) != 1 or len(text) > 7)
    return f"{ulp:.3g}"


def read(name):
    path = DATA / name
    if not path.exists():
        return []
    with path.open() as file:
        return list(csv.DictReader(line for line in file if not line.startswith("#")))


def hunted():
    """The wide search by function, type and who was searched: a tag, `exact` for a name without one, or another library. Searches from
    several seeds are one: the sum of their counts, the largest error, the distribution of the one with most arguments."""
    merged = {}
    for row in read("hunt.csv"):
        key = row["function"], row["type"], row["who"]
        one = merged.setdefault(key, dict(row))
        if one is not row and one != row:
            for name in ("crossed", "compared", "judged", "settled", "left", "wrong_class"):
                one[name] = str(int(one[name]) + int(row[name]))
            if float(row["max_ulp"]) > float(one["max_ulp"]):
                one.update({name: row[name] for name in ("max_ulp", "at", "at_bits")})
            if int(row["distribution"]) > int(one["distribution"]):
                one.update({name: row[name] for name in ("distribution", *SHARES)})
    return merged


def accuracy():
    """Figures by exported name."""
    figures = {export: Figures() for row in catalogue.rows() for export, _ in row.exports()}
    for row in read("accuracy.csv"):
        entry = figures[row["export"]]
        error = Error(float(row["norm_ulp"] or row["max_ulp"]), row["at"], row["inputs"], float(row["bound_ulp"]))
        entry.errors.append(error)
        entry.wrong_class += int(row["wrong_class"])
    search = hunted()
    for row in catalogue.rows():
        for export, tag in row.exports():
            found = search.get((row.function, row.type, tag or "exact"))
            if found:
                figures[export].hunt = found
                figures[export].errors.append(Error(float(found["max_ulp"]), found["at"], "hunt", float(found["bound_ulp"])))
    return figures


def times(file="performance.csv"):
    """Nanoseconds and ticks an element by function and type, length, and who."""
    return {(row["function"], int(row["length"]), row["who"]): (float(row["ns"]), float(row["ticks"])) for row in read(file)}


def floors():
    return {row["export"]: float(row["ticks"]) for row in read("floors.csv")}


def at_length(row, stored, length=MAIN_LENGTH):
    """Nanoseconds an element of one function and type, by who."""
    name = f"{row.function}_{row.type}"
    return {who: ns for (function, of, who), (ns, _) in stored.items() if function == name and of == length}


def best_peer(figures, is_high):
    """Name and ns of the fastest peer of the class, or None. What a user would write himself stands in where no peer has it."""
    peers = {who: ns for who, ns in figures.items() if who.startswith(("sleef", "libmvec")) and (not is_high or who in EXACT_PEERS)}
    peers = peers or {who: ns for who, ns in figures.items() if who.startswith(("composed", "plain"))}
    return min(peers.items(), key=lambda item: item[1]) if peers else None
