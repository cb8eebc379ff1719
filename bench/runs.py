"""Runs of the benchmark program, and the files that their figures go to."""

import csv
import json
import statistics
import subprocess
import sys
import tempfile
from pathlib import Path


def machine():
    for line in Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            return line.split(":", 1)[1].strip()
    return "an unknown processor"


def run_benchmarks(build, functions, extra, parts, repetitions=3, of_all=statistics.median, min_time=0.01):
    """Rows from one interleaved run: the parts of the benchmarks' names, ns and ticks an element, of all repetitions the median
    or what else is given. The second part of a name is the length."""
    with tempfile.NamedTemporaryFile(suffix=".json") as out:
        command = [build / "bench/bench", *functions, *extra, "--benchmark_enable_random_interleaving=true",
                   f"--benchmark_repetitions={repetitions}", f"--benchmark_min_time={min_time}", f"--benchmark_out={out.name}",
                   "--benchmark_out_format=json", "--benchmark_display_aggregates_only=true"]
        code = subprocess.run(command, stdout=subprocess.DEVNULL).returncode
        if code != 0:
            sys.exit(code)
        measured = json.load(open(out.name))["benchmarks"]
    figures = {}
    for entry in measured:
        if entry["run_type"] == "iteration":
            figures.setdefault(tuple(entry["run_name"].split("/")[:len(parts)]), []).append((entry["real_time"], entry["ticks"]))
    rows = []
    for name, times in figures.items():
        length = int(name[1])
        ns, ticks = (of_all(column) for column in zip(*times))
        rows.append(dict(zip(parts, name)) | {"length": length, "ns": f"{ns / length:.4g}", "ticks": f"{ticks:.4g}"})
    return rows


def merged(rows, path, parts):
    """The rows of the file with those of the functions in rows replaced, by their parts; the file is written anew."""
    def key(row):
        return tuple(int(row[part]) if part == "length" else row[part] for part in parts)

    stored = {}
    if path.exists():
        with path.open() as file:
            stored = {key(row): row for row in csv.DictReader(file)}
    replaced = {row["function"] for row in rows}
    stored = {k: row for k, row in stored.items() if row["function"] not in replaced}
    stored.update({key(row): row for row in rows})
    stored = dict(sorted(stored.items()))
    path.parent.mkdir(parents=True, exist_ok=True)
    with path.open("w", newline="") as file:
        writer = csv.DictWriter(file, [*parts, "ns", "ticks"], lineterminator="\n")
        writer.writeheader()
        writer.writerows(stored.values())
    return stored
