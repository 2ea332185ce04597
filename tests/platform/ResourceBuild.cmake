# cmake -P ResourceBuild.cmake <work> <source> <compiler> <platform library>
#
# Builds a small project with resources: it must rebuild when anything that the script is made of changes, and
# fail with the message, file and line of the tool that refuses.
cmake_minimum_required(VERSION 3.25)
set(work "${CMAKE_ARGV3}")
set(source "${CMAKE_ARGV4}")
set(compiler "${CMAKE_ARGV5}")
set(library "${CMAKE_ARGV6}")
# Neither spaces nor characters that mean something to a shell, to CMake or to the build tool are in the way.
set(project "${work}/a pröject [x]")

function(write_project)
    file(REMOVE_RECURSE "${work}")
    file(WRITE "${project}/CMakeLists.txt" "
        cmake_minimum_required(VERSION 3.25)
        project(Resources LANGUAGES CXX)
        add_library(Kx::Platform SHARED IMPORTED)
        set_target_properties(Kx::Platform PROPERTIES
            IMPORTED_LOCATION \"${library}\"
            INTERFACE_INCLUDE_DIRECTORIES \"${source}/platform/include;${source}/include\")
        include(\"${source}/cmake/KxResources.cmake\")
        add_executable(show show.cpp)
        kx_add_resources(show app.rc INCLUDE_DIRECTORIES shared)
        ")
    file(WRITE "${project}/show.cpp" [[
#include <KxPlatform.h>
#include <cstdio>
int main()
{
    wchar_t text[100];
    LoadStringW(nullptr, 1, text, 100);
    std::printf("%ls ", text);
    LoadStringW(nullptr, 2, text, 100);
    std::printf("%ls", text);
    HANDLE bitmap = LoadImageW(nullptr, MAKEINTRESOURCEW(3), IMAGE_BITMAP, 0, 0, 0);
    std::printf(" %s\n", bitmap ? "bitmap" : "no bitmap");
}
]])
    file(WRITE "${project}/shared/Texts.h" "#define TEXT_ONE \"one\"\n")
    file(WRITE "${project}/more/part.rc2" "STRINGTABLE\nBEGIN\n  2 \"two\"\n  3 \"??=\"\nEND\n")
    file(COPY "${source}/tests/platform/resources/res/arrow.bmp" DESTINATION "${project}/res")
    write_script("")
endfunction()

function(write_script line)
    file(WRITE "${project}/app.rc" "#include \"texts.h\"
#include \"More\\Part.rc2\"
STRINGTABLE
BEGIN
  1 TEXT_ONE
${line}
END
3 BITMAP \"res\\\\ARROW.bmp\"
")
endfunction()

function(build)
    execute_process(COMMAND "${CMAKE_COMMAND}" --build "${work}/build"
        RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    set(status ${status} PARENT_SCOPE)
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect_text expected)
    build()
    if(status)
        message(FATAL_ERROR "the build failed: ${output}")
    endif()
    execute_process(COMMAND "${work}/build/show" OUTPUT_VARIABLE shown)
    if(NOT shown STREQUAL "${expected}\n")
        message(FATAL_ERROR "shows \"${shown}\", not \"${expected}\"")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect_failure)
    build()
    if(NOT status)
        message(FATAL_ERROR "the build did not fail")
    endif()
    foreach(part IN LISTS ARGN)
        string(FIND "${output}" "${part}" found)
        if(found EQUAL -1)
            message(FATAL_ERROR "no \"${part}\" in: ${output}")
        endif()
    endforeach()
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect_nothing_to_do)
    build()
    if(NOT output MATCHES "no work to do")
        message(FATAL_ERROR "built once more: ${output}")
    endif()
endfunction()

function(change file text)
    # The build tool compares times.
    execute_process(COMMAND "${CMAKE_COMMAND}" -E sleep 0.02)
    file(WRITE "${project}/${file}" "${text}")
endfunction()

write_project()
execute_process(COMMAND "${CMAKE_COMMAND}" -G Ninja -S "${project}" -B "${work}/build"
    "-DCMAKE_CXX_COMPILER=${compiler}" "-DCMAKE_CXX_FLAGS=$ENV{KX_TEST_FLAGS}"
    RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(status)
    message(FATAL_ERROR "${output}")
endif()
expect_text("one two bitmap")
if(output MATCHES "warning")
    message(FATAL_ERROR "warns: ${output}")
endif()
expect_nothing_to_do()

change(shared/Texts.h "#define TEXT_ONE \"other\"\n")
expect_text("other two bitmap")
change(more/part.rc2 "STRINGTABLE { 2 \"second\" }\n")
expect_text("other second bitmap")
expect_nothing_to_do()
file(TOUCH "${project}/res/arrow.bmp")
build()
if(NOT output MATCHES "Compiling resources")
    message(FATAL_ERROR "the bitmap is no dependency: ${output}")
endif()

write_script("  4 \"four\" ,, ")
expect_failure("windres" "${project}/app.rc:6: syntax error")
write_script("  IDS_UNKNOWN \"four\"")
expect_failure("windres" "${project}/app.rc:6: syntax error")
write_script("#error \"own message\"")
expect_failure("${project}/app.rc:6" "own message")
if(output MATCHES "\\^~")
    message(FATAL_ERROR "shows a line of its own copy: ${output}")
endif()
write_script("#include \"missing.h\"")
expect_failure("${project}/app.rc:6" "missing.h")
write_script("END 5 BITMAP \"res\\\\missing.bmp\" STRINGTABLE BEGIN 5 \"five\"")
expect_failure("${project}/app.rc:6: there is no file res/missing.bmp")
write_script("END rcinclude \"more\\\\part.rc2\" STRINGTABLE BEGIN 5 \"five\"")
expect_failure("${project}/app.rc:6: RCINCLUDE")
# What is left out leaves its lines.
write_script("END\n1 DIALOG 0,\n0,0,0\nBEGIN\n  LTEXT\nEND\nSTRINGTABLE\nBEGIN\n  5 5")
expect_failure("windres" "${project}/app.rc:14: syntax error")
write_script("END\n1 DIALOG 0,0,0,0\nBEGIN\n  LTEXT BEGIN\n")
expect_failure("${project}/app.rc:7: the statement has no end")
write_script("END\n1 DIALOG 0,0,0,0\nSTRINGTABLE BEGIN 5 \"five\"")
expect_failure("${project}/app.rc:7: the statement has no body")
write_script("END 5 STRINGTABLE BEGIN 5 \"five\"")
expect_failure("windres" "${project}/app.rc:6: syntax error")
write_script("")
change(more/part.rc2 "STRINGTABLE\nBEGIN\n  2 2\nEND\n")
expect_failure("windres" "${project}/more/part.rc2:3: syntax error")
change(more/part.rc2 "STRINGTABLE { 2 \"mended\" }\n")
expect_text("other mended bitmap")
file(REMOVE_RECURSE "${work}")
