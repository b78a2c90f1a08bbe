# qv_resources(<directory>): copies the directory's files to QV_RESOURCE_DIR, again whenever one
# changes, and installs them.
function(qv_resources directory)
  file(GLOB files CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${directory}/*)
  foreach(file IN LISTS files)
    cmake_path(GET file FILENAME name)
    configure_file(${file} ${QV_RESOURCE_DIR}/${name} COPYONLY)
  endforeach()
  install(FILES ${files} DESTINATION ${CMAKE_INSTALL_DATADIR}/qvbrowse COMPONENT runtime)
endfunction()

# qv_public_headers(<target> <directory>...): gives whatever links to the target the headers in
# the directories, and installs them.
function(qv_public_headers target)
  list(TRANSFORM ARGN APPEND /*.h OUTPUT_VARIABLE patterns)
  file(GLOB headers CONFIGURE_DEPENDS ${patterns})
  target_sources(${target} INTERFACE FILE_SET HEADERS BASE_DIRS ${ARGN} FILES ${headers})
  string(REPLACE _headers "" name ${target})
  install(TARGETS ${target} EXPORT QvPluginBrowser FILE_SET HEADERS COMPONENT development
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/qvbrowse/${name})
endfunction()

# qv_host_parts(<target>): gives everyone who links to the static library the headers in its
# directory, and installs both, for programs that are hosts.
function(qv_host_parts target)
  file(GLOB headers CONFIGURE_DEPENDS *.h)
  target_sources(${target} PUBLIC FILE_SET HEADERS FILES ${headers})
  install(TARGETS ${target} EXPORT QvPluginBrowserBrowsing
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}/qvbrowse-dev COMPONENT development
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/qvbrowse/${target}
      COMPONENT development)
endfunction()

# qv_install_library(<target>): installs a library of the host or the module.
function(qv_install_library target)
  set_target_properties(${target} PROPERTIES
    INSTALL_RPATH $ORIGIN BUILD_WITH_INSTALL_RPATH ON)
  install(TARGETS ${target} EXPORT QvPluginBrowser
    LIBRARY DESTINATION ${QV_LIBRARY_DIR} COMPONENT runtime)
endfunction()

# qv_host_library(<name> [dependency...]): the library libQV<name> from all sources in the directory
# of that name. Dependencies are other host libraries and third-party targets.
function(qv_host_library name)
  file(GLOB sources CONFIGURE_DEPENDS ${name}/*.cpp)
  add_library(QV${name} SHARED ${sources})
  target_link_libraries(QV${name} PUBLIC contract PRIVATE standin_headers ${ARGN})
  set_target_properties(QV${name} PROPERTIES EXPORT_NAME ${name})
  qv_install_library(QV${name})
endfunction()

# qv_install_program(<program> <component>): installs a program and its man page, compressed as man
# pages are kept.
function(qv_install_program program component)
  file(RELATIVE_PATH libraries
    ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_PREFIX}/${QV_LIBRARY_DIR})
  set_target_properties(${program} PROPERTIES
    INSTALL_RPATH $ORIGIN/${libraries} BUILD_WITH_INSTALL_RPATH ON)
  install(TARGETS ${program} RUNTIME COMPONENT ${component})
  set(page ${CMAKE_CURRENT_BINARY_DIR}/${program}.1)
  configure_file(${program}.1.in ${page} @ONLY)
  add_custom_command(OUTPUT ${page}.gz COMMAND gzip -9nkf ${page} DEPENDS ${page})
  add_custom_target(${program}Man ALL DEPENDS ${page}.gz)
  install(FILES ${page}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${component})
endfunction()

# qv_test_program(<name> [LABELS label...] [LIBRARIES library...] [FILES target...]): a program of
# all sources in the directory of that name, whose tests are registered with CTest. The macro
# <TARGET>_FILE is the path of the file of each target in FILES.
function(qv_test_program name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LABELS;LIBRARIES;FILES")
  file(GLOB sources CONFIGURE_DEPENDS ${name}/*.cpp)
  add_executable(${name}Tests ${sources})
  target_link_libraries(${name}Tests PRIVATE
    ${arg_LIBRARIES} test_support GTest::gmock GTest::gtest_main)
  foreach(target IN LISTS arg_FILES)
    add_dependencies(${name}Tests ${target})
    string(TOUPPER ${target}_FILE macro)
    target_compile_definitions(${name}Tests PRIVATE ${macro}="$<TARGET_FILE:${target}>")
  endforeach()
  target_compile_definitions(${name}Tests PRIVATE RESOURCE_DIR="${QV_RESOURCE_DIR}")
  gtest_discover_tests(${name}Tests PROPERTIES LABELS "${arg_LABELS}" DISCOVERY_TIMEOUT 60)
endfunction()
