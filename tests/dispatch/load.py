#!/usr/bin/env python3
"""Runs programs that are linked with the library of all layers: shared and static, with late and early binding, and where
qemu-user is installed on older processors, on which a layer with fewer instructions must give the same digest:
load.py SHARED_PROGRAM STATIC_PROGRAM LIBRARY..., the libraries being those of one layer, which must refuse to load in words on a
processor that they are not for."""

import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

# A processor model of qemu, and the layers that may run on it, the best one first.
MODELS = {"qemu64": ["portable"], "Nehalem": ["portable"], "Haswell": ["avx2", "portable"]}
complaints = []


def run(command, **environment):
    return subprocess.run(command, capture_output=True, text=True, env={**os.environ, **environment})


def layer_and_digest(command, **environment):
    result = run(command, **environment)
    words = result.stdout.split()
    if result.returncode != 0 or len(words) != 2:
        complaints.append(f"{' '.join(map(str, command))}: exit {result.returncode}: {result.stdout}{result.stderr}")
        return None, None
    return words


def built(source, program):
    """A C program, built in the folder of its path."""
    text = program.with_suffix(".c")
    text.write_text(source)
    subprocess.run(["cc", text, "-o", program, "-ldl"], check=True)
    return program


def check_models(programs, layers, digest):
    qemu = shutil.which("qemu-x86_64")
    if not qemu:
        print("other processors left out: qemu-user is not installed")
        return
    for model, possible in MODELS.items():
        expected = next(layer for layer in possible if layer in layers)
        for program in programs:
            found = layer_and_digest([qemu, "-cpu", model, program])
            if list(found) != [expected, digest]:
                complaints.append(f"{program.name} on {model}: {found}, expected {expected} {digest}")
            else:
                print(f"{program.name} on {model}: {expected}, the same digest")


def check_refusal(library):
    """On an old processor, a program that opens a library made for newer ones gets a message, and no signal."""
    qemu = shutil.which("qemu-x86_64")
    if not qemu or "p0" in library.name:
        return
    with tempfile.TemporaryDirectory() as scratch:
        program = built("""#include <dlfcn.h>
#include <stdio.h>
int main(int argc, char** argv) {
  void* library = dlopen(argv[argc - 1], RTLD_NOW);
  puts(library ? "loaded" : dlerror());
  return library != 0;
}
""", Path(scratch) / "open")
        result = run([qemu, "-cpu", "Nehalem", program, library])
        if result.returncode != 0 or "ISA level" not in result.stdout:
            complaints.append(f"{library.name} on an old processor: exit {result.returncode}: {result.stdout}{result.stderr}")
        else:
            print(f"{library.name} on an old processor: {result.stdout.strip()}")


def main():
    shared, static, *libraries = map(Path, sys.argv[1:])
    names = {"k0": "avx512", "a2": "avx2", "p0": "portable"}
    layers = [layer for name, layer in names.items() if any(name in library.name for library in libraries)]
    best, digest = layer_and_digest([shared])
    print(f"here: {best}")
    for command, environment in (([shared], {"LD_BIND_NOW": "1"}), ([static], {})):
        if list(layer_and_digest(command, **environment)) != [best, digest]:
            complaints.append(f"{command} {environment}: another layer or digest")
    check_models([shared, static], layers, digest)
    for library in libraries:
        check_refusal(library)
    print("\n".join(complaints + [f"{len(complaints)} complaints"]))
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
