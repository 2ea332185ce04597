/// @file KxEmbeddedResources.h
/// @brief How resources compiled from an .rc file become known.
#pragma once

#include "KxPlatformExport.h"

/// Gives the module that holds it a compiled resource image, for as long as the object lives.
///
/// `kx_add_resources()` generates the object: applications need not make one. Several images of a module are
/// searched in the order in which they were made known. A damaged image holds no resources.
class KX_PLATFORM_EXPORT KxEmbeddedResources
{
public:
    /// Makes the image known.
    /// @param begin the image, in the .res format, inside of the program or shared library that it belongs
    /// to. It is not copied.
    /// @param end the address behind it.
    KxEmbeddedResources(const unsigned char *begin, const unsigned char *end);
    KxEmbeddedResources(const KxEmbeddedResources &) = delete;
    KxEmbeddedResources &operator=(const KxEmbeddedResources &) = delete;
    /// Takes the image back: its strings and pictures are no longer found.
    ~KxEmbeddedResources();

private:
    const void *const m_module;
    const unsigned char *const m_begin;
};
