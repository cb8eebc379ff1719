#!/usr/bin/env python3
"""Compiles wrong uses of lumvm.hpp, which must fail by a constraint that the compiler names, and right ones beside them:
misuse.py INCLUDE COMPILER..."""

import os
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

PRELUDE = """
#include <lumvm.hpp>
#include <list>
#include <vector>
void use() {
  std::vector<double> x(3), y(3);
  std::vector<float> f(3);
  std::vector<long double> e(3);
  std::vector<int> i(3);
  const std::vector<double> constant(3);
  std::list<double> list(3);
  std::vector<std::complex<double>> z(3);
  std::vector<bool> bits(3);
  static_cast<void>(%s);
}
"""
RIGHT = ["lumvm::exp(x, y)", "lumvm::exp<lumvm::low>(constant, y)", "lumvm::exp(x)", "lumvm::abs(z, x)", "lumvm::powx(x, 2, y)",
         "lumvm::exp(x, std::span<double>(y))", "lumvm::log10(z, z)"]
# A call, and what the message must speak of.
WRONG = {
    "another type of elements in the result": ("lumvm::exp(x, f)", "gives"),
    "another type of elements in the second input": ("lumvm::pow(x, f, y)", "same_elements"),
    "long double": ("lumvm::exp(e, e)", "gives"),
    "integers": ("lumvm::exp(i, i)", "gives"),
    "integers, as a vector": ("lumvm::exp(i)", "input"),
    "a list": ("lumvm::exp(list, y)", "gives"),
    "a list as the result": ("lumvm::exp(x, list)", "gives"),
    "bits": ("lumvm::exp(bits)", "input"),
    "a result of constants": ("lumvm::exp(x, constant)", "gives"),
    "a result that is a temporary": ("lumvm::exp(x, std::vector<double>(3))", "gives"),
    "a result of constants in a span": ("lumvm::exp(x, std::span<const double>(y))", "gives"),
    "a complex function that does not exist": ("lumvm::erf(z, z)", "gives"),
    "a complex function that does not exist, as a vector": ("lumvm::cbrt(z)", "takes"),
    "a real result in a complex range": ("lumvm::abs(z, z)", "gives"),
    "a number": ("lumvm::exp(1.0, y)", "gives"),
}


def compile_call(compiler, include, call):
    command = [compiler, "-std=c++20", "-fsyntax-only", "-Wall", "-Wextra", "-Wconversion", "-Wshadow", "-Werror", f"-I{include}", "-xc++", "-"]
    return subprocess.run(command, input=PRELUDE % call, capture_output=True, text=True)


def complaint(compiler, include, what, call, word):
    """What is wrong with a call that must compile, or that must not and whose message must speak of a constraint."""
    result = compile_call(compiler, include, call)
    if word is None:
        return f"{compiler}: {call} does not compile: {result.stderr}" if result.returncode != 0 else None
    if result.returncode == 0:
        return f"{compiler}: {what}: {call} compiles"
    if "constraint" not in result.stderr or word not in result.stderr:
        return f"{compiler}: {what}: the message does not name '{word}': {result.stderr}"
    return None


def main():
    include, *compilers = sys.argv[1:]
    cases = [("right", call, None) for call in RIGHT] + [(what, call, word) for what, (call, word) in WRONG.items()]
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        jobs = [pool.submit(complaint, compiler, include, *case) for compiler in compilers for case in cases]
    found = [job.result() for job in jobs if job.result()]
    print("\n".join(found + [f"{len(RIGHT)} right and {len(WRONG)} wrong calls with {', '.join(compilers)}: {len(found)} complaints"]))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
