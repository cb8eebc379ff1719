"""Builds the Python package with CMake, liblumvm inside it: pip install --no-build-isolation --no-index ."""

import subprocess
import sys
from pathlib import Path

from setuptools import Distribution, setup
from setuptools.command.build_py import build_py

ROOT = Path(__file__).resolve().parent
BUILD = ROOT / "build" / "wheel"


class BuildWithCMake(build_py):
    """Takes the package that CMake assembles as it is."""

    def run(self):
        configure = ["cmake", "-S", ROOT, "-B", BUILD, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release", "-DLUM_PYTHON=ON",
                     f"-DPython3_EXECUTABLE={sys.executable}"]
        for command in (configure, ["cmake", "--build", BUILD, "--target", "python_package"]):
            if subprocess.run([str(word) for word in command]).returncode != 0:
                sys.exit("setup.py: CMake could not build the package; it needs CMake 3.21, Ninja, a C++20 compiler and NumPy")
        self.copy_tree(str(BUILD / "python" / "lumvm"), str(Path(self.build_lib) / "lumvm"))


class BinaryDistribution(Distribution):
    def has_ext_modules(self):
        return True


setup(name="lumvm", version="2026.0.0", description="Elementwise mathematical functions as NumPy ufuncs, at three levels of accuracy",
      packages=["lumvm"], package_dir={"": "python"}, python_requires=">=3.9", install_requires=["numpy>=1.20,<2"],
      cmdclass={"build_py": BuildWithCMake}, distclass=BinaryDistribution, zip_safe=False)
