# What users of the library see of it, and what its generated files say.
foreach(library IN LISTS LUM_LIBRARIES)
  add_test(NAME surface.exports.${library}
           COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/surface/exports.py $<TARGET_FILE:${library}>)
  if(LUM_SANITIZE)
    add_skipped_test(surface.dynamic_section.${library} "sanitizers need libraries")
  elseif(library STREQUAL "lumvmp0" AND NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_skipped_test(surface.dynamic_section.${library} "clang copies vectors by memcpy of the C library")
  elseif(NOT CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
    add_skipped_test(surface.dynamic_section.${library} "the floating-point environment is that of the C library")
  else()
    add_test(NAME surface.dynamic_section.${library}
             COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/surface/dynamic_section.py $<TARGET_FILE:${library}>)
  endif()
endforeach()

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64" AND NOT LUM_SANITIZE)
  add_test(NAME surface.dynamic_section.lumvm
           COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/surface/dynamic_section.py $<TARGET_FILE:lumvm>)
endif()

# The library with all layers, as g++ makes it for x86-64.
if("lumvmk0" IN_LIST LUM_LIBRARIES AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_BUILD_TYPE STREQUAL "Release")
  add_test(NAME surface.library_size
           COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/surface/library_size.py $<TARGET_FILE:lumvm> 12)
else()
  add_skipped_test(surface.library_size "not an optimised build of all layers by g++")
endif()

# The header alone, as a C and as a C++ program would include it; both programs call the library.
add_executable(test.surface.header_c surface/header.c)
set_target_properties(test.surface.header_c PROPERTIES C_EXTENSIONS OFF)
add_executable(test.surface.header_cpp surface/header.cpp)
foreach(language c cpp)
  target_link_libraries(test.surface.header_${language} PRIVATE lumvmp0)
  target_compile_options(test.surface.header_${language} PRIVATE -Wall -Wextra -pedantic -Werror)
  add_test(NAME surface.header_${language} COMMAND test.surface.header_${language})
endforeach()

add_test(NAME surface.catalogue_is_current
         COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/make_catalogue.py --check)
add_test(NAME surface.header_is_current COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/make_header.py --check)
add_test(NAME surface.reference_is_current
         COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/make_reference.py --check)
add_test(NAME surface.numbers_are_current COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/make_numbers.py --check)
add_test(NAME surface.polynomials_are_current COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/polynomials.py --check)
add_test(NAME surface.polynomial_errors COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/surface/polynomial_errors.py)
add_test(NAME surface.polynomial_supnorm COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/surface/polynomial_supnorm.py)
set_tests_properties(surface.numbers_are_current surface.polynomials_are_current surface.polynomial_errors surface.polynomial_supnorm
                     PROPERTIES SKIP_REGULAR_EXPRESSION "No module named 'mpmath';which is not installed")
add_test(NAME surface.tables_are_current
         COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/src/tables/generators/generate.py --check)
set_tests_properties(surface.tables_are_current PROPERTIES
                     SKIP_REGULAR_EXPRESSION "No module named 'mpmath';which is not installed")
add_test(NAME surface.accuracy_data COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/surface/accuracy_data.py)

# The machine code of the optimised AVX-512 library.
if("lumvmk0" IN_LIST LUM_LIBRARIES AND CMAKE_BUILD_TYPE STREQUAL "Release")
  add_test(NAME surface.stubs
           COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/surface/stubs.py $<TARGET_FILE:lumvmk0>)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_test(NAME surface.hot_loops
             COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/surface/hot_loops.py $<TARGET_FILE:lumvmk0>)
  else()
    add_skipped_test(surface.hot_loops "the loops are those of g++")
  endif()
else()
  foreach(name stubs hot_loops)
    add_skipped_test(surface.${name} "not an optimised build for AVX-512")
  endforeach()
endif()

# The loops of the AVX2 library, by a budget of its own.
if("lumvma2" IN_LIST LUM_LIBRARIES AND CMAKE_BUILD_TYPE STREQUAL "Release" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_test(NAME surface.hot_loops_a2
           COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/surface/hot_loops.py $<TARGET_FILE:lumvma2>)
else()
  add_skipped_test(surface.hot_loops_a2 "not an optimised build for AVX2 by g++")
endif()

# The binary interface, read from the stubs with debugging information.
add_library(lumvm_abi SHARED ${PROJECT_SOURCE_DIR}/src/frame/entries.cpp ${PROJECT_SOURCE_DIR}/src/frame/version.cpp
                             surface/abi_table.cpp)
target_include_directories(lumvm_abi PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/include)
target_compile_options(lumvm_abi PRIVATE -g)
target_link_options(lumvm_abi PRIVATE -Wl,--version-script=${LUM_VERSION_SCRIPT})
set_target_properties(lumvm_abi PROPERTIES LINK_DEPENDS ${LUM_VERSION_SCRIPT} SOVERSION ${LUM_ABI})
add_dependencies(lumvm_abi lumvm_version_script)
add_test(NAME surface.abi COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/surface/abi.sh $<TARGET_FILE:lumvm_abi>
                                  ${CMAKE_CURRENT_SOURCE_DIR}/surface/abi.xml)
set_tests_properties(surface.abi PROPERTIES SKIP_REGULAR_EXPRESSION "^skipped: ")
