# What find_package(QvPluginBrowser) reads, and the Debian packages.
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
