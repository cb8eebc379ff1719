# The programs around the library.
if(LUM_SANITIZE)
  foreach(test command_line accuracy_unknown_function accuracy_exhaustive_two_inputs accuracy_hunt accuracy_hunt_compared properties)
    add_skipped_test(tools.${test} "the tool takes the AVX-512 library, which is not built with sanitizers")
  endforeach()
else()
  add_test(NAME tools.command_line
           COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/tools/command_line.py $<TARGET_FILE:lumvm_tool>)
  add_test(NAME tools.accuracy_unknown_function COMMAND accuracy Nope)
  set_tests_properties(tools.accuracy_unknown_function PROPERTIES PASS_REGULAR_EXPRESSION "^accuracy: no function 'Nope'\n$")
  add_test(NAME tools.accuracy_exhaustive_two_inputs COMMAND accuracy --exhaustive Add)
  set_tests_properties(tools.accuracy_exhaustive_two_inputs PROPERTIES PASS_REGULAR_EXPRESSION
                                                                       "^accuracy: no function 'Add' of one 32f input\n$")
  add_test(NAME tools.accuracy_hunt COMMAND accuracy --hunt Exp Hypot --count 200000)
  set_tests_properties(tools.accuracy_hunt PROPERTIES FAIL_REGULAR_EXPRESSION "BEYOND;wrong class" PASS_REGULAR_EXPRESSION
                                                      "Exp +64f +A53 [^\n]*0\.[67][0-9]+ ulp")
  # Most results are the C library's own; the largest error is among the others.
  add_test(NAME tools.accuracy_hunt_compared COMMAND accuracy --hunt lumsExp_64f_A53 --compared --whole 16 --count 1000000 --threads 1)
  set_tests_properties(tools.accuracy_hunt_compared PROPERTIES FAIL_REGULAR_EXPRESSION "BEYOND;wrong class" PASS_REGULAR_EXPRESSION
                                                               "Exp +64f +A53 +0 +[89][0-9.]*e[+]05 +[^\n]*0[.]7[0-9]+ ulp")
  # Arguments among those of the committed figures.
  add_test(NAME tools.properties COMMAND accuracy --properties --compare ${PROJECT_SOURCE_DIR}/docs/data/properties.csv
                                         --count 100000 --share 4096)
  set_tests_properties(tools.properties PROPERTIES PROCESSORS 2)
endif()

add_test(NAME tools.links COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/check_links.py)
add_test(NAME tools.run_script
         COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/tools/run_script.py ${PROJECT_SOURCE_DIR}/run)
add_test(NAME tools.bench_unknown_function COMMAND bench Nope)
set_tests_properties(tools.bench_unknown_function PROPERTIES PASS_REGULAR_EXPRESSION "^bench: no function 'Nope'\n$")
add_test(NAME tools.bench_report_arguments
         COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/bench/report.py ${PROJECT_BINARY_DIR} --compare nowhere Exp)
set_tests_properties(tools.bench_report_arguments PROPERTIES PASS_REGULAR_EXPRESSION "^bench: nowhere: no such library\n$")

# The installed tree, as a project outside uses it.
if(LUM_SANITIZE)
  add_skipped_test(tools.installed_tree ${LUM_NOT_SANITIZED})
else()
  add_test(NAME tools.installed_tree COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/tools/installed_tree.sh ${PROJECT_BINARY_DIR})
  add_test(NAME tools.packages COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/tools/packages.sh ${PROJECT_BINARY_DIR})
  set_tests_properties(tools.packages PROPERTIES SKIP_REGULAR_EXPRESSION "^skipped: ")
endif()
