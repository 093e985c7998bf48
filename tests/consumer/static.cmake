# The library inside another project, which builds it statically; then that static library installed
# and found by another application.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
set(build ${WORK_DIR}/subproject)
# Without the fonts neither Python nor the package that they are made from is needed.
must_run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/subproject -B ${build} -G ${GENERATOR} --fresh
         -DLIBRARY_SOURCE_DIR=${SOURCE_DIR} -DCMAKE_CXX_COMPILER=${COMPILER}
         -DORVANTA_BUILD_FONTS=OFF -DBUNDLE=${BUNDLE} -DORVANTA_OVLOCALIZE=${OVLOCALIZE}
         -DORVANTA_KUFI_SOURCE_DIR=/nowhere)
if(NOT output MATCHES "Without the Arabic fonts")
  message(FATAL_ERROR "configuring does not say that the fonts are missing:\n${output}")
endif()
configure_and_build(${CMAKE_CURRENT_LIST_DIR}/subproject ${build}
                    -DLIBRARY_SOURCE_DIR=${SOURCE_DIR} -DORVANTA_INSTALL=ON
                    -DORVANTA_BUILD_QT=${WITH_QT} -DORVANTA_BUILD_QUICK=${WITH_QUICK}
                    -DORVANTA_BUILD_FONTS=${WITH_FONTS} -DORVANTA_OVLOCALIZE=${OVLOCALIZE})
applications_must_answer(${build})

must_run(${CMAKE_COMMAND} --install ${build} --prefix ${WORK_DIR}/static_prefix)
configure_and_build(${CMAKE_CURRENT_LIST_DIR} ${WORK_DIR}/static -DCOMPONENT=${component} -DSTATIC_LIBRARY=ON
                    -DCMAKE_PREFIX_PATH=${WORK_DIR}/static_prefix -DORVANTA_OVLOCALIZE=${OVLOCALIZE})
applications_must_answer(${WORK_DIR}/static)
file(STRINGS ${WORK_DIR}/static/consumer_silent version
     REGEX "^@.#.PROGRAM:OrvantaLocalizer  PROJECT:OrvantaLocalizer-1$")
if(NOT version)
  message(FATAL_ERROR "a program that does not refer to the version does not carry it")
endif()
