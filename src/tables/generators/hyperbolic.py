"""Tables of the hyperbolic functions and their inverses: halves of powers of 2 of both signs, 2^(i/n)/2 and 2^(-i/n)/2, and
logarithms of short significands."""

from mpmath import log, mpf

from binary import exact, to_binary, to_multiple, write

SCRIPT = "hyperbolic.py"


def split(value, width):
    """value rounded, and what that lacks."""
    head = to_binary(value, width)
    return [head, exact(value) - head]


def halves(i, n, width):
    return [split(mpf(2) ** (sign * mpf(i) / n) / 2, width) for sign in (1, -1)]


def logarithms(directory):
    for n, width, grid in ((32, 32, -13), (16, 64, -40)):
        values = [log(1 + mpf(i) / n) for i in range(n)]
        his = [to_multiple(v, grid) for v in values]
        rule = f"ln(1 + i/{n}), i = 0 to {n - 1}"
        write("ln_above_one", SCRIPT, f"{rule}, rounded to nearest.", values, width, directory)
        write("ln_above_one", SCRIPT, f"{rule}: hi, rounded to a multiple of 2^{grid}, and lo, the rest.",
              [[hi, exact(v) - hi] for v, hi in zip(values, his)], width, directory, "pairs")


def generate(directory):
    logarithms(directory)
    for n, width in ((32, 32), (16, 64)):
        rows = [halves(i, n, width) for i in range(n)]
        write("half_exp2", SCRIPT,
              f"2^(i/{n})/2 and 2^(-i/{n})/2, i = 0 to {n - 1}, rounded to nearest, then what each of the two lacks.",
              [[plus[0], minus[0], plus[1], minus[1]] for plus, minus in rows], width, directory)
    rows = [halves(i, 128, 64) for i in range(128)]
    write("half_exp2", SCRIPT,
          "2^(i/128)/2 and 2^(-i/128)/2, i = 0 to 127, rounded to nearest, then what their difference lacks.",
          [[plus[0], minus[0], plus[1] - minus[1]] for plus, minus in rows], 64, directory)
    write("exp2", SCRIPT, "2^(i/64), i = 0 to 64: rounded to nearest, and what that lacks.",
          [split(mpf(2) ** (mpf(i) / 64), 64) for i in range(65)], 64, directory, "pairs")
