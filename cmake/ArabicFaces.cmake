# Makes the library's resources, the two Arabic font files and their licence.
#
# In the build tree they stand where an installed tree has them, so that the library finds its
# resources by one rule in both: near the library's file. A static library's is the program's, which
# another project builds somewhere below its own build folder.

set(ORVANTA_KUFI_SOURCE_DIR /usr/share/fonts/truetype/noto CACHE PATH
    "Folder with the static NotoKufiArabic-Regular.ttf and NotoKufiArabic-Bold.ttf")

set(kufi_regular ${ORVANTA_KUFI_SOURCE_DIR}/NotoKufiArabic-Regular.ttf)
set(kufi_bold ${ORVANTA_KUFI_SOURCE_DIR}/NotoKufiArabic-Bold.ttf)
foreach(face IN ITEMS ${kufi_regular} ${kufi_bold})
  if(NOT EXISTS ${face})
    message(FATAL_ERROR
      "The Arabic fonts are made from ${face}, which is missing. Install the package "
      "fonts-noto-core, name the folder of that family in ORVANTA_KUFI_SOURCE_DIR, or do without "
      "them with -DORVANTA_BUILD_FONTS=OFF.")
  endif()
endforeach()

# The python3 that comes first in the path may be one without the system's packages.
function(orvanta_has_fonttools result interpreter)
  execute_process(COMMAND ${interpreter} -I -c "import fontTools.ttLib"
                  RESULT_VARIABLE status OUTPUT_QUIET ERROR_QUIET)
  if(NOT status EQUAL 0)
    set(${result} FALSE PARENT_SCOPE)
  endif()
endfunction()
find_program(ORVANTA_FONTTOOLS_PYTHON NAMES python3 HINTS /usr/bin
             VALIDATOR orvanta_has_fonttools DOC "A python3 that has the module fontTools")
if(NOT ORVANTA_FONTTOOLS_PYTHON)
  message(FATAL_ERROR
    "The Arabic fonts are made with the Python module fontTools, which no python3 here has. Install "
    "the package python3-fonttools, name an interpreter in ORVANTA_FONTTOOLS_PYTHON, or do without "
    "them with -DORVANTA_BUILD_FONTS=OFF.")
endif()

set(resources_dir share/orvanta/resources)
get_target_property(orvanta_type orvanta TYPE)
if(orvanta_type STREQUAL STATIC_LIBRARY)
  set(built_resources ${CMAKE_BINARY_DIR}/${resources_dir})
else()
  set(built_resources ${PROJECT_BINARY_DIR}/${resources_dir})
endif()
set(resource_files
  ${built_resources}/CorbetSansKufiArabic-Regular.ttf
  ${built_resources}/CorbetSansKufiArabic-Bold.ttf
  ${built_resources}/OFL.txt)
set(faces_script ${CMAKE_CURRENT_LIST_DIR}/arabic_faces.py)
set(faces_licence ${PROJECT_SOURCE_DIR}/orvanta/fonts/resources/OFL-1.1.txt)

add_custom_command(
  OUTPUT ${resource_files}
  COMMAND ${ORVANTA_FONTTOOLS_PYTHON} -I ${faces_script}
    --regular ${kufi_regular} --bold ${kufi_bold}
    --licence ${faces_licence} --output ${built_resources}
  DEPENDS ${faces_script} ${faces_licence} ${kufi_regular} ${kufi_bold}
  COMMENT "Making the Arabic faces"
  VERBATIM)
add_custom_target(orvanta_resources ALL DEPENDS ${resource_files})

# Everything that holds the library needs its resources beside it.
add_dependencies(orvanta_core_objects orvanta_resources)
