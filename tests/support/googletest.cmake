# GoogleTest from its sources, so that it is built with the same compiler and sanitizers as the tests.
set(GOOGLETEST_SOURCE_DIR /usr/src/googletest CACHE PATH "Sources of GoogleTest (package googletest)")
if(NOT EXISTS ${GOOGLETEST_SOURCE_DIR}/googlemock/src/gmock-all.cc)
    message(FATAL_ERROR "GoogleTest's sources are missing: install the package googletest")
endif()

add_library(gmock_main STATIC EXCLUDE_FROM_ALL
    ${GOOGLETEST_SOURCE_DIR}/googletest/src/gtest-all.cc
    ${GOOGLETEST_SOURCE_DIR}/googlemock/src/gmock-all.cc
    ${GOOGLETEST_SOURCE_DIR}/googlemock/src/gmock_main.cc)
target_compile_options(gmock_main PRIVATE -w)
set_target_properties(gmock_main PROPERTIES UNITY_BUILD OFF) # A program with a `main` of its own leaves out that file.
target_include_directories(gmock_main SYSTEM
    PUBLIC ${GOOGLETEST_SOURCE_DIR}/googletest/include ${GOOGLETEST_SOURCE_DIR}/googlemock/include
    PRIVATE ${GOOGLETEST_SOURCE_DIR}/googletest ${GOOGLETEST_SOURCE_DIR}/googlemock)
if(WIN32 AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # The thread model of the Windows builds has no std::mutex before GCC 13; the tests have one thread.
    target_compile_definitions(gmock_main PUBLIC GTEST_IS_THREADSAFE=0)
    target_compile_options(gmock_main PRIVATE -include ${CMAKE_CURRENT_LIST_DIR}/no_death_tests.h)
elseif(NOT WIN32)
    find_package(Threads REQUIRED)
    target_link_libraries(gmock_main PUBLIC Threads::Threads)
endif()
