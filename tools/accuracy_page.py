#!/usr/bin/env python3
"""Writes docs/accuracy.md from docs/data: how errors are measured, the largest of every function, and those of other libraries."""

import sys
import textwrap

import catalogue
import make_reference
import measured_data as data

PAGE = catalogue.ROOT / "docs/accuracy.md"
TYPES = ("32f", "64f", "32fc", "64fc")
PEERS = ("sleef_u05", "sleef_u10", "sleef_u15", "sleef_u35", "libmvec", "libm")

INTRODUCTION = """<!-- Written by tools/accuracy_page.py from docs/data; do not edit. -->
# Accuracy

Errors are measured against MPFR (real functions) and MPC (complex ones), in units in the last place (ulp) of the exact value.
The *limit* is what the tag promises: below 1 ulp at A24 and A53 (up to 1.01 for Tanh and 1.1 for Powx 64f A53), half a unit of the last promised
bit at the others. For complex results it holds for the error of the whole number relative to its modulus. Each function has its
figures and pictures on the page of its family:

{families}

## How it is measured

- **All arguments** of functions of one 32f input: 2^32 each. The C library's binary64 functions settle what is clear, MPFR the
  rest. Marked *(all)* on the pages.
- **A wide search** of the others, {crossed:.2g} results of low and middle tags against the high tag and {judged:.2g} against
  values of at least eight more bits: 32f functions of two inputs and 32fc against the library's own 64f and 64fc functions, 64f
  and 64fc against long double, mostly the C library's. Another {compared:.2g} results at A53 are known to be [those of the C
  library](#a53-of-64f) and no more. Arguments are evenly distributed over the ordinary interval, over all magnitudes, and over all bit patterns; they stand on both sides of every border of the kernels' segments and tables, from the
  neighbouring number on; pairs are close to one another, multiples, or of a given product; and the neighbourhoods of the worst
  arguments so far are searched again and again. What exceeds the limit or all former errors is settled by MPFR or MPC,
  {settled:.2g} times. Exponents of complex powers are kept small, since their errors grow with them. Of many such arguments in
  one block of 4096 the largest few are settled where results are complex; the data count the others, {left:.2g}, as *left*. A
  complex result that overflows as its value does is no such argument; next to the largest number MPC decides. It is a search and
  no proof: larger errors may exist that it has not met.
- **Samples** of 60,000 arguments by MPFR and MPC alone: *sample*, *borders* of the kernels, *quarter-turns* (of every binade
  the numbers closest to a multiple of pi/2) and the *unit-circle*.

To repeat them:

    ./run accuracy --hunt --peers --seconds 31     # the wide search, half a minute a function and type
    ./run accuracy --hunt Exp --seed 4 --count 1000000000
    ./run accuracy --hunt lumsExp_64f_A53 --compared --whole 16 --seed 5 --count 1000000000   # a minute
    ./run accuracy                                 # the samples of all functions
    ./run accuracy --exhaustive                    # all arguments of one 32f input: an hour or more

The committed search has these seeds: 1 with 31 seconds a function and type (4 for exact ones), 2 with 34 (20 for powers and 32f
functions of two inputs, 8 for complex ones), 3 with 45 for 64f alone and without other libraries, on two cores that others
used, too; 5 with 1e8 to 1e9 arguments of A53 of 64f, by their number; 6 to 8 with 4e7 to 1e9 more of most of these; and 9 with 1e8
to 1e9 of those that had fewest, and with the other libraries for 3e8 arguments of the circular functions. Those of seeds 1 to 3
were made by former states of the program, seed 1 by one that looked for neighbours in wider surroundings, and searched again by
the present one with as many arguments where these took overflows of 32fc for candidates. In seeds 1 to 3 and part of 5 MPFR
settled only what exceeded the largest error by 1/64 ulp (by 1 ulp where it was found against the high tag), so that the largest
one found may be that much larger; the present program settles the largest ones at its end.
[data/hunt.csv](data/hunt.csv) has counts, seeds and arguments of the wide search, [data/accuracy.csv](data/accuracy.csv) those
of the others. The shares of results within ½, 0.51, 0.6, ¾ and 1 ulp and the mean error are those of evenly distributed
arguments of the ordinary interval, the same for all tags of a function; the values that they are measured against blur them by
2^-10 ulp. What else holds for all arguments, such as symmetry and monotonicity, is in [properties](properties.md).

In the pictures an error is the largest one in an interval of the argument, relative to the tag's limit: a line must stay below
1.

## Overview

The largest error of each tag, low, middle and high, in ulp; of complex results as a whole. **Bold** is beyond the limit: the
tag's bits do not hold for all arguments of these, and [the list below](#beyond-the-limit) says where.

"""

