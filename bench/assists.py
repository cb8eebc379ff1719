"""The microcode assists that special arguments take: counts them, and writes docs/data/assists.csv."""

import csv
import subprocess
import sys

import catalogue

DATA = catalogue.ROOT / "docs/data/assists.csv"
COLUMNS = ["function", "argument", "share", "assists"]
# Sums, comparisons and minima take denormal numbers as all others.
NEVER_ASSISTED = ("vadd", "vsub", "vcmp", "vcomi", "vucomi", "vmin", "vmax")


def stored():
    """Assists an element by function, class of arguments and share; those that are missing have none."""
    with DATA.open() as file:
        return {tuple(row[column] for column in COLUMNS[:3]): float(row["assists"]) for row in csv.DictReader(file)}


def mnemonics(library):
    """By address, as hexadecimal text."""
    listing = subprocess.run(["objdump", "-d", "--no-show-raw-insn", library], capture_output=True, text=True, check=True).stdout
    fields = (line.split() for line in listing.splitlines() if line.startswith(" "))
    return {words[0].rstrip(":"): words[1] for words in fields if len(words) > 1}


def counted(build, library, functions):
    """Assists an element of the high tags, by function, class of arguments and share."""
    program = [build / "bench/bench", *functions, "--assists", "--library", library.name.removeprefix("liblumvm").removesuffix(".so")]
    run = subprocess.run(program, capture_output=True, text=True)
    if run.returncode != 0:
        sys.exit(run.stderr.strip() or f"bench: {program[0]} failed")
    operations = mnemonics(library)
    found = {}
    for line in run.stdout.splitlines():
        name, elements, *places = line.split("|")
        function, _, who, argument, share = name.split("/")
        if who not in ("A24", "A53", "lumvm"):
            continue
        counts = (place.split(":") for place in places)
        total = sum(int(count) for address, count in counts if not operations.get(address, "").startswith(NEVER_ASSISTED))
        if total:
            found[function, argument, share] = total / int(elements)
    if not found and not functions:
        sys.exit(f"bench: {library} does not count: it is built without LUM_COUNT_ASSISTS")
    return found


def report(build, functions):
    library = next((path for path in (build / f"liblumvm{name}.so" for name in ("k0", "a2")) if path.exists()), None)
    if not library:
        sys.exit("bench: assists are counted in the AVX-512 or the AVX2 library, and neither is built")
    found = counted(build, library, functions)
    for (function, argument, share), count in sorted(found.items(), key=lambda item: -item[1]):
        print(f"{count:8.3f}  {function:<16} {argument}, {share}")
    if functions:
        return
    with DATA.open("w", newline="") as file:
        writer = csv.writer(file, lineterminator="\n")
        writer.writerow(COLUMNS)
        writer.writerows([*key, f"{count:.4f}"] for key, count in sorted(found.items()))
