"""atan(k/4): heads rounded to nearest, tails the rounding error of the heads."""

from mpmath import atan, mpf

from binary import exact, to_binary, write

SCRIPT = "arctangent.py"


def generate(directory):
    for width in (32, 64):
        angles = [exact(atan(mpf(k) / 4)) for k in range(32)]
        heads = [to_binary(a, width) for a in angles]
        write("atan", SCRIPT, "atan(k/4), k = 0 to 31, rounded to nearest.", heads, width, directory, "head")
        write("atan", SCRIPT, "atan(k/4), k = 0 to 31, less its rounded value; the rest rounded to nearest.",
              [a - h for a, h in zip(angles, heads)], width, directory, "tail")
