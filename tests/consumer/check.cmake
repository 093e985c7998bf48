# Installs the core into a folder of its own, moves the folder, builds the application against it
# and runs that. Variables: BUILD_DIR, SOURCE_DIR, WORK_DIR, BUNDLE, GENERATOR, COMPILER.

function(must_run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGV}\n${output}")
  endif()
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
foreach(component IN ITEMS Core Development)
  must_run(${CMAKE_COMMAND} --install ${BUILD_DIR} --component ${component} --prefix ${WORK_DIR}/first)
endforeach()
file(RENAME ${WORK_DIR}/first ${WORK_DIR}/prefix)
must_run(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${WORK_DIR}/build -G ${GENERATOR}
         -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix)
must_run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)

execute_process(COMMAND ${WORK_DIR}/build/consumer ${BUNDLE} fr-CA signin.title
                OUTPUT_VARIABLE answer RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR NOT answer STREQUAL "1 Connexion\n")
  message(FATAL_ERROR "the consumer answered '${answer}' (${status})")
endif()
