"""Tables of the inverse of erfc.

erfcinv_64f_13313: the inverse on a grid of 128 nodes a binade that is fine on both sides of the interval from 0 to 1. Row k holds
erfcinv q and exp(erfcinv(q)^2), the slope up to a factor, for q = n(k) in the first half and 1 - n(last - k) in the second,
where n(k) has the pattern of 2^-53 plus k 2^45. Word 0 is the pattern of erfcinv q cut toward zero, less a constant, so that
six exponent bits are enough; its top six bits count units of the relative tail, 2^-58.

erfcinv_tail_64f_6: t - erfcinv(exp(-t^2)) by polynomials on pieces of the t axis, for the tails.

erfcinv_tail_64f_8_near: the same for the tail of binary32, to fewer bits, on quarters of the binades of t.
"""

from fractions import Fraction

import mpmath
from mpmath import mpf

from binary import bits, exact, from_bits, to_significand, write

SCRIPT = "inverse_error_function.py"
PRECISION = 160

HALF = 52 * 128  # the row of q = 1/2
LAST = 2 * HALF
POINT_BASE = 0x3C8C << 48

PIECES = [(3.9, 5), (5, 7), (7, 10), (10, 14), (14, 20), (20, 27.4)]
TAIL_DEGREE = 14

# By the last bit of t's exponent and the first two of its fraction; the third is not in use.
NEAR_PIECES = [(8, 10), (10, 12), None, (3.5, 4), (4, 5), (5, 6), (6, 7), (7, 8)]
NEAR_DEGREE = 7


def inverse_erfc(q=None, log_q=None):
    """The y > 0 with erfc y = q, or log erfc y = log_q, by Newton's method on the logarithm."""
    with mpmath.workprec(PRECISION + 40):
        log_q = mpmath.log(q) if log_q is None else log_q
        y = mpmath.sqrt(-log_q)
        y = y - mpf("0.3") if y > 1.3 else y * mpf("0.8")
        for _ in range(100):
            e = mpmath.erfc(y)
            step = (mpmath.log(e) - log_q) * e * mpmath.exp(y * y) * mpmath.sqrt(mpmath.pi) / 2
            y += step
            if abs(step) < y * mpf(2) ** (-PRECISION // 2 - 10):
                return y
    raise ArithmeticError("no convergence")


def inverse_erf(x):
    """The y with erf y = x, of a small x."""
    with mpmath.workprec(PRECISION + 40):
        y = x * mpmath.sqrt(mpmath.pi) / 2
        for _ in range(100):
            step = (x - mpmath.erf(y)) * mpmath.exp(y * y) * mpmath.sqrt(mpmath.pi) / 2
            y += step
            if abs(step) < y * mpf(2) ** (-PRECISION // 2 - 10):
                return y
    raise ArithmeticError("no convergence")


def node(k):
    return from_bits((1023 - 53 << 52) + (k << 45), 64)


def row(k):
    n = node(min(k, LAST - k))
    with mpmath.workprec(PRECISION + 40):
        n = mpf(n.numerator) / n.denominator
        y = inverse_erfc(n) if k <= HALF else inverse_erf(n)
        point = exact(y)
        head = to_significand(point, 53, "zero")
        units = int((point - head) / head * 2**58)
        word = bits(head, 64) - POINT_BASE
        assert 0 <= word < 2**58 and 0 <= units < 64
        return [f"0x{units << 58 | word:016X}", mpmath.exp(y * y)]


def interpolate(function, low, high, degree):
    """Coefficients, in x less the middle, of the polynomial through the Chebyshev nodes."""
    middle, radius = (mpf(low) + high) / 2, (mpf(high) - low) / 2
    n = degree + 1
    points = [mpmath.cos(mpmath.pi * (2 * i + 1) / (2 * n)) for i in range(n)]
    values = [function(middle + radius * p) for p in points]
    a = mpmath.matrix(n, n)
    for i, p in enumerate(points):
        for j in range(n):
            a[i, j] = p**j
    solution = mpmath.lu_solve(a, mpmath.matrix(values))
    return [solution[j] / radius**j for j in range(n)]


def tail_correction(t):
    return t - inverse_erfc(log_q=-t * t)


def piece(low, high, middle, degree):
    """The correction's coefficients on a piece, and the largest error there in parts of t."""
    coefficients = interpolate(lambda u: tail_correction(middle + u), low - middle, high - middle, degree)
    worst = mpf(0)
    for i in range(101):
        t = low + (high - low) * i / 100
        value = mpmath.polyval([mpf(float(c)) for c in coefficients[::-1]], t - middle)
        worst = max(worst, abs(value - tail_correction(t)) / t)
    return coefficients, worst


def tail(directory):
    rows, worst = [], mpf(0)
    for low, high in PIECES:
        low, high = mpf(low), mpf(high)
        middle = mpf(float((low + high) / 2))
        coefficients, error = piece(low, high, middle, TAIL_DEGREE)
        rows.append([high, middle] + coefficients)
        worst = max(worst, error)
    comment = "\n".join([
        f"t - erfcinv(exp(-t^2)) on pieces of the t axis from {PIECES[0][0]} on. Row: the piece's upper end, its middle m, the",
        f"coefficients of (t - m)^0 to (t - m)^{TAIL_DEGREE}. Weight: 1 / t. Largest error so weighted: {float(worst):.2e}."])
    write("erfcinv_tail", SCRIPT, comment, rows, 64, directory)


def near_tail(directory):
    rows, worst = [], mpf(0)
    for ends in NEAR_PIECES:
        if ends is None:
            rows.append([mpf(0)] * (NEAR_DEGREE + 1))
            continue
        low, high = map(mpf, ends)
        coefficients, error = piece(low, high, (low + high) / 2, NEAR_DEGREE)
        rows.append(coefficients)
        worst = max(worst, error)
    comment = "\n".join([
        "t - erfcinv(exp(-t^2)) on quarters of the binades of t. Row, by the last bit of the exponent and the first two of the",
        f"fraction: the coefficients of (t - m)^0 to (t - m)^{NEAR_DEGREE}, m being the quarter's middle. From 3.5 to 12; one row is not in use.",
        f"Weight: 1 / t. Largest error so weighted: {float(worst):.2e}."])
    write("erfcinv_tail", SCRIPT, comment, rows, 64, directory, part="near")


def generate(directory):
    write("erfcinv", SCRIPT,
          "erfcinv q in two parts in one word, and exp of its square, at 128 nodes q a binade from 2^-53 to 1/2 and, mirrored, to "
          "1 - 2^-53.",
          [row(k) for k in range(LAST + 1)], 64, directory)
    with mpmath.workprec(PRECISION):
        tail(directory)
        near_tail(directory)
