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
    def comment(parts, density, count, step, scale, end):
        return (f"The probability left of -c{parts}, and {density} there, at c = i/{step}, i = 0 to {count - 1}, both times 2^{scale}; "
                f"{end}")

    plain, packed = ("", "the density"), (" in two parts", "twice the density")
    rounded, one = "rounded to nearest", ", a row in one word."
    narrow, wide, fine = (908, 64, 64), (2468, 64, 128), (4928, 128, 128)
    write("cdfnorm", SCRIPT, comment(*plain, *narrow, rounded + one), [one_word(r) for r in rows(*narrow)], 32, directory)
    write("cdfnorm", SCRIPT, comment(*packed, *narrow, "packed" + one), [one_word(r) for r in packed_rows(*narrow, 32)], 32, directory,
          "packed")
    write("cdfnorm", SCRIPT, comment(*plain, *wide, rounded + "."), list(rows(*wide)), 64, directory)
    write("cdfnorm", SCRIPT, comment(*plain, *fine, rounded + "."), list(rows(*fine)), 64, directory)
    write("cdfnorm", SCRIPT, comment(*packed, *fine, "packed."), packed_rows(*fine, 64), 64, directory, "packed")
