"""Tables of the fixed powers x^(1/3), x^(-1/3), x^(2/3) and x^(3/2).

For the powers in thirds: 2^(+-j/3), j = 0, 1, 2, and c^p for the reciprocals c = (1 + i/n)/2, i = 0 to n - 1, each as a head rounded
to nearest and the tail that the head leaves. All are filled with zeros to whole vectors.
For x^(3/2): the value at the midpoints of 32 cells of [1, 2) and of [2, 4), and the polynomial around them, which comes from
fixed_powers.sollya.
"""

from fractions import Fraction

from mpmath import linspace, mpf

from binary import exact, run_sollya, to_binary, write

SCRIPT = "fixed_powers.py"
LANES = {32: 16, 64: 8}


def power(base, exponent):
    return exact(mpf(base.numerator) / base.denominator) if exponent == 1 else \
        exact((mpf(base.numerator) / base.denominator) ** (mpf(exponent.numerator) / exponent.denominator))


def write_pair(subject, rule, values, width, length, directory):
    heads = [to_binary(v, width) for v in values]
    tails = [v - h for v, h in zip(values, heads)]
    fill = [Fraction(0)] * (length - len(values))
    end = ", then zeros." if fill else "."
    write(subject, SCRIPT, f"{rule}, rounded to nearest{end}", heads + fill, width, directory, "head")
    write(subject, SCRIPT, f"{rule}, less its rounded value; the rest rounded to nearest{end}", tails + fill, width, directory, "tail")


def fitted():
    """The coefficients of ((1 + t)^(3/2) - 1) / t from the constant term up, exactly."""
    return [Fraction(c) for line in run_sollya(__file__, "the polynomial of x^(3/2) is fitted") for c in line.split()]


def generate(directory):
    for width, lanes in LANES.items():
        thirds = [Fraction(j, 3) for j in range(3)]
        write_pair("two_to_thirds", "2^(j/3), j = 0 to 2", [power(Fraction(2), t) for t in thirds], width, lanes, directory)
        write_pair("two_to_minus_thirds", "2^(-j/3), j = 0 to 2", [power(Fraction(2), -t) for t in thirds], width, lanes,
                   directory)
        reciprocals = [(1 + Fraction(i, lanes)) / 2 for i in range(lanes)]
        for name, exponent in (("cbrt", Fraction(-1, 3)), ("invcbrt", Fraction(1, 3)), ("pow2o3", Fraction(-2, 3))):
            rule = f"c^({exponent}) of the reciprocals c = (1 + i/{lanes})/2, i = 0 to {lanes - 1}"
            write_pair(name, rule, [power(c, exponent) for c in reciprocals], width, lanes, directory)

    midpoints = [1 + Fraction(2 * i + 1, 64) for i in range(32)]
    rows = []
    for scale in (2, 1):  # a biased exponent that is even stands for an odd power of 2
        for m in midpoints:
            value = power(scale * m, Fraction(3, 2))
            rows.append([to_binary(value, 64), value - to_binary(value, 64)])
    write("pow3o2", SCRIPT,
          "(2 m)^(3/2), then m^(3/2), of the midpoints m = 1 + (i + 1/2)/32, i = 0 to 31: rounded to nearest, and what it lacks.", rows,
          64, directory, "pairs")
    write("pow3o2_reciprocal", SCRIPT, "1 / m of the midpoints m = 1 + (i + 1/2)/32, i = 0 to 31, rounded to nearest.",
          [1 / m for m in midpoints], 64, directory)
    coefficients = fitted()
    error = mpf(0)
    for t in linspace(mpf(-1) / 65, mpf(1) / 65, 4001):
        if abs(t) > mpf(10) ** -30:
            p = sum(mpf(c.numerator) / c.denominator * t ** i for i, c in enumerate(coefficients))
            error = max(error, abs(p * t / ((1 + t) ** mpf(1.5) - 1) - 1))
    write("pow3o2_polynomial", "fixed_powers.sollya",
          "((1 + t)^(3/2) - 1) / t from the constant term up.\nInterval: |t| <= 1/65. Weight: 1 / f, so the relative error is the least: "
          f"{float(error):.2e}.", coefficients, 64, directory)
