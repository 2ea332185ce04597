# Kx::Platform is the platform library of the team that builds: the target that KX_PLATFORM_TARGET names.
if(NOT TARGET ${KX_PLATFORM_TARGET})
    message(FATAL_ERROR "KX_PLATFORM_TARGET: there is no target \"${KX_PLATFORM_TARGET}\" yet; "
        "define it before the library is added")
endif()
if(KX_BUILD_TESTS)
    message(FATAL_ERROR "KX_PLATFORM_TARGET: the tests test KxPlatform, too; set KX_BUILD_TESTS to OFF")
endif()
# An alias cannot stand for an alias.
get_target_property(kx_platform_target ${KX_PLATFORM_TARGET} ALIASED_TARGET)
if(NOT kx_platform_target)
    set(kx_platform_target ${KX_PLATFORM_TARGET})
endif()
# The alias of a local target would be local, too, and unknown to the programs.
get_target_property(kx_platform_imported ${kx_platform_target} IMPORTED)
get_target_property(kx_platform_global ${kx_platform_target} IMPORTED_GLOBAL)
if(kx_platform_imported AND NOT kx_platform_global)
    message(FATAL_ERROR "KX_PLATFORM_TARGET: import \"${KX_PLATFORM_TARGET}\" as GLOBAL")
endif()
add_library(Kx::Platform ALIAS ${kx_platform_target})
