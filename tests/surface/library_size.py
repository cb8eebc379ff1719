#!/usr/bin/env python3
"""Checks that a library's installed file stays small: library_size.py LIBRARY MEGABYTES

What counts is the file without its symbol table, as packages hold it.
"""

import subprocess
import sys
import tempfile
from pathlib import Path


def main():
    library, limit = Path(sys.argv[1]), float(sys.argv[2])
    with tempfile.TemporaryDirectory() as folder:
        stripped = Path(folder) / library.name
        subprocess.run(["strip", "-o", stripped, library], check=True)
        size = stripped.stat().st_size / 1e6
    print(f"{library.name}: {size:.2f} MB, at most {limit:g} MB are wanted")
    return size > limit


if __name__ == "__main__":
    sys.exit(main())
