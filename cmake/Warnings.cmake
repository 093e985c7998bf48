# The warnings that every target of ours is held to.
add_library(orvanta_warnings INTERFACE)
target_compile_options(orvanta_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  $<$<BOOL:${ORVANTA_WARNINGS_AS_ERRORS}>:-Werror>)
