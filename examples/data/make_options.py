#!/usr/bin/env python3
"""Writes european_options.txt: contracts at random and their Black-Scholes prices, computed with 50 digits (needs mpmath)."""

import random
from pathlib import Path

from mpmath import erfc, exp, log, mp, mpf, sqrt

COUNT = 512
HEAD = """# European options and their Black-Scholes prices, exact to the digits shown; written by make_options.py
# spot strike rate volatility years call put
"""


def price(spot, strike, rate, volatility, years):
    """Call and put, from the parameters as the doubles that a program reads."""
    s, k, r, v, t = map(mpf, (spot, strike, rate, volatility, years))
    d1 = (log(s / k) + (r + v * v / 2) * t) / (v * sqrt(t))
    d2 = d1 - v * sqrt(t)
    discounted = k * exp(-r * t)

    def normal(x):
        return erfc(-x / sqrt(mpf(2))) / 2

    return s * normal(d1) - discounted * normal(d2), discounted * normal(-d2) - s * normal(-d1)


def main():
    mp.dps = 50
    generator = random.Random(1973)
    lines = [HEAD]
    for _ in range(COUNT):
        spot = round(generator.uniform(10, 200), 2)
        contract = (spot, round(spot * generator.uniform(0.7, 1.4), 2), round(generator.uniform(-0.005, 0.06), 4),
                    round(generator.uniform(0.05, 0.6), 3), round(generator.uniform(0.05, 3), 3))
        prices = (mp.nstr(p, 25, min_fixed=-40) for p in price(*contract))
        lines.append(" ".join([*map(str, contract), *prices]) + "\n")
    (Path(__file__).parent / "european_options.txt").write_text("".join(lines))


if __name__ == "__main__":
    main()
