# Applications against the installed tree: by find_package with and without Qt, and by pkg-config.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
set(find_options -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix)

configure_and_build(${CMAKE_CURRENT_LIST_DIR} ${WORK_DIR}/core ${find_options}
                    -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON)
must_answer(${WORK_DIR}/core/consumer "${core_answer}")
must_answer(${WORK_DIR}/core/consumer_plain "${core_answer}")
must_answer(${WORK_DIR}/core/consumer_keys "${keys_answer}")
if(WITH_QT)
  configure_and_build(${CMAKE_CURRENT_LIST_DIR} ${WORK_DIR}/qt ${find_options}
                      -DCOMPONENT=${component})
  applications_must_answer(${WORK_DIR}/qt)
endif()

file(GLOB_RECURSE pc ${WORK_DIR}/prefix/*/orvanta.pc)
cmake_path(GET pc PARENT_PATH pc_folder)
set(ENV{PKG_CONFIG_PATH} ${pc_folder})
must_run(pkg-config --cflags --libs orvanta)
separate_arguments(flags UNIX_COMMAND "${output}")
must_run(pkg-config --variable=libdir orvanta)
string(STRIP "${output}" libdir)
must_run(${COMPILER} -std=c++20 ${CMAKE_CURRENT_LIST_DIR}/main.cpp -o ${WORK_DIR}/pkg_consumer
         ${flags} -Wl,-rpath,${libdir})
must_answer(${WORK_DIR}/pkg_consumer "${core_answer}")

# The program that README.md shows, as it stands there.
configure_and_build(${SOURCE_DIR}/examples/hello ${WORK_DIR}/hello ${find_options})
file(READ ${SOURCE_DIR}/examples/hello/output.txt hello_answer)
string(STRIP "${hello_answer}" hello_answer)
set(ENV{LC_ALL} fr_FR.UTF-8)
must_answer(${WORK_DIR}/hello/hello "${hello_answer}")
