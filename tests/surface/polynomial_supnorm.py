#!/usr/bin/env python3
"""The stated errors of the polynomials against Sollya's supnorm, which is no search for the largest error but a proved bound.

supnorm takes polynomials in x and errors that are relative to the function or absolute, so it says nothing of quotients, of forms
with a parameter or a weight of their own, and of functions that Sollya lacks. It leaves a factor of 1 + 2^-10 open."""

import re
import shutil
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent.parent / "tools"))
import polynomials  # noqa: E402

LACKING = re.compile(r"\b(cbrt|erfinv|ncdf|mean_exp)\b")
SLOW = {"erf_A21", "erf_A24", "asin_A50", "atan_A26", "atan2_A50"}  # intervals that it divides for minutes
SLACK = 2**-9
LEAST = 140


def of_sollya(expression):
    return re.sub(r"\bln(2|10)\b", r"log(\1)", expression)


def is_within_reach(p):
    others = set(re.findall(r"\w+", p.form)) & set(p.family)
    return not (others or "parameter" in p.record or p.record.get("over", "1") != "1" or LACKING.search(p.record["function"])
                or p.name in SLOW)


def bounds(p):
    """Two numbers between which the largest error lies; None where Sollya finds none."""
    terms = " + ".join(f"({value.hex()}) * x^{i}" for i, value in enumerate(p.values()))
    low, high = (of_sollya(end) for end in p.record["interval"])
    kind = "absolute" if "over" in p.record else "relative"
    program = (f"prec = 200!; P = {terms}; s = supnorm({of_sollya(p.form)}, {of_sollya(p.record['function'])}, [{low}; {high}], {kind}, "
               "2^(-10)); display = decimal!; print(inf(s)); print(sup(s)); quit;")
    try:
        found = subprocess.run(["sollya"], input=program, capture_output=True, text=True, timeout=300).stdout.split()
        return float(found[-2]), float(found[-1])
    except (IndexError, ValueError, subprocess.TimeoutExpired):
        return None


def main():
    if shutil.which("sollya") is None:
        sys.exit("polynomial_supnorm.py: needs sollya, which is not installed")
    members = [p for p in polynomials.polynomials() if is_within_reach(p)]
    with ThreadPoolExecutor(2) as pool:
        found = list(pool.map(bounds, members))
    wrong = 0
    for p, pair in zip(members, found):
        error = float(p.record["error"])
        if pair is None:
            print(f"{p.name}: Sollya finds no bound")
        elif not (pair[1] <= error * (1 + SLACK) and pair[1] > error * 0.98):
            print(f"{p.name}: the error lies between {pair[0]:.4g} and {pair[1]:.4g}, stated is {error:g}")
        else:
            continue
        wrong += 1
    print(f"{len(members)} polynomials, {wrong} with another bound than stated")
    return 1 if wrong or len(members) < LEAST else 0


if __name__ == "__main__":
    sys.exit(main())
