"""Tables of the error function and its complement at evenly spaced centres, each with the derivative there.

Packed rows hold the value in two parts beside the derivative, within the two words of a plain row:
  erf     word 0 is read as a number (its low 55 bits, times 2^1016) and as a relative tail (its top 32 bits, in units of 2^-84);
          the fields overlap, so the free top bits are chosen to bring the tail as close as they can. Word 1 is the derivative.
  erfc    word 0 is the value cut toward zero. Word 1 holds the pattern of the derivative less word 0's exponent field, and above
          it a relative tail of word 0 in units of 2^-61, or 2^-29 in binary32.
"""

from fractions import Fraction

from mpmath import erf, erfc, exp, mpf, pi, sqrt

from binary import bits, exact, floor_log2, from_bits, to_multiple, to_significand, write

SCRIPT = "error_function.py"
FRACTION_BITS = {32: 23, 64: 52}


def density(c):
    """The derivative of erf at c."""
    return 2 / sqrt(pi) * exp(-c * c)


def packed_value(value):
    """The word whose two readings together are the closest to a value in [2^-6, 1]."""
    value = exact(value)
    best = None
    for steps_down in (0, 1):
        unit = Fraction(2) ** (floor_log2(value) - 52)
        head = to_multiple(value, floor_log2(value) - 52, "zero") - steps_down * unit
        low = bits(head / Fraction(2) ** 1016, 64)
        assert low < 2**55
        fixed = low >> 32
        wanted = (value - head) / head * Fraction(2) ** 84
        free = min(max(round((wanted - fixed) / 2**23), 0), 511)
        error = abs(wanted - fixed - free * 2**23)
        if best is None or error < best[0]:
            best = error, free << 55 | low
    return best[1]


def packed_row(value, slope, width):
    """The two words of a row of erfc's kind, as text."""
    free, digits = (9, 16) if width == 64 else (6, 8)
    value = exact(value)
    head = to_significand(value, FRACTION_BITS[width] + 1, "zero")
    word = bits(head, width)
    units = int((value - head) / head * 2 ** (FRACTION_BITS[width] + free)) if head else 0
    exponent = word >> FRACTION_BITS[width] << FRACTION_BITS[width]
    low = bits(slope, width) - exponent
    assert 0 <= units < 2**free and 0 <= low < 2 ** (width - free)
    return [f"0x{word:0{digits}X}", f"0x{units << (width - free) | low:0{digits}X}"]


def one_word(row, width=32):
    """A row of two narrow words as one wide word, the first in the low half."""
    low, high = (int(w, 16) if isinstance(w, str) else bits(w, width) for w in row)
    return f"0x{high << width | low:0{width // 2}X}"


def error_function(directory):
    centres = [mpf(i) / 128 for i in range(768)]
    write("erf", SCRIPT, "erf c and its derivative at c = i/128, i = 0 to 767; rounded to nearest.",
          [[erf(c), density(c)] for c in centres], 64, directory)
    rows = [["0x0000000000000000", mpf(2) ** 32]] * 4
    rows += [[f"0x{packed_value(erf(c)):016X}", exp(-c * c) * 2**32] for c in centres[4:]]
    write("erf", SCRIPT,
          "erf c in two parts in one word, and 2^32 exp(-c^2), at c = i/128, i = 0 to 767; rows 1 to 3 are row 0.", rows, 64,
          directory, "packed")


def complement(directory):
    def rows(count, step, scale, last):
        for i in range(count):
            c = mpf(i) / step
            yield [erfc(c) * mpf(2) ** scale, density(c) * mpf(2) ** scale] if i < last else [mpf(0), mpf(0)]

    def comment(count, step, scale, last, parts, form):
        zeros = f", from row {last} on 0" if last < count else ""
        return f"2^{scale} erfc c{parts} and 2^{scale} times the derivative of erf, at c = i/{step}, i = 0 to {count - 1}{zeros}; {form}"

    def end(form, width):
        return f"{form}, a row in one word." if width == 32 else f"{form}."

    for width, grid in ((32, (648, 64, 48, 644)), (64, (3488, 128, 128, 3487)), (64, (1744, 64, 128, 1744))):
        words = [one_word(row) for row in rows(*grid)] if width == 32 else list(rows(*grid))
        write("erfc", SCRIPT, comment(*grid, "", end("rounded to nearest", width)), words, width, directory)
    for width, grid in ((32, (648, 64, 64, 644)), (64, (3488, 128, 128, 3487))):
        words = [packed_row(*row, width) for row in rows(*grid)]
        write("erfc", SCRIPT, comment(*grid, " in two parts", end("packed", width)), [one_word(w) for w in words] if width == 32 else words, width,
              directory, "packed")


def generate(directory):
    error_function(directory)
    complement(directory)
