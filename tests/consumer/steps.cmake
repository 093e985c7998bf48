# Steps that the scripts beside this file share.

# must_run(COMMAND...) fails with the command's output when it fails, else leaves it in `output`.
function(must_run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGV}\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

# configure_and_build(SOURCE BUILD OPTION...)
function(configure_and_build source build)
  must_run(${CMAKE_COMMAND} -S ${source} -B ${build} -G ${GENERATOR} --fresh
           -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_BUILD_TYPE=Debug -DBUNDLE=${BUNDLE} ${ARGN})
  must_run(${CMAKE_COMMAND} --build ${build})
endfunction()

# must_answer(PROGRAM TEXT) runs an application with the bundle of the demo.
function(must_answer program text)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env BUNDLE=${BUNDLE} QT_QPA_PLATFORM=offscreen ${program}
                  RESULT_VARIABLE status OUTPUT_VARIABLE output)
  if(NOT status EQUAL 0 OR NOT output STREQUAL "${text}\n")
    message(FATAL_ERROR "${program} ended with ${status} and '${output}' instead of '${text}'")
  endif()
endfunction()

if(WITH_FONTS)
  set(core_answer "1 Connexion Connexion CorbetSansKufiArabic")
else()
  set(core_answer "1 Connexion Connexion no font")
endif()
set(keys_answer "Anmelden, 2 Artikel bestellt")
set(qt_answer "Connexion")

# The component that is furthest from the core.
set(component Core)
if(WITH_QUICK)
  set(component Quick)
elseif(WITH_QT)
  set(component Qt)
endif()

# applications_must_answer(FOLDER) runs those that were built there for the component.
function(applications_must_answer folder)
  must_answer(${folder}/consumer "${core_answer}")
  must_answer(${folder}/consumer_keys "${keys_answer}")
  if(WITH_QT)
    must_answer(${folder}/consumer_qt "${qt_answer}")
  endif()
  if(WITH_QUICK)
    must_answer(${folder}/consumer_quick "${qt_answer}")
  endif()
endfunction()
