#!/usr/bin/env python3
"""Writes docs/functions/, a page a family, and its pictures: function_pages.py [--curves FOLDER] [--pictures FUNCTION...]

The figures are those of docs/data. Pictures of errors need the curves that `accuracy --curves` leaves in a folder; those of functions
without a curve stay as they are."""

import argparse
import sys
from pathlib import Path

import catalogue
import make_reference
import measured_data as data

PAGES = catalogue.ROOT / "docs/functions"
IMAGES = catalogue.ROOT / "docs/images/functions"
ORDER = ("32f", "64f", "32fc", "64fc")
HEAD = """<!-- Written by tools/function_pages.py from docs/data; do not edit. -->
# {title}

{remark} What the columns mean: [accuracy](../accuracy.md), [performance](../performance.md). Special values and statuses: [reference](../reference.md).

In the pictures of times the lines are those of the AVX-512 layer; dots are the highest tag in the [AVX2 layer](../performance-a2.md) and
the [portable one](../performance-p0.md), at the lengths measured there.

{contents}
"""


def number(x):
    return f"{x:.3g}" if x < 1e4 else f"{x:.2g}"


def share(found, name):
    if not found or not found[name]:
        return ""
    value = float(found[name])
    if name == "mean_ulp":
        return number(value)
    return "100" if value == 1 else f"{min(100 * value, 99.99):.3g}" if value < 0.995 else f"{min(100 * value, 99.99):.2f}"


def error_text(figures):
    worst = figures.worst
    text = data.ulp_text(worst.ulp)
    return f"**{text}**" if worst.is_beyond else text


def accuracy_table(rows, figures):
    lines = ["| name | largest error, ulp | limit | mean | % ≤ ½ | ≤ 0.51 | ≤ 0.6 | ≤ ¾ | ≤ 1 ulp | largest at |", "|---|" + "--:|" * 8 + "---|"]
    for row in rows:
        for export, _ in row.exports():
            entry = figures[export]
            if not entry.errors:
                continue
            worst = entry.worst
            mark = " (all)" if any(error.how == "all" for error in entry.errors) else ""
            shares = " | ".join(share(entry.hunt, name) for name in data.SHARES[-1:] + data.SHARES[:-1])
            at = f"`{worst.at.replace(' ', ', ')}`" if worst.ulp > 0 else ""
            lines.append(f"| `{export}` | {error_text(entry)}{mark} | {worst.limit:.3g} | {shares} | {at} |")
    return lines


def speed_table(rows, stored, floors=None):
    """Lines of a table; without the column of floors where none are given."""
    floor_head, floor_line = (" floor |", "--:|") if floors is not None else ("", "")
    lines = [f"| name | ns | ticks |{floor_head} best peer | C library loop | one element |", f"|---|--:|--:|{floor_line}--:|--:|--:|"]
    for row in rows:
        figures = data.at_length(row, stored)
        single = data.at_length(row, stored, 1)
        for export, tag in row.exports():
            who = tag or "lumvm"
            if who not in figures:
                continue
            peer = data.best_peer(figures, tag in data.EXACT_TAGS)
            against = f"{peer[1] / figures[who]:.2f} × ({data.peer_name(peer[0])})" if peer else ""
            scalar = f"{figures['scalar'] / figures[who]:.1f} ×" if "scalar" in figures else ""
            ticks = stored[f"{row.function}_{row.type}", data.MAIN_LENGTH, who][1]
            floor = "" if floors is None else f" {floors[export]:.2f} |" if export in floors else "  |"
            lines.append(f"| `{export}` | {figures[who]:.3g} | {ticks:.3g} |{floor} {against} | {scalar} | {single.get(who, 0):.3g} ns |")
    return lines if len(lines) > 2 else []


def speed_series(row, stored, layers):
    """Lines of the picture: our tags, the best peers of both classes at the main length, the loop; and the highest tag in the other
    layers, with a mark at each length measured, which are few."""
    import pictures
    name = f"{row.function}_{row.type}"
    by_who = {}
    for (function, length, who), (ns, _) in stored.items():
        if function == name:
            by_who.setdefault(who, {})[length] = ns
    colours = {"high": (pictures.HIGH, 2.2), "mid": (pictures.MID, 1.5), "low": (pictures.LOW, 1.5)}
    tags = [tag for _, tag in row.exports()]
    series = []
    figures = data.at_length(row, stored)
    if "scalar" in by_who:
        series.append(("C library loop", pictures.SCALAR, 1.4, "-", by_who["scalar"]))
    shown = set()
    for is_high, colour in ((False, pictures.FAST_PEER), (True, pictures.EXACT_PEER)):
        peer = data.best_peer(figures, is_high)
        if peer and peer[0] not in shown and peer[0] in by_who:
            shown.add(peer[0])
            exact = peer[0] in data.EXACT_PEERS
            series.append((data.peer_name(peer[0]), pictures.EXACT_PEER if exact else colour, 1.6, "-", by_who[peer[0]]))
    for layer, times in layers.items():
        points = {length: ns for (function, length, who), (ns, _) in times.items() if function == name and who == (tags[-1] or "lumvm")}
        if points:
            series.append((f"{tags[-1] or 'lumVM'} {layer}", pictures.LAYERS[layer], 0, "o", points))
    levels = ("low", "mid", "high") if len(tags) == 3 else ("high",)
    for tag, level in zip(tags, levels):
        if (tag or "lumvm") in by_who:
            series.append((tag or "lumVM", *colours[level], "-", by_who[tag or "lumvm"]))
    return series


