# Included into the projects of examples/, whose program has the name of its folder.
cmake_path(GET CMAKE_SOURCE_DIR FILENAME program)
set(driver ${CMAKE_CURRENT_LIST_DIR}/driver.cpp)
cmake_language(DEFER CALL target_sources ${program} PRIVATE ${driver})
