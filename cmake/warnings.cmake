# Our own code is held to these; tests and third-party sources link `tarvelon_warnings` only where they are ours.
add_library(tarvelon_warnings INTERFACE)
target_compile_options(tarvelon_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
# GCC 12 takes the concatenation of texts for overlapping copies (its bug 105651).
target_compile_options(tarvelon_warnings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

# A library of the product: its sources, and the root as include path so that #include lines show the folder.
function(tarvelon_library name)
    add_library(${name} STATIC ${ARGN})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE tarvelon_warnings)
endfunction()
