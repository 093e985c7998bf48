# What is installed, in the components of which packages are made: Core and Qt are what a program
# needs to run, Development and QtDevelopment what is needed to build one, and so for Quick; Command
# is ovlocalize.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/OrvantaLocalizer)

# orvanta_install_library(TARGET COMPONENT DEVELOPMENT PART...) installs a library and the file of
# targets that find_package reads for a component. PARTs are objects that belong to a static one.
function(orvanta_install_library target component development)
  install(TARGETS ${target} ${ARGN} EXPORT OrvantaLocalizer${component}
    RUNTIME COMPONENT ${component}
    LIBRARY COMPONENT ${component} NAMELINK_COMPONENT ${development}
    ARCHIVE COMPONENT ${development}
    OBJECTS DESTINATION ${CMAKE_INSTALL_LIBDIR}/orvanta COMPONENT ${development}
    FILE_SET HEADERS COMPONENT ${development})
  install(EXPORT OrvantaLocalizer${component} NAMESPACE OrvantaLocalizer::
    DESTINATION ${package_dir} COMPONENT ${development})
endfunction()

orvanta_install_library(orvanta Core Development)
if(TARGET orvanta_qt)
  orvanta_install_library(orvanta_qt Qt QtDevelopment)
endif()
if(TARGET orvanta_quick)
  get_property(quick_parts GLOBAL PROPERTY ORVANTA_QUICK_TARGETS)
  orvanta_install_library(orvanta_quick Quick QuickDevelopment ${quick_parts})
  install(FILES orvanta/quick/Import.cpp DESTINATION ${CMAKE_INSTALL_DATADIR}/orvanta/quick
          COMPONENT QuickDevelopment)
endif()
if(TARGET orvanta_resources)
  install(FILES ${resource_files} DESTINATION ${resources_dir} COMPONENT Core)
endif()
# install_command(<target> <component> [<argument of install> ...])
function(install_command command component)
  if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    # Finds the library beside it in a tree that may be moved.
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR
               BASE_DIRECTORY ${CMAKE_INSTALL_FULL_BINDIR} OUTPUT_VARIABLE lib_from_bin)
    set_target_properties(${command} PROPERTIES INSTALL_RPATH "$ORIGIN/${lib_from_bin}")
  endif()
  install(TARGETS ${command} ${ARGN} COMPONENT ${component})
  if(NOT CMAKE_CROSSCOMPILING)
    # The man page and the completion of bash, written when the command was built.
    get_target_property(folder ${command} BINARY_DIR)
    install(FILES ${folder}/${command}.1
      DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${component})
    install(FILES ${folder}/${command}.bash RENAME ${command}
      DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/bash-completion/completions COMPONENT ${component})
  endif()
endfunction()
if(TARGET ovlocalize)
  install_command(ovlocalize Command EXPORT OrvantaLocalizerCommand)
  install(EXPORT OrvantaLocalizerCommand NAMESPACE OrvantaLocalizer::
    DESTINATION ${package_dir} COMPONENT Command)
endif()
if(TARGET ovaudit)
  # In the package of whatever it links with.
  set(audit_component QtDevelopment)
  if(TARGET orvanta_quick)
    set(audit_component QuickDevelopment)
  endif()
  install_command(ovaudit ${audit_component})
endif()

configure_package_config_file(
  ${CMAKE_CURRENT_LIST_DIR}/OrvantaLocalizerConfig.cmake.in
  ${PROJECT_BINARY_DIR}/OrvantaLocalizerConfig.cmake
  INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/OrvantaLocalizerConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
  ${CMAKE_CURRENT_LIST_DIR}/OrvantaLocalizerBundles.cmake
  ${CMAKE_CURRENT_LIST_DIR}/OrvantaLocalizerCopyBundle.cmake
  ${CMAKE_CURRENT_LIST_DIR}/OrvantaLocalizerKeys.cmake
  ${PROJECT_BINARY_DIR}/OrvantaLocalizerConfig.cmake
  ${PROJECT_BINARY_DIR}/OrvantaLocalizerConfigVersion.cmake
  DESTINATION ${package_dir} COMPONENT Development)

# Relative to the file's own folder, so that the tree may be moved.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
           BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig OUTPUT_VARIABLE prefix_from_pc)
configure_file(${CMAKE_CURRENT_LIST_DIR}/orvanta.pc.in ${PROJECT_BINARY_DIR}/orvanta.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/orvanta.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)
