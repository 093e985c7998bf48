# The library inside another project, which builds it statically; then that static library installed
# and found by another application.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
set(build ${WORK_DIR}/subproject)
configure_and_build(${CMAKE_CURRENT_LIST_DIR}/subproject ${build}
                    -DLIBRARY_SOURCE_DIR=${SOURCE_DIR} -DORVANTA_INSTALL=ON
                    -DORVANTA_BUILD_QT=${WITH_QT} -DORVANTA_BUILD_QUICK=${WITH_QUICK})
applications_must_answer(${build})

must_run(${CMAKE_COMMAND} --install ${build} --prefix ${WORK_DIR}/static_prefix)
configure_and_build(${CMAKE_CURRENT_LIST_DIR} ${WORK_DIR}/static -DCOMPONENT=${component}
                    -DCMAKE_PREFIX_PATH=${WORK_DIR}/static_prefix)
applications_must_answer(${WORK_DIR}/static)
file(STRINGS ${WORK_DIR}/static/consumer_silent version
     REGEX "^@.#.PROGRAM:OrvantaLocalizer  PROJECT:OrvantaLocalizer-1$")
if(NOT version)
  message(FATAL_ERROR "a program that does not refer to the version does not carry it")
endif()
