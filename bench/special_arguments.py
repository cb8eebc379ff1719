"""The speed of special arguments: measures it, and writes docs/data/special.csv, docs/special-arguments.md and its picture; of the
library of a layer docs/data/special-<library>.csv and a section of its page."""

import csv
import statistics

import catalogue
import assists
from runs import machine, run_benchmarks

DATA = catalogue.ROOT / "docs/data"
PAGE = catalogue.ROOT / "docs/special-arguments.md"
PICTURE = catalogue.ROOT / "docs/images/special-arguments.svg"
PARTS = ["function", "length", "who", "argument", "share"]
SHARES = ["all", "1 of 2", "1 of 32", "1 of 1000"]
KEYS = ["function", "argument", "share"]
CANDIDATES = ["low", "middle", "high", "scalar", "sleef_u10", "libmvec"]
LEVELS = {"lumvm": "high"} | {tag: level for tags in catalogue.TAGS.values() for tag, level in zip(tags, CANDIDATES)}
WORST = 25

PAGE_TEXT = """<!-- Written by `./run bench --special` (bench/special_arguments.py) from docs/data/special.csv; do not edit. -->
# Special arguments

Zeros, infinities, NaN, arguments outside of the domain, at poles, huge ones, and those whose results overflow, are denormal or
vanish: a second vector path finishes most of them, a scalar routine the rest ([architecture](architecture.md)). Here are arrays
of 4096 elements in which all elements, every second, one of 32 or one of 1000 are special and the others of everyday size. The
figures are ticks of the time stamp counter an element, the least of some repetitions; all candidates of an array run interleaved.
*ordinary* is the same function's time without special elements. *loop* is the loop over the C or C++ library's function, *SLEEF* its
function of 1 ulp, each as its time over ours: below 1 it is the faster one.

Measured on {machine}. To repeat: `./run bench --special` (or `./run bench --special Exp`). [data/special.csv](data/special.csv) holds
all figures, those of the low and middle tags and of libmvec among them.

## What is seen

The high tags and functions without tags, by the share of special elements:

| share | arrays | time over the ordinary one, median | more than 3 times | slower than the loop | slower than SLEEF |
|---|--:|--:|--:|--:|--:|
{summary}

![Time over the ordinary one where all elements are special](images/special-arguments.svg)

## The worst

Where all elements are special, by the time over the ordinary one:

{worst}

And by the loop's time over ours, the arrays on which it is the faster one:

{slower}

## Each function's worst class

Of its classes of arguments the one with the longest time, all elements being such; then the same class at the other shares.

| function | argument | ordinary | all | 1 of 2 | 1 of 32 | 1 of 1000 | loop | SLEEF |
|---|---|--:|--:|--:|--:|--:|--:|--:|
{functions}

[Why some remain slow](notes/speed.md#special-arguments).

## Denormal numbers

Many processors take a microcode assist of some 150 cycles for a product, a fused sum, a division or a conversion that meets or
makes a denormal number. Such operations can be counted on any processor, by their exceptions: `./run bench --assists`
([data/assists.csv](data/assists.csv)). A vector operation counts once; a vector has 8 elements of 64 bits or 16 of 32. Where all
elements are special:

| arguments | arrays | without an assist | less than one a vector | worst, assists an element |
|---|--:|--:|--:|---|
{assists}
"""

SECTION = """
## Special arguments

Arrays with special arguments, as on [the page of the AVX-512 library](special-arguments.md), by the share of special elements:

| share | arrays | time over the ordinary one, median | more than 3 times | slower than the loop | slower than SLEEF |
|---|--:|--:|--:|--:|--:|
{summary}

The worst where all elements are special, by the loop's time over ours. To repeat: `./run bench --special --library {library}`.

{slower}
"""


def data_file(library):
    return DATA / (f"special-{library}.csv" if library else "special.csv")


def stored_rows(library=None):
    """The stored figures by their keys."""
    path = data_file(library)
    if not path.exists():
        return {}
    with path.open() as file:
        return {tuple(row[part] for part in KEYS): row for row in csv.DictReader(file)}


def measured(build, function, library):
    """Wide rows: a function, a class of arguments, a share; the ticks of each candidate. The library is that of the program's
    argument, the fastest one where there is none."""
    rows = {}
    extra = ["--special", *(["--library", library] if library else [])]
    for row in run_benchmarks(build, [function], extra, PARTS, repetitions=7, of_all=min, min_time=0.0003):
        key = tuple(row[part] for part in KEYS)
        rows.setdefault(key, dict(zip(KEYS, key)))[LEVELS.get(row["who"], row["who"])] = f"{float(row['ticks']):.3g}"
    return rows


class Figures:
    """The ticks of all arrays, by function and type."""

    def __init__(self, rows):
        self.by_function = {}
        for row in rows:
            ticks = {who: float(row[who]) for who in CANDIDATES if row.get(who)}
            self.by_function.setdefault(row["function"], {}).setdefault(row["argument"], {})[row["share"]] = ticks

    def ordinary(self, function):
        return self.by_function[function]["ordinary"]["none"]["high"]

    def arrays(self, share):
        """Function, class, ticks, of all arrays of that share."""
        for function, classes in self.by_function.items():
            for argument, shares in classes.items():
                if share in shares and "high" in shares[share]:
                    yield function, argument, shares[share]


def ratio(ticks, who):
    return ticks[who] / ticks["high"] if who in ticks else None


def shown(value):
    return "" if value is None else f"{value:.2g}"


