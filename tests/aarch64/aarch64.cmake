# The portable library on AArch64, where its results must be the same bits: built by Debian's compiler for that processor, run by
# qemu-user. The build is the first of these tests, since it takes minutes.
find_program(LUM_AARCH64_COMPILER aarch64-linux-gnu-g++)
find_program(LUM_AARCH64_EMULATOR NAMES qemu-aarch64 qemu-aarch64-static)
find_path(LUM_GTEST_SOURCES googletest/src/gtest-all.cc PATHS /usr/src/googletest NO_DEFAULT_PATH)
set(aarch64_tests build bits operations vector_loops)
set(aarch64_dir ${PROJECT_BINARY_DIR}/aarch64)

if(LUM_SANITIZE)
  set(aarch64_reason ${LUM_NOT_SANITIZED})
elseif(NOT LUM_AARCH64_COMPILER OR NOT LUM_AARCH64_EMULATOR OR NOT LUM_GTEST_SOURCES)
  set(aarch64_reason "g++-aarch64-linux-gnu, qemu-user or the sources of googletest are not installed")
endif()
if(aarch64_reason)
  foreach(test IN LISTS aarch64_tests)
    add_skipped_test(aarch64.${test} ${aarch64_reason})
  endforeach()
  return()
endif()

include(ExternalProject)
ExternalProject_Add(
  lumvm_aarch64
  SOURCE_DIR ${PROJECT_SOURCE_DIR}
  BINARY_DIR ${aarch64_dir}
  PREFIX ${aarch64_dir}/steps
  CMAKE_ARGS -DCMAKE_TOOLCHAIN_FILE=${PROJECT_SOURCE_DIR}/cmake/aarch64-linux-gnu.cmake -DCMAKE_BUILD_TYPE=Release
             -DCMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER} -DLUM_CROSS_TESTS=ON
             -DLUM_GTEST_SOURCES=${LUM_GTEST_SOURCES} -DLUM_DECLARATION_DIR=${LUM_DECLARATION_DIR}
  BUILD_COMMAND ${CMAKE_COMMAND} --build ${aarch64_dir} --parallel 2
  BUILD_ALWAYS ON
  INSTALL_COMMAND ""
  EXCLUDE_FROM_ALL ON)
add_dependencies(lumvm_aarch64 lumvm_declarations)

set(emulated ${LUM_AARCH64_EMULATOR} -L /usr/aarch64-linux-gnu)
add_test(NAME aarch64.build COMMAND ${CMAKE_COMMAND} --build ${PROJECT_BINARY_DIR} --target lumvm_aarch64)
add_test(NAME aarch64.bits COMMAND ${emulated} ${aarch64_dir}/tests/aarch64/test.golden.bits)
add_test(NAME aarch64.operations COMMAND ${emulated} ${aarch64_dir}/tests/aarch64/vec_operations_test)
add_test(NAME aarch64.vector_loops COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/aarch64/vector_loops.py
                                           aarch64-linux-gnu-objdump ${aarch64_dir}/CMakeFiles/lumvmp0_objects.dir)
set_tests_properties(aarch64.build PROPERTIES FIXTURES_SETUP aarch64 TIMEOUT 3600 PROCESSORS 2)
set_tests_properties(aarch64.bits aarch64.operations aarch64.vector_loops PROPERTIES FIXTURES_REQUIRED aarch64)
