"""The functions with errors below one unit in the last place, where a function's documentation does not say otherwise."""

from lumvm._level import fill

fill(globals(), "high")
del fill
