"""The segment tables of the cheapest logarithms: row i holds a polynomial in r = m - 1 without constant term, highest power
first, for the significands m whose top four fraction bits are i: [1 + i/16, 1 + (i+1)/16) for i < 8, half of that from 8 on.

Rows 0 and 15, which meet at r = 0, and the middle rows 7 and 8 are pinned; the others come from logarithm_segments.sollya.
The pinned rows are no least-error fits: their errors, which stand in the tables' headers, are up to 2.4 times those of the others,
but within the tags. They stay as they are because no release changes a bit of a result.
"""

from fractions import Fraction

from mpmath import linspace, log, log10, mpf

from binary import fitted_rows, from_bits, write

SCRIPT = "logarithm_segments.py and logarithm_segments.sollya"

PINNED = {
    ("ln", 4): {0: "be6831ef 3eaa36bb befffe93 3f800000", 7: "bd947e78 3e76f776 bef35e29 3f7f532c",
                8: "bf15ee8d 3e4684fe bf060f28 3f7fa089", 15: "be86a5e0 3eaa88fa bf00001b 3f800000"},
    ("ln", 3): {0: "3e9f5a07 beffbd9f 3f800000", 7: "3e0e9119 bedaedbb 3f7d6b86",
                8: "3f1b0f68 bedabf99 3f80c697", 15: "3eb0da76 beffed39 3f800000"},
    ("log10", 4): {0: "bdc9ae9b 3e13d888 be5e5a9b 3ede5bd8", 7: "bd00faf2 3dd68333 be5362f8 3eddc5bb",
                   8: "be823aa9 3dac6e8e be68e27c 3ede08ed", 15: "bde9e84e 3e141ff8 be5e5c08 3ede5bd9"},
    ("log10", 3): {0: "3e0a693e be5e2231 3ede5bbf", 7: "3d77a9f4 be3e28b4 3edc1e2a",
                   8: "3e86aefe be3e00a2 3edfb4d5", 15: "3e199ce6 be5e4b8a 3ede5bdc"},
}


def fitted():
    """(function, degree) -> row -> coefficients, exactly."""
    return fitted_rows(__file__, "the segment tables of the logarithms are fitted")


def relative_error(function, row, coefficients):
    """The largest on a fine grid of the row's segment."""
    low = mpf(16 + row) / 16 / (1 if row < 8 else 2) - 1
    width = mpf(1) / (16 if row < 8 else 32)
    worst = mpf(0)
    for r in linspace(low, low + width, 401):
        if r != 0:
            p = mpf(0)
            for c in coefficients:
                p = (p + mpf(c.numerator) / c.denominator) * r
            worst = max(worst, abs(p / function(1 + r) - 1))
    return worst


def generate(directory):
    tables = fitted()
    for key, pinned in PINNED.items():
        name, degree = key
        function = {"ln": log, "log10": log10}[name]
        table = tables[key] | {i: [from_bits(int(word, 16), 32) for word in words.split()] for i, words in pinned.items()}
        rows = [table[i] for i in range(16)]
        errors = {i: relative_error(function, i, rows[i]) for i in range(16)}
        comment = "\n".join([
            f"{name}(1 + r) on sixteen segments of m = 1 + r, which row i holds for the top fraction bits i of m: the coefficients of "
            f"r^{degree} to r.",
            "Interval: [1 + i/16, 1 + (i + 1)/16) for i < 8, half of that from 8 on. Weight: 1 / f, so the relative error is the least. Largest relative error:",
            f"{float(max(errors[i] for i in errors if i not in pinned)):.2e} in the fitted rows, "
            f"{float(max(errors[i] for i in pinned)):.2e} in the pinned rows 0, 7, 8 and 15."])
        write(f"{name}_segments", SCRIPT, comment, rows, 32, directory, f"degree_{degree}")
