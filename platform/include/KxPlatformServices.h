/// @file KxPlatformServices.h
/// @brief The platform services: keyboard, images, GDI objects and path correction.
///
/// A built-in set serves unless setPlatformServices() installs another. All calls come on the GUI thread. A set of
/// your own may hand out services of the set that platformServices() gave before, and need only replace some.
///
/// A platform library that takes the place of this one (see docs/platform.md) defines all that is declared here,
/// the destructors included.
#pragma once

#include "KxPlatformExport.h"

#include <KxWinTypes.h>
#include <optional>
#include <string>

class QImage;
class QPaintDevice;

/// Tells the state of keys and mouse buttons.
class KX_PLATFORM_EXPORT KxKeyboardService
{
public:
    /// For subclasses.
    KxKeyboardService() = default;
    KxKeyboardService(const KxKeyboardService &) = delete;
    KxKeyboardService &operator=(const KxKeyboardService &) = delete;
    /// Destroys the service; who installed it owns it.
    virtual ~KxKeyboardService();

    /// Tells the state of a key or mouse button.
    /// @param virtualKey a VK_ code, or the ASCII code of a digit or capital letter.
    /// @return a value whose low 16 bits are Win32's key state: 0x8000 while the key is down, plus 1 while a
    /// lock key is toggled on (where the window system tells it); 0 for an unknown key.
    virtual int keyState(int virtualKey) = 0;
};

/// Finds the image behind a handle.
class KX_PLATFORM_EXPORT KxImageService
{
public:
    /// For subclasses.
    KxImageService() = default;
    KxImageService(const KxImageService &) = delete;
    KxImageService &operator=(const KxImageService &) = delete;
    /// Destroys the service; who installed it owns it.
    virtual ~KxImageService();

    /// Gives the picture behind a handle.
    /// @param handle what LoadImageW() or KxGdiObjectService::createBitmap() gave; any other value is
    /// allowed.
    /// @return a copy of the image as it is now; a null QImage when the handle is of no live image.
    virtual QImage image(HANDLE handle) = 0;
};

/// Creates, queries and deletes bitmaps and brushes. Any value may be given as a handle: one that is not of a
/// live object of the wanted kind is answered with the failure value and never dereferenced.
class KX_PLATFORM_EXPORT KxGdiObjectService
{
public:
    /// For subclasses.
    KxGdiObjectService() = default;
    KxGdiObjectService(const KxGdiObjectService &) = delete;
    KxGdiObjectService &operator=(const KxGdiObjectService &) = delete;
    /// Destroys the service; who installed it owns it.
    virtual ~KxGdiObjectService();

    /// Gives access to a bitmap for painting.
    /// @param handle the handle of a bitmap.
    /// @return the device to paint on, owned by the bitmap and gone with it; null when there is no such
    /// bitmap.
    virtual QPaintDevice *bitmapDevice(HANDLE handle) = 0;

    /// Gives the picture of a bitmap.
    /// @param handle the handle of a bitmap.
    /// @return a copy of the bitmap as it is now; a null QImage when there is no such bitmap.
    virtual QImage bitmapImage(HANDLE handle) = 0;

    /// Gives the colour of a brush.
    /// @param handle the handle of a brush.
    /// @return its colour, all 32 bits as they were given; nothing when there is no such brush.
    virtual std::optional<COLORREF> brushColor(HANDLE handle) = 0;

    /// Makes a bitmap of black pixels.
    /// @param flags ignored by the built-in service; callers give 0.
    /// @param width in pixels.
    /// @param height in pixels.
    /// @return its handle, to be released with deleteObject(); null when a size is not positive or too large.
    virtual HANDLE createBitmap(UINT flags, int width, int height) = 0;

    /// Makes a brush of one colour.
    /// @return its handle, to be released with deleteObject().
    virtual HANDLE createSolidBrush(COLORREF color) = 0;

    /// Deletes a bitmap or brush. Its handle is not given out again.
    /// @return nonzero on success; 0 when there is no such object, or when a painter is active on the bitmap.
    virtual int deleteObject(HANDLE handle) = 0;
};

/// Finds files whose path was written on a file system that does not tell capitals from small letters.
class KX_PLATFORM_EXPORT KxPathCorrectionService
{
public:
    /// For subclasses.
    KxPathCorrectionService() = default;
    KxPathCorrectionService(const KxPathCorrectionService &) = delete;
    KxPathCorrectionService &operator=(const KxPathCorrectionService &) = delete;
    /// Destroys the service; who installed it owns it.
    virtual ~KxPathCorrectionService();

    /// Spells a path as the file system has it. A path that exists stays as it is; otherwise each component
    /// is looked up in its directory, an exact match before one that differs in case only.
    /// @param path absolute, or relative to the current directory; components are separated by '/'.
    /// @param corrected receives the path; unchanged on failure. It may be @p path itself.
    /// @return whether all of the path was found.
    virtual bool correct(const std::wstring &path, std::wstring &corrected) = 0;
};

/// The set of services. Each member gives the same service on each call: the handles of bitmaps and brushes belong
/// to the one that made them.
class KX_PLATFORM_EXPORT KxPlatformServices
{
public:
    /// For subclasses.
    KxPlatformServices() = default;
    KxPlatformServices(const KxPlatformServices &) = delete;
    KxPlatformServices &operator=(const KxPlatformServices &) = delete;
    /// Destroys the service; who installed it owns it.
    virtual ~KxPlatformServices();

    virtual KxKeyboardService &keyboard() = 0;             ///< @return the keyboard service.
    virtual KxImageService &image() = 0;                   ///< @return the image service.
    virtual KxGdiObjectService &gdiObjects() = 0;          ///< @return the GDI object service.
    virtual KxPathCorrectionService &pathCorrection() = 0; ///< @return the path correction service.
};

/// @return the installed services, or the built-in ones, which are made on first use and live as long as the
/// process.
KX_PLATFORM_EXPORT KxPlatformServices &platformServices();

/// Installs services in place of the built-in ones.
/// @param services borrowed: it must outlive its use; null restores the built-in services with the objects
/// they hold.
KX_PLATFORM_EXPORT void setPlatformServices(KxPlatformServices *services);
