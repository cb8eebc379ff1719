"""Elementwise mathematical functions as NumPy ufuncs, at three levels of accuracy.

``lumvm.high`` has errors below one unit in the last place (where a function's documentation does not say otherwise),
``lumvm.mid`` all but the last few bits, ``lumvm.low`` about half of them, each faster than the one before. ``lumvm`` itself
is ``lumvm.high``: ``lumvm.exp`` is ``lumvm.high.exp``.

The functions are ufuncs of float32, float64 and, where they exist for complex numbers, complex64 and complex128. Their results
have the same bits on every processor.

>>> import lumvm
>>> lumvm.exp([0.0, 1.0]).round(6).tolist()
[1.0, 2.718282]
>>> lumvm.layer() in ("avx512", "avx2", "portable")
True
"""

import copyreg

try:
    import numpy
except ImportError as error:
    raise ImportError("lumvm needs NumPy, which is not installed") from error


def _load():
    built_for = 1
    major = int(numpy.__version__.split(".")[0])
    if major != built_for or tuple(int(part) for part in numpy.__version__.split(".")[:2]) < (1, 20):
        raise ImportError(f"lumvm was built for NumPy 1.20 and later of major version {built_for}, this is NumPy {numpy.__version__}")
    try:
        from lumvm import _lumvm
    except ImportError as error:
        raise ImportError(f"lumvm's extension module or its library liblumvm does not load here: {error}") from error
    return _lumvm


_lumvm = _load()

from lumvm import high, low, mid  # noqa: E402
from lumvm.high import *  # noqa: E402, F403

__version__ = ".".join(str(part) for part in _lumvm.version()[:3])
library = _lumvm.version()[3]


def layer():
    """The kind of processor whose code runs: "avx512", "avx2" or "portable"."""
    return _lumvm.layer()


def set_layer(name):
    """Takes another layer, to repeat what another machine does; None is the fastest one again.

    ValueError where the library or this processor has none of that name. No other thread may compute at the same time.
    """
    _lumvm.set_layer(name)


def _named(level, name):
    return getattr(_lumvm, level)[name]


_reduce_other_ufunc = copyreg.dispatch_table.get(numpy.ufunc, lambda function: function.__name__)


def _reduce_ufunc(function):
    # NumPy pickles a ufunc by its name alone and searches modules for it.
    words = function.__name__.split(".")
    if len(words) == 3 and words[0] == "lumvm" and getattr(_lumvm, words[1], {}).get(words[2]) is function:
        return _named, (words[1], words[2])
    return _reduce_other_ufunc(function)


copyreg.pickle(numpy.ufunc, _reduce_ufunc)

__all__ = [*high.__all__, "high", "mid", "low", "layer", "set_layer", "library", "__version__"]
