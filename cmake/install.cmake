# What is installed, in three components, and the packages that cpack makes of them: the libraries (runtime), what building
# against them needs (development), and the command line tool where it is built (tools).
install(TARGETS lumvm lumvm_static ${LUM_LIBRARIES} EXPORT lumvm
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(FILES include/lumvm.h include/lumvm_types.h include/lumvm_functions.h include/lumvm.hpp include/lumvm_functions.hpp
              include/lumvm_parallel.hpp include/lumvm.f90
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
set(LUM_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/lumvm)
install(EXPORT lumvm NAMESPACE lumvm:: FILE lumvmTargets.cmake DESTINATION ${LUM_CMAKE_DIR} COMPONENT development)
configure_package_config_file(cmake/lumvmConfig.cmake.in ${PROJECT_BINARY_DIR}/lumvmConfig.cmake
                              INSTALL_DESTINATION ${LUM_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/lumvmConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/lumvmConfig.cmake ${PROJECT_BINARY_DIR}/lumvmConfigVersion.cmake
        DESTINATION ${LUM_CMAKE_DIR} COMPONENT development)
file(RELATIVE_PATH LUM_PREFIX_FROM_PC /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
foreach(LUM_LINKED_LIBRARY lumvm ${LUM_LIBRARIES})
  configure_file(cmake/lumvm.pc.in ${LUM_LINKED_LIBRARY}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${LUM_LINKED_LIBRARY}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
          COMPONENT development)
endforeach()

# cpack -G DEB and cpack -G TGZ, in the build folder.
set(CPACK_PACKAGE_NAME lumvm)
set(CPACK_PACKAGE_CONTACT "lumVM maintainers <lumvm@users.noreply.github.com>")
set(CPACK_PACKAGE_VENDOR "lumVM")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "elementwise mathematical functions over arrays")
set(LUM_ABOUT "Exponentials, logarithms, powers, roots, circular, hyperbolic and error functions, their inverses and complex forms for arrays of 32-bit and 64-bit numbers, at three levels of accuracy, with the same result bits on every processor.")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "${LUM_ABOUT} These are the shared libraries.")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "${LUM_ABOUT} These are the headers for C, C++ and Fortran, the archive, and the files for CMake and pkg-config.")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION "${LUM_ABOUT} This is the command line tool.")
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR "DEB;TGZ")
set(CPACK_ARCHIVE_COMPONENT_INSTALL OFF)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development)
if(LUM_TOOLS OR LUM_TESTS)
  list(APPEND CPACK_COMPONENTS_ALL tools)
endif()
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME liblumvm${LUM_ABI})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/packages/triggers)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME liblumvm-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "liblumvm${LUM_ABI} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME lumvm-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION math)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "liblumvm${LUM_ABI} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# Each package says in its documentation folder what changed and under which terms it stands.
file(WRITE ${PROJECT_BINARY_DIR}/packages/triggers "activate-noawait ldconfig\n")
file(WRITE ${PROJECT_BINARY_DIR}/packages/copyright
     "lumVM, elementwise mathematical functions over arrays.\n\nCopyright: the authors of lumVM, 2026\n\nThe owner has not chosen a licence yet. Until then, no right to use, copy or change it is granted\nbeyond what the law gives.\n")
file(WRITE ${PROJECT_BINARY_DIR}/packages/changelog
     "lumvm (${PROJECT_VERSION}) unstable; urgency=medium\n\n  * The first version.\n\n -- lumVM maintainers <lumvm@users.noreply.github.com>  Fri, 27 Mar 2026 12:00:00 +0000\n")
find_program(LUM_GZIP gzip)
if(LUM_GZIP)
  execute_process(COMMAND ${LUM_GZIP} -9nkf ${PROJECT_BINARY_DIR}/packages/changelog)
endif()
foreach(pair runtime:liblumvm${LUM_ABI} development:liblumvm-dev tools:lumvm-tools)
  string(REPLACE ":" ";" pair ${pair})
  list(GET pair 0 component)
  list(GET pair 1 package)
  if(component IN_LIST CPACK_COMPONENTS_ALL)
    install(FILES ${PROJECT_BINARY_DIR}/packages/copyright DESTINATION share/doc/${package} COMPONENT ${component})
    if(LUM_GZIP)
      install(FILES ${PROJECT_BINARY_DIR}/packages/changelog.gz DESTINATION share/doc/${package} COMPONENT ${component})
    endif()
  endif()
endforeach()
include(CPack)
