"""Pictures of speed and errors by Matplotlib: white ground, text as text, lines named where they end."""

import math

import matplotlib

matplotlib.use("svg")
import matplotlib.pyplot as plt  # noqa: E402
from matplotlib.ticker import FixedFormatter, FixedLocator, NullLocator  # noqa: E402

plt.rcParams.update({
    "svg.fonttype": "none", "svg.hashsalt": "lumvm", "font.family": "sans-serif", "font.size": 9, "axes.spines.top": False,
    "axes.spines.right": False, "axes.grid": True, "grid.color": "#e4e7eb", "grid.linewidth": 0.8, "axes.edgecolor": "#7b8794",
    "axes.titlesize": 10, "axes.titleweight": "bold", "axes.titlelocation": "left", "figure.facecolor": "white", "axes.axisbelow": True,
    "xtick.color": "#3e4c59", "ytick.color": "#3e4c59", "axes.labelcolor": "#3e4c59",
})
HIGH, MID, LOW = "#0b5394", "#3d9be9", "#8fc6f4"
EXACT_PEER, FAST_PEER, SCALAR = "#d9480f", "#f4a261", "#868e96"
LAYERS = {"AVX2": "#2b8a3e", "portable": "#862e9c"}
WIDTH = 8.6


def save(figure, path):
    path.parent.mkdir(parents=True, exist_ok=True)
    figure.savefig(path, metadata={"Date": None, "Creator": None})
    plt.close(figure)


def panels(count, height):
    figure, axes = plt.subplots(1, count, figsize=(WIDTH if count > 1 else WIDTH * 0.62, height), squeeze=False)
    return figure, axes[0]


def name_lines(axis, ends, gap):
    """Names at the right ends of lines, moved apart by at least `gap` of the axis's height. ends: (y of the axis 0 to 1, text, colour)."""
    ends = sorted(ends)
    places = [y for y, _, _ in ends]
    for _ in range(60):
        for i in range(1, len(places)):
            overlap = gap - (places[i] - places[i - 1])
            if overlap > 0:
                places[i - 1] -= overlap / 2
                places[i] += overlap / 2
    shift = max(0, -min(places, default=0)) - max(0, max(places, default=0) - 1)
    for place, (_, text, colour) in zip(places, ends):
        axis.text(1.02, place + shift, text, color=colour, transform=axis.transAxes, va="center", fontsize=8.5)


def draw_speed(path, types, series):
    """series[type]: list of (name, colour, width, style, {length: ns})."""
    figure, axes = panels(len(types), 3.2)
    for axis, type_ in zip(axes, types):
        axis.set_title(type_)
        axis.set_xscale("log")
        axis.set_yscale("log")
        for _, colour, width, style, points in series[type_]:
            lengths = sorted(points)
            axis.plot(lengths, [points[n] for n in lengths], style, color=colour, linewidth=width, markersize=4, solid_capstyle="round")
        ticks = [1, 16, 100, 1000, 4096, 16_000_000]
        axis.xaxis.set_major_locator(FixedLocator(ticks))
        axis.xaxis.set_major_formatter(FixedFormatter(["1", "16", "100", "1k", "4k", "16M"]))
        axis.xaxis.set_minor_locator(NullLocator())
        values = [ns for *_, points in series[type_] for ns in points.values()]
        low, high = min(values) / 1.3, max(values) * 1.2
        axis.set_ylim(low, high)
        decades = [10.0 ** k for k in range(-3, 5)]
        steps = (1, 2, 5) if high / low < 60 else (1, 3) if high / low < 1000 else (1,)
        shown = [step * d for d in decades for step in steps if low <= step * d <= high]
        axis.yaxis.set_major_locator(FixedLocator(shown))
        axis.yaxis.set_major_formatter(FixedFormatter([f"{tick:g}" for tick in shown]))
        axis.yaxis.set_minor_locator(NullLocator())
        axis.set_xlabel("elements in the array")
        height = math.log(high / low)
        name_lines(axis, [(math.log(points[max(points)] / low) / height, name, colour) for name, colour, *_, points in series[type_]], 0.07)
    axes[0].set_ylabel("ns an element")
    figure.tight_layout(w_pad=1.5)
    save(figure, path)


class Axis:
    """Where arguments stand: evenly between the ends of a short interval, else by their logarithms on both sides of zero."""

    def __init__(self, low, high):
        self.is_even = max(abs(low), abs(high)) <= 2 or (low != -high and low < 0 and abs(low) > 20)
        self.low, self.high = (low, high) if self.is_even else (-1e4 if low < 0 else 0.0, 1e4)

    def place(self, x):
        return x if self.is_even else math.copysign(math.log10(1 + abs(x) / 0.01), x)

    def has(self, x):
        return self.low <= x <= self.high

    def thinned(self, points):
        """(place, largest error) of at most 240 intervals of the axis, those next to zero, which no eye tells apart, in one."""
        start, width = self.place(self.low), (self.place(self.high) - self.place(self.low)) / 240
        largest = {}
        for x, y in points:
            if self.has(x):
                at = self.place(x)
                k = math.floor((at - start) / width)
                if k not in largest or y > largest[k][1]:
                    largest[k] = (at, y)
        return [largest[k] for k in sorted(largest)]

    def set(self, axis):
        axis.set_xlim(self.place(self.low), self.place(self.high))
        if self.is_even:
            return
        ticks = [t for t in (-1e4, -100, -1, -0.01, 0, 0.01, 1, 100, 1e4) if self.has(t) and (t == 0 or abs(t) >= 1 or self.low == 0)]
        names = {-1e4: "-10⁴", 1e4: "10⁴"}
        axis.xaxis.set_major_locator(FixedLocator([self.place(t) for t in ticks]))
        axis.xaxis.set_major_formatter(FixedFormatter([names.get(t, f"{t:g}") for t in ticks]))
        axis.xaxis.set_minor_locator(NullLocator())


def draw_errors(path, types, curves, ends, x_name):
    """curves[type]: list of (name, colour, [(x, error over limit)]), the errors largest in intervals; ends[type]: ordinary interval."""
    figure, axes = panels(len(types), 2.5)
    for axis, type_ in zip(axes, types):
        axis.set_title(type_)
        place = Axis(*ends[type_])
        labels = []
        for name, colour, points in curves[type_]:
            shown = place.thinned(points)
            if not shown:
                continue
            axis.plot(*zip(*shown), color=colour, linewidth=1.0, solid_joinstyle="round")
            last = shown[-1][0] - 0.06 * (shown[-1][0] - shown[0][0])
            tail = [y for x, y in shown if x >= last]
            labels.append((sum(tail) / len(tail) / 1.1, name, colour))
        axis.axhline(1, color="#c92a2a", linewidth=0.8, linestyle=(0, (4, 3)))
        axis.set_ylim(0, 1.1)
        axis.yaxis.set_major_locator(FixedLocator([0, 0.25, 0.5, 0.75, 1]))
        axis.yaxis.set_major_formatter(FixedFormatter(["0", "¼", "½", "¾", "limit"]))
        place.set(axis)
        axis.set_xlabel(x_name)
        name_lines(axis, labels, 0.1)
    axes[0].set_ylabel("error / limit")
    figure.tight_layout(w_pad=1.5)
    save(figure, path)
