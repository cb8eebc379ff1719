"""Polynomials for the inverses of erfc and of the normal distribution in binary32, one on each binade of the tail distance.

A table has a line a coefficient and 32 entries a line, in the order of the five low bits of the distance's exponent field. In
the tails an entry is a coefficient of f(q) in m - M, m in [1, 2) being the significand of q. At the centre it is one of f(q) / s
in z = s^2, s being the distance from the centre. M is 3/2 in the plain tables. The exact ones have a first line of M, chosen so
that the constant term is almost a binary32 number; at the centre the rest of that term is a constant of the kernel.
"""

import mpmath
from mpmath import mpf

from binary import exact, to_binary, write
from inverse_error_function import inverse_erf, inverse_erfc

SCRIPT = "inverse_error_function_float.py"
TAIL_BITS = 24  # arguments nearer to an end than 2^-24 are not served


class Inverse:
    """scale erfcinv(factor q) for 0 < q <= middle."""

    def __init__(self, scale, factor):
        self.scale, self.factor, self.middle = mpf(scale), factor, mpf(1) / factor

    def tail(self, q):
        return self.scale * inverse_erfc(self.factor * q)

    def centre(self, z):
        """The function divided by the distance s from the middle, for z = s^2."""
        if z == 0:
            return self.scale * self.factor * mpmath.sqrt(mpmath.pi) / 2
        s = mpmath.sqrt(z)
        return self.scale * inverse_erf(self.factor * s) / s


def nearly_exact_point(f, e):
    """An M whose f(M 2^e) is a binary32 number but for 2^-32 of it."""
    # Where results fall below 1/2 on the right the point is on that side, so that what is added to the constant stays small.
    right = f.tail(mpf(2) ** (e + 1)) < 0.5
    point = mpf(1.6875 if right else 1.5)
    while True:
        value = exact(f.tail(point * mpf(2) ** e))
        if abs(to_binary(value, 32) - value) < abs(value) / 2**32:
            return point
        point += mpf(2) ** -23


def entries(f, is_exact):
    """Exponent field mod 32 -> (function of the variable, its interval, M)."""
    first_centre = -1 if f.factor == 1 else -2
    result = {}
    for e in range(-TAIL_BITS, first_centre):
        point = nearly_exact_point(f, e) if is_exact else mpf(3) / 2
        result[(e + 127) % 32] = (lambda v, e=e, point=point: f.tail((v + point) * mpf(2) ** e), 1 - point, 2 - point, point)
    radius = f.middle / 2
    for e in (first_centre, first_centre + 1):
        result[(e + 127) % 32] = (f.centre, mpf(0), radius * radius, mpf(0))
    return result


def fit(function, low, high, degree, has_rest):
    """Binary32 coefficients and the largest relative error; has_rest: the constant one has a rest of its own.

    Least squares of the relative error over Chebyshev nodes. The coefficients are rounded from the constant one up, those that
    remain being solved for anew each time, so that they make up for the rounding.
    """
    count = 3 * (degree + 1)
    nodes = [(low + high) / 2 + (high - low) / 2 * mpmath.cos(mpmath.pi * (2 * i + 1) / (2 * count)) for i in range(count)]
    values = [function(x) for x in nodes]
    rest = [mpf(1)] * count  # what the coefficients so far lack, relative to the values
    row, c = [], []
    for j in range(degree + 1):
        if j == 0 and has_rest:
            solved = function(mpf(0))
        else:
            a = mpmath.matrix([[x**k / y for k in range(j, degree + 1)] for x, y in zip(nodes, values)])
            solved = mpmath.lu_solve(a.T * a, a.T * mpmath.matrix(rest))[0]
        row.append(to_binary(exact(solved), 32))
        total = row[j] + (to_binary(exact(solved) - row[j], 32) if j == 0 and has_rest else 0)
        c.append(mpf(total.numerator) / total.denominator)
        rest = [r - c[j] * x**j / y for r, x, y in zip(rest, nodes, values)]
    worst = max(abs(mpmath.polyval(c[::-1], x) / function(x) - 1) for x in (low + (high - low) * i / 64 for i in range(65)))
    return row, worst


def table(name, f, what, degree, is_exact, directory):
    columns, worst = {}, mpf(0)
    for index, (function, low, high, point) in entries(f, is_exact).items():
        row, error = fit(function, low, high, degree, is_exact)
        columns[index] = [point] + row if is_exact else row
        worst = max(worst, error)
    lines = [[columns[i][j] if i in columns else mpf(0) for i in range(32)] for j in range(degree + 1 + is_exact)]
    first = "the points M, then the coefficients" if is_exact else "the coefficients"
    comment = "\n".join([
        f"{what}: a polynomial of degree {degree} on each binade of q and one at the centre, 32 entries a line",
        f"in the order of the low exponent bits of q. Lines: {first} from the constant one up.",
        f"Weight: 1 / f, so the relative error is the least. Largest relative error: {float(worst):.2e}."])
    write(name, SCRIPT, comment, lines, 32, directory, f"degree_{degree}", size=32)


def generate(directory):
    with mpmath.workprec(120):
        inverses = {"erfcinv": (Inverse(1, 1), "erfcinv q"),
                    "cdfnorminv": (Inverse(mpmath.sqrt(2), 2), "sqrt 2 erfcinv(2 q)")}
        for name, (f, what) in inverses.items():
            for degree, is_exact in ((3, False), (7, False), (9, True)):
                table(name, f, what, degree, is_exact, directory)
