# Every installed header compiles alone without warnings under strict flags, and all of them together
# with the flags of other applications.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
set(include ${WORK_DIR}/prefix/include)
file(GLOB_RECURSE headers RELATIVE ${include} ${include}/*.h)
list(FILTER headers EXCLUDE REGEX "^orvanta/q[a-z]+/")  # Those need a toolkit's own include paths.
list(LENGTH headers count)
if(count LESS 30)
  message(FATAL_ERROR "only ${count} headers are installed")
endif()

set(strict -Wall -Wextra -Wpedantic -Werror -Wconversion -Wsign-conversion -Wshadow
  -Wold-style-cast -Wcast-qual -Wcast-align -Wdouble-promotion -Wformat=2 -Wundef
  -Wnon-virtual-dtor -Woverloaded-virtual -Wextra-semi -Wzero-as-null-pointer-constant)
set(all "")
foreach(header IN LISTS headers)
  must_run(${COMPILER} -std=c++20 ${strict} -fsyntax-only -I ${include} -include ${header}
           -x c++ /dev/null)
  string(APPEND all "#include <${header}>\n")
endforeach()

file(WRITE ${WORK_DIR}/all.cpp "${all}")
find_program(CLANG clang++)
foreach(compiler IN ITEMS ${COMPILER} ${CLANG})
  foreach(options IN ITEMS "-std=c++20;-fno-exceptions;-fno-rtti" "-std=c++2b")
    must_run(${compiler} ${options} ${strict} -fsyntax-only -I ${include} ${WORK_DIR}/all.cpp)
  endforeach()
endforeach()