def error_curves(row, folder, figures):
    """Lines of the picture from the files of curves: (name, colour, points relative to the limit)."""
    import pictures
    tags = row.exports()
    colours = (pictures.LOW, pictures.MID, pictures.HIGH) if len(tags) == 3 else (pictures.HIGH,)
    curves = []
    for (export, tag), colour in zip(tags, colours):
        path = folder / f"{export}.dat"
        if not path.exists() or not figures[export].errors:
            continue
        limit = figures[export].worst.limit
        points = [tuple(map(float, line.split())) for line in path.read_text().splitlines()]
        curves.append((tag or "lumVM", colour, [(x, min(ulp / limit, 1.1)) for x, ulp in points]))
    return curves


def interval(row):
    low, high = catalogue.of_type(row.declaration.get("ordinary"), row.type) or (-10, 10)
    return float(low), float(high)


def draw(title, rows, stored, layers, figures, curves):
    import pictures
    stem = title.replace(" (complex)", "_complex")
    series = {row.type: speed_series(row, stored, layers) for row in rows}
    types = [row.type for row in rows if series[row.type]]
    if types:
        pictures.draw_speed(IMAGES / f"{stem}_speed.svg", types, series)
    if curves is None:
        return
    lines = {row.type: error_curves(row, curves, figures) for row in rows}
    types = [row.type for row in rows if any(points for _, _, points in lines[row.type])]
    if types and any(y > 0 for type_ in types for _, _, points in lines[type_] for _, y in points):
        x_name = "real part" if rows[0].type.endswith("c") and rows[0].shape != "ToComplex" else "x"
        if rows[0].shape in ("TwoInputs", "ScalarParameter"):
            x_name = "first argument" if x_name == "x" else "real part of the first argument"
        pictures.draw_errors(IMAGES / f"{stem}_error.svg", types, lines, {row.type: interval(row) for row in rows}, x_name)


def section(title, entry, rows, stored, figures, floors):
    yield f"## {title}\n"
    yield f"{make_reference.escape(entry['summary'])} [Special values](../reference.md#{make_reference.anchor(title)}).\n"
    stem = title.replace(" (complex)", "_complex")
    yield from accuracy_table(rows, figures)
    if (IMAGES / f"{stem}_error.svg").exists():
        yield f"\n![Error of {title} over its argument](../images/functions/{stem}_error.svg)"
    speed = speed_table(rows, stored, floors)
    if speed:
        yield ""
        yield from speed
    if (IMAGES / f"{stem}_speed.svg").exists():
        yield f"\n![Time of {title} over the length](../images/functions/{stem}_speed.svg)"
    yield ""


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--curves", type=Path, help="folder of the curves of errors")
    parser.add_argument("--pictures", nargs="*", metavar="FUNCTION", help="draw the pictures, of all functions when none is named")
    arguments = parser.parse_args()
    stored, figures, floors = data.times(), data.accuracy(), data.floors()
    layers = {"AVX2": data.times("performance-a2.csv"), "portable": data.times("performance-p0.csv")}
    PAGES.mkdir(parents=True, exist_ok=True)
    for (folder, heading, remark), functions in make_reference.sections():
        contents = ", ".join(f"[{title.removesuffix(' (complex)')}](#{make_reference.anchor(title)})" for title, _, _ in functions)
        remark = remark.replace("](notes/", "](../notes/")
        lines = [HEAD.format(title=heading, remark=remark, contents=contents)]
        for title, entry, rows in functions:
            rows = sorted(rows, key=lambda row: ORDER.index(row.type))
            named = arguments.pictures is not None and (not arguments.pictures or rows[0].function in arguments.pictures)
            # Rows of complex numbers that are declared beside the real ones have pictures of their own kind.
            if named:
                draw(title, rows, stored, layers, figures, arguments.curves)
            lines += section(title, entry, rows, stored, figures, floors)
        catalogue.write_if_changed(PAGES / f"{folder}.md", "\n".join(lines).rstrip() + "\n")
    return 0


if __name__ == "__main__":
    sys.exit(main())
