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
    for name, n, width, grid in (("ln_above_one_float", 32, 32, -13), ("ln_above_one", 16, 64, -40)):
        values = [log(1 + mpf(i) / n) for i in range(n)]
        his = [to_multiple(v, grid) for v in values]
        write(f"{name}_{n}", SCRIPT, f"ln(1 + i/{n}), rounded.", values, width, directory)
        write(f"{name}_{n}_pairs", SCRIPT, f"ln(1 + i/{n}): hi, a multiple of 2^{grid}, and lo.",
              [[hi, exact(v) - hi] for v, hi in zip(values, his)], width, directory)


def generate(directory):
    logarithms(directory)
    for name, n, width in (("half_exp2_float_32", 32, 32), ("half_exp2_16", 16, 64)):
        rows = [halves(i, n, width) for i in range(n)]
        write(name, SCRIPT, f"2^(i/{n})/2 and 2^(-i/{n})/2, rounded, then what each of the two lacks.",
              [[plus[0], minus[0], plus[1], minus[1]] for plus, minus in rows], width, directory)
    rows = [halves(i, 128, 64) for i in range(128)]
    write("half_exp2_128", SCRIPT, "2^(i/128)/2 and 2^(-i/128)/2, rounded, then what their difference lacks.",
          [[plus[0], minus[0], plus[1] - minus[1]] for plus, minus in rows], 64, directory)
    write("exp2_64_split", SCRIPT, "2^(i/64) for i from 0 to 64: rounded, and what that lacks.",
          [split(mpf(2) ** (mpf(i) / 64), 64) for i in range(65)], 64, directory)
