"""The interfaces in C, C++ and Python as pages of the site, from the functions' declarations."""

import re

import catalogue
import make_hpp
import make_python
import make_reference

C_PARAMETERS = {
    "OneInput": "const {0} *src, {0} *dst", "TwoInputs": "const {0} *src1, const {0} *src2, {0} *dst",
    "TwoOutputs": "const {0} *src, {0} *dst1, {0} *dst2", "ScalarParameter": "const {0} *src, {0} value, {0} *dst",
    "ToReal": "const {0} *src, {1} *dst", "ToComplex": "const {1} *src, {0} *dst",
}


def rst(text):
    """Text that reStructuredText must not take for markup."""
    return re.sub(r"([\\*`|_])", r"\\\1", text)


def heading(text, line="="):
    return f"{text}\n{line * len(text)}\n"


def figures(family, title):
    return f":doc:`figures </docs/functions/{family}>`"


def c_page(include):
    lines = [heading("C"), "``#include <lumvm.h>``. :doc:`The guide </docs/using>` says what holds for all functions, :doc:`the reference",
             "</docs/reference>` has domains, special values and statuses.\n", heading("Types", "-"), ".. code-block:: c\n"]
    types = (include / "lumvm_types.h").read_text()
    start, end = types.index("typedef float"), types.index("#endif", types.index("LumLibraryVersion;"))
    lines += ["   " + line for line in types[start:end].rstrip().splitlines()] + [""]
    for (folder, family, _), functions in make_reference.sections():
        lines.append(heading(family, "-"))
        for title, entry, rows in functions:
            signatures = []
            for row in sorted(rows, key=lambda row: catalogue.TYPES.index(row.type)):
                types = (f"Lum{row.type}", f"Lum{row.type.rstrip('c')}")
                for export, _ in row.exports():
                    signatures.append(f"LumStatus {export}({C_PARAMETERS[row.shape].format(*types)}, int32_t len)")
            lines.append(f".. c:function:: {signatures[0]}")
            lines += [f"               {signature}" for signature in signatures[1:]]
            lines += ["", f"   {rst(entry['summary'])} Domain: {rst(entry['domain'])}. ({figures(folder, title)})\n"]
    return "\n".join(lines)


def cpp_page():
    lines = [heading("C++"), "``#include <lumvm.hpp>``, namespace ``lumvm``; :doc:`the guide </docs/cpp>`. Each function takes contiguous",
             "ranges of float, double or std::complex of them, and stands in four forms: it writes into a range and returns a status, or",
             "returns a vector; and both with a *way* as first argument, such as an execution policy. ``accuracy`` is ``low``, ``mid`` or",
             "``high``.\n"]
    seen = set()
    for (folder, family, _), functions in make_reference.sections():
        if folder == "complex":
            own = [(title, entry, rows) for title, entry, rows in functions if entry.get("cpp") and entry["cpp"] not in seen]
        else:
            own = functions
        if not own:
            continue
        lines.append(heading(family, "-"))
        for title, entry, rows in own:
            name = entry.get("cpp")
            if not name or name in seen:
                continue
            seen.add(name)
            shape = make_hpp.SHAPES[rows[0].shape]
            parameters, types, *_ = make_hpp.RETURNING[rows[0].shape]
            flat = [text.replace("&&", " &&").replace("& ", " &") for text in (shape["parameters"], parameters)]
            lines.append(f".. cpp:function:: template<accuracy a = high, {shape['types'].replace('input X', 'class X')}> status {name}({flat[0]})")
            lines.append(f"                  template<accuracy a = high, {types.replace('input X', 'class X')}> auto {name}({flat[1]})")
            lines += ["", f"   {rst(entry['summary'])} ({figures(folder, title)})\n"]
    return "\n".join(lines)


def python_page():
    errors = make_python.measured()
    lines = [heading("Python"), ":doc:`The guide </docs/python>`. All are NumPy ufuncs, with ``out``, ``where`` and the rest, in ``lumvm`` and",
             "``lumvm.high`` (the same), ``lumvm.mid`` and ``lumvm.low``.\n",
             ".. py:module:: lumvm\n", ".. py:function:: layer()\n", "   The code that runs: ``avx512``, ``avx2`` or ``portable``.\n",
             ".. py:function:: set_layer(name)\n", "   Takes the code of another layer, whose results are the same bits; ``None`` goes back.\n"]
    for name, aliases, rows in make_python.by_python_name():
        parameters = "x1, x2" if make_python.inputs(rows[0]) == 2 else "x"
        if rows[0].shape == "ScalarParameter":
            parameters = "x, value"
        declarations = list({id(row.declaration): row.declaration for row in rows}.values())
        summary = " ".join(dict.fromkeys(d["summary"] for d in declarations)).replace("src1", "x1").replace("src2", "x2")
        also = f" Also {', '.join(f'``{alias}``' for alias in aliases[1:])}." if len(aliases) > 1 else ""
        lines += [f".. py:function:: {name}({parameters}, /, out=None, *, where=True, **kwargs)\n", f"   {rst(summary)}{also}\n"]
        found = []
        for row in rows:
            exports = [export for export, _ in row.exports()]
            levels = [make_python.measured_data.ulp_text(errors[export]) for export in exports if export in errors]
            if levels:
                found.append(f"{make_python.DTYPES[row.type]} {', '.join(reversed(levels))}")
        lines.append(f"   Largest errors known, high to low, in ulp: {'; '.join(found)}.\n")
    return "\n".join(lines)
