# The programs of examples/ against the installed tree, as they are seen and spoken in two languages.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
set(examples designer tr)
if(WITH_QUICK)
  list(APPEND examples quick)
endif()
foreach(example IN LISTS examples)
  set(build ${WORK_DIR}/examples/${example})
  configure_and_build(${SOURCE_DIR}/examples/${example} ${build}
                      -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix
                      -DCMAKE_PROJECT_INCLUDE=${CMAKE_CURRENT_LIST_DIR}/drive.cmake)
  set(ENV{SCREENSHOTS} ${WORK_DIR}/examples/${example}-)
  file(READ ${CMAKE_CURRENT_LIST_DIR}/${example}.txt answer)
  string(STRIP "${answer}" answer)
  must_answer(${build}/${example} "${answer}")
endforeach()
