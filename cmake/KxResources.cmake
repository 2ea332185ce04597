# kx_add_resources(<target> <file>.rc [INCLUDE_DIRECTORIES dir...] [DEFINITIONS NAME[=value]...])
#
# Compiles the resource script and embeds it in the target, an executable or a shared library or module, where
# LoadStringW() and LoadImageW() find it. The script is used as it is: see docs/resources.md.
# INCLUDE_DIRECTORIES are searched for what it includes and for its bitmaps and icons, after its own folder;
# DEFINITIONS are macros of the script, such as those that choose a language.

cmake_policy(PUSH)
cmake_policy(VERSION 3.25)

find_program(KX_WINDRES NAMES x86_64-w64-mingw32-windres i686-w64-mingw32-windres windres
    DOC "The compiler of resource scripts (Debian: binutils-mingw-w64-x86-64)")
find_program(KX_ICONV iconv DOC "Converts resource scripts to UTF-8 (Debian: libc-bin)")

function(kx_add_resources target script)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "INCLUDE_DIRECTORIES;DEFINITIONS")
    if(arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "kx_add_resources: unknown arguments: ${arg_UNPARSED_ARGUMENTS}")
    endif()
    foreach(tool IN ITEMS KX_WINDRES KX_ICONV)
        if(NOT ${tool})
            message(FATAL_ERROR "kx_add_resources: ${tool} is not set: install binutils-mingw-w64-x86-64 and libc-bin")
        endif()
    endforeach()
    get_target_property(type ${target} TYPE)
    # The linker takes from an archive only what is asked for by name, and nothing asks for resources.
    if(NOT type MATCHES "^(EXECUTABLE|SHARED_LIBRARY|MODULE_LIBRARY|OBJECT_LIBRARY)$")
        message(FATAL_ERROR "kx_add_resources: ${target} is no executable, shared library or module")
    endif()

    cmake_path(ABSOLUTE_PATH script BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}" NORMALIZE)
    cmake_path(GET script STEM LAST_ONLY stem)
    # Scripts of one name may lie in several folders.
    string(SHA1 hash "${script}")
    string(SUBSTRING "${hash}" 0 8 hash)
    string(MAKE_C_IDENTIFIER "${target}_${stem}_${hash}" symbol)
    set(work "${CMAKE_CURRENT_BINARY_DIR}/kx_resources/${symbol}")
    set(image "${work}/image.res")

    set(directories)
    foreach(directory IN LISTS arg_INCLUDE_DIRECTORIES)
        cmake_path(ABSOLUTE_PATH directory BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}" NORMALIZE)
        list(APPEND directories "${directory}")
    endforeach()
    # In a file, so that no character needs escaping on the way.
    set(KX_RC_SCRIPT "${script}")
    set(KX_RC_WORK "${work}")
    set(KX_RC_DIRECTORIES "${directories}")
    set(KX_RC_DEFINITIONS "${arg_DEFINITIONS}")
    set(KX_RC_SYMBOL "kxResources_${symbol}")
    configure_file("${CMAKE_CURRENT_FUNCTION_LIST_DIR}/KxResourceSettings.cmake.in" "${work}/settings.cmake" @ONLY)
    configure_file("${CMAKE_CURRENT_FUNCTION_LIST_DIR}/KxEmbeddedImage.cpp.in" "${work}/resources.cpp" @ONLY)

    set(scripts "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/KxCompileResources.cmake")
    foreach(part IN ITEMS Encodings Sources Statements)
        list(APPEND scripts "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/KxResource${part}.cmake")
    endforeach()
    add_custom_command(
        OUTPUT "${image}"
        COMMAND "${CMAKE_COMMAND}" -P "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/KxCompileResources.cmake" "${work}/settings.cmake"
        DEPENDS "${script}" "${work}/settings.cmake" ${scripts}
        DEPFILE "${work}/image.d"
        COMMENT "Compiling resources ${stem}.rc"
        VERBATIM)
    set_source_files_properties("${work}/resources.cpp" PROPERTIES
        OBJECT_DEPENDS "${image}" SKIP_AUTOGEN ON SKIP_UNITY_BUILD_INCLUSION ON)
    target_sources(${target} PRIVATE "${work}/resources.cpp" "${image}")
    target_link_libraries(${target} PRIVATE Kx::Platform)
endfunction()

cmake_policy(POP)
