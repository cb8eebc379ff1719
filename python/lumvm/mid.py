"""The functions with all bits right but the last few."""

from lumvm._level import fill

fill(globals(), "mid")
del fill
