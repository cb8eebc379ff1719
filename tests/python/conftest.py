"""The package under test is the one that the build assembled: PYTHONPATH names its folder."""

import ctypes
from pathlib import Path

import lumvm
import numpy
import pytest

LEVELS = ("low", "mid", "high")


def functions(level="high"):
    """Names and ufuncs of a level, aliases left out."""
    return getattr(lumvm._lumvm, level)


def sample(dtype, seed=0, size=1000):
    """Elements of all classes: everyday numbers, all magnitudes, special values."""
    random = numpy.random.default_rng(seed)
    real = numpy.dtype(dtype).type(0).real.dtype
    bits = {"f4": "u4", "f8": "u8"}[real.str[1:]]

    def parts():
        everyday = random.uniform(-3, 3, size // 2).astype(real)
        any_bits = random.integers(0, 2 ** (8 * real.itemsize), size // 4, dtype=bits).view(real)
        info = numpy.finfo(real)
        special = numpy.array([0, -0.0, 1, -1, numpy.inf, -numpy.inf, numpy.nan, info.max, info.tiny, 0.5, 2, 1e5], dtype=real)
        all_parts = numpy.concatenate([everyday, any_bits, numpy.resize(special, size - everyday.size - any_bits.size)])
        random.shuffle(all_parts)
        return all_parts

    if numpy.dtype(dtype).kind == "c":
        result = numpy.empty(size, dtype)
        result.real, result.imag = parts(), parts()
        return result
    return parts()


def arguments(ufunc, types, seed=0, size=1000):
    return [sample(letter, seed + i, size) for i, letter in enumerate(types.split("->")[0])]


def every_loop(level="high"):
    return [(name, types) for name, ufunc in functions(level).items() for types in ufunc.types]


def same_bits(a, b):
    a, b = numpy.asarray(a), numpy.asarray(b)
    return a.dtype == b.dtype and a.shape == b.shape and a.tobytes() == b.tobytes()


@pytest.fixture(autouse=True)
def quiet():
    with numpy.errstate(all="ignore"):
        yield


@pytest.fixture(scope="session")
def c_library():
    return ctypes.CDLL(str(next(Path(lumvm.__file__).parent.glob("liblumvm.so*"))))
