# The resources of a program, those of modules that it loads, and one script in all the encodings.
set(scripts ${CMAKE_CURRENT_LIST_DIR}/resources)

kx_add_test(tst_PlatformResources SOURCES tst_PlatformResources.cpp LIBRARIES ${platform_libraries})
kx_add_resources(tst_PlatformResources ${scripts}/application.rc DEFINITIONS "KX_TEXT=\"from outside\"")
kx_add_resources(tst_PlatformResources ${scripts}/second.rc)
target_compile_definitions(tst_PlatformResources PRIVATE KX_RESOURCES_DIR="${scripts}/res")

kx_add_test(tst_ResourceScripts SOURCES tst_ResourceScripts.cpp LIBRARIES ${platform_libraries})

# kx_add_resource_module(test name script...): a module for the test with nothing but resources.
function(kx_add_resource_module test name)
    add_library(${name} MODULE)
    set_target_properties(${name} PROPERTIES PREFIX "" LINKER_LANGUAGE CXX)
    target_link_libraries(${name} PRIVATE kx_build_options)
    foreach(script IN LISTS ARGN)
        kx_add_resources(${name} ${script} INCLUDE_DIRECTORIES ${scripts})
    endforeach()
    target_compile_definitions(${test} PRIVATE KX_${name}="$<TARGET_FILE:${name}>")
    add_dependencies(${test} ${name})
endfunction()

kx_add_resource_module(tst_PlatformResources satellite ${scripts}/satellite.rc)
target_compile_definitions(tst_PlatformResources PRIVATE KX_MODULE_FILE="$<TARGET_FILE:platform_module>")
add_dependencies(tst_PlatformResources platform_module)

# kx_write_encoded(name encoding mark): encodings.rc in another encoding, behind a byte order mark.
function(kx_write_encoded name encoding mark)
    set(file ${CMAKE_CURRENT_BINARY_DIR}/encodings/${name}.rc)
    execute_process(COMMAND printf %b "${mark}" OUTPUT_FILE ${file}.mark COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${KX_ICONV} -f UTF-8 -t ${encoding} ${scripts}/encodings.rc
        OUTPUT_FILE ${file}.text COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${CMAKE_COMMAND} -E cat ${file}.mark ${file}.text
        OUTPUT_FILE ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/encodings)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${scripts}/encodings.rc)
kx_write_encoded(utf8 UTF-8 "")
kx_write_encoded(utf8_mark UTF-8 "\\357\\273\\277")
kx_write_encoded(utf16le UTF-16LE "\\377\\376")
kx_write_encoded(utf16be UTF-16BE "\\376\\377")
kx_write_encoded(cp1252 CP1252 "")
foreach(encoding IN ITEMS utf8 utf8_mark utf16le utf16be cp1252)
    kx_add_resource_module(tst_ResourceScripts encoding_${encoding}
        ${CMAKE_CURRENT_BINARY_DIR}/encodings/${encoding}.rc)
endforeach()

# What the resource editor writes, and what people do.
kx_add_resource_module(tst_ResourceScripts forms ${scripts}/forms.rc)
kx_add_resource_module(tst_ResourceScripts nothing ${scripts}/nothing.rc)

# Scripts in several code pages.
set(pages comment.rc first.rc mixed.rc other.rc undefined.rc unmarked.rc)
foreach(file IN LISTS pages)
    list(APPEND page_scripts ${scripts}/pages/${file})
endforeach()
kx_add_resource_module(tst_ResourceScripts pages ${page_scripts})

# The readers by themselves, from bytes.
set(platform_source ${PROJECT_SOURCE_DIR}/platform/source)
kx_add_test(tst_ResourceImages
    SOURCES
        tst_ResourceImages.cpp
        ${platform_source}/ImageFormats.cpp
        ${platform_source}/LanguageIds.cpp
        ${platform_source}/ResourceImage.cpp
        ${platform_source}/StringTable.cpp
    LIBRARIES Qt5::Gui)
target_include_directories(tst_ResourceImages PRIVATE ${platform_source})
target_compile_definitions(tst_ResourceImages PRIVATE
    KX_FUZZ_CORPUS="${PROJECT_SOURCE_DIR}/tests/fuzz/resources")

find_program(KX_NINJA ninja)
if(KX_NINJA)
    add_test(NAME resource_build
        COMMAND ${CMAKE_COMMAND} -P ${CMAKE_CURRENT_LIST_DIR}/ResourceBuild.cmake
            ${CMAKE_CURRENT_BINARY_DIR}/resource_build ${PROJECT_SOURCE_DIR} ${CMAKE_CXX_COMPILER}
            $<TARGET_FILE:KxPlatform>)
    if(KX_SANITIZE)
        set_tests_properties(resource_build PROPERTIES
            ENVIRONMENT "KX_TEST_FLAGS=-fsanitize=${KX_SANITIZE};${kx_leak_options}")
    endif()
endif()
