# The vector operations of all layers against each other. The table of operations is compiled once for each layer; the rest of
# the test runs on any processor.
set(vec_operations_dir ${PROJECT_SOURCE_DIR}/tests/frame)
# g++ 12 warns of overlap inside the standard library's string concatenation.
set(vec_operations_warnings ${LUM_WARNINGS} $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

function(add_operation_table name)
  add_library(${name} OBJECT ${vec_operations_dir}/operation_table.cpp)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/src)
  target_compile_features(${name} PRIVATE cxx_std_20)
  target_compile_options(${name} PRIVATE ${vec_operations_warnings} -ffp-contract=off -fno-math-errno ${ARGN})
endfunction()

add_executable(vec_operations_test ${vec_operations_dir}/vec_operations_test.cpp ${vec_operations_dir}/operation_inputs.cpp
               ${PROJECT_SOURCE_DIR}/src/frame/dispatch/processor.cpp)
target_include_directories(vec_operations_test PRIVATE ${PROJECT_SOURCE_DIR}/src)
target_compile_features(vec_operations_test PRIVATE cxx_std_20)
# The inputs are computed, so these files must not depend on contraction either.
target_compile_options(vec_operations_test PRIVATE ${vec_operations_warnings} -ffp-contract=off)
target_compile_definitions(vec_operations_test PRIVATE LUM_SOURCE_DIR="${PROJECT_SOURCE_DIR}")

add_operation_table(operation_table_portable)
target_link_libraries(vec_operations_test PRIVATE operation_table_portable)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
  add_operation_table(operation_table_avx512 ${LUM_AVX512_FLAGS})
  target_compile_definitions(operation_table_avx512 PRIVATE LUM_AVX512)
  add_operation_table(operation_table_avx2 ${LUM_AVX2_FLAGS})
  target_compile_definitions(operation_table_avx2 PRIVATE LUM_AVX2)
  target_compile_definitions(vec_operations_test PRIVATE LUM_TEST_NATIVE)
  target_link_libraries(vec_operations_test PRIVATE operation_table_avx512 operation_table_avx2)
endif()

add_test(NAME frame.immediates COMMAND ${Python3_EXECUTABLE} ${vec_operations_dir}/immediates.py $<TARGET_FILE:lumvmp0>)

find_package(GTest REQUIRED)
find_package(Threads REQUIRED)
target_link_libraries(vec_operations_test PRIVATE GTest::gtest_main Threads::Threads)
include(GoogleTest)
gtest_discover_tests(vec_operations_test DISCOVERY_TIMEOUT 60)
