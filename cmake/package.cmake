# The CMake package QvPluginBrowser and the Debian packages.
include(CMakePackageConfigHelpers)
set(config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/QvPluginBrowser)
set(config ${CMAKE_BINARY_DIR}/cmake/QvPluginBrowserConfig.cmake)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/QvPluginBrowserConfig.cmake.in ${config}
  INSTALL_DESTINATION ${config_dir} PATH_VARS CMAKE_INSTALL_DATADIR)
set(config_version ${CMAKE_BINARY_DIR}/cmake/QvPluginBrowserConfigVersion.cmake)
write_basic_package_version_file(${config_version} COMPATIBILITY SameMajorVersion)
install(FILES ${config} ${config_version} DESTINATION ${config_dir} COMPONENT development)
install(EXPORT QvPluginBrowser NAMESPACE QvPluginBrowser:: FILE QvPluginBrowserTargets.cmake
  DESTINATION ${config_dir} COMPONENT development)
install(EXPORT QvPluginBrowserBrowsing NAMESPACE QvPluginBrowser::
  FILE QvPluginBrowserBrowsingTargets.cmake DESTINATION ${config_dir} COMPONENT development)
install(FILES ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_SOURCE_DIR}/docs/host-contract.md
    ${PROJECT_SOURCE_DIR}/docs/json.md ${PROJECT_SOURCE_DIR}/docs/json.schema.json
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/qvbrowse COMPONENT runtime)

# One package for users, one for developers of hosts and modules.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_CONTACT "The pluginBrowser maintainers <maintainers@localhost>")
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME qvbrowse)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS frei0r-plugins)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION
"browser of plug-in tools and views
The module pluginBrowser adds two schemes to the asset browser of a
compositing application: its plug-in tools and its views. qvbrowse plays that
application in a terminal, over the frei0r plug-ins of this machine or a
catalogue.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME qvbrowse-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
"headers and CMake package of qvbrowse
For building a host or a module: the declarations of the host, the counted
pointers and iterators, and the targets of find_package(QvPluginBrowser).")
if(QV_WINDOW)
  # Apart, since Qt is large.
  list(APPEND CPACK_COMPONENTS_ALL window)
  set(CPACK_DEBIAN_WINDOW_PACKAGE_NAME qvwindow)
  set(CPACK_DEBIAN_WINDOW_PACKAGE_SECTION graphics)
  set(CPACK_DEBIAN_WINDOW_PACKAGE_SHLIBDEPS ON)
  # It finds the host's libraries in the package that it depends on.
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
  set(CPACK_DEBIAN_WINDOW_DESCRIPTION
"window to browse plug-in tools and views
The asset browser of qvbrowse as a window: trees, lists, detail pages, menus and
drags of the schemes that a module adds.")
endif()
include(CPack)
cpack_add_component(runtime)
if(QV_WINDOW)
  cpack_add_component(window DEPENDS runtime)
endif()
cpack_add_component(development DEPENDS runtime)
