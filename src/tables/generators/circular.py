"""Tables of the circular functions: bits of 1/pi, 2/pi and 4/pi for the reductions of large arguments, and sines, cosines and
tangents of equally spaced angles."""

from fractions import Fraction

import mpmath
from mpmath import mpf

from binary import bits, exact, floor_log2, to_binary, to_significand, write

SCRIPT = "circular.py"

# The largest binary64 needs about 1200 bits of 1/pi behind the point.
FRACTION_BITS = 1400


def over_pi(numerator):
    """numerator/pi, cut off far behind the bits that any table needs."""
    with mpmath.workprec(FRACTION_BITS + 200):
        return Fraction(int(mpmath.floor(mpf(numerator) * mpf(2) ** FRACTION_BITS / mpmath.pi)), 2**FRACTION_BITS)


def floor(x):
    return x.numerator // x.denominator


def words(integer, count, width):
    """The words of an integer as hexadecimal text, the most significant first."""
    mask = (1 << width) - 1
    return [f"0x{integer >> (width * (count - 1 - i)) & mask:0{width // 4}X}" for i in range(count)]


def large_reduction(directory):
    inverse = over_pi(1)
    for width, rows, shift in ((64, 2048, 884), (32, 256, 55)):
        span = 2 ** (3 * width)
        values = [words(floor(inverse * Fraction(2) ** (e - shift)) % span, 3, width) for e in range(rows)]
        write("large_reduction", SCRIPT,
              f"floor(2^(e - {shift}) / pi) mod 2^{3 * width} for the exponent field e = 0 to {rows - 1}: three words, the most "
              "significant first.", values, width, directory)


def residue(directory):
    """2/pi modulo 2^(2 - 8k), entry 0 being 2/pi itself."""
    inverse = over_pi(2)
    remainders = [inverse % Fraction(2) ** (2 - 8 * k) if k else inverse for k in range(16)]
    heads = [to_binary(r, 64) for r in remainders]
    rule = "2/pi for k = 0 and 2/pi modulo 2^(2 - 8k) for k = 1 to 15"
    write("two_over_pi_residue", SCRIPT, f"{rule}, rounded to nearest.", heads, 64, directory, "head")
    write("two_over_pi_residue", SCRIPT, f"{rule}, less its rounded value; the rest rounded to nearest.",
          [r - h for r, h in zip(remainders, heads)], 64, directory, "tail")


def chunks(directory):
    """4/pi in pieces of 25 bits, times 2^200."""
    inverse = over_pi(4)
    values = [Fraction(0)]
    for j in range(49):
        integer = floor(inverse * Fraction(2) ** (24 + 25 * j)) % 2**25
        values.append(integer * Fraction(2) ** (200 - 24 - 25 * j))
    values += [Fraction(0)] * 6
    write("four_over_pi_chunks", SCRIPT,
          "Row 0: 0. Row j + 1, j = 0 to 48: bits 25 j to 25 j + 24 of 4/pi from the integer bit on, in their place, times 2^200. "
          "Then zeros. All exact.", values, 64, directory)


def sine(turns):
    """sin of a fraction of a turn, exact at the multiples of a quarter."""
    return exact(mpmath.sinpi(mpf(2 * turns.numerator) / turns.denominator))


def cosine(turns):
    return exact(mpmath.cospi(mpf(2 * turns.numerator) / turns.denominator))


def power_below(x, limit):
    """The power of 2 h with limit h <= |x| < 2 limit h, with the sign of x; 0 for 0."""
    if x == 0:
        return x
    h = Fraction(2) ** floor_log2(abs(x) / limit)
    return h if x > 0 else -h


def angles(directory):
    rows = []
    for i in range(512):
        s, c = sine(Fraction(i, 512)), cosine(Fraction(i, 512))
        head, sine_head = power_below(c, Fraction(3, 4)), to_binary(s, 64)
        rows.append([c - head, head, sine_head, to_significand(s - sine_head, 25)])
    write("angles", SCRIPT,
          "The angle of i/512 turn, i = 0 to 511: cos - h, h (a power of 2 next to cos), sin, the rest of sin to 25 bits; rounded to "
          "nearest.", rows, 64, directory)
    rows = []
    # The tie cos = 2^(-1/2) goes to the larger power: the limit is cut below it.
    root_half = to_significand(exact(mpmath.sqrt(mpf(0.5))), 300, "zero")
    for i in range(256):
        s, c = sine(Fraction(i, 256)), cosine(Fraction(i, 256))
        head, sine_head = power_below(c, root_half), to_binary(s, 32)
        rows.append([c - head, sine_head, s - sine_head, head])
    write("angles", SCRIPT,
          "The angle of i/256 turn, i = 0 to 255: cos - h, sin, the rest of sin, h (a power of 2 next to cos); rounded to nearest.",
          rows, 32, directory)


def half_turn_sixteenths(directory):
    turns = [Fraction(k, 32) for k in range(16)]
    write("sine", SCRIPT, "sin(k pi/16), k = 0 to 15, rounded to nearest.", [sine(t) for t in turns], 64, directory, "head")
    write("cosine", SCRIPT, "cos(k pi/16), k = 0 to 15, rounded to nearest.", [cosine(t) for t in turns], 64, directory, "head")

    def tail_word(x):
        return bits(x - to_binary(x, 64), 64) >> 32

    write("sine_cosine", SCRIPT,
          "What the rounded cos(k pi/16) and sin(k pi/16) lack, k = 0 to 15: the upper 32 bits of either number, that of the cosine in "
          "front.", [f"0x{tail_word(cosine(t)) << 32 | tail_word(sine(t)):016X}" for t in turns], 64, directory, "tails")


def half_turn_32nds(directory):
    rows = []
    for k in range(64):
        s, c = sine(Fraction(k, 64)), cosine(Fraction(k, 64))
        rows.append([to_binary(s, 64), s - to_binary(s, 64), to_binary(c, 64), c - to_binary(c, 64)])
    write("sine_cosine", SCRIPT, "sin(k pi/32) and cos(k pi/32), k = 0 to 63: each rounded to nearest, and what it lacks.", rows, 64,
          directory, "pairs")


def tangents(directory):
    for width, n in ((32, 32), (64, 16)):
        largest = to_binary(Fraction(2) ** (128 if width == 32 else 1024) * (1 - Fraction(1, 2 ** (24 if width == 32 else 53))), width)
        last_place = Fraction(2) ** (104 if width == 32 else 971)
        heads, tails = [], []
        for k in range(n):
            if k == 0:
                heads.append("0x" + ("80000000" if width == 32 else "8000000000000000"))
                tails.append(heads[0])
            elif k == n // 2:
                heads.append(-largest)
                tails.append(-last_place)
            else:
                exact_value = sine(Fraction(k, 2 * n)) / cosine(Fraction(k, 2 * n))
                heads.append(to_binary(exact_value, width))
                tails.append(exact_value - heads[-1])
        rule = f"tan(k pi/{n}), k = 0 to {n - 1}"
        write("tangent", SCRIPT, f"{rule}, rounded to nearest; -0 for 0 and the most negative number at the pole.", heads, width,
              directory, "head")
        write("tangent", SCRIPT, f"{rule}, less its rounded value; -0 for 0 and at the pole minus a unit in the last place.", tails,
              width, directory, "tail")


def generate(directory):
    large_reduction(directory)
    residue(directory)
    chunks(directory)
    angles(directory)
    half_turn_sixteenths(directory)
    half_turn_32nds(directory)
    tangents(directory)
