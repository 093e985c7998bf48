# orvanta_add_keys(<target> BUNDLE <folder> NAMESPACE <a::b> [HEADER <name.h>])
#
# Gives the target's sources a header with the keys of the bundle's English, <a/b.h> unless HEADER
# names it otherwise:
#
#   orvanta_add_keys(app BUNDLE ${CMAKE_SOURCE_DIR}/bundle NAMESPACE app::keys)
#
#   #include <app/keys.h>
#   localizer.localizedStringForKey(app::keys::signin_title);
#   app::keys::messages::cart_items(3, "Ada");
#
# It is written anew when the table changes. The command `ovlocalize` writes it: the installed one,
# the one built along, or where the build is for another system the one that ORVANTA_OVLOCALIZE names.

function(orvanta_add_keys target)
  cmake_parse_arguments(PARSE_ARGV 1 keys "" "BUNDLE;NAMESPACE;HEADER" "")
  if(NOT keys_BUNDLE OR NOT keys_NAMESPACE OR keys_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "orvanta_add_keys(<target> BUNDLE <folder> NAMESPACE <a::b> [HEADER <name.h>])")
  endif()
  cmake_path(ABSOLUTE_PATH keys_BUNDLE NORMALIZE)
  set(table ${keys_BUNDLE}/en.lproj/Localizable.strings)
  if(NOT EXISTS ${table})
    message(FATAL_ERROR "orvanta_add_keys: there is no ${table}")
  endif()
  if(NOT keys_HEADER)
    string(REPLACE "::" "/" keys_HEADER ${keys_NAMESPACE}.h)
  endif()
  orvanta_find_command(command)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/${target}_keys)
  add_custom_command(OUTPUT ${folder}/${keys_HEADER}
    COMMAND ${command} --bundle ${keys_BUNDLE} header --namespace ${keys_NAMESPACE}
            --output ${folder}/${keys_HEADER}
    DEPENDS ${table} ${command}
    COMMENT "Writing ${keys_HEADER}" VERBATIM)
  target_sources(${target} PRIVATE ${folder}/${keys_HEADER})
  target_include_directories(${target} PRIVATE ${folder})
endfunction()

# Sets `result` to the target or the file of the command. Where the library is part of another
# project, the command is built when it is first needed.
function(orvanta_find_command result)
  if(CMAKE_CROSSCOMPILING OR ORVANTA_OVLOCALIZE)
    orvanta_find_host_command(REQUIRED)
    set(${result} ${ORVANTA_OVLOCALIZE} PARENT_SCOPE)
    return()
  endif()
  if(NOT TARGET OrvantaLocalizer::ovlocalize)
    # Not there in an installed package.
    cmake_path(SET source NORMALIZE ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../tools/ovlocalize)
    if(NOT EXISTS ${source})
      message(FATAL_ERROR "orvanta_add_keys needs the command ovlocalize, which is not installed")
    endif()
    add_subdirectory(${source} ${CMAKE_BINARY_DIR}/ovlocalize EXCLUDE_FROM_ALL)
  endif()
  set(${result} OrvantaLocalizer::ovlocalize PARENT_SCOPE)
endfunction()

# Sets ORVANTA_OVLOCALIZE to a command that runs on this machine. The folders of packages are left out:
# when cross-compiling, the command there is built for the target system.
macro(orvanta_find_host_command)
  find_program(ORVANTA_OVLOCALIZE ovlocalize NO_CMAKE_PATH NO_CMAKE_ENVIRONMENT_PATH
               NO_CMAKE_INSTALL_PREFIX NO_CMAKE_FIND_ROOT_PATH ${ARGN})
endmacro()
