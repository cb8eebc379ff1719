# The Python package: its tests, and the cluster example run small.
if(NOT LUM_PYTHON)
  add_skipped_test(python.package "the Python package is not built")
  return()
endif()
set(python_environment PYTHONPATH=${PROJECT_BINARY_DIR}/python PYTHONDONTWRITEBYTECODE=1 OMP_NUM_THREADS=1)
add_test(NAME python.package COMMAND ${Python3_EXECUTABLE} -m pytest -q -p no:cacheprovider ${CMAKE_CURRENT_SOURCE_DIR}/python)
add_test(NAME python.cluster COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/examples/python/option_pricing_cluster.py
                                     --contracts 200000 --chunk 50000 --quiet)
set_tests_properties(python.package python.cluster PROPERTIES ENVIRONMENT "${python_environment}")
