# Not linked with the library: it loads it at run time, and leaves the process in the way that its argument names.
add_executable(tst_LoadedLibrary ${CMAKE_CURRENT_LIST_DIR}/tst_LoadedLibrary.cpp)
target_include_directories(tst_LoadedLibrary PRIVATE ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR}/tests/support)
target_compile_definitions(tst_LoadedLibrary PRIVATE KX_LIBRARY="$<TARGET_FILE:KxMFCWrapper>")
target_link_libraries(tst_LoadedLibrary PRIVATE kx_build_options ${CMAKE_DL_LIBS})
add_dependencies(tst_LoadedLibrary KxMFCWrapper)
foreach(way leave unload again use)
    add_test(NAME tst_LoadedLibrary-${way} COMMAND tst_LoadedLibrary ${way})
endforeach()
