# The library with all layers: symbols of the layers' objects, calls before its constructor, static linking, other processors.
set(layer_objects "")
set(layer_libraries "")
foreach(library IN LISTS LUM_LIBRARIES)
  list(APPEND layer_objects ${PROJECT_BINARY_DIR}/CMakeFiles/${library}_objects.dir)
  list(APPEND layer_libraries $<TARGET_FILE:${library}>)
endforeach()
add_test(NAME dispatch.symbols COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/dispatch/symbols.py ${CMAKE_NM}
                                       ${layer_objects})
add_test(NAME dispatch.exports COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/surface/exports.py --choosing
                                       $<TARGET_FILE:lumvm>)

find_package(Threads REQUIRED)
# Without a word that it needs lumVM, and linked behind it: its constructor then runs first.
add_library(test.dispatch.early SHARED dispatch/early.cpp)
target_include_directories(test.dispatch.early PRIVATE ${PROJECT_SOURCE_DIR}/include)
target_link_options(test.dispatch.early PRIVATE -Wl,--unresolved-symbols=ignore-all)
target_link_libraries(test.dispatch.early PRIVATE Threads::Threads)
add_executable(test.dispatch.program dispatch/program.cpp)
target_link_libraries(test.dispatch.program PRIVATE lumvm test.dispatch.early)
add_executable(test.dispatch.static dispatch/program.cpp dispatch/early.cpp)
target_link_libraries(test.dispatch.static PRIVATE lumvm_static Threads::Threads)
# All of the threads' library: the linker takes what weak symbols name only where something else asks for it.
target_link_options(test.dispatch.static PRIVATE -static)
if(LUM_SANITIZE)
  add_skipped_test(dispatch.load "${LUM_NOT_SANITIZED}")
else()
  add_test(NAME dispatch.load COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/dispatch/load.py
                                      $<TARGET_FILE:test.dispatch.program> $<TARGET_FILE:test.dispatch.static>
                                      ${layer_libraries})
endif()
