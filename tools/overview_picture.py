#!/usr/bin/env python3
"""Draws docs/images/overview.svg from docs/data: how fast and how exact some functions are beside what one uses without the library."""

import sys

import catalogue
import measured_data as data
import pictures

IMAGE = catalogue.ROOT / "docs/images/overview.svg"
FUNCTIONS = ("Exp", "Ln", "Sin", "Pow", "Tanh", "Erf", "Cbrt")
# Who, by the names of docs/data/performance.csv and docs/data/hunt.csv.
WHO = [("C library loop", pictures.SCALAR, "scalar", "libm"), ("SLEEF, 1 ulp", pictures.EXACT_PEER, "sleef_u10", "sleef_u10"),
       ("lumVM A53", pictures.HIGH, "A53", "A53")]
WIDEST = 4.0  # ulp


def main():
    times, search = data.times(), data.hunted()
    figure, (left, right) = pictures.plt.subplots(1, 2, figsize=(8.6, 4.1), width_ratios=(1.5, 1), sharey=True)
    height = 0.26
    for i, function in enumerate(FUNCTIONS):
        for k, (_, colour, timed, searched) in enumerate(WHO):
            y = i + (k - 1) * height
            ns = times.get((f"{function}_64f", data.MAIN_LENGTH, timed), (None, None))[0]
            if ns:
                left.barh(y, ns, height * 0.88, color=colour)
                left.text(ns + 0.15, y, f"{ns:.2g}", va="center", fontsize=8, color=colour)
            found = search.get((function, "64f", searched))
            if not found:
                continue
            ulp = float(found["max_ulp"])
            right.plot(min(ulp, WIDEST - 0.08), y, "o" if ulp < WIDEST else ">", color=colour, markersize=6)
            if ulp >= WIDEST:
                right.text(WIDEST - 0.2, y, f"{ulp:,.0f}", color=colour, fontsize=8, ha="right", va="center")
    left.set_yticks(range(len(FUNCTIONS)), [name.lower() for name in FUNCTIONS], fontsize=10)
    left.invert_yaxis()
    left.tick_params(axis="y", length=0)
    left.grid(axis="y", visible=False)
    left.set_title("Time: ns an element")
    left.set_xlabel("arrays of 4096 numbers of binary64, one thread, AVX-512")
    right.axvline(0.5, color="#adb5bd", linewidth=0.8, linestyle=(0, (4, 3)))
    right.text(0.55, len(FUNCTIONS) - 0.52, "rounded to nearest", fontsize=7.5, color="#868e96", va="center")
    right.set_xlim(0, WIDEST)
    right.set_xticks([0, 1, 2, 3, 4])
    right.set_title("Largest error known: ulp")
    right.set_xlabel("found by the same search for all")
    handles = [pictures.plt.Rectangle((0, 0), 1, 1, color=colour) for _, colour, _, _ in WHO]
    figure.legend(handles, [name for name, *_ in WHO], loc="upper center", ncol=3, frameon=False, fontsize=9)
    figure.tight_layout(rect=(0, 0, 1, 0.94), w_pad=1.5)
    pictures.save(figure, IMAGE)
    return 0


if __name__ == "__main__":
    sys.exit(main())
