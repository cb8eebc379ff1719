#!/usr/bin/env python3
"""Tests of the command line tool: command_line.py LUMVM"""

import json
import os
import random
import re
import resource
import shutil
import signal
import stat
import struct
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import catalogue  # noqa: E402

TOOL = ""


def run(*arguments, text=""):
    """Exit code, standard output, standard error."""
    data = text if isinstance(text, bytes) else text.encode()
    result = subprocess.run([TOOL, *map(str, arguments)], input=data, capture_output=True)
    return result.returncode, result.stdout, result.stderr.decode()


class Tool(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.path = Path(self.folder.name)
        self.addCleanup(self.folder.cleanup)

    def expect_error(self, message, *arguments, text="", code=2):
        got, out, error = run(*arguments, text=text)
        self.assertEqual((got, out), (code, b""), error)
        self.assertEqual(len(error.splitlines()), 1, error)
        self.assertIn(message, error)


class CommandLine(Tool):
    def test_list_names_types_and_tags(self):
        code, out, _ = run("list")
        self.assertEqual(code, 0)
        self.assertRegex(out.decode(), r"(?m)^Exp +32f A11 A21 A24 32fc A11 A21 A24 64f A26 A50 A53 64fc A26 A50 A53$")

    def test_info_describes(self):
        code, out, _ = run("info", "Exp")
        self.assertEqual(code, 0)
        self.assertIn("lumsExp_64f_A53", out.decode())
        self.assertIn("special values", out.decode())
        self.assertLessEqual(max(map(len, out.decode().splitlines())), 120)
        self.expect_error("did you mean Exp?", "info", "Exq")

    def test_apply_to_text(self):
        code, out, error = run("apply", "Exp", "-t", "64f", text="0 # one\n0x0p0, -inf\n")
        self.assertEqual((code, out, error), (0, b"1\n1\n0\n", ""))

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
        for word in ("--1", "0x", "1.5x", "nan(1"):
            self.expect_error("standard input:1:", "apply", "Exp", "-t", "64f", text=word)

    def test_bad_requests(self):
        self.expect_error("no function", "apply", "Nope", "-t", "64f", text="1")
        self.expect_error("no element type '16f'; there are 32f", "apply", "Exp", "-t", "16f", text="1")
        self.expect_error("no tag 'A24', but A26, A50, A53", "apply", "Exp", "-t", "64f", "--tag", "A24", text="1")
        self.expect_error("no numbers", "apply", "Exp", "-t", "64f", text="")
        self.expect_error("No such file", "apply", "Exp", self.path / "missing", "-t", "64f")
        self.expect_error("takes no --value", "apply", "Exp", "-t", "64f", "--value", "2", text="1")
        self.expect_error("required", "apply", "-t", "64f", text="1")
        self.expect_error("cannot be written", "apply", "Exp", "-t", "64f", "-o", self.path / "no/out", text="1", code=1)
        self.expect_error("Is a directory", "apply", "Exp", self.path)
        self.expect_error("Is a directory", "apply", "Exp", "1", "-o", self.path, code=1)
        self.expect_error("a command is wanted")
        self.expect_error("no layer 'sse'", "apply", "Exp", "1", "--layer", "sse")
        self.expect_error("not both", "apply", "Add", "-", "-", text="1")

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


class Names(Tool):
    def test_any_language_and_case(self):
        for name in ("Exp", "exp", "EXP", "lumvm::exp", "lumsExp_64f_A53", "lumsexp_64f", "np.exp"):
            self.assertEqual(run("apply", name, "0")[:2], (0, b"1\n"), name)
        for name, function in (("log", "Ln"), ("arcsin", "Asin"), ("ndtr", "CdfNorm"), ("rsqrt", "InvSqrt"), ("fabs", "Abs")):
            self.assertTrue(run("info", name)[1].decode().startswith(function + ":"), name)

    def test_types_and_tags_in_any_case(self):
        for type_ in ("32f", "32F", "f32", "float", "Float32", "single"):
            self.assertEqual(run("apply", "Sqr", "-t", type_, "0.1")[1], b"0.010000001\n", type_)
        for tag in ("A26", "a26", "26", "low"):
            code, out, _ = run("apply", "Exp", "1", "--tag", tag, "--json")
            self.assertEqual((code, json.loads(out)["tag"]), (0, "A26"))
        self.assertEqual(json.loads(run("apply", "lumsExp_32f_A11", "1", "--json")[1])["name"], "lumsExp_32f_A11")

    def test_near_misses(self):
        for word, meant in (("Exq", "Exp"), ("sinn", "Sin"), ("tnah", "Tanh"), ("CdfNorn", "CdfNorm")):
            self.expect_error(meant, "info", word)
        self.expect_error("'lumvm list' shows all", "info", "quadrature")
        self.expect_error("shows the names of Exp", "info", "lumsExp_16f")

    def test_list_filters(self):
        out = run("list", "complex", "hyperb")[1].decode()
        self.assertEqual([line.split()[0] for line in out.splitlines()], ["Acosh", "Asinh", "Atanh", "Cosh", "Sinh", "Tanh"])
        self.assertRegex(run("list", "log")[1].decode(), r"(?m)^Ln ")
        self.assertRegex(run("list", "32f", "circular")[1].decode(), r"(?m)^Sin ")
        self.expect_error("no function fits", "list", "quadrature")

    def test_json_descriptions(self):
        everything = json.loads(run("list", "--json")[1])
        self.assertEqual(sum(len(entry["names"]) for entry in everything), sum(len(row.exports()) for row in catalogue.rows()))
        pow_complex = json.loads(run("info", "Pow", "--json")[1])[1]
        within = {entry["name"]: entry["is_within_limit"] for entry in pow_complex["names"]}
        self.assertFalse(within["lumsPow_64fc_A53"])
        self.assertIn("beyond", run("info", "Pow")[1].decode())

    def test_version(self):
        code, out, _ = run("--version")
        self.assertEqual(code, 0)
        for word in ("library", "layer", "build"):
            self.assertIn(word, out.decode())


class Numbers(Tool):
    def test_arguments(self):
        self.assertEqual(run("apply", "Sqr", "1", "-2.5", "-inf", "-1e-1")[1], b"1\n6.25\ninf\n0.010000000000000002\n")
        self.assertEqual(run("apply", "Powx", "2", "-v", "-2")[1], b"0.25\n")
        self.expect_error("is no number, and the others are", "apply", "Exp", "1", "file")
        self.expect_error("needs --value", "apply", "Powx", "2")

    def test_complex_literals(self):
        for words in (["1+2i"], ["(1,2)"], ["1", "2"], ["(1, 2)"], ["1+2j"]):
            self.assertEqual(run("apply", "Conj", *words)[1], b"1 -2\n", words)
        self.assertEqual(run("apply", "Conj", text="-2e-1-1e+1i (3) i\n(1, 2) # x\n")[1], b"-0.2 10\n3 -0\n0 -1\n1 -2\n")
        self.expect_error("lacks its imaginary part", "apply", "Conj", "1", "2i")
        self.expect_error("complex types are", "apply", "Exp", "-t", "64f", "1+2i")

    def test_out_of_range(self):
        code, out, error = run("apply", "Abs", "-t", "32f", text="1e39 -1e-60 5")
        self.assertEqual((code, out), (0, b"inf\n0\n5\n"))
        self.assertIn("standard input:1: '1e39' is out of range and became inf, and 1 more", error)
        self.assertEqual(run("apply", "Abs", "1e-310")[2], "")
        self.assertEqual(run("apply", "Abs", "0x1p99999")[1], b"inf\n")

    def test_byte_order_mark(self):
        self.assertEqual(run("apply", "Sqr", text=b"\xef\xbb\xbf2\n")[1], b"4\n")
        self.expect_error("UTF-16", "apply", "Sqr", text="2\n".encode("utf-16"))

    def test_reports_count_by_kind_and_name_the_first(self):
        text = "\n".join(["1"] * 20000 + ["0", "-1", "-2"] + ["1"] * 20000)
        code, _, error = run("apply", "Ln", text=text)
        self.assertEqual(code, 0)
        self.assertEqual(error.splitlines(), ["lumvm: singularity: 1 of 40003 elements, the first one at index 20000",
                                              "lumvm: domain error: 2 of 40003 elements, the first one at index 20001"])

    def test_json_is_one_document(self):
        code, out, error = run("apply", "Ln", "--json", text="1 0 -1 1e999")
        document = json.loads(out)
        self.assertEqual((code, error), (0, ""))
        self.assertEqual(document["results"], [0, "-inf", "nan", "inf"])
        self.assertEqual(document["reports"][1], {"status": "domain error", "count": 1, "first": 2})
        self.assertEqual(document["status"]["value"], 19)
        self.assertEqual(len(document["warnings"]), 1)
        self.assertEqual(json.loads(run("apply", "SinCos", "0", "--json")[1])["results"], [[0, 1]])
        self.assertEqual(json.loads(run("apply", "Conj", "1+2i", "--json", "--hex")[1])["results"], [["0x1p+0", "-0x1p+1"]])

    def test_long_words_and_comments(self):
        self.assertEqual(run("apply", "Sqr", text="0." + "0" * 300000 + "1")[1], b"0\n")
        self.assertEqual(run("apply", "Sqr", text="#" + "x" * 3000000 + "\n3")[1], b"9\n")
        self.expect_error("a word of more than a million characters", "apply", "Sqr", text="1" * 3000000)
        self.expect_error("...", "apply", "Sqr", text="x" * 10000)

    def test_numbers_across_buffers(self):
        values = [random.Random(1).uniform(-1, 1) for _ in range(60000)]
        for separator in ("\n", ",  ", "\r\n", " # comment\n"):
            out = run("apply", "Abs", text=separator.join(map(repr, values)))[1]
            self.assertEqual([float(word) for word in out.split()], [abs(v) for v in values])


class Tables(Tool):
    def table(self, text):
        path = self.path / "table.csv"
        path.write_text(text)
        return path

    def test_columns(self):
        path = self.table('name;price;n\n"a;b";4;1\n"c ""d""\n";9;2\n')
        self.assertEqual(run("apply", "Sqrt", path, "-c", "price")[1], b"2\n3\n")
        self.assertEqual(run("apply", "Sqrt", path, "-c", "2")[1], b"2\n3\n")
        self.assertEqual(run("apply", "Add", path, "-c", "price", "-c", "n")[1], b"5\n11\n")
        out = self.path / "out.csv"
        self.assertEqual(run("apply", "Sqrt", path, "-c", "price", "-o", out)[0], 0)
        self.assertEqual(out.read_text(), 'name;price;n;Sqrt\n"a;b";4;1;2\n"c ""d""\n";9;2;3\n')

    def test_complex_columns(self):
        path = self.table("re,im,z\n1,2,1+2i\n")
        self.assertEqual(run("apply", "Conj", path, "-c", "re", "-c", "im")[1], b"1 -2\n")
        self.assertEqual(run("apply", "Conj", path, "-c", "z", "-f", "csv")[1], b"re,im,z,Conj.re,Conj.im\n1,2,1+2i,1,-2\n")

    def test_bad_tables(self):
        path = self.table("a,b\n1,2\n3,x\n4\n")
        self.expect_error(f"{path}:3: not a number of this type: 'x'", "apply", "Exp", path, "-c", "b", "-t", "64f")
        self.expect_error("no column 'c'; there are 2: 'a', 'b'", "apply", "Exp", path, "-c", "c")
        self.expect_error("1 column is wanted", "apply", "Exp", path, "-c", "a", "-c", "b")
        self.expect_error("not closed", "apply", "Exp", self.table('a\n"1\n'), "-c", "a")
        self.expect_error("no lines", "apply", "Exp", self.table(""), "-c", "a")

    def test_table_of_arguments_and_results(self):
        self.assertEqual(run("apply", "SinCos", "0", "-f", "csv")[1], b"x,SinCos,SinCos.2\n0,0,1\n")


def npy(description, shape, data, order="False", version=1):
    """A file as NumPy writes it."""
    text = f"{{'descr': '{description}', 'fortran_order': {order}, 'shape': {shape}, }}"
    text += " " * (-(len(text) + 11) % 64) + "\n"
    size = struct.pack("<H" if version == 1 else "<I", len(text))
    return b"\x93NUMPY" + bytes([version, 0]) + size + text.encode() + data


class NumpyFiles(Tool):
    def file(self, name, content):
        (self.path / name).write_bytes(content)
        return self.path / name

    def parse(self, content):
        """Header text and data."""
        self.assertEqual(content[:8], b"\x93NUMPY\x01\x00")
        size = struct.unpack("<H", content[8:10])[0]
        self.assertEqual((10 + size) % 64, 0)
        return content[10:10 + size].decode().strip(), content[10 + size:]

    def test_read_and_write(self):
        values = struct.pack("<4d", 1, 4, 9, 16)
        roots = struct.pack("<4d", 1, 2, 3, 4)
        path, out = self.file("x.npy", npy("<f8", "(2, 2)", values)), self.path / "y.npy"
        self.assertEqual(run("apply", "Sqrt", path)[1], b"1\n2\n3\n4\n")
        self.assertEqual(run("apply", "Sqrt", path, "-b")[1], roots)
        self.assertEqual(run("apply", "Sqrt", "-b", "-t", "64f", text=path.read_bytes())[1], roots)
        self.assertEqual(run("apply", "Sqrt", path, "-o", out)[0], 0)
        self.assertEqual(self.parse(out.read_bytes()), ("{'descr': '<f8', 'fortran_order': False, 'shape': (2, 2), }", roots))
        self.assertEqual(run("apply", "Sqrt", self.file("z.npy", npy("<f8", "(2, 2)", values, "True", 2)), "-o", out)[0], 0)
        self.assertIn("'fortran_order': True", self.parse(out.read_bytes())[0])

    def test_types(self):
        self.assertEqual(run("apply", "Sqr", self.file("x.npy", npy("<f4", "(1,)", struct.pack("<f", 0.1))))[1], b"0.010000001\n")
        self.assertEqual(run("apply", "Sqr", self.file("x.npy", npy(">f8", "(1,)", struct.pack(">d", 3))))[1], b"9\n")
        self.assertEqual(run("apply", "Abs", self.file("x.npy", npy("<c16", "(1,)", struct.pack("<2d", 3, 4))))[1], b"5\n")
        self.expect_error("of NumPy's type '<i8'", "apply", "Sqr", self.file("x.npy", npy("<i8", "(1,)", bytes(8))))
        self.expect_error("(32f), not of type 64f", "apply", "Sqr", "-t", "64f", self.file("x.npy", npy("<f4", "(1,)", bytes(4))))

    def test_text_to_npy_through_a_pipe(self):
        header, data = self.parse(run("apply", "SinCos", "-f", "npy", text="0 0 0")[1])
        self.assertIn("'shape': (2, 3)", header)
        self.assertEqual(data, struct.pack("<6d", 0, 0, 0, 1, 1, 1))

    def test_two_inputs(self):
        pairs = self.file("x.npy", npy("<f8", "(2, 2)", struct.pack("<4d", 5, 3, 1, 2)))
        out = self.path / "y.npy"
        self.assertEqual(run("apply", "Sub", pairs, "-o", out)[0], 0)
        self.assertEqual(self.parse(out.read_bytes()), ("{'descr': '<f8', 'fortran_order': False, 'shape': (2,), }",
                                                        struct.pack("<2d", 2, -1)))
        self.expect_error("last dimension is 2", "apply", "Sub", self.file("z.npy", npy("<f8", "(4,)", bytes(32))))

    def test_broken_files(self):
        good = npy("<f8", "(4,)", bytes(32))
        self.expect_error("ends after 3 of 4", "apply", "Sqr", self.file("x.npy", good[:-8]))
        self.expect_error("bytes behind its 4 elements", "apply", "Sqr", self.file("x.npy", good + b"x"))
        self.expect_error("not a .npy file", "apply", "Sqr", self.file("x.npy", b"1 2 3"), "-b")
        self.expect_error("records", "apply", "Sqr", self.file("x.npy", good.replace(b"'<f8'", b"[('a'")), "-t", "64f")
        self.expect_error("no memory holds", "apply", "Sqr", self.file("x.npy", npy("<f8", "(99999999999, 99999999999)", b"")))
        for i in range(len(good) - 32):  # cut off, or a wrong byte
            for content in (good[:i], good[:i] + b"\xff" + good[i + 1:]):
                code, _, error = run("apply", "Sqr", "-t", "64f", self.file("x.npy", content))
                self.assertIn(code, (0, 2), error)
                self.assertEqual(len(error.splitlines()), 0 if code == 0 else 1)


class Outputs(Tool):
    def test_nothing_else_in_the_folder_is_touched(self):
        for name in ("out.txt.part", "out.txt~", ".out.txt"):
            (self.path / name).write_text("mine")
        out = self.path / "out.txt"
        self.assertEqual(run("apply", "Exp", "0", "-o", out)[0], 0)
        self.assertEqual(sorted(p.name for p in self.path.iterdir()), [".out.txt", "out.txt", "out.txt.part", "out.txt~"])
        self.assertEqual((self.path / "out.txt.part").read_text(), "mine")

    def test_mode_stays(self):
        out = self.path / "out.txt"
        for mode in (0o600, 0o640, 0o666):
            out.write_text("old")
            out.chmod(mode)
            self.assertEqual(run("apply", "Exp", "0", "-o", out)[0], 0)
            self.assertEqual((stat.S_IMODE(out.stat().st_mode), out.read_text()), (mode, "1\n"))
        new = self.path / "new.txt"
        subprocess.run(["sh", "-c", f"umask 027; {TOOL} apply Exp 0 -o {new}"], check=True)
        self.assertEqual(stat.S_IMODE(new.stat().st_mode), 0o640)

    @unittest.skipIf(os.geteuid() != 0, "owners are given away by root alone")
    def test_owner_stays(self):
        out = self.path / "out.txt"
        out.write_text("old")
        os.chown(out, 1234, 1235)
        self.assertEqual(run("apply", "Exp", "0", "-o", out)[0], 0)
        self.assertEqual((out.stat().st_uid, out.stat().st_gid), (1234, 1235))

    @unittest.skipIf(os.geteuid() != 0, "another user's file needs root to come into being")
    def test_owner_stays_where_it_cannot_be_given(self):
        """A file of another owner that the caller may write keeps its owner; one that he may not write stays."""
        self.path.chmod(0o777)
        out = self.path / "out.txt"
        out.write_text("old" * 100)
        out.chmod(0o666)
        nobody = lambda: os.setuid(65534)
        command = [TOOL, "apply", "Exp", "0", "-o", out]
        if subprocess.run([TOOL, "--version"], preexec_fn=nobody, capture_output=True).returncode != 0:
            self.skipTest("the tool lies where others cannot read it")
        self.assertEqual(subprocess.run(command, preexec_fn=nobody).returncode, 0)
        self.assertEqual((out.read_text(), out.stat().st_uid), ("1\n", 0))
        self.path.chmod(0o755)
        self.assertEqual(subprocess.run(command[:3] + ["1", "-o", out], preexec_fn=nobody).returncode, 0)
        self.assertEqual((out.read_text(), [p.name for p in self.path.iterdir()]), ("2.718281828459045\n", ["out.txt"]))
        out.chmod(0o644)
        result = subprocess.run(command, preexec_fn=nobody, capture_output=True)
        self.assertEqual((result.returncode, len(result.stderr.splitlines())), (1, 1))
        self.assertEqual(out.read_text(), "2.718281828459045\n")

    def test_an_interrupt_leaves_nothing(self):
        out = self.path / "out.txt"
        out.write_text("old")
        with subprocess.Popen([TOOL, "apply", "Exp", "-o", out], stdin=subprocess.PIPE) as process:
            process.stdin.write(b"1 " * 1000000)
            process.stdin.flush()
            self.assertEqual(len(list(self.path.iterdir())), 2)
            process.terminate()
        self.assertEqual(process.returncode, -signal.SIGTERM)
        self.assertEqual((out.read_text(), [p.name for p in self.path.iterdir()]), ("old", ["out.txt"]))

    def test_progress_on_a_terminal_after_two_seconds(self):
        master, slave = os.openpty()
        with subprocess.Popen([TOOL, "apply", "Exp"], stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, stderr=slave) as process:
            for pause in (0, 2.5, 0):
                time.sleep(pause)
                process.stdin.write(b"1 " * 100000)
                process.stdin.flush()
            process.stdin.close()
        os.close(slave)
        shown = os.read(master, 10000).decode()
        self.assertRegex(shown, "lumvm: [0-9]+ elements")
        self.assertTrue(shown.endswith("\r\x1b[K"), repr(shown))

    def test_links_are_followed(self):
        (self.path / "folder").mkdir()
        target, link = self.path / "folder/target", self.path / "link"
        for content in ("old", None):
            if content is None:
                target.unlink()
            else:
                target.write_text(content)
            link.unlink(missing_ok=True)
            link.symlink_to("folder/target")
            self.assertEqual(run("apply", "Exp", "0", "-o", link)[0], 0)
            self.assertTrue(link.is_symlink())
            self.assertEqual(target.read_text(), "1\n")
        hard = self.path / "hard"
        os.link(target, hard)
        self.assertEqual(run("apply", "Sqr", "3", "-o", hard)[0], 0)
        self.assertEqual((target.read_text(), target.stat().st_nlink), ("9\n", 2))
        loop = self.path / "loop"
        loop.symlink_to("loop")
        self.expect_error("cannot be written", "apply", "Exp", "0", "-o", loop, code=1)

    def test_devices_and_fifos_are_written_through(self):
        self.assertEqual(run("apply", "Exp", "0", "-o", "/dev/null")[0], 0)
        self.assertTrue(stat.S_ISCHR(os.stat("/dev/null").st_mode))
        self.assertEqual(run("apply", "Exp", "0", "-o", "/dev/stdout")[:2], (0, b"1\n"))
        fifo = self.path / "fifo"
        os.mkfifo(fifo)
        for name in ("", ".npy"):
            arguments = [] if not name else ["-f", "npy"]
            with subprocess.Popen([TOOL, "apply", "Exp", "0", *arguments, "-o", fifo]) as process:
                content = fifo.read_bytes()
            self.assertEqual(process.returncode, 0)
            self.assertEqual(content[:6], b"1\n" if not name else b"\x93NUMPY")
        self.assertTrue(stat.S_ISFIFO(fifo.stat().st_mode))

    @unittest.skipUnless(Path("/dev/full").exists(), "no full device")
    def test_full_device(self):
        before = os.stat("/dev/full").st_rdev
        for arguments in (["list"], ["list", "--json"], ["info", "Exp"], ["compare", "Exp", "1"], ["--help"], ["apply", "--help"],
                          ["--version"], ["apply", "Exp", "1"], ["apply", "Exp", "1", "--json"], ["completion", "bash"], ["man"]):
            with open("/dev/full", "wb") as full:
                result = subprocess.run([TOOL, *arguments], stdout=full, stderr=subprocess.PIPE)
            self.assertEqual(result.returncode, 1, arguments)
            self.assertEqual(len(result.stderr.splitlines()), 1, (arguments, result.stderr))
        self.expect_error("No space left", "apply", "Exp", "1", "-o", "/dev/full", code=1)
        self.assertEqual(os.stat("/dev/full").st_rdev, before)

    def test_a_full_file_system_leaves_the_old_file(self):
        out = self.path / "out.txt"
        out.write_text("old")
        command = [TOOL, "apply", "Exp", "-o", str(out)]
        result = subprocess.run(command, input=b"1.5 " * 100000, capture_output=True,
                                preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (1000, 1000)))
        self.assertNotEqual(result.returncode, 0)
        self.assertEqual((out.read_text(), [p.name for p in self.path.iterdir()]), ("old", ["out.txt"]))

    def test_wrong_input_leaves_the_old_file(self):
        out = self.path / "out.txt"
        out.write_text("old")
        text = "1 " * 100000 + "x"
        self.expect_error("standard input:1: not a number", "apply", "Exp", "-o", out, text=text)
        self.assertEqual((out.read_text(), [p.name for p in self.path.iterdir()]), ("old", ["out.txt"]))
        self.expect_error("not a number", "apply", "Exp", "--json", text=text)

    def test_a_file_can_be_input_and_output(self):
        both = self.path / "both"
        both.write_text("2 " * 50000)
        self.assertEqual(run("apply", "Sqr", both, "-o", both)[0], 0)
        self.assertEqual(both.read_text(), "4\n" * 50000)

    def test_memory_is_bounded(self):
        path = self.path / "large"
        path.write_bytes(bytes(64 << 20))
        limit = lambda: resource.setrlimit(resource.RLIMIT_AS, (60 << 20, 60 << 20))
        for command in (["apply", "SinCos", "-o", str(self.path / "out")], ["compare", "Exp"]):
            result = subprocess.run([TOOL, *command, "-b", "-t", "64f", str(path)], capture_output=True, preexec_fn=limit)
            self.assertEqual((result.returncode, result.stderr), (0, b""))


