# The programs of examples/ against the installed tree, as they are seen and spoken in two languages,
# and how their bundles are built.
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

# An edited table is copied again, a table or language that has gone goes, and an error fails the build.
set(source ${WORK_DIR}/examples/hello-source)
set(build ${WORK_DIR}/examples/hello)
file(REMOVE_RECURSE ${source} ${build})
file(COPY ${SOURCE_DIR}/examples/hello/ DESTINATION ${source})
file(WRITE ${source}/en.lproj/Other.strings "")
configure_and_build(${source} ${build} -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix)
file(APPEND ${source}/en.lproj/Localizable.strings "\"count\" = \"%d\";\n")
file(REMOVE_RECURSE ${source}/fr.lproj ${source}/en.lproj/Other.strings)
must_run(${CMAKE_COMMAND} --build ${build})
file(READ ${build}/en.lproj/Localizable.strings table)
file(GLOB_RECURSE copied RELATIVE ${build} ${build}/*.strings)
if(NOT table MATCHES "%d" OR NOT copied STREQUAL "en.lproj/Localizable.strings")
  message(FATAL_ERROR "the bundle beside the program is not what it is made from")
endif()
file(WRITE ${source}/fr.lproj/Localizable.strings "\"count\" = \"%s\";\n")
execute_process(COMMAND ${CMAKE_COMMAND} --build ${build} RESULT_VARIABLE status OUTPUT_VARIABLE output)
if(status EQUAL 0 OR NOT output MATCHES "placeholders")
  message(FATAL_ERROR "a wrong placeholder does not fail the build:\n${output}")
endif()

# Where a program is built among its sources, its tables are no copies to be removed some day.
must_run(${CMAKE_COMMAND} -DFROM=${source} -DTO=${source}/. -DLIST=${build}/list.txt
         -P ${SOURCE_DIR}/cmake/OrvantaLocalizerCopyBundle.cmake)
if(EXISTS ${build}/list.txt)
  message(FATAL_ERROR "the sources count as copies")
endif()

# A build for another system does not run the command that was built for that system.
must_run(${CMAKE_COMMAND} -S ${source} -B ${build}-cross -G ${GENERATOR} --fresh -DCMAKE_SYSTEM_NAME=Linux
         -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix)
file(STRINGS ${build}-cross/CMakeCache.txt foreign REGEX "^ORVANTA_OVLOCALIZE:.*/prefix/bin/")
if(foreign)
  message(FATAL_ERROR "a cross build runs the command of the target system: ${foreign}")
endif()
