# orvanta_room(LIBRARY <library> OBJECTS <target>... PUBLIC <header>... INTERNAL <file>...
#              [SEPARATE <file>...])
#
# Lists the files of one folder below orvanta/. PUBLIC headers belong to the library's header set
# and are installed. INTERNAL are all other headers and sources; the targets are built from them.
# Those of SEPARATE are not part of the library. Every header and source of the folder must be
# listed.
function(orvanta_room)
  cmake_parse_arguments(PARSE_ARGV 0 room "" "LIBRARY" "OBJECTS;PUBLIC;INTERNAL;SEPARATE")
  file(GLOB_RECURSE present CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR}
       ${CMAKE_CURRENT_SOURCE_DIR}/*.h ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  list(REMOVE_ITEM present ${room_PUBLIC} ${room_INTERNAL} ${room_SEPARATE})
  if(present)
    cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${PROJECT_SOURCE_DIR}
               OUTPUT_VARIABLE folder)
    list(JOIN present ", " present)
    message(FATAL_ERROR
      "Not listed in ${folder}/CMakeLists.txt: ${present}. Add it under INTERNAL, or under PUBLIC "
      "if it is a header for applications.")
  endif()
  foreach(target IN LISTS room_OBJECTS)
    target_sources(${target} PRIVATE ${room_INTERNAL})
  endforeach()
  target_sources(${room_LIBRARY} PUBLIC
    FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${room_PUBLIC})
endfunction()