class Anything(Tool):
    """No input and no argument ends the tool otherwise than by exit code 0, 1 or 2, with one line for 1 and 2."""

    words = ["apply", "compare", "info", "list", "Exp", "Add", "Powx", "SinCos", "conj", "lumsLn_32f_A11", "-t", "32f", "64fc", "--tag", "A11",
             "-v", "2", "-2", "1+2i", "(1,2", "-b", "-c", "1", "a", "--json", "--hex", "-f", "npy", "csv", "raw", "-o", "-", "--delimiter", ";",
             "--layer", "portable", "", "--", "-", "\x01", "\n", "1e999", "nan", "--help", "--version", "=", "-t=", "''", "/", "/nowhere"]
    pieces = [b"1", b"-2.5e3", b" ", b"\n", b",", b";", b"#", b"(", b")", b"i", b"1+2i", b"nan", b"inf", b"1e999", b"0x1p3", b"\x93NUMPY",
              b"\x00", b"\xff\xfe", b"\xef\xbb\xbf", b'"', b"{'descr': '<f8'", b"\r", b"a", b"1e", b"--", b"+", b"."]

    def check(self, arguments, text):
        code, _, error = run(*arguments, text=text)
        self.assertIn(code, (0, 1, 2), (arguments, text, error))
        if code != 0:
            self.assertEqual(len(error.splitlines()), 1, (arguments, text, error))

    def test_arguments_and_inputs(self):
        choice = random.Random(27)
        for _ in range(400):
            arguments = [choice.choice(self.words) for _ in range(choice.randrange(1, 7))]
            text = b"".join(choice.choice(self.pieces) for _ in range(choice.randrange(12)))
            self.check(arguments, text)

    def test_inputs_of_a_good_request(self):
        choice = random.Random(28)
        requests = [["apply", "Exp"], ["apply", "Conj"], ["apply", "Add"], ["apply", "Sqr", "-b", "-t", "32f"], ["apply", "Exp", "-c", "1"],
                    ["apply", "Exp", "-c", "1", "-f", "csv"], ["apply", "Conj", "-c", "a"], ["apply", "Exp", "--json"]]
        for _ in range(400):
            text = b"".join(choice.choice(self.pieces) for _ in range(choice.randrange(20)))
            self.check(choice.choice(requests), text)


