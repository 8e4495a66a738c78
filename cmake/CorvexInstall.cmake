# SPDX-License-Identifier: MIT
# Installs the libraries, their headers with the same paths as in the tree, and the CMake package
# DesignerCore. The folders of the tools, plug-ins and data install their own files.
include(CMakePackageConfigHelpers)

set(package_path "${CMAKE_INSTALL_LIBDIR}/cmake/DesignerCore")

install(TARGETS CommonBase Zip Common DesignerCore EXPORT DesignerCoreTargets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
# The preview is a program, so its library is not installed; neither are the folders private/ of all modules.
install(DIRECTORY "${PROJECT_SOURCE_DIR}/libs/corvex" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
  FILES_MATCHING PATTERN "*.h" PATTERN "corvex/preview" EXCLUDE PATTERN "private" EXCLUDE)
install(EXPORT DesignerCoreTargets NAMESPACE Corvex:: DESTINATION "${package_path}")

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/DesignerCoreConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/package/DesignerCoreConfig.cmake"
  INSTALL_DESTINATION "${package_path}"
  PATH_VARS CORVEX_LIBRARY_PATH CORVEX_PLUGIN_PATH CORVEX_DATA_PATH)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/package/DesignerCoreConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES
  "${PROJECT_BINARY_DIR}/package/DesignerCoreConfig.cmake"
  "${PROJECT_BINARY_DIR}/package/DesignerCoreConfigVersion.cmake"
  DESTINATION "${package_path}")
