"""What users of NumPy expect of a ufunc."""

import copy
import doctest
import pickle
import threading
import time
import warnings

import lumvm
import numpy
import pytest
from conftest import LEVELS, arguments, every_loop, functions, same_bits
from hypothesis import given, settings
from hypothesis import strategies as st
from hypothesis.extra import numpy as hypothesis_numpy


def test_are_ufuncs_with_names_of_their_own():
    seen = set()
    for level in LEVELS:
        for name, ufunc in functions(level).items():
            assert isinstance(ufunc, numpy.ufunc)
            assert ufunc.__name__ == f"lumvm.{level}.{name}"
            assert getattr(getattr(lumvm, level), name) is ufunc
            seen.add(ufunc.__name__)
    assert lumvm.exp is lumvm.high.exp
    assert lumvm.acos is lumvm.arccos
    assert lumvm.pow is lumvm.power
    assert set(lumvm.high.__all__) == set(lumvm.low.__all__)
    assert len(seen) == 3 * len(functions())


@pytest.mark.parametrize("level", LEVELS)
def test_examples(level):
    for name, ufunc in functions(level).items():
        runner = doctest.DocTestRunner(verbose=False)
        runner.run(doctest.DocTestParser().get_doctest(ufunc.__doc__, {}, name, None, 0))
        assert runner.tries >= 2 and runner.failures == 0, name
    assert doctest.testmod(lumvm).failed == 0


def test_types():
    assert lumvm.exp(numpy.float16(1)).dtype == numpy.float32
    assert lumvm.exp(numpy.int8(1)).dtype == numpy.float32
    assert lumvm.exp(numpy.int16(1)).dtype == numpy.float32
    assert lumvm.exp(True).dtype == numpy.float32
    assert lumvm.exp(numpy.int32(1)).dtype == numpy.float64
    assert lumvm.exp(1).dtype == numpy.float64
    assert lumvm.absolute(1j).dtype == numpy.float64
    assert lumvm.cis(numpy.float32(0)).dtype == numpy.complex64
    assert lumvm.exp([1], dtype=numpy.float32).dtype == numpy.float32
    for bad in (numpy.longdouble(1), numpy.array([1], object), "text", numpy.clongdouble(1)):
        with pytest.raises(TypeError):
            lumvm.exp(bad)
    with pytest.raises(TypeError):
        lumvm.cbrt(1j)
    with pytest.raises(TypeError):
        lumvm.exp([1.0], dtype=numpy.int64)


def test_shapes():
    assert lumvm.exp(numpy.zeros((2, 0, 3))).shape == (2, 0, 3)
    assert numpy.ndim(lumvm.exp(1.0)) == 0
    assert lumvm.hypot(numpy.ones((3, 1)), numpy.ones(4)).shape == (3, 4)
    fortran = numpy.asfortranarray(numpy.random.default_rng(0).random((5, 7)))
    assert lumvm.exp(fortran).flags.f_contiguous
    assert same_bits(numpy.ascontiguousarray(lumvm.exp(fortran)), lumvm.exp(numpy.ascontiguousarray(fortran)))
    assert lumvm.exp(fortran, order="C").flags.c_contiguous


def test_out_and_where():
    x = numpy.linspace(-1, 1, 1000)
    out = numpy.full_like(x, 7)
    assert lumvm.exp(x, out=out) is out
    assert same_bits(out, lumvm.exp(x))
    out[:] = 7
    lumvm.exp(x, out=out, where=x > 0)
    assert (out[x <= 0] == 7).all() and same_bits(out[x > 0], lumvm.exp(x[x > 0]))
    sine, cosine = lumvm.sincos(x, out=(out, None))
    assert sine is out and same_bits(cosine, lumvm.cos(x))
    frozen = numpy.zeros(1000)
    frozen.flags.writeable = False
    with pytest.raises(ValueError):
        lumvm.exp(x, out=frozen)
    with pytest.raises(TypeError):
        lumvm.exp(x, out=numpy.zeros(1000, numpy.int64))
    narrow = numpy.zeros(1000, numpy.float32)
    lumvm.exp(x, out=narrow)
    assert same_bits(narrow, lumvm.exp(x).astype(numpy.float32))
    record = numpy.zeros(1000, [("a", "f4"), ("x", "f8")])
    lumvm.exp(x, out=record["x"])
    assert same_bits(record["x"].copy(), lumvm.exp(x))


@pytest.mark.parametrize("shift", [-3, -1, 1, 2, 700])
@pytest.mark.parametrize("step", [1, 2, -1])
def test_overlap(shift, step):
    for ufunc, nin in ((lumvm.exp, 1), (lumvm.multiply, 2)):
        memory = numpy.linspace(0.1, 1, 4000)
        source = memory[1000:3000:step] if step > 0 else memory[3000:1000:step]
        start = (1000 if step > 0 else 3000) + shift
        target = memory[start:start + 2000 * (1 if step > 0 else -1):step][:source.size]
        expected = ufunc(*[source.copy()] * nin)
        ufunc(*[source] * nin, out=target)
        assert same_bits(target.copy(), expected)


