# The C++ and Fortran interfaces: calls that must not compile, generated files, a Fortran program.
set(cpp_compilers ${CMAKE_CXX_COMPILER})
foreach(name g++ clang++ clang++-19)
  find_program(LUM_COMPILER_${name} ${name})
  if(LUM_COMPILER_${name})
    list(APPEND cpp_compilers ${LUM_COMPILER_${name}})
  endif()
endforeach()
list(TRANSFORM cpp_compilers REPLACE "^/usr/bin/c\\+\\+$" "/usr/bin/g++")
list(REMOVE_DUPLICATES cpp_compilers)
add_test(NAME cpp.misuse COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/cpp/misuse.py ${PROJECT_SOURCE_DIR}/include
                                 ${cpp_compilers})
add_test(NAME cpp.header_is_current COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/make_hpp.py --check)
add_test(NAME cpp.fortran_is_current COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/make_fortran.py --check)

find_program(LUM_GFORTRAN gfortran)
if(LUM_GFORTRAN)
  set(fortran_program ${CMAKE_CURRENT_BINARY_DIR}/test.cpp.fortran)
  add_custom_command(
    OUTPUT ${fortran_program}
    COMMAND ${LUM_GFORTRAN} -std=f2008 -Wall -Wextra -Wno-compare-reals -Werror -J ${CMAKE_CURRENT_BINARY_DIR}
            ${PROJECT_SOURCE_DIR}/include/lumvm.f90 ${CMAKE_CURRENT_SOURCE_DIR}/cpp/arrays.f90 $<TARGET_FILE:lumvmp0>
            -Wl,-rpath,${PROJECT_BINARY_DIR} -o ${fortran_program}
    DEPENDS ${PROJECT_SOURCE_DIR}/include/lumvm.f90 ${CMAKE_CURRENT_SOURCE_DIR}/cpp/arrays.f90 lumvmp0)
  add_custom_target(fortran_program ALL DEPENDS ${fortran_program})
  add_test(NAME cpp.fortran COMMAND ${fortran_program})
else()
  add_skipped_test(cpp.fortran "gfortran is not installed")
endif()
add_test(NAME cpp.names_are_current COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/make_names.py --check)
