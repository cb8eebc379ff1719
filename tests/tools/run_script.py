#!/usr/bin/env python3
"""Tests the script `run` in a scratch checkout, with a stand-in for CMake and for the tool: run_script.py RUN"""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

RUN = ""

CMAKE = """#!/bin/sh
echo "$@" >>"$CMAKE_CALLS"
case "$*" in
  --preset*) while [ "$1" != -B ]; do shift; done; mkdir -p "$2"; echo "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" >"$2/CMakeCache.txt"; touch "$2/build.ninja" ;;
  --build*) echo "${WORK:-ninja: no work to do.}" ;;
esac
"""
TOOL = """#!/bin/sh
pwd; echo "$@"
"""


class Script(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.path = Path(folder.name).resolve()
        self.checkout, self.elsewhere, self.bin = (self.path / name for name in ("checkout", "elsewhere", "bin"))
        for folder in (self.checkout, self.elsewhere, self.bin):
            folder.mkdir()
        shutil.copy(RUN, self.checkout / "run")
        (self.checkout / "CMakePresets.json").write_text("{}")
        self.program(self.bin / "cmake", CMAKE)
        # All that the script needs, and neither dpkg nor apt-get.
        for name in ("bash", "sh", "env", "dirname", "cksum", "cut", "sed", "grep", "awk", "mkdir", "rm", "touch", "cat", "nproc", "g++", "c++",
                     "ninja", "python3"):
            (self.bin / name).symlink_to(shutil.which(name))
        self.calls = self.path / "calls"
        self.environment = {"PATH": str(self.bin), "CMAKE_CALLS": str(self.calls), "HOME": str(self.path)}

    def program(self, path, text):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
        path.chmod(0o755)

    def run_it(self, *arguments, **environment):
        """Exit code, standard output, standard error."""
        self.calls.write_text("")
        result = subprocess.run([self.checkout / "run", *arguments], cwd=self.elsewhere, env=self.environment | environment,
                                capture_output=True, text=True)
        return result.returncode, result.stdout, result.stderr

    def build(self, home=None):
        self.program(self.checkout / "build/demo/tools/lumvm", TOOL)
        (self.checkout / "build/demo/build.ninja").touch()
        (self.checkout / "build/demo/CMakeCache.txt").write_text(f"CMAKE_HOME_DIRECTORY:INTERNAL={home or self.checkout}\n")

    def test_unknown_command(self):
        self.assertEqual(self.run_it("foo"), (2, "", "run: no such command: foo; './run help' lists the commands\n"))

    def test_usage(self):
        for arguments in ((), ("help",), ("--help",)):
            code, out, error = self.run_it(*arguments)
            self.assertEqual((code, error), (0, ""))
            self.assertIn("./run demo", out)

    def test_the_tool_runs_quietly_in_the_folder_of_the_caller(self):
        self.build()
        self.assertEqual(self.run_it("lumvm", "apply", "a b"), (0, f"{self.elsewhere}\napply a b\n", ""))
        self.assertNotIn("--preset", self.calls.read_text())

    def test_a_build_is_announced(self):
        self.build()
        code, _, error = self.run_it("lumvm", "list", WORK="[1/1] Linking")
        self.assertEqual((code, len(error.splitlines())), (0, 2), error)
        self.assertTrue(error.startswith("run: building") and error.endswith("[1/1] Linking\n"), error)

    def test_a_moved_checkout_is_configured_anew(self):
        self.build(home="/nowhere/else")
        code, out, error = self.run_it("lumvm", "list")
        self.assertEqual((code, out), (0, f"{self.elsewhere}\nlist\n"))
        self.assertEqual(error, f"run: {self.checkout}/build/demo was configured for /nowhere/else; configuring it anew\n")
        self.assertEqual(self.run_it("lumvm", "list")[2], "")

    @unittest.skipIf(os.geteuid() == 0, "root writes everywhere")
    def test_a_read_only_checkout_builds_in_the_cache(self):
        self.checkout.chmod(0o555)
        self.addCleanup(self.checkout.chmod, 0o755)
        self.assertIn("cannot be written", self.run_it("format")[2])
        self.run_it("lumvm", "list")
        self.assertIn(f"-B {self.path}/.cache/lumvm/", self.calls.read_text())

    def test_missing_packages_without_a_package_manager(self):
        (self.bin / "ninja").unlink()
        code, _, error = self.run_it("lumvm", "list")
        self.assertEqual((code, error), (2, "run: please install what is missing here; on Debian the packages are: ninja-build\n"))


if __name__ == "__main__":
    RUN = sys.argv.pop(1)
    unittest.main()