def table(figures, arrays):
    lines = ["| function | argument | ordinary | all | times | loop | SLEEF |", "|---|---|--:|--:|--:|--:|--:|"]
    for function, argument, ticks in arrays:
        ordinary = figures.ordinary(function)
        lines.append(f"| {function.replace('_', ' ')} | {argument} | {ordinary:.3g} | {ticks['high']:.3g} | "
                     f"{ticks['high'] / ordinary:.2g} | {shown(ratio(ticks, 'scalar'))} | {shown(ratio(ticks, 'sleef_u10'))} |")
    return "\n".join(lines)


def summary_line(figures, share):
    arrays = list(figures.arrays(share))
    times = [ticks["high"] / figures.ordinary(function) for function, _, ticks in arrays]
    slower = {who: [ratio(ticks, who) for _, _, ticks in arrays if who in ticks] for who in ("scalar", "sleef_u10")}
    counts = (f"{sum(r < 1 for r in slower[who])} of {len(slower[who])}" for who in slower)
    return f"| {share} | {len(arrays)} | {statistics.median(times):.2g} | {sum(t > 3 for t in times)} | {' | '.join(counts)} |"


def function_line(figures, function):
    classes = {argument: shares for argument, shares in figures.by_function[function].items() if "high" in shares.get("all", {})}
    argument, shares = max(classes.items(), key=lambda item: item[1]["all"]["high"])
    cells = [f"{shares[share]['high']:.3g}" for share in SHARES]
    peers = [shown(ratio(shares["all"], who)) for who in ("scalar", "sleef_u10")]
    return f"| {function.replace('_', ' ')} | {argument} | {figures.ordinary(function):.3g} | {' | '.join(cells + peers)} |"


def draw(figures):
    import matplotlib
    matplotlib.use("svg")
    from matplotlib import pyplot
    pyplot.rcParams["svg.hashsalt"] = "lumvm"
    types = ("32f", "64f", "32fc", "64fc")
    figure, axes = pyplot.subplots(figsize=(9, 3.6))
    for i, type_ in enumerate(types):
        times = sorted(ticks["high"] / figures.ordinary(function) for function, _, ticks in figures.arrays("all")
                       if function.endswith(f"_{type_}"))
        if times:
            axes.plot([100 * (k + 0.5) / len(times) for k in range(len(times))], times, label=type_, linewidth=2)
            axes.annotate(type_, (100, times[-1]), xytext=(4, 0), textcoords="offset points", va="center")
    axes.axhline(3, color="grey", linewidth=0.8, linestyle="--")
    axes.set_yscale("log")
    axes.set_xlabel("share of the classes of arguments of all functions, percent")
    axes.set_ylabel("time over the ordinary one")
    axes.set_xlim(0, 106)
    axes.spines[["top", "right"]].set_visible(False)
    figure.tight_layout()
    figure.savefig(PICTURE, facecolor="white", metadata={"Date": None})


KINDS = {"denormal": ["denormal", "smallest positive"], "tiny, whose squares are denormal": ["tiny", "small"], "others": [""]}


def assists_lines(figures):
    """Lines of a table of the assists, by the kind of arguments."""
    counts = assists.stored()
    lines, taken = [], set()
    for kind, words in KINDS.items():
        arrays = [(function, argument) for function, argument, _ in figures.arrays("all")
                  if (function, argument) not in taken and any(word in argument for word in words)]
        taken.update(arrays)
        found = {array: counts.get((*array, "all"), 0) for array in arrays}
        a_vector = {array: count * (8 if "_64" in array[0] else 16) for array, count in found.items()}
        worst = max(found, key=found.get)
        lines.append(f"| {kind} | {len(arrays)} | {sum(n == 0 for n in found.values())} | {sum(n < 0.5 for n in a_vector.values())} | "
                     f"{found[worst]:.2g}: {worst[0].replace('_', ' ')}, {worst[1]} |")
    return lines


def slower_than_loop(figures):
    """The arrays of special elements alone on which the loop is the faster one, by its time over ours."""
    arrays = [a for a in figures.arrays("all") if "scalar" in a[2] and ratio(a[2], "scalar") < 0.9]
    return sorted(arrays, key=lambda a: ratio(a[2], "scalar"))


def summary(figures):
    return "\n".join(summary_line(figures, share) for share in SHARES)


def section(library):
    """What the page of a layer's library says of special arguments."""
    rows = stored_rows(library)
    if not rows:
        return ""
    figures = Figures(rows.values())
    return SECTION.format(library=library, summary=summary(figures), slower=table(figures, slower_than_loop(figures)[:WORST]))


def write_page():
    figures = Figures(stored_rows().values())
    worst = sorted(figures.arrays("all"), key=lambda a: -a[2]["high"] / figures.ordinary(a[0]))[:WORST]
    slower = slower_than_loop(figures)
    order = [f"{row.function}_{row.type}" for row in catalogue.rows() if f"{row.function}_{row.type}" in figures.by_function]
    PAGE.write_text(PAGE_TEXT.format(
        machine=machine(), summary=summary(figures), worst=table(figures, worst),
        slower=table(figures, slower[:WORST]) if slower else "None.",
        functions="\n".join(function_line(figures, function) for function in order), assists="\n".join(assists_lines(figures))))
    draw(figures)


def measure(build, functions, library=None, argument=None):
    """Measures the functions, or all, of the library by the program's argument for it, and stores the figures beside those of the
    others."""
    stored = stored_rows(library)
    for function in functions or dict.fromkeys(row.function for row in catalogue.rows()):
        stored = {key: row for key, row in stored.items() if key[0].rsplit("_", 1)[0] != function}
        stored.update(measured(build, function, argument))
    with data_file(library).open("w", newline="") as file:
        writer = csv.DictWriter(file, [*KEYS, *CANDIDATES], lineterminator="\n", restval="")
        writer.writeheader()
        writer.writerows(row for _, row in sorted(stored.items()))
