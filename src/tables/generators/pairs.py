"""Tables of functions in pairs of binary64, a head and what it lacks, for results of about 70 bits."""

from fractions import Fraction

import mpmath
from mpmath import mpf

from binary import exact, to_binary, to_multiple, write
from circular import cosine, sine

SCRIPT = "pairs.py"


def pair(value, head=None):
    value = exact(value)
    head = to_binary(value, 64) if head is None else head
    return [head, value - head]


def generate(directory):
    powers = [pair(mpf(2) ** (mpf(j) / 256)) + pair(mpf(2) ** (-mpf(j) / 256)) for j in range(256)]
    write("exp2", SCRIPT, "2^(j/256) and 2^(-j/256), j = 0 to 255: each rounded to nearest, and the rest.", powers, 64, directory,
          "pairs")

    angles = [pair(sine(Fraction(k, 256))) + pair(cosine(Fraction(k, 256))) for k in range(256)]
    write("sine_cosine", SCRIPT, "sin and cos of k/256 turn, k = 0 to 255: each rounded to nearest, and the rest.", angles, 64,
          directory, "pairs")

    logarithms = [-mpmath.log(mpf(i) / 256) for i in range(170, 343)]
    write("minus_ln", SCRIPT, "-ln(i/256), i = 170 to 342: rounded to a multiple of 2^-40, and the rest.",
          [pair(v, to_multiple(exact(v), -40)) for v in logarithms], 64, directory, "pairs")
