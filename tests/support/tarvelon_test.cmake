include(GoogleTest)

# tarvelon_test(name SOURCES file... LIBS library...)
#
# A test program. Native builds register each of its cases; Windows builds register the program as one test that
# runs under Wine, since starting Wine costs more than most cases. Whatever needs the simulated workstation is
# native only.
function(tarvelon_test name)
    cmake_parse_arguments(TEST "" "" "SOURCES;LIBS" ${ARGN})
    if(WIN32 AND tarvelon_sim IN_LIST TEST_LIBS)
        return()
    endif()
    add_executable(${name} ${TEST_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE ${TEST_LIBS} gmock_main tarvelon_warnings)
    if(NOT WIN32)
        gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST)
        return()
    endif()
    math(EXPR bits "${CMAKE_SIZEOF_VOID_P} * 8")
    set_target_properties(${name} PROPERTIES CROSSCOMPILING_EMULATOR
        "${PROJECT_SOURCE_DIR}/tools/wine-run;${bits};${CMAKE_BINARY_DIR}/wine")
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES SKIP_RETURN_CODE 77 RESOURCE_LOCK wine TIMEOUT 300)
endfunction()
