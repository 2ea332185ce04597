# Run by CPack between installing and packing.

set(stage "${CPACK_TEMPORARY_INSTALL_DIRECTORY}")

# The documents of each package go to the folder and get the names that Debian wants.
foreach(component IN ITEMS LIBRARY DEVELOPMENT DOCUMENTATION)
    string(TOLOWER ${component} folder)
    set(root "${stage}/${folder}${CPACK_PACKAGING_INSTALL_PREFIX}")
    set(documents "${root}/share/doc/${CPACK_DEBIAN_${component}_PACKAGE_NAME}")
    file(RENAME "${root}/${CPACK_KX_DOCUMENTS}" "${documents}")
    file(RENAME "${documents}/LICENSE" "${documents}/copyright")
    execute_process(COMMAND gzip -9nc "${CPACK_KX_CHANGELOG}"
        OUTPUT_FILE "${documents}/changelog.gz"
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()
file(REMOVE "${documents}/CHANGELOG.md")

# CPack would find what the libraries depend on, but would then add scripts that call ldconfig, beside the trigger.
file(GLOB_RECURSE libraries "${stage}/library/*.so.*")
file(WRITE "${stage}/debian/control" "")
file(MAKE_DIRECTORY "${stage}/library/DEBIAN")
execute_process(COMMAND dpkg-shlibdeps -O ${libraries}
    WORKING_DIRECTORY "${stage}"
    OUTPUT_VARIABLE depends
    OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "shlibs:Depends=" "" CPACK_DEBIAN_LIBRARY_PACKAGE_DEPENDS "${depends}")
file(REMOVE_RECURSE "${stage}/debian" "${stage}/library/DEBIAN")
