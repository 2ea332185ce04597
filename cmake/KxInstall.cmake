# What an installation has, in three components: library, development and documentation. All of it finds its parts
# relative to itself, so the tree may be moved.

include(CMakePackageConfigHelpers)

set(kx_include_dir ${CMAKE_INSTALL_INCLUDEDIR}/KxMFCWrapper)
set(kx_config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/KxMFCWrapper)
set(kx_generated_dir ${PROJECT_BINARY_DIR}/install)

# KxPlatform is missing where another library takes its place, which has an installation of its own.
set(kx_libraries KxMFCWrapper)
if(TARGET KxPlatform)
    list(APPEND kx_libraries KxPlatform)
endif()

foreach(library IN LISTS kx_libraries ITEMS KxPortedHeaders)
    string(REGEX REPLACE "^Kx" "" export_name ${library})
    set_target_properties(${library} PROPERTIES EXPORT_NAME ${export_name})
endforeach()
# A program is linked with the first library, which has to find the second.
set_target_properties(KxMFCWrapper PROPERTIES INSTALL_RPATH $ORIGIN)

install(TARGETS ${kx_libraries} EXPORT KxMFCWrapperTargets
    LIBRARY
        DESTINATION ${CMAKE_INSTALL_LIBDIR}
        COMPONENT library
        NAMELINK_COMPONENT development
    INCLUDES DESTINATION ${kx_include_dir})
# These headers are named like those of a system, so no other target leads to their folder.
install(TARGETS KxPortedHeaders EXPORT KxMFCWrapperTargets
    INCLUDES DESTINATION ${kx_include_dir}/mfc)
install(DIRECTORY include/ platform/include/
    DESTINATION ${kx_include_dir}
    COMPONENT development
    FILES_MATCHING PATTERN "*.h")

# find_package(KxMFCWrapper)
install(EXPORT KxMFCWrapperTargets
    DESTINATION ${kx_config_dir}
    NAMESPACE Kx::
    COMPONENT development)
configure_package_config_file(cmake/KxMFCWrapperConfig.cmake.in ${kx_generated_dir}/KxMFCWrapperConfig.cmake
    INSTALL_DESTINATION ${kx_config_dir}
    NO_SET_AND_CHECK_MACRO)
# The SONAME makes the same promise.
write_basic_package_version_file(${kx_generated_dir}/KxMFCWrapperConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(
    FILES
        ${kx_generated_dir}/KxMFCWrapperConfig.cmake
        ${kx_generated_dir}/KxMFCWrapperConfigVersion.cmake
        cmake/KxCompileResources.cmake
        cmake/KxEmbeddedImage.cpp.in
        cmake/KxResourceEncodings.cmake
        cmake/KxResourceSettings.cmake.in
        cmake/KxResourceSources.cmake
        cmake/KxResourceStatements.cmake
        cmake/KxResources.cmake
    DESTINATION ${kx_config_dir}
    COMPONENT development)
install(DIRECTORY cmake/rc DESTINATION ${kx_config_dir} COMPONENT development)

# kx_install_pkg_config(name DESCRIPTION text [REQUIRES modules] [CFLAGS flags] [LIBS flags])
function(kx_install_pkg_config name)
    cmake_parse_arguments(PARSE_ARGV 1 module "" "DESCRIPTION;REQUIRES;CFLAGS;LIBS" "")
    set(folder "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig")
    file(RELATIVE_PATH prefix "${folder}" "${CMAKE_INSTALL_PREFIX}")
    file(RELATIVE_PATH includedir "${folder}" "${CMAKE_INSTALL_FULL_INCLUDEDIR}/KxMFCWrapper")
    configure_file(cmake/KxPkgConfig.pc.in ${kx_generated_dir}/${name}.pc @ONLY)
    install(FILES ${kx_generated_dir}/${name}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT development)
endfunction()

set(platform_module)
if(TARGET KxPlatform)
    set(platform_module kxplatform)
    kx_install_pkg_config(kxplatform
        DESCRIPTION "What KxMFCWrapper asks of the platform"
        REQUIRES "Qt5Gui >= 5.15"
        CFLAGS "-I\${includedir} -fPIC"
        LIBS "-L\${libdir} -lKxPlatform")
endif()
kx_install_pkg_config(kxmfcwrapper
    DESCRIPTION "${PROJECT_DESCRIPTION}"
    REQUIRES "${platform_module} Qt5Widgets >= 5.15"
    # Qt wants the second; porting.md says why the first is needed.
    CFLAGS "-I\${includedir} -fno-delete-null-pointer-checks -fPIC"
    LIBS "-L\${libdir} -lKxMFCWrapper")
kx_install_pkg_config(kxportedheaders
    DESCRIPTION "The header names that ported sources include, for KxMFCWrapper"
    REQUIRES kxmfcwrapper
    CFLAGS "-I\${includedir}/mfc")

foreach(component IN ITEMS library development documentation)
    install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT ${component})
endforeach()
file(GLOB documents CONFIGURE_DEPENDS docs/*.md)
install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation)
install(FILES ${documents} DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs COMPONENT documentation)
install(DIRECTORY docs/images DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs COMPONENT documentation)
# The reference manual, when it was built.
install(DIRECTORY ${PROJECT_BINARY_DIR}/docs/html
    DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT documentation
    OPTIONAL)
