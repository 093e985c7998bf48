include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/OrvantaLocalizer)

install(TARGETS orvanta EXPORT OrvantaLocalizerCore COMPONENT Core)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/orvanta/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orvanta
        COMPONENT Core FILES_MATCHING PATTERN "*.h" PATTERN "qt" EXCLUDE)
install(EXPORT OrvantaLocalizerCore NAMESPACE OrvantaLocalizer:: DESTINATION ${package_dir}
        COMPONENT Core)

configure_package_config_file(
  ${CMAKE_CURRENT_LIST_DIR}/OrvantaLocalizerConfig.cmake.in
  ${PROJECT_BINARY_DIR}/OrvantaLocalizerConfig.cmake
  INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/OrvantaLocalizerConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/OrvantaLocalizerConfig.cmake
  ${PROJECT_BINARY_DIR}/OrvantaLocalizerConfigVersion.cmake
  DESTINATION ${package_dir} COMPONENT Core)
