# Not linked with the library: it loads it at run time, and leaves the process in the way that its argument names.
add_executable(tst_LoadedClipboard ${CMAKE_CURRENT_LIST_DIR}/tst_LoadedClipboard.cpp)
target_include_directories(tst_LoadedClipboard PRIVATE
    ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR}/tests/support)
target_compile_definitions(tst_LoadedClipboard PRIVATE KX_LIBRARY="$<TARGET_FILE:KxMFCWrapper>")
target_link_libraries(tst_LoadedClipboard PRIVATE kx_build_options ${CMAKE_DL_LIBS})
add_dependencies(tst_LoadedClipboard KxMFCWrapper)
foreach(way leave unattached unload again)
    add_test(NAME tst_LoadedClipboard-${way} COMMAND tst_LoadedClipboard ${way})
endforeach()