def test_in_place():
    for name, types in every_loop():
        inputs, outputs = types.split("->")
        if inputs[0] != outputs[0]:
            continue
        ufunc = functions()[name]
        if ufunc.nout == 2:
            continue
        values = arguments(ufunc, types)
        expected = ufunc(*values)
        ufunc(*values, out=values[0])
        assert same_bits(values[0], expected), name


def test_methods_of_two_inputs():
    x = numpy.random.default_rng(1).uniform(0.5, 1.5, 50)
    assert numpy.isclose(lumvm.multiply.reduce(x), numpy.multiply.reduce(x))
    assert numpy.allclose(lumvm.add.accumulate(x), numpy.add.accumulate(x))
    assert numpy.allclose(lumvm.add.reduceat(x, [0, 10, 5]), numpy.add.reduceat(x, [0, 10, 5]))
    assert numpy.allclose(lumvm.power.outer(x, [1.0, 2.0]), numpy.power.outer(x, [1.0, 2.0]))
    y = x.copy()
    lumvm.add.at(y, [0, 0, 3], 1.0)
    assert y[0] == x[0] + 2 and y[3] == x[3] + 1
    assert lumvm.hypot.reduce([3.0, 4.0, 12.0]) == 13


@pytest.mark.parametrize("protocol", range(pickle.HIGHEST_PROTOCOL + 1))
def test_pickle(protocol):
    import cloudpickle
    for level in LEVELS:
        for ufunc in functions(level).values():
            assert pickle.loads(pickle.dumps(ufunc, protocol)) is ufunc
            assert cloudpickle.loads(cloudpickle.dumps(ufunc, protocol)) is ufunc
    assert pickle.loads(pickle.dumps(numpy.exp, protocol)) is numpy.exp
    assert copy.deepcopy(lumvm.exp) is lumvm.exp


CASES = [  # function, arguments, the kind of error
    ("exp", (1000.0,), "over"), ("exp", (-1000.0,), "under"), ("log", (0.0,), "divide"), ("log", (-1.0,), "invalid"),
    ("divide", (1.0, 0.0), "divide"), ("divide", (0.0, 0.0), "invalid"), ("divide", (1e300, 1e-300), "over"),
    ("add", (1.7e308, 1.7e308), "over"), ("subtract", (numpy.inf, numpy.inf), "invalid"), ("multiply", (1e200, 1e200), "over"),
    ("square", (1e200,), "over"), ("reciprocal", (0.0,), "divide"), ("power", (-2.0, 0.5), "invalid"),
    ("power", (0.0, -1.0), "divide"), ("power", (10.0, 400.0), "over"), ("arccos", (2.0,), "invalid"),
    ("sin", (numpy.inf,), "invalid"), ("hypot", (1.7e308, 1.7e308), "over"), ("arctanh", (1.0,), "divide"),
    ("sqrt", (-1.0,), "invalid"), ("invsqrt", (0.0,), "divide"), ("ndtri", (0.0,), "divide"), ("exp", (1000 + 1j,), "over"),
]
KINDS = {"over": "overflow", "under": "underflow", "divide": "divide", "invalid": "invalid"}


