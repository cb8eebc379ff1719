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
    for n, width in ((16, 32), (32, 32), (8, 64), (16, 64)):
        rule = f"2^(j/{n}), j = 0 to {n - 1}"
        write("exp2", SCRIPT, f"{rule}, rounded to nearest.", [head(j, n, width) for j in range(n)], width, directory, "head")
        write("exp2", SCRIPT, f"{rule}: the share of the rounded value that it lacks, rounded to nearest.",
              [residue(j, n, width) for j in range(n)], width, directory, "tail")
    write("exp2_sixth", SCRIPT, "2^(j/1024) / 6, j = 0 to 1023, rounded to nearest.", [power(j, 1024) / 6 for j in range(1024)], 64,
          directory)
    write("exp2", SCRIPT, "2^(j/64), j = 0 to 63: rounded to nearest, and the share of this that it lacks.",
          [[head(j, 64, 64), residue(j, 64, 64)] for j in range(64)], 64, directory, "pairs")
