# SPDX-License-Identifier: MIT
# The SDK as others find it: find_package(tarvik CONFIG), targets tarvik::tarvik and tarvik::skin.
include(CMakePackageConfigHelpers)

set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS include/tarvik/core/Exports.h)
file(STRINGS include/tarvik/core/Exports.h version_line REGEX "kHostVersion =")
string(REGEX MATCH "[0-9]+\\.[0-9]+\\.[0-9]+" version "${version_line}")
string(REGEX MATCH "^[0-9]+" generation "${version}")

set_target_properties(tarvik tarvik_skin PROPERTIES VERSION ${version} SOVERSION ${generation} INSTALL_RPATH "$ORIGIN")
set_target_properties(tarvik_skin PROPERTIES EXPORT_NAME skin)
target_compile_features(tarvik PUBLIC cxx_std_20)

install(TARGETS tarvik EXPORT tarvikTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT client NAMELINK_COMPONENT sdk
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(TARGETS tarvik_skin EXPORT tarvikSkinTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT client NAMELINK_COMPONENT sdk)
install(DIRECTORY include/tarvik DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT sdk FILES_MATCHING PATTERN "*.h")
foreach(targets tarvikTargets tarvikSkinTargets)
  install(EXPORT ${targets} NAMESPACE tarvik:: DESTINATION ${SEAPLAN_PACKAGE_DIR} COMPONENT sdk)
endforeach()

file(RELATIVE_PATH libraries_from_plugins /${SEAPLAN_PLUGIN_DIR} /${CMAKE_INSTALL_LIBDIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/tarvikConfig.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/tarvikConfig.cmake
  INSTALL_DESTINATION ${SEAPLAN_PACKAGE_DIR} PATH_VARS SEAPLAN_PLUGIN_DIR)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/tarvikConfigVersion.cmake VERSION ${version}
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/tarvikConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/tarvikConfigVersion.cmake
  ${PROJECT_SOURCE_DIR}/cmake/PluginExports.cmake ${PROJECT_SOURCE_DIR}/cmake/plugin.map
  DESTINATION ${SEAPLAN_PACKAGE_DIR} COMPONENT sdk)
