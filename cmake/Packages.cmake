# Debian packages: `cmake --preset packages && cmake --build --preset packages --target package`.
# Split as the distribution splits libraries: what runs, what builds, and the command.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Orvanta Localizer developers <localizer@orvanta.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR})
set(CPACK_STRIP_FILES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

# orvanta_package(COMPONENT NAME SECTION SUMMARY DEPENDS)
macro(orvanta_package component name section summary depends)
  list(APPEND CPACK_COMPONENTS_ALL ${component})
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name})
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
  set(CPACK_COMPONENT_${upper}_DESCRIPTION "${summary}")
  set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${depends}")
endmacro()

set(core liborvanta${PROJECT_VERSION_MAJOR})
set(qt liborvanta-qt${PROJECT_VERSION_MAJOR})
set(same_version "(= ${PROJECT_VERSION})")
orvanta_package(Core ${core} libs "Live localization: the library" "")
orvanta_package(Development liborvanta-dev libdevel "Live localization: development files"
                "${core} ${same_version}, libc6-dev")
orvanta_package(Command ovlocalize devel "Live localization: the command ovlocalize"
                "${core} ${same_version}")
if(TARGET orvanta_qt)
  orvanta_package(Qt ${qt} libs "Live localization: the Qt widgets" "${core} ${same_version}")
  orvanta_package(QtDevelopment liborvanta-qt-dev libdevel
                  "Live localization: development files of the Qt widgets"
                  "${qt} ${same_version}, liborvanta-dev ${same_version}, qt6-base-dev, qt6-tools-dev, libqt6opengl6-dev")
endif()
if(TARGET orvanta_quick)
  set(quick liborvanta-quick${PROJECT_VERSION_MAJOR})
  # The package of the controls does not name the modules that they import.
  set(modules qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-templates
              qml6-module-qtquick-window qml6-module-qtqml-workerscript)
  list(JOIN modules ", " modules)
  orvanta_package(Quick ${quick} libs "Live localization: the Qt Quick module"
                  "${qt} ${same_version}, ${modules}")
  orvanta_package(QuickDevelopment liborvanta-quick-dev libdevel
                  "Live localization: development files of the Qt Quick module"
                  "${quick} ${same_version}, liborvanta-qt-dev ${same_version}, qt6-declarative-dev")
endif()

include(CPack)
