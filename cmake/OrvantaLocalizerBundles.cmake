# orvanta_add_bundle(<target> DIRECTORY <folder> [EMBED [PREFIX <prefix>]])
#
# Ships the languages of a folder, its <language>.lproj folders, with a program: copied beside the
# executable, where the library looks for them, or with EMBED inside it as resources of Qt:
#
#   orvanta_add_bundle(app DIRECTORY bundle)
#
#   orvanta_add_bundle(app DIRECTORY bundle EMBED)   # options.mainBundlePath = ":/app"
#
# PREFIX is another folder of the resources than "/app". Every build that follows a change copies or
# embeds anew; a table or language that has gone goes there too. Before that the command `ovlocalize`
# checks the tables, and the build fails with its message when it finds an error. Where the command is
# neither installed nor a target of the project, nor named by ORVANTA_OVLOCALIZE, configuring says that
# nothing is checked.

set(ORVANTA_COPY_BUNDLE ${CMAKE_CURRENT_LIST_DIR}/OrvantaLocalizerCopyBundle.cmake
    CACHE INTERNAL "The script that copies a bundle")

function(orvanta_add_bundle target)
  cmake_parse_arguments(PARSE_ARGV 1 bundle "EMBED" "DIRECTORY;PREFIX" "")
  if(NOT bundle_DIRECTORY OR bundle_UNPARSED_ARGUMENTS OR (bundle_PREFIX AND NOT bundle_EMBED))
    message(FATAL_ERROR "orvanta_add_bundle(<target> DIRECTORY <folder> [EMBED [PREFIX <prefix>]])")
  endif()
  cmake_path(ABSOLUTE_PATH bundle_DIRECTORY NORMALIZE)
  file(GLOB folders CONFIGURE_DEPENDS LIST_DIRECTORIES TRUE ${bundle_DIRECTORY}/*.lproj)
  set(files)
  foreach(folder IN LISTS folders)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS ${folder}/*)
    list(APPEND files ${found})
  endforeach()
  if(NOT files)
    message(FATAL_ERROR "orvanta_add_bundle: there are no .lproj folders in ${bundle_DIRECTORY}")
  endif()

  set(check)
  set(command)
  if(CMAKE_CROSSCOMPILING)
    orvanta_find_host_command()
  endif()
  if(ORVANTA_OVLOCALIZE OR (TARGET OrvantaLocalizer::ovlocalize AND NOT CMAKE_CROSSCOMPILING))
    orvanta_find_command(command)
    set(check COMMAND ${command} --bundle ${bundle_DIRECTORY} check --level error)
  else()
    message(STATUS "Without ovlocalize: the tables in ${bundle_DIRECTORY} are not checked")
  endif()
  set(copy)
  if(NOT bundle_EMBED)
    set(copy COMMAND ${CMAKE_COMMAND} -DFROM=${bundle_DIRECTORY} -DTO=$<TARGET_FILE_DIR:${target}>
        -DLIST=${CMAKE_CURRENT_BINARY_DIR}/${target}_bundle$<CONFIG>.txt -P ${ORVANTA_COPY_BUNDLE})
  endif()
  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${target}_bundle$<CONFIG>.stamp)
  # What the list was, so that an item that has gone counts as a change.
  set(list ${CMAKE_CURRENT_BINARY_DIR}/${target}_bundle.list)
  file(CONFIGURE OUTPUT ${list} CONTENT "${folders};${files}" @ONLY)
  add_custom_command(OUTPUT ${stamp} ${check} ${copy} COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${files} ${list} ${command} COMMENT "Bundle of ${target}" VERBATIM)
  add_custom_target(${target}_bundle DEPENDS ${stamp})
  add_dependencies(${target} ${target}_bundle)

  if(bundle_EMBED)
    if(NOT COMMAND qt_add_resources)
      message(FATAL_ERROR "orvanta_add_bundle: EMBED needs Qt 6, as find_package(Qt6) provides it")
    endif()
    if(NOT bundle_PREFIX)
      set(bundle_PREFIX /app)
    endif()
    qt_add_resources(${target} ${target}_bundle PREFIX ${bundle_PREFIX} BASE ${bundle_DIRECTORY}
                     FILES ${files})
  endif()
endfunction()
