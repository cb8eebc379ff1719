# Random calls under libFuzzer, which clang alone has: the program is built by clang++ whatever compiles the rest.
#   fuzz.calls -max_total_time=1200 CORPUS_FOLDER     searches on; see -help=1
find_program(LUM_CLANGXX NAMES clang++ clang++-14)
if(NOT LUM_CLANGXX)
  message(STATUS "fuzz tests left out: no clang++")
  return()
endif()
set(fuzz_sources ${CMAKE_CURRENT_SOURCE_DIR}/fuzz/calls.cpp ${PROJECT_SOURCE_DIR}/tools/support/declarations.cpp
                 ${PROJECT_SOURCE_DIR}/tools/support/library.cpp ${PROJECT_SOURCE_DIR}/src/frame/dispatch/processor.cpp)
foreach(name elements environment subjects values)
  list(APPEND fuzz_sources ${CMAKE_CURRENT_SOURCE_DIR}/support/${name}.cpp)
endforeach()
set(fuzz_flags -std=c++20 -O2 -g1 -fsanitize=fuzzer -Wall -Wextra -Wconversion -Wno-sign-conversion -Wshadow -Werror
               -DLUM_BUILT_LIBRARIES=\"${LUM_BUILT_LIBRARIES}\" -DLUM_BUILT_LIBRARY_DIR=\"${PROJECT_BINARY_DIR}\")
foreach(folder ${CMAKE_CURRENT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/tools ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/include
               ${LUM_DECLARATION_DIR})
  list(APPEND fuzz_flags -I${folder})
endforeach()
set(fuzz_objects "")
foreach(source IN LISTS fuzz_sources)
  get_filename_component(name ${source} NAME_WE)
  set(object ${CMAKE_CURRENT_BINARY_DIR}/fuzz.${name}.o)
  list(APPEND fuzz_objects ${object})
  add_custom_command(OUTPUT ${object} DEPENDS ${source} ${LUM_DECLARATION_DIR}/declarations.inc DEPFILE ${object}.d VERBATIM
                     COMMAND ${LUM_CLANGXX} ${fuzz_flags} -MD -MF ${object}.d -MT ${object} -c ${source} -o ${object})
endforeach()
set(fuzz_calls ${CMAKE_CURRENT_BINARY_DIR}/fuzz.calls)
add_custom_command(OUTPUT ${fuzz_calls} DEPENDS ${fuzz_objects}
                   COMMAND ${LUM_CLANGXX} -fsanitize=fuzzer ${fuzz_objects} -lgtest -ldl -o ${fuzz_calls})
add_custom_target(fuzz ALL DEPENDS ${fuzz_calls})
add_dependencies(fuzz ${LUM_LIBRARIES})
add_test(NAME fuzz.calls COMMAND ${fuzz_calls} -seed=1 -runs=5000 -len_control=0 -max_len=512 -verbosity=0
                                 -artifact_prefix=${CMAKE_CURRENT_BINARY_DIR}/fuzz.)
