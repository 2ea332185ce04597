# A ported program with resources of its own and a satellite library.
set(scripts ${PROJECT_SOURCE_DIR}/tests/platform/resources)
kx_add_test(tst_ApplicationResources SOURCES tst_ApplicationResources.cpp)
kx_add_resources(tst_ApplicationResources ${scripts}/application.rc DEFINITIONS KX_TEXT=\"\")
target_include_directories(tst_ApplicationResources PRIVATE ${scripts})
target_compile_definitions(tst_ApplicationResources PRIVATE KX_SATELLITE="$<TARGET_FILE:satellite>")
add_dependencies(tst_ApplicationResources satellite)
