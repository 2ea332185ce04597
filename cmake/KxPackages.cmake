# The Debian packages, one for each component.

set(library_package libkxmfcwrapper${PROJECT_VERSION_MAJOR})

set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kxmfcwrapper)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_CONTACT "The KxMFCWrapper authors" CACHE STRING "The maintainer whom the packages name")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL library development documentation)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SOURCE kxmfcwrapper)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(package_version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "MFC class interface on Qt widgets
Desktop applications written against the MFC classes and the Win32 window
functions are recompiled with it, and run with Qt widgets.")
set(shlibs)
foreach(library IN LISTS kx_libraries)
    string(APPEND shlibs "lib${library} ${PROJECT_VERSION_MAJOR} ${library_package} (>= ${PROJECT_VERSION})\n")
endforeach()
file(CONFIGURE OUTPUT install/shlibs CONTENT "${shlibs}")
file(CONFIGURE OUTPUT install/triggers CONTENT "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${kx_generated_dir}/shlibs ${kx_generated_dir}/triggers)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libkxmfcwrapper-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "MFC class interface on Qt widgets (development files)
Headers, the CMake package and the pkg-config modules. The recommended
package compiles the resource scripts of a program.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library_package} (= ${package_version}), qtbase5-dev (>= 5.15)")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS binutils-mingw-w64-x86-64)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS libkxmfcwrapper-doc)

set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_NAME libkxmfcwrapper-doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOCUMENTATION_DESCRIPTION "MFC class interface on Qt widgets (documentation)
What differs from MFC, how to bring resources over, and how the library is
built.")

# The script is given only what begins with CPACK.
set(CPACK_KX_DOCUMENTS ${CMAKE_INSTALL_DOCDIR})
set(CPACK_KX_CHANGELOG ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/KxFinishPackages.cmake)

include(CPack)
