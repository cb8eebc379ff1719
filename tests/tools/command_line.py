#!/usr/bin/env python3
"""Tests of the command line tool: command_line.py LUMVM"""

import struct
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOL = ""


def run(*arguments, text=""):
    """Exit code, standard output, standard error."""
    data = text if isinstance(text, bytes) else text.encode()
    result = subprocess.run([TOOL, *map(str, arguments)], input=data, capture_output=True)
    return result.returncode, result.stdout, result.stderr.decode()


class CommandLine(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.path = Path(self.folder.name)
        self.addCleanup(self.folder.cleanup)

    def expect_error(self, message, *arguments, text=""):
        code, out, error = run(*arguments, text=text)
        self.assertEqual((code, out), (2, b""))
        lines = [line for line in error.splitlines() if "AVX2; the portable" not in line]
        self.assertEqual(len(lines), 1, error)
        self.assertIn(message, lines[0])

    def test_list_names_types_and_tags(self):
        code, out, _ = run("list")
        self.assertEqual(code, 0)
        self.assertRegex(out.decode(), r"(?m)^Exp +32f A11 A21 A24 32fc A11 A21 A24 64f A26 A50 A53 64fc A26 A50 A53$")

    def test_info_describes(self):
        code, out, _ = run("info", "Exp")
        self.assertEqual(code, 0)
        self.assertIn("lumsExp_64f_A53", out.decode())
        self.expect_error("no function 'Exq'", "info", "Exq")

    def test_apply_to_text(self):
        code, out, error = run("apply", "Exp", "-t", "64f", text="0 # one\n0x0p0, -inf\n")
        self.assertEqual((code, out), (0, b"1\n1\n0\n"))
        self.assertNotIn("status", error)

    def test_notations(self):
        self.assertEqual(run("apply", "Sqr", "-t", "32f", "--hex", text="1.5")[1], b"0x1.2p+1\n")
        self.assertEqual(run("apply", "Abs", "-t", "32f", "--bits", text="-1")[1], b"0x3F800000\n")

    def test_statuses_are_told_in_words(self):
        code, out, error = run("apply", "Exp", "-t", "32f", text="1000")
        self.assertEqual((code, out), (0, b"inf\n"))
        self.assertIn("overflow", error)

    def test_two_inputs_from_one_file_or_two(self):
        self.assertEqual(run("apply", "Sub", "-t", "64f", text="5 3 1 2")[1], b"2\n-1\n")
        (self.path / "a").write_text("5 1")
        (self.path / "b").write_text("3 2")
        self.assertEqual(run("apply", "Sub", self.path / "a", self.path / "b", "-t", "64f")[1], b"2\n-1\n")
        self.expect_error("an odd number", "apply", "Sub", "-t", "64f", text="1 2 3")
        (self.path / "b").write_text("3")
        self.expect_error("has 1", "apply", "Sub", self.path / "a", self.path / "b", "-t", "64f")

    def test_two_outputs(self):
        self.assertEqual(run("apply", "Modf", "-t", "64f", text="2.5 -0.25")[1], b"2 0.5\n-0 -0.25\n")

    def test_complex(self):
        self.assertEqual(run("apply", "Conj", "-t", "32fc", text="1 2")[1], b"1 -2\n")
        self.expect_error("lacks its imaginary part", "apply", "Conj", "-t", "32fc", text="1 2 3")

    def test_binary(self):
        raw = struct.pack("<3d", 1.0, -2.0, 3.0)
        self.assertEqual(run("apply", "Sqr", "-t", "64f", "--binary", text=raw)[1], struct.pack("<3d", 1.0, 4.0, 9.0))
        self.expect_error("not a whole number of elements", "apply", "Sqr", "-t", "64f", "--binary", text=raw[:-1])

    def test_bad_numbers_are_named_with_file_and_line(self):
        bad = self.path / "bad.txt"
        bad.write_text("1 2\n3\n4 five\n")
        out = self.path / "out.txt"
        self.expect_error(f"{bad}:3: not a number of this type: 'five'", "apply", "Exp", bad, "-t", "64f", "-o", out)
        self.assertFalse(out.exists())
        for word in ("1e999", "--1", "0x", "1.5x", "nan(1"):
            self.expect_error("standard input:1:", "apply", "Exp", "-t", "64f", text=word)

    def test_bad_requests(self):
        self.expect_error("no function", "apply", "Nope", "-t", "64f", text="1")
        self.expect_error("does not exist for the type '16f'", "apply", "Exp", "-t", "16f", text="1")
        self.expect_error("with the tag 'A24'", "apply", "Exp", "-t", "64f", "--tag", "A24", text="1")
        self.expect_error("no numbers", "apply", "Exp", "-t", "64f", text="")
        self.expect_error("No such file", "apply", "Exp", self.path / "missing", "-t", "64f")
        self.expect_error("takes no --value", "apply", "Exp", "-t", "64f", "--value", "2", text="1")
        self.expect_error("required", "apply", "-t", "64f", text="1")
        self.expect_error("cannot be written", "apply", "Exp", "-t", "64f", "-o", self.path / "no/out", text="1")

    def test_output_file_is_replaced_whole(self):
        out = self.path / "out.txt"
        out.write_text("old")
        self.assertEqual(run("apply", "Exp", "-t", "64f", "-o", out, text="0")[0], 0)
        self.assertEqual(out.read_text(), "1\n")
        self.assertEqual([p.name for p in self.path.iterdir()], ["out.txt"])

    def test_compare_shows_tags_and_speed(self):
        code, out, _ = run("compare", "Exp", "-t", "32f", text="1 2 3")
        self.assertEqual(code, 0)
        self.assertIn("times the scalar loop", out.decode())


if __name__ == "__main__":
    TOOL = sys.argv.pop(1)
    unittest.main()
