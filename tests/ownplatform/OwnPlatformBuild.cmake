# cmake -P OwnPlatformBuild.cmake <work> <example> <compiler>
cmake_minimum_required(VERSION 3.25)
set(work "${CMAKE_ARGV3}")
set(example "${CMAKE_ARGV4}")
set(compiler "${CMAKE_ARGV5}")
file(REMOVE_RECURSE "${work}")

# run(command...): sets status and output.
macro(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
endmacro()

# run_well(command...)
macro(run_well)
    run(${ARGN})
    if(status)
        message(FATAL_ERROR "failed: ${ARGN}\n${output}")
    endif()
endmacro()

run_well("${CMAKE_COMMAND}" -G Ninja -S "${example}" -B "${work}/build" "-DCMAKE_CXX_COMPILER=${compiler}")
# What the plan links the programs and the libraries with.
run_well("${CMAKE_COMMAND}" --build "${work}/build" --target ownplatform ownservices -- -n -v)
set(plan "${work}/plan.txt")
file(WRITE "${plan}" "${output}")
set(own "Files\\.cpp\\.o[^\n]*LoadImage\\.cpp\\.o[^\n]*WideCharacters\\.cpp\\.o")
foreach(part IN ITEMS
        "-I[^\n ]*/platform/include [^\n]*/examples/ownplatform/platform/OwnServices\\.cpp\n"
        "-shared [^\n]*-o platform/libown_platform\\.so [^\n]*${own}[^\n]*libKxPlatformNames\\.a"
        "-shared [^\n]*-o KxMFCWrapper/lib/libKxMFCWrapper\\.so[^\n]*libown_platform\\.so"
        " -o ownservices [^\n]*libKxMFCWrapper\\.so[^\n]*libown_platform\\.so"
        "resources\\.cpp\\.o[^\n]* -o ownplatform [^\n]*libKxMFCWrapper\\.so[^\n]*libown_platform\\.so")
    if(NOT output MATCHES "${part}")
        message(FATAL_ERROR "${plan} has no ${part}")
    endif()
endforeach()
if(output MATCHES "libKxPlatform\\.|/Services\\.cpp")
    message(FATAL_ERROR "${plan} has ${CMAKE_MATCH_0}, which is replaced")
endif()

# expect_configure(target text option...): configures a project that has Own::Platform, an alias, and Own::Local.
function(expect_configure target text)
    file(WRITE "${work}/other/CMakeLists.txt" "
        cmake_minimum_required(VERSION 3.25)
        project(Other LANGUAGES CXX)
        add_library(own SHARED IMPORTED GLOBAL)
        add_library(Own::Platform ALIAS own)
        add_library(Own::Local SHARED IMPORTED)
        set(KX_PLATFORM_TARGET ${target})
        add_subdirectory(\"${example}/../..\" KxMFCWrapper)
        get_target_property(aliased Kx::Platform ALIASED_TARGET)
        message(\"Kx::Platform is \${aliased}\")
        ")
    run("${CMAKE_COMMAND}" -S "${work}/other" -B "${work}/other/build" "-DCMAKE_CXX_COMPILER=${compiler}" ${ARGN})
    string(FIND "${output}" "${text}" found)
    if(found EQUAL -1)
        message(FATAL_ERROR "does not say ${text}\n${output}")
    endif()
endfunction()

expect_configure(Own::Platform "Kx::Platform is own")
expect_configure(missing "KX_PLATFORM_TARGET: there is no target \"missing\"")
expect_configure(Own::Local "KX_PLATFORM_TARGET: import \"Own::Local\" as GLOBAL")
expect_configure(Own::Platform "KX_PLATFORM_TARGET: the tests test KxPlatform" -DKX_BUILD_TESTS=ON)
file(REMOVE_RECURSE "${work}")
