# The portable library built for other processors, where its results must be the same bits: for AArch64 by Debian's compiler,
# run by qemu-user, where its vector loops are looked at, too; and for x86-64-v3, whose fused multiply-add and registers of 256
# bits the layer takes by paths of its own, run by this processor. A build is the first of its tests, since it takes minutes.
find_path(LUM_GTEST_SOURCES googletest/src/gtest-all.cc PATHS /usr/src/googletest NO_DEFAULT_PATH)
include(ExternalProject)

# cross.NAME.build, .bits and .operations, and .vector_loops where an OBJDUMP for the processor is named; ARGUMENTS are those of
# CMake, COMMAND is put before a program that is run. All are skipped for the REASON where there is one.
function(add_cross_tests name)
  cmake_parse_arguments(PARSE_ARGV 1 option "" "OBJDUMP" "ARGUMENTS;COMMAND;REASON")
  set(tests build bits operations)
  if(option_OBJDUMP)
    list(APPEND tests vector_loops)
  endif()
  if(LUM_SANITIZE)
    set(option_REASON ${LUM_NOT_SANITIZED})
  elseif(NOT LUM_GTEST_SOURCES)
    set(option_REASON "the sources of googletest are not installed")
  endif()
  if(option_REASON)
    foreach(test IN LISTS tests)
      add_skipped_test(cross.${name}.${test} ${option_REASON})
    endforeach()
    return()
  endif()

  set(dir ${PROJECT_BINARY_DIR}/cross/${name})
  ExternalProject_Add(
    lumvm_${name}
    SOURCE_DIR ${PROJECT_SOURCE_DIR}
    BINARY_DIR ${dir}
    PREFIX ${dir}/steps
    CMAKE_ARGS ${option_ARGUMENTS} -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER}
               -DLUM_LAYERS=portable -DLUM_CROSS_TESTS=ON -DLUM_GTEST_SOURCES=${LUM_GTEST_SOURCES}
               -DLUM_DECLARATION_DIR=${LUM_DECLARATION_DIR}
    BUILD_COMMAND ${CMAKE_COMMAND} --build ${dir} --parallel 2
    BUILD_ALWAYS ON
    INSTALL_COMMAND ""
    EXCLUDE_FROM_ALL ON)
  add_dependencies(lumvm_${name} lumvm_declarations)

  add_test(NAME cross.${name}.build COMMAND ${CMAKE_COMMAND} --build ${PROJECT_BINARY_DIR} --target lumvm_${name})
  add_test(NAME cross.${name}.bits COMMAND ${option_COMMAND} ${dir}/tests/cross/test.golden.bits)
  add_test(NAME cross.${name}.operations COMMAND ${option_COMMAND} ${dir}/tests/cross/vec_operations_test)
  if(option_OBJDUMP)
    add_test(NAME cross.${name}.vector_loops COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tests/cross/vector_loops.py
                                                     ${option_OBJDUMP} ${dir}/CMakeFiles/lumvmp0_objects.dir)
  endif()
  list(TRANSFORM tests PREPEND cross.${name}.)
  list(POP_FRONT tests build)
  set_tests_properties(${build} PROPERTIES FIXTURES_SETUP ${name} TIMEOUT 3600 PROCESSORS 2)
  set_tests_properties(${tests} PROPERTIES FIXTURES_REQUIRED ${name})
endfunction()

find_program(LUM_AARCH64_COMPILER aarch64-linux-gnu-g++)
find_program(LUM_AARCH64_EMULATOR NAMES qemu-aarch64 qemu-aarch64-static)
if(NOT LUM_AARCH64_COMPILER OR NOT LUM_AARCH64_EMULATOR)
  set(reason "g++-aarch64-linux-gnu or qemu-user are not installed")
endif()
add_cross_tests(
  aarch64
  ARGUMENTS -DCMAKE_TOOLCHAIN_FILE=${PROJECT_SOURCE_DIR}/cmake/aarch64-linux-gnu.cmake
  COMMAND ${LUM_AARCH64_EMULATOR} -L /usr/aarch64-linux-gnu
  OBJDUMP aarch64-linux-gnu-objdump
  REASON ${reason})

set(reason "")
if(NOT avx2 IN_LIST LUM_RUNNABLE_LAYERS)
  set(reason "the processor lacks AVX2 or FMA")
endif()
add_cross_tests(
  x86-64-v3
  ARGUMENTS -DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER} -DCMAKE_CXX_FLAGS=-march=x86-64-v3
  REASON ${reason})
