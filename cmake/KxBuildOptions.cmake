# How our own code is compiled. Nothing here reaches a project that links the library.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")

find_program(KX_CCACHE ccache)
if(KX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # What ccache asks for to store what was compiled with precompiled headers.
    set(CMAKE_CXX_COMPILER_LAUNCHER env CCACHE_SLOPPINESS=pch_defines,time_macros "${KX_CCACHE}")
endif()

add_library(kx_build_options INTERFACE)
target_compile_options(kx_build_options INTERFACE
    -Wall -Wextra -Wpedantic -Wsuggest-override
    $<$<BOOL:${KX_WARNINGS_AS_ERRORS}>:-Werror>
    # Members called through a null object compare their own address first.
    -fno-delete-null-pointer-checks)
target_compile_definitions(kx_build_options INTERFACE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)

if(KX_SANITIZE)
    target_compile_options(kx_build_options INTERFACE
        -fsanitize=${KX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer
        # Calls through a null object, or one at any address up to 4095, are part of the interface.
        -fno-sanitize=null,vptr,alignment)
    target_link_options(kx_build_options INTERFACE -fsanitize=${KX_SANITIZE})
endif()
# For the environment of tests: what the leak checker finds in libraries that are not ours.
set(kx_leak_options "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/scripts/lsan.supp:print_suppressions=0")
if(KX_COVERAGE)
    target_compile_options(kx_build_options INTERFACE --coverage)
    target_link_options(kx_build_options INTERFACE --coverage)
endif()

# A shared library of this project: SONAME, versions, no unresolved symbols.
function(kx_library_defaults target)
    target_link_libraries(${target} PRIVATE kx_build_options)
    set_target_properties(${target} PROPERTIES
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR})
    if(NOT KX_SANITIZE)
        target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
endfunction()
