#!/usr/bin/env python3
"""Checks what a library asks of the dynamic linker: dynamic_section.py LIBRARY

It needs no other library, all its addresses are bound when it is loaded, and what the linker has written is read-only from then on.
"""

import re
import subprocess
import sys
from pathlib import Path


def readelf(option, library):
    return subprocess.run(["readelf", "--wide", option, library], check=True, capture_output=True, text=True).stdout


def main():
    library = sys.argv[1]
    dynamic, segments = readelf("--dynamic", library), readelf("--program-headers", library)
    needed = re.findall(r"\(NEEDED\).*\[(.*)\]", dynamic)
    undefined = re.findall(r"\bGLOBAL\b.*\bUND\s+(\S+)", readelf("--dyn-syms", library))
    complaints = [f"needs {name}" for name in needed] + [f"leaves {name} undefined" for name in undefined]
    if not re.search(r"\(FLAGS(_1)?\).*\b(BIND_)?NOW\b", dynamic):
        complaints.append("binds addresses while it runs (no -z now)")
    if "GNU_RELRO" not in segments:
        complaints.append("leaves the linker's data writable (no -z relro)")
    if re.search(r"GNU_STACK\s.*\sRWE\s", segments):
        complaints.append("asks for an executable stack")
    for complaint in complaints:
        print(f"{Path(library).name} {complaint}")
    print(f"{Path(library).name}: {len(needed)} libraries needed, {len(undefined)} undefined symbols")
    return 1 if complaints or "SONAME" not in dynamic else 0


if __name__ == "__main__":
    sys.exit(main())