HIGHEST = """
## A53 of 64f

{least:.2g} to {most:.2g} arguments of each function were searched at its highest tag. What differs from the result of glibc 2.36's
double function is *judged* by values in long double and, beyond the largest error so far, by MPFR. Results that are *the same* bit
for bit are as good as glibc's: no worse than the largest error of its function, which stands in the last column as far as this
search knows it. One round of blocks in 16, of circular functions and powers one in 64, is judged as a whole, and so are all
arguments of circular functions from 2^26 on, where glibc loses digits at some. Functions without a comparison are judged
throughout.

{verdict}

| function | judged | the same | largest error, ulp | C library's |
|---|--:|--:|--:|--:|
{table}
"""

BEYOND = """
## Beyond the limit

Of complex Pow and Powx the product of exponent and logarithm is rounded, which takes digits from very large and very small
results. Powx with the exponents -2, -3 and -4 gives a zero or a number of few digits where the power itself leaves the range
and its reciprocal is denormal. At A53 it errs by more than 1 ulp at some bases that exceed 1 by 2^-11 to 2^-9, with exponents that
bring the power near the ends of the range: the error of their logarithm grows with the exponent.

| name | found by | error | limit | at |
|---|---|---|---|---|
"""

OTHERS = """
## Beside other libraries

The largest errors known of functions of binary64 (64f), of this library, of SLEEF 3.5.1 (its functions of 0.5, 1, 1.5 and 3.5
ulp for AVX-512), and of glibc 2.36: its vector functions, which are meant to stay below 4 ulp, and its scalar ones. All were
searched here, at the same arguments and in the neighbourhoods of the worst of each, A53 at ten times as many. *(class)*: some results are infinite, zero
or NaN where the exact value is not near it. glibc's sine, cosine and tangent lose digits at some huge arguments next to
multiples of pi/2, as at 1.2853022199154463e+174; its vector functions take them over there.

{table}

Innocente, Zimmermann and others, *Accuracy of Mathematical Functions in Single, Double, Double Extended, and Quadruple
Precision* (HAL, hal-03141101), publish and update largest known errors of a dozen scalar libraries; their figures are not
repeated here, as all that are beside ours were measured on one machine by one program."""


def families():
    lines = []
    for (folder, heading, _), functions in make_reference.sections():
        names = ", ".join(f"[{title.removesuffix(' (complex)')}](functions/{folder}.md#{make_reference.anchor(title)})"
                          for title, _, _ in functions)
        lines.append(f"- [{heading}](functions/{folder}.md): {names}")
    return "\n".join(lines)


def links():
    """Where each function and type has its figures."""
    places = {}
    for (folder, _, _), functions in make_reference.sections():
        for title, _, rows in functions:
            for row in rows:
                places[row.function, row.type] = f"functions/{folder}.md#{make_reference.anchor(title)}"
    return places


def overview(rows, figures):
    places = links()
    cells = {}
    for row in rows:
        errors = []
        for name, _ in row.exports():
            if figures[name].errors:
                worst = figures[name].worst
                errors.append(f"**{data.ulp_text(worst.ulp)}**" if worst.is_beyond else data.ulp_text(worst.ulp))
        cells[row.function, row.type] = f"[{', '.join(errors)}]({places[row.function, row.type]})"
    lines = [f"| function | {' | '.join(TYPES)} |", "|---" * (len(TYPES) + 1) + "|"]
    for function in dict.fromkeys(function for function, _ in cells):
        lines.append(f"| {function} | {' | '.join(cells.get((function, type_), '') for type_ in TYPES)} |")
    return "\n".join(lines) + "\n"


