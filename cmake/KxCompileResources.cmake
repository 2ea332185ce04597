# cmake -P KxCompileResources.cmake <settings.cmake>
#
# Compiles a resource script to <work>/image.res and writes <work>/image.d, which lists what it was made of.
#
# The script and what it includes are copied to <work> in UTF-8, each under a #line with its own name. The host's
# preprocessor joins the copies. What it gives is rewritten for the resource compiler, which wants one encoding,
# one kind of path and few kinds of statements.
cmake_minimum_required(VERSION 3.25)

include("${CMAKE_ARGV3}")
set(headers "${CMAKE_CURRENT_LIST_DIR}/rc")
include("${CMAKE_CURRENT_LIST_DIR}/KxResourceEncodings.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/KxResourceSources.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/KxResourceStatements.cmake")

function(preprocess from to)
    # The lines that the compiler would show are those of the copies; names are to be left as they are.
    set(own_options -fno-diagnostics-show-caret -fno-extended-identifiers)
    if(preprocessor_id MATCHES "Clang")
        set(own_options -fno-caret-diagnostics)
    endif()
    set(options -E -x c -undef -nostdinc -DRC_INVOKED -D_WIN32 -DWIN32 -D_WIN64
        -Wno-trigraphs ${own_options})
    foreach(definition IN LISTS definitions)
        list(APPEND options "-D${definition}")
    endforeach()
    cmake_path(GET script PARENT_PATH directory)
    foreach(directory IN ITEMS "${directory}" LISTS directories headers)
        list(APPEND options -I "${directory}")
    endforeach()
    execute_process(COMMAND "${preprocessor}" ${options} -o "${to}" "${from}" RESULT_VARIABLE status)
    if(status)
        message(FATAL_ERROR "${script}: the preprocessor failed")
    endif()
endfunction()

stage_file("${script}" "")
copy_of("${script}" copy)
preprocess("${copy}" "${work}/joined.i")

read_text(text "${work}/joined.i")
rewrite_statements(text)
# The resource compiler refuses to write nothing, and this is not read.
string(APPEND text "1 RCDATA BEGIN END\n")
write_text(text "${work}/joined.rc")

# The resource compiler insists on a preprocessor; the names in the working folder need no quoting for its shell.
execute_process(
    COMMAND "${windres}" --preprocessor=cat -c 65001 -O res -i joined.rc -o image.res
    WORKING_DIRECTORY "${work}" RESULT_VARIABLE status)
if(status)
    file(REMOVE "${work}/image.res")
    message(FATAL_ERROR "${script}: the resource compiler failed")
endif()
write_depfile()
