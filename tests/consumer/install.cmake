# Installs what is needed to build an application into ${WORK_DIR}/prefix, and moves it there
# from elsewhere, because an installed tree must be relocatable.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
file(REMOVE_RECURSE ${WORK_DIR}/first ${WORK_DIR}/prefix)
foreach(component IN ITEMS Core Command Development Qt QtDevelopment Quick QuickDevelopment)
  must_run(${CMAKE_COMMAND} --install ${BUILD_DIR} --component ${component}
           --prefix ${WORK_DIR}/first)
endforeach()
file(RENAME ${WORK_DIR}/first ${WORK_DIR}/prefix)
