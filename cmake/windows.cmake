# What both Windows builds share. One executable that needs nothing beside it.
if(WIN32)
    enable_language(RC)
    add_compile_definitions(WINVER=0x0501 _WIN32_WINNT=0x0501 _WIN32_IE=0x0600 WIN32_LEAN_AND_MEAN NOMINMAX STRICT)
    if(CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 13)
        add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:SHELL:-include ${CMAKE_CURRENT_LIST_DIR}/thread_types.h>")
    endif()
    # One small file: optimised for size, but for the checksums, which set their own level.
    set(CMAKE_CXX_FLAGS_RELEASE "-Os -DNDEBUG")
    add_compile_options(-ffunction-sections -fdata-sections)
    add_link_options(-static -Wl,--gc-sections -Wl,--dynamicbase -Wl,--nxcompat)
    # The same bytes whenever and wherever it is built.
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=>)
    add_link_options(-Wl,--no-insert-timestamp)
    if(CMAKE_SIZEOF_VOID_P EQUAL 8)
        add_link_options(-Wl,--high-entropy-va)
    else()
        # No SSE is assumed; the subsystem version lets the oldest systems load the file.
        add_compile_options(-march=i686 -mtune=generic)
        add_link_options(-Wl,--major-subsystem-version=4 -Wl,--minor-subsystem-version=0
                         -Wl,--major-os-version=4 -Wl,--minor-os-version=0)
    endif()
endif()
