"""atan(k/4): heads rounded to nearest, tails the rounding error of the heads."""

from mpmath import atan, mpf

from binary import exact, to_binary, write

SCRIPT = "arctangent.py"


def generate(directory):
    for width, name in ((32, "atan_float"), (64, "atan_double")):
        angles = [exact(atan(mpf(k) / 4)) for k in range(32)]
        heads = [to_binary(a, width) for a in angles]
        write(f"{name}_head", SCRIPT, "atan(k/4), rounded.", heads, width, directory)
        write(f"{name}_tail", SCRIPT, f"What entry k of {name}_head lacks.", [a - h for a, h in zip(angles, heads)], width,
              directory)
