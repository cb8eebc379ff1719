#!/usr/bin/env python3
"""Tests what option_pricing does with its input: examples_input.py PROGRAM FILE [OPTIONS]"""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM, FILE = "", ""


def run(*arguments):
    """Exit code, standard output, standard error."""
    result = subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, text=True)
    return result.returncode, result.stdout, result.stderr


class Input(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.file = Path(folder.name) / "contracts.txt"
        self.good = [line for line in Path(FILE).read_text().splitlines() if not line.startswith("#")]

    def expect_error(self, message, *lines):
        self.file.write_text("\n".join(lines))
        code, out, error = run(self.file, "-n", 10)
        self.assertEqual((code, out, len(error.splitlines())), (2, "", 1), error)
        self.assertIn(message, error)

    def test_good_lines_pass(self):
        self.file.write_text("# comment\n\n" + self.good[0] + " # one contract\n")
        self.assertEqual(run(self.file, "-n", 10)[0], 0)

    def test_wrong_prices_fail(self):
        for column in (5, 6):
            words = self.good[0].split()
            words[column] = str(float(words[column]) * (1 + 1e-6))
            self.file.write_text(" ".join(words))
            code, out, _ = run(self.file, "-n", 10)
            self.assertEqual(code, 1)
            self.assertIn("FAILED", out)

    def test_bad_input(self):
        self.expect_error("contracts.txt:2: not a finite number: 'x'", self.good[0], "1 2 x 4 5 6 7")
        self.expect_error("contracts.txt:1: not a finite number: 'nan'", "nan 2 3 4 5 6 7")
        self.expect_error("contracts.txt:1: not a finite number: '1e999'", "1e999 2 3 4 5 6 7")
        self.expect_error("contracts.txt:1: 3 numbers where 7 are wanted", "1 2 3")
        self.expect_error("contracts.txt:1: 8 numbers where 7 are wanted", "1 2 3 4 5 6 7 8")
        self.expect_error("must be positive, not -1", "-1 2 3 4 5 6 7")
        self.expect_error("must be positive, not 0", "1 2 3 4 0 6 7")
        self.expect_error("no numbers", "# nothing")

    def test_bad_requests(self):
        for arguments, message in (([self.file], "No such file"), ([self.file.parent], "cannot be read"), ([], "required"),
                                   ([FILE, "-n", "-5"], "contracts"), ([FILE, "--nonsense"], "--nonsense")):
            code, out, error = run(*arguments)
            self.assertEqual((code, out, len(error.splitlines())), (2, "", 1), error)
            self.assertIn(message, error)


if __name__ == "__main__":
    PROGRAM, FILE = sys.argv[1:3]
    unittest.main(argv=sys.argv[:1])
