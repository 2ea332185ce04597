# The guard tests once more, in one program with all sources of the library, optimised as hard and as widely as the
# compiler can: nothing that it may conclude about a null object may remove the guard.
if(KX_SANITIZE OR KX_COVERAGE)
    return()
endif()

get_target_property(library_sources KxMFCWrapper SOURCES)
get_target_property(library_directory KxMFCWrapper SOURCE_DIR)
list(TRANSFORM library_sources PREPEND "${library_directory}/" REGEX "^[^/]")

kx_add_test(tst_GuardLto SOURCES tst_Guard.cpp ${library_sources} LIBRARIES Kx::Platform Qt5::Widgets)
set_target_properties(tst_GuardLto PROPERTIES AUTOMOC ON)
# Several sources in one unit take less time, and show the compiler more at once.
set_target_properties(tst_GuardLto PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 10)
set_source_files_properties(tst_Guard.cpp PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
# The library's sources are in the compile commands already; the static analysis would look at each twice.
set_target_properties(tst_GuardLto PROPERTIES EXPORT_COMPILE_COMMANDS OFF)
target_include_directories(tst_GuardLto PRIVATE ${PROJECT_SOURCE_DIR}/include ${library_directory})
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    target_compile_options(tst_GuardLto PRIVATE -O3 -flto)
    target_link_options(tst_GuardLto PRIVATE -O3 -flto -fuse-ld=lld)
else()
    target_compile_options(tst_GuardLto PRIVATE -O3 -flto=auto)
    target_link_options(tst_GuardLto PRIVATE -O3 -flto=auto)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang" AND CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
    # Where it may take an object for not null, Clang reads a member before it has tested the address, and this pass
    # turns some of those reads back into a branch. Without the pass the test sees every one of them.
    target_link_options(tst_GuardLto PRIVATE -Wl,-mllvm,-x86-cmov-converter=false)
endif()
