# The warnings that every target of ours is held to. GCC 12 sees overlaps that are not there in
# std::string's operator+ (its bug 105651).
add_library(orvanta_warnings INTERFACE)
target_compile_options(orvanta_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  $<$<BOOL:${ORVANTA_WARNINGS_AS_ERRORS}>:-Werror>)
