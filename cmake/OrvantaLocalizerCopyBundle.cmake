# Copies the .lproj folders of FROM into TO, and removes those that the last call, by the LIST that it
# wrote, copied there and FROM lacks now.
cmake_minimum_required(VERSION 3.25)

file(GLOB folders LIST_DIRECTORIES TRUE RELATIVE ${FROM} ${FROM}/*.lproj)
set(known)
if(EXISTS ${LIST})
  file(STRINGS ${LIST} known)
endif()
foreach(folder IN LISTS known)
  if(NOT folder IN_LIST folders)
    file(REMOVE_RECURSE ${TO}/${folder})
  endif()
endforeach()
foreach(folder IN LISTS folders)
  file(COPY ${FROM}/${folder} DESTINATION ${TO})
endforeach()
list(JOIN folders "\n" lines)
file(WRITE ${LIST} "${lines}\n")