@unittest.skipUnless(shutil.which("gnuplot"), "gnuplot is not installed")
class Pictures(Tool):
    def test_terminal(self):
        code, out, error = run("plot", "exp", "--from", "-5", "--to", "5")
        self.assertEqual((code, error), (0, ""))
        self.assertIn("lumsExp_64f_A53", out.decode())
        self.assertGreater(out.count(b"*"), 30)

    def test_files(self):
        for name, start in (("a.svg", b"<?xml"), ("a.png", b"\x89PNG")):
            self.assertEqual(run("plot", "Sin", "-t", "32f", "--error", "-o", self.path / name)[0], 0)
            self.assertTrue((self.path / name).read_bytes().startswith(start))
        self.assertIn(b"A26", (run("plot", "Powx", "-v", "0.3", "--from", "1", "--error", "-o", self.path / "b.svg"),
                               (self.path / "b.svg").read_bytes())[1])

    def test_bad_requests(self):
        self.expect_error("functions of one real number", "plot", "Add")
        self.expect_error("is not below", "plot", "Exp", "--from", "2", "--to", "1")
        self.expect_error("no finite value", "plot", "Ln", "--from", "-2", "--to", "-1")
        self.expect_error("no other tag", "plot", "Floor", "--error")
        self.expect_error(".svg or .png", "plot", "Exp", "-o", self.path / "a.jpg")
        self.assertEqual(list(self.path.iterdir()), [])