@pytest.mark.parametrize("name, values, kind", CASES)
@pytest.mark.parametrize("length", [1, 5, 1000])
@pytest.mark.parametrize("in_place", [False, True])
def test_errstate(name, values, kind, length, in_place):
    ufunc = functions()[name]
    quiet_value = {"ndtri": 0.5, "arccos": 0.5, "arctanh": 0.5}.get(name, 1.5)
    inputs = [numpy.full(length, quiet_value, type(v)) for v in values]
    if ufunc.nin == 2:
        inputs[1][:] = 0.5
    for x, value in zip(inputs, values):
        x[length // 2] = value
    out = inputs[0] if in_place else None
    original = [x.copy() for x in inputs]

    def call():
        for x, kept in zip(inputs, original):
            x[:] = kept
        return ufunc(*inputs, out=out)

    others = {other: "ignore" for other in KINDS if other != kind}
    with numpy.errstate(all="ignore"):
        call()
    with numpy.errstate(**{kind: "raise"}, **others), pytest.raises(FloatingPointError, match=KINDS[kind]):
        call()
    with numpy.errstate(**{kind: "warn"}, **others), pytest.warns(RuntimeWarning, match=KINDS[kind]):
        call()
    with numpy.errstate(**{kind: "ignore"}, **{other: "raise" for other in others}):
        call()
    seen = []
    with numpy.errstate(**{kind: "call"}, **others, call=lambda error, flag: seen.append(flag)):
        call()
    assert len(seen) == 1


def test_nothing_is_raised_for_nan_and_ordinary_arguments():
    with numpy.errstate(all="raise"):
        for name, ufunc in functions().items():
            values = [numpy.array([numpy.nan, 0.5, 0.75])] * ufunc.nin
            if name == "arccosh":
                values = [numpy.array([numpy.nan, 1.5, 2])]
            if any(types.startswith("d" * ufunc.nin) for types in ufunc.types):
                ufunc(*values)


def test_flags_of_mixed_kinds_and_casts():
    with numpy.errstate(divide="raise", invalid="ignore"), pytest.raises(FloatingPointError, match="divide"):
        lumvm.log([-1.0, 0.0, 1.0])
    with numpy.errstate(invalid="raise", divide="ignore"), pytest.raises(FloatingPointError, match="invalid"):
        lumvm.log([-1.0, 0.0, 1.0])
    with numpy.errstate(over="raise"), pytest.raises(FloatingPointError, match="overflow"):
        lumvm.exp(numpy.full(3, 100.0), out=numpy.zeros(3, numpy.float32), casting="same_kind")


def test_subclasses_and_protocols(tmp_path):
    masked = numpy.ma.array([1.0, 2.0, 3.0], mask=[0, 1, 0])
    assert isinstance(lumvm.exp(masked), numpy.ma.MaskedArray)
    assert (lumvm.exp(masked).mask == masked.mask).all()
    matrix = numpy.memmap(tmp_path / "x", numpy.float64, "w+", shape=10)
    assert type(lumvm.exp(matrix)) is type(numpy.exp(matrix))
    lumvm.exp(matrix, out=matrix)
    assert (numpy.fromfile(tmp_path / "x") == 1).all()
    assert type(lumvm.exp(numpy.asmatrix([[1.0]]))) is numpy.matrix
    assert type(lumvm.exp(numpy.asmatrix([[1.0]]), subok=False)) is numpy.ndarray

    class Recorder:
        def __array_ufunc__(self, ufunc, method, *inputs, **keywords):
            return ufunc, method

    assert lumvm.exp(Recorder()) == (lumvm.exp, "__call__")


def test_pandas_and_xarray():
    pandas = pytest.importorskip("pandas")
    xarray = pytest.importorskip("xarray")
    series = pandas.Series([1.0, 4.0], index=["a", "b"])
    assert (lumvm.sqrt(series) == pandas.Series([1.0, 2.0], index=["a", "b"])).all()
    assert same_bits(lumvm.low.power(series, 2.5).to_numpy(), lumvm.low.power(series.to_numpy(), 2.5))
    frame = pandas.DataFrame({"x": [1.0, 4.0]})
    assert lumvm.sqrt(frame)["x"].tolist() == [1, 2]
    assert lumvm.sqrt(xarray.DataArray([1.0, 4.0], dims="t")).dims == ("t",)


def test_dask():
    array = pytest.importorskip("dask.array")
    x = numpy.linspace(0.1, 1, 1000)
    lazy = array.from_array(x, chunks=100)
    high, low = lumvm.high.exp(lazy), lumvm.low.exp(lazy)
    assert isinstance(high, array.Array)
    assert high.name != low.name
    assert same_bits(high.compute(), lumvm.high.exp(x))
    assert same_bits(low.compute(), lumvm.low.exp(x))
    sine, _ = array.apply_gufunc(lumvm.sincos, "()->(),()", lazy)
    assert same_bits(sine.compute(), lumvm.sin(x))


def test_threads_run_at_the_same_time():
    x = numpy.full(2_000_000, 0.3)

    def seconds(count):
        threads = [threading.Thread(target=lumvm.erfinv, args=(x,)) for _ in range(count)]
        start = time.perf_counter()
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        return time.perf_counter() - start

    counter, stop = [0], threading.Event()

    def count():  # makes progress only while the lock of the interpreter is free
        while not stop.is_set():
            counter[0] += 1

    worker = threading.Thread(target=count)
    worker.start()
    before = counter[0]
    lumvm.erfinv(numpy.full(20_000_000, 0.3))
    during = counter[0] - before
    stop.set()
    worker.join()
    assert during > 1000
    assert seconds(2) > 0


@settings(max_examples=60, deadline=None)
@given(hypothesis_numpy.arrays(numpy.float64, hypothesis_numpy.array_shapes(max_dims=3, max_side=20),
                               elements=st.floats(allow_nan=True, allow_infinity=True)),
       st.sampled_from(sorted(functions())))
def test_any_array_is_its_elements(x, name):
    ufunc = functions()[name]
    with numpy.errstate(all="ignore"), warnings.catch_warnings():
        warnings.simplefilter("error")
        values = [x] * ufunc.nin
        if not any(types.startswith("d" * ufunc.nin) for types in ufunc.types):
            values = [x.astype(numpy.complex128)] * ufunc.nin
        results = ufunc(*values)
        results = results if isinstance(results, tuple) else (results,)
        for index in numpy.ndindex(x.shape):
            single = ufunc(*[v[index] for v in values])
            single = single if isinstance(single, tuple) else (single,)
            for result, own in zip(results, single):
                assert same_bits(result[index], own)
