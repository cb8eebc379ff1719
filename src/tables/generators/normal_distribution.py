"""Tables of the lower tail of the normal distribution at evenly spaced centres, each with the density there; the packed ones
have rows of the kind that error_function.py describes, with twice the density, as the slope must not be below the value."""

from mpmath import erfc, exp, mpf, pi, sqrt

from error_function import one_word, packed_row
from binary import write

SCRIPT = "normal_distribution.py"


def rows(count, step, scale):
    """2^scale times the probability left of -c and the density there, at c = i/step."""
    for i in range(count):
        c = mpf(i) / step
        yield [erfc(c / sqrt(mpf(2))) / 2 * mpf(2) ** scale, exp(-c * c / 2) / sqrt(2 * pi) * mpf(2) ** scale]


def packed_rows(count, step, scale, width):
    return [packed_row(value, 2 * slope, width) for value, slope in rows(count, step, scale)]


def generate(directory):
    def comment(parts, density, step, scale, end="."):
        return f"The probability left of -c{parts}, and {density} there, at c = i/{step}, both times 2^{scale}{end}"

    plain, packed, one = ("", "the density"), (" in two parts", "twice the density"), "; a row is one word."
    write("cdfnorm_64_float", SCRIPT, comment(*plain, 64, 64, one), [one_word(r) for r in rows(908, 64, 64)], 64, directory)
    write("cdfnorm_64_float_packed", SCRIPT, comment(*packed, 64, 64, one), [one_word(r) for r in packed_rows(908, 64, 64, 32)],
          64, directory)
    write("cdfnorm_64", SCRIPT, comment(*plain, 64, 128), rows(2468, 64, 128), 64, directory)
    write("cdfnorm_128", SCRIPT, comment(*plain, 128, 128), rows(4928, 128, 128), 64, directory)
    write("cdfnorm_128_packed", SCRIPT, comment(*packed, 128, 128), packed_rows(4928, 128, 128, 64), 64, directory)
