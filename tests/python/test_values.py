"""Every function, level and type gives the bits of its C function."""

import ctypes
import sys
from pathlib import Path

import numpy
import pytest
from conftest import LEVELS, arguments, every_loop, functions, same_bits

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import catalogue

LETTERS = {"32f": "f", "64f": "d", "32fc": "F", "64fc": "D"}


def exports():
    entries = catalogue.descriptions()
    names = {title.removesuffix(" (complex)"): entry["python"][0] for title, entry in entries.items() if "python" in entry}
    for row in catalogue.rows(entries):
        by_level = [name for name, _ in row.exports()]
        for level, export in zip(LEVELS, by_level if len(by_level) == 3 else by_level * 3):
            yield names[row.function], level, row, export


@pytest.mark.parametrize("name, level, row, export", exports(), ids=lambda value: value if isinstance(value, str) else "")
def test_bits_of_the_c_function(c_library, name, level, row, export):
    if row.shape == "ScalarParameter":
        pytest.skip("the parameter of the C function is one for all; see test_powx")
    ufunc = functions(level)[name]
    letter = LETTERS[row.type.rstrip("c") if row.shape == "ToComplex" else row.type]
    types = next(types for types in ufunc.types if types.startswith(letter))
    inputs = arguments(ufunc, types)
    results = ufunc(*inputs)
    results = results if isinstance(results, tuple) else (results,)
    expected = [numpy.empty_like(result) for result in results]
    in_c_order = expected[::-1] if row.function == "Modf" else expected
    pointers = [ctypes.c_void_p(array.ctypes.data) for array in (*inputs, *in_c_order)]
    getattr(c_library, export)(*pointers, ctypes.c_int32(inputs[0].size))
    for result, right in zip(results, expected):
        assert same_bits(result, right)


@pytest.mark.parametrize("level", LEVELS)
@pytest.mark.parametrize("exponent", [2.0, 0.5, -1.0, 2.7, -3.0])
def test_powx_takes_one_exponent_for_all(c_library, level, exponent):
    tag = {"low": "A26", "mid": "A50", "high": "A53"}[level]
    x = numpy.linspace(0.1, 20, 333)
    expected = numpy.empty_like(x)
    getattr(c_library, f"lumsPowx_64f_{tag}")(ctypes.c_void_p(x.ctypes.data), ctypes.c_double(exponent),
                                              ctypes.c_void_p(expected.ctypes.data), ctypes.c_int32(x.size))
    powx = functions(level)["powx"]
    assert same_bits(powx(x, exponent), expected)
    assert same_bits(powx(x, numpy.full_like(x, exponent)), expected)


@pytest.mark.parametrize("name, types", every_loop())
def test_strides_and_alignment_change_nothing(name, types):
    ufunc = functions()[name]
    inputs = arguments(ufunc, types, size=700)
    expected = ufunc(*inputs)
    expected = expected if isinstance(expected, tuple) else (expected,)
    spread = [numpy.repeat(x, 3)[::3] for x in inputs]
    backward = [x[::-1].copy()[::-1] for x in inputs]
    unaligned = []
    for x in inputs:
        buffer = numpy.zeros(x.nbytes + 1, numpy.uint8)
        view = buffer[1:].view(x.dtype)
        view[:] = x
        unaligned.append(view)
    swapped = [x.astype(x.dtype.newbyteorder()) for x in inputs]
    for variant in (spread, backward, unaligned, swapped):
        results = ufunc(*variant)
        for result, right in zip(results if isinstance(results, tuple) else (results,), expected):
            assert same_bits(result.astype(right.dtype), right)