# Operations of the C library are rounded to nearest.
OPERATORS = dict.fromkeys(("Add", "Sub", "Mul", "Div", "Sqr"), 0.5)


def highest(rows, search):
    """What was done at the highest tag of 64f, by function."""
    lines, counts, sound, unsound = [], [], [], []
    for row in rows:
        found = search.get((row.function, "64f", "A53"))
        if row.type != "64f" or not found or float(found["max_ulp"]) == 0:
            continue
        own, same, judged = float(found["max_ulp"]), int(found["compared"]), int(found["judged"])
        counts.append(same + judged)
        cells = [row.function, f"{judged:.3g}", "", data.ulp_text(own), ""]
        if same:
            near = search.get((row.function, "64f", "libm below 2^26"))
            libm = OPERATORS.get(row.function) or float((near or search[row.function, "64f", "libm"])["max_ulp"])
            cells[2], cells[4] = f"{same:.3g}", data.ulp_text(libm) + (" below 2^26" if near else "")
            (sound if libm <= own else unsound).append(row.function)
        lines.append("| " + " | ".join(cells) + " |")
    verdict = (f"Where the last column is not above the one before, of {', '.join(sound)}, a result that is the same errs by more than the "
               f"largest error only where glibc errs by more than is known. Of the others, {', '.join(unsound)}, an error between the two "
               "could hide where both libraries err alike; that it does not is known of the judged arguments alone.")
    return HIGHEST.format(least=min(counts), most=max(counts), verdict=textwrap.fill(verdict, 128), table="\n".join(lines))


def beyond(rows, figures):
    lines = []
    for row in rows:
        for name, _ in row.exports():
            beyond_limit = [error for error in figures[name].errors if error.is_beyond]
            if beyond_limit:
                worst = max(beyond_limit, key=lambda error: error.ulp)
                lines.append(f"| `{name}` | {worst.how} | {worst.ulp:.4g} | {worst.limit:g} | `{worst.at}` |")
    return BEYOND + "\n".join(lines) + "\n" if lines else ""


def others(rows, search):
    """A table of 64f functions that another library has, too."""
    lines = ["| function | A26 | A50 | A53 | SLEEF ½ | SLEEF 1 | SLEEF 1½ | SLEEF 3½ | glibc vector | glibc |", "|---|" + "--:|" * 9]
    for row in rows:
        if row.type != "64f" or len(row.exports()) < 3:
            continue
        peers = {who: search.get((row.function, "64f", who)) for who in PEERS}
        if not any(peers.values()):
            continue
        cells = [row.function]
        for _, tag in row.exports():
            found = search.get((row.function, "64f", tag))
            cells.append(data.ulp_text(float(found["max_ulp"])) if found else "")
        for who in PEERS:
            found = peers[who]
            if not found:
                cells.append("")
            else:
                cells.append(data.ulp_text(float(found["max_ulp"])) + (" (class)" if int(found["wrong_class"]) else ""))
        lines.append("| " + " | ".join(cells) + " |")
    return OTHERS.format(table="\n".join(lines)) if len(lines) > 2 else ""


def main():
    rows, figures, search = catalogue.rows(), data.accuracy(), data.hunted()
    own = [row for (_, _, who), row in search.items() if who.startswith("A") or who == "exact"]
    total = {name: float(sum(int(row[name]) for row in own)) for name in ("crossed", "compared", "judged", "settled", "left")}
    text = INTRODUCTION.format(families=families(), **total)
    text += overview(rows, figures) + beyond(rows, figures) + highest(rows, search) + others(rows, search)
    catalogue.write_if_changed(PAGE, text)
    return 0


if __name__ == "__main__":
    sys.exit(main())
