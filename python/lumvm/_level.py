"""What the modules of the three levels have in common."""

from lumvm import _lumvm
from lumvm._names import ALIASES


def fill(namespace, level):
    """Puts a level's functions, under their own names and their aliases, into a module's namespace."""
    functions = getattr(_lumvm, level)
    names = []
    for name, aliases in ALIASES.items():
        for every in (name, *aliases):
            namespace[every] = functions[name]
            names.append(every)
    namespace["__all__"] = names
