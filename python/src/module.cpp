// The extension module lumvm._lumvm: every function of the library as NumPy ufuncs, one a level of accuracy, from the table
// that is made from the functions' declarations.
#define PY_SSIZE_T_CLEAN
#define NPY_NO_DEPRECATED_API NPY_1_20_API_VERSION
#include <Python.h>
// After Python.h, as NumPy wants it.
#include <numpy/arrayobject.h>
#include <numpy/ufuncobject.h>

#include <array>
#include <vector>

#include "loops.h"

namespace lum::python {
namespace {

// One loop of a ufunc: NumPy's letters of the argument and result types, and the C functions from low to high.
struct TypedLoop {
  PyUFuncGenericFunction loop;
  const char* letters;
  std::array<Function, 3> levels;
};
struct UfuncRow {
  const char* name;  // the function's own name in Python
  int inputs, outputs;
  std::array<const char*, 3> docs;  // low to high
  std::vector<TypedLoop> loops;
};

template <class F> Function From(F* function, Kind kind) { return {reinterpret_cast<void*>(function), kind}; }

const std::vector<UfuncRow>& Rows() {
  static const std::vector<UfuncRow> rows = {
#include "python_ufuncs.inc"
  };
  return rows;
}

int TypeOf(char letter) {
  switch (letter) {
    case 'f':
      return NPY_FLOAT;
    case 'd':
      return NPY_DOUBLE;
    case 'F':
      return NPY_CFLOAT;
    default:
      return NPY_CDOUBLE;
  }
}

// What NumPy keeps pointers to for as long as the ufunc lives, which is as long as the process.
struct Storage {
  std::vector<PyUFuncGenericFunction> loops;
  std::vector<char> types;
  std::vector<Function> functions;
  std::vector<void*> data;
  std::string name;
};

PyObject* MakeUfunc(const UfuncRow& row, int level, const char* level_name) {
  auto* kept = new Storage;
  kept->name = std::string("lumvm.") + level_name + "." + row.name;
  kept->functions.reserve(row.loops.size());
  for (const TypedLoop& loop : row.loops) {
    kept->loops.push_back(loop.loop);
    for (const char* letter = loop.letters; *letter != '\0'; ++letter)
      kept->types.push_back(static_cast<char>(TypeOf(*letter)));
    kept->functions.push_back(loop.levels[static_cast<size_t>(level)]);
    kept->data.push_back(&kept->functions.back());
  }
  return PyUFunc_FromFuncAndData(kept->loops.data(), kept->data.data(), kept->types.data(), static_cast<int>(row.loops.size()),
                                 row.inputs, row.outputs, PyUFunc_None, kept->name.c_str(),
                                 row.docs[static_cast<size_t>(level)], 0);
}

PyObject* Layer(PyObject*, PyObject*) { return PyUnicode_FromString(lumvmGetLayer()); }
PyObject* SetLayer(PyObject*, PyObject* argument) {
  const char* name = argument == Py_None ? nullptr : PyUnicode_AsUTF8(argument);
  if (name == nullptr && argument != Py_None) return nullptr;
  if (lumvmSetLayer(name) != 0) {
    PyErr_Format(PyExc_ValueError, "this library or this processor has no layer '%s'", name);
    return nullptr;
  }
  Py_RETURN_NONE;
}
PyObject* Version(PyObject*, PyObject*) {
  const LumLibraryVersion* version = lumvmGetLibVersion();
  return Py_BuildValue("(iiis)", version->versionMajor, version->versionMinor, version->versionPatch, version->name);
}

PyMethodDef methods[] = {{"layer", Layer, METH_NOARGS, "The layer of vector operations that runs."},
                         {"set_layer", SetLayer, METH_O, "Takes another layer; None is the fastest one."},
                         {"version", Version, METH_NOARGS, "Major, minor, patch number and name of the library."},
                         {nullptr, nullptr, 0, nullptr}};
PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                          "lumvm._lumvm",
                          "lumVM's functions as ufuncs, by level and name.",
                          -1,
                          methods,
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr};

bool AddLevel(PyObject* module, int level, const char* name) {
  PyObject* functions = PyDict_New();
  if (functions == nullptr) return false;
  for (const UfuncRow& row : Rows()) {
    PyObject* ufunc = MakeUfunc(row, level, name);
    if (ufunc == nullptr || PyDict_SetItemString(functions, row.name, ufunc) != 0) return false;
    Py_DECREF(ufunc);
  }
  return PyModule_AddObject(module, name, functions) == 0;
}

}  // namespace
}  // namespace lum::python

PyMODINIT_FUNC PyInit__lumvm() {
  import_array();
  import_umath();
  PyObject* module = PyModule_Create(&lum::python::definition);
  if (module == nullptr) return nullptr;
  const char* levels[] = {"low", "mid", "high"};
  for (int level = 0; level < 3; ++level) {
    if (!lum::python::AddLevel(module, level, levels[level])) return nullptr;
  }
  return module;
}
