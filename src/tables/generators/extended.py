"""Tables and polynomials of the extended-precision functions of the complex cores. All are called extended_<what>.

Pairs are a head with few enough bits for what is done with it, and the rest rounded to binary64. The polynomials come from
extended.sollya; each coefficient is a 64-bit number, written as a sum of two binary64 numbers.
"""

from fractions import Fraction

import mpmath
from mpmath import mpf

from binary import exact, floor_log2, run_sollya, to_binary, to_multiple, to_significand, write

SCRIPT = "extended.py"
MEANING = {
    "sine": "(sin x - x + x^3/6) / x^5 as a polynomial in x^2.",
    "cosine": "(cos x - 1 + x^2/2) / x^4 as a polynomial in x^2.",
    "sinh": "(sinh x - x - x^3/6) / x^5 as a polynomial in x^2.",
    "cosh": "(cosh x - 1 - x^2/2) / x^4 as a polynomial in x^2.",
    "exp_table": "(e^r - 1 - r) / r^2 beside the rows of the power table.",
    "exp_small": "(e^r - 1 - r) / r^2.",
    "log_table": "(log(1 + r) - r) / r^2 beside the rows of the logarithm table.",
    "log_near_one": "(log(1 + r) - r + r^2/2) / r^3.",
    "tangent": "(tan x - x - x^3/3) / x^5 as a polynomial in x^2.",
    "tanh": "(tanh x - x + x^3/3) / x^5 as a polynomial in x^2.",
    "arcsine_small": "(asin x - x - x^3/6) / x^5 as a polynomial in x^2.",
    "arcsine": "(asin x - x - x^3/6) / x^5 as a polynomial in x^2.",
    "asinh": "(asinh x - x + x^3/6) / x^5 as a polynomial in x^2.",
    "atanh": "(atanh x - x - x^3/3) / x^5 as a polynomial in x^2.",
    "acosh": "(acosh(1 + t) / sqrt(2 t) - 1 + t/12) / t^2.",
}


def pair(value, head):
    value, head = exact(value), exact(head)
    return [head, value - head]


def dyadic(text):
    """The value of Sollya's 3b-5, 3 times 2^-5."""
    mantissa, _, exponent = text.partition("b")
    return Fraction(int(mantissa)) * Fraction(2) ** int(exponent or 0)


def write_polynomials(directory):
    found = {}
    for line in run_sollya(__file__, "the extended-precision polynomials are fitted"):
        words = line.split()
        if words[0] == "polynomial":
            name, coefficients = words[1], []
            found[name] = (*(float(dyadic(w)) for w in words[2:]), coefficients)
        else:
            mantissa, exponent = map(dyadic, words)
            coefficients.append(mantissa * Fraction(2) ** int(exponent))
    assert found.keys() == MEANING.keys()
    for name, (low, high, error, coefficients) in found.items():
        comment = f"{MEANING[name]}\nInterval: [{low:.6g}, {high:.6g}]. Weight: 1. Error: {error:.2e}."
        write(f"extended_{name}", "extended.sollya", comment, [pair(c, to_binary(c, 64)) for c in coefficients], 64, directory,
              "pairs")


def seed(i):
    """Near 1 / sqrt(t) for t = 1 + i/256, and from row 256 on twice that with i less 256."""
    t = (1 + mpf(i % 256) / 256) * (2 if i >= 256 else 1)
    return Fraction(1, 2) if i == 512 else to_significand(1 / mpmath.sqrt(t), 11)


def write_logarithms(directory):
    reciprocals = [to_significand(1 / (1 + (j + mpf(1) / 2) / 256), 11) for j in range(256)]
    write("extended_log_reciprocals", SCRIPT, "c near 1 / (1 + (j + 1/2)/256), j = 0 to 255, of at most 11 bits.", reciprocals, 32, directory)
    logarithms = [-mpmath.log(mpf(c.numerator) / c.denominator) for c in reciprocals]
    write("extended_log", SCRIPT,
          "-log c of the reciprocals c near 1 / (1 + (j + 1/2)/256), j = 0 to 255: rounded to a multiple of 2^-40, and the rest.",
          [pair(v, to_multiple(v, -40)) for v in logarithms], 64, directory, "pairs")


def write_angles(directory):
    def angle(k):
        if k > 256:
            return mpmath.pi - angle(512 - k)
        return mpmath.atan(mpf(k) / 128) if k <= 128 else mpmath.pi / 2 - mpmath.atan(mpf(256 - k) / 128)

    angles = [angle(k) for k in range(513)]
    write("extended_angles", SCRIPT,
          "atan(k/128) for k = 0 to 128, pi/2 - atan((256 - k)/128) to 256, pi less row 512 - k to 512: rounded to nearest, and the "
          "rest.", [pair(v, to_binary(v, 64)) for v in angles], 64, directory, "pairs")


def write_tangents(directory):
    rows = []
    for k in range(-17, 18):
        tangent = mpmath.tan(k * mpmath.pi / 64)
        cotangent = 1 / tangent if k else mpf(0)
        values = [tangent, cotangent, tangent + cotangent]
        rows.append([part for v in values for part in pair(v, to_binary(v, 64))])
    write("extended_tangents", SCRIPT,
          "T = tan(k pi/64), C = cot(k pi/64), T + C, k = -17 to 17: each rounded to nearest, and the rest. That of k = 0 is not used.",
          rows, 64, directory, "pairs")


def write_four_over_pi(directory):
    """Pieces of 31 bits, from the integer bit on, times 2^217."""
    with mpmath.workprec(31 * 540):
        bits = int(mpmath.floor(mpf(2) ** (31 * 536 - 1) * 4 / mpmath.pi))
    rows = [["0x00000000", "0x0000000000000000"]]
    for i in range(1, 537):
        piece = bits >> (31 * (536 - i)) & (2 ** 31 - 1)
        exponent = floor_log2(Fraction(piece)) + 1 - 31 * i + 217 + 0x3FFF
        assert piece and exponent > 0
        rows.append([f"0x{exponent:08X}", f"0x{piece << (64 - piece.bit_length()):016X}"])
    write("extended_four_over_pi", SCRIPT,
          "Row 0: 0. Rows 1 to 536: the bits of 4/pi from the integer bit on in pieces of 31, times 2^217: exponent field, significand "
          "with its integer bit. All exact.", rows, 64, directory, format="fields")


def generate(directory):
    write("extended_sqrt_seeds", SCRIPT,
          "Near 1 / sqrt(1 + i/256), then 1 / sqrt(2 (1 + i/256)), i = 0 to 255, of at most 11 bits; a row more for the index past the "
          "end.",
          [seed(i) for i in range(513)], 64, directory)
    write("extended_powers", SCRIPT, "2^(j/256), j = -128 to 128: rounded to 32 bits, and the rest.",
          [pair(v, to_significand(v, 32)) for v in (mpf(2) ** (mpf(j) / 256) for j in range(-128, 129))], 64, directory, "pairs")
    write_logarithms(directory)
    write_angles(directory)
    write_tangents(directory)
    write_four_over_pi(directory)
    write_polynomials(directory)