class Pages(Tool):
    def test_every_option_is_in_the_manual_and_the_completions(self):
        manual = run("man")[1].decode().replace("\\-", "-")
        scripts = [run("completion", shell)[1].decode() for shell in ("bash", "zsh")]
        for command in ("apply", "compare", "list", "info", "plot"):
            for option in re.findall(r"--[a-z]+", run(command, "--help")[1].decode().split("Exit codes")[0]):
                for page in (manual, *scripts):
                    self.assertIn(option, page)

    def test_bash_completes(self):
        def complete(*words):
            script = (f"source <({TOOL} completion bash); COMP_WORDS=({' '.join(words)}); COMP_CWORD={len(words) - 1}; _lumvm; "
                      'echo "${COMPREPLY[@]}"')
            return subprocess.run(["bash", "-c", script], capture_output=True, text=True, check=True).stdout.split()
        self.assertEqual(complete("lumvm", "ap"), ["apply"])
        self.assertEqual(sorted(complete("lumvm", "apply", "CdfN")), ["CdfNorm", "CdfNormInv"])
        self.assertEqual(complete("lumvm", "apply", "Exp", "-t", "3"), ["32f", "32fc"])
        self.assertEqual(complete("lumvm", "apply", "Exp", "--lay"), ["--layer"])

    @unittest.skipUnless(shutil.which("zsh"), "zsh is not installed")
    def test_zsh_reads_its_script(self):
        (self.path / "_lumvm").write_bytes(run("completion", "zsh")[1])
        result = subprocess.run(["zsh", "-n", self.path / "_lumvm"], capture_output=True, text=True)
        self.assertEqual((result.returncode, result.stderr), (0, ""))

    @unittest.skipUnless(shutil.which("groff"), "groff is not installed")
    def test_roff_reads_the_manual(self):
        result = subprocess.run(["groff", "-man", "-Tutf8", "-ww", "-z"], input=run("man")[1], capture_output=True)
        self.assertEqual((result.returncode, result.stderr), (0, b""))


if __name__ == "__main__":
    TOOL = sys.argv.pop(1)
    unittest.main()
