"""Powers of 2 in steps of 1/n: heads rounded to nearest, tails their relative residue (2^(j/n) - head) / head."""

from mpmath import mpf

from binary import to_binary, exact, write

SCRIPT = "exp2.py"


def power(j, n):
    return exact(mpf(2) ** (mpf(j) / n))


def head(j, n, width):
    return to_binary(power(j, n), width)


def residue(j, n, width):
    return (power(j, n) - head(j, n, width)) / head(j, n, width)


def generate(directory):
    for name, n, width in (("exp2_16", 16, 32), ("exp2_32", 32, 32), ("exp2_8", 8, 64), ("exp2_double_16", 16, 64)):
        write(f"{name}_head", SCRIPT, f"2^(j/{n}), rounded.", [head(j, n, width) for j in range(n)], width, directory)
        write(f"{name}_tail", SCRIPT, f"The relative residue of entry j of {name}_head.",
              [residue(j, n, width) for j in range(n)], width, directory)
    write("exp2_1024_sixth", SCRIPT, "2^(j/1024) / 6, rounded.", [power(j, 1024) / 6 for j in range(1024)], 64, directory)
    write("exp2_64_pairs", SCRIPT, "2^(j/64), rounded, and its relative residue.",
          [[head(j, 64, 64), residue(j, 64, 64)] for j in range(64)], 64, directory)
