/// @file KxDrawing.h
/// @brief Device contexts.
#pragma once

#include "KxWinTypes.h"

/// The object that an HDC points to.
class KX_MFC_EXPORT KxQtPaintDeviceWrapper
{
public:
    KxQtPaintDeviceWrapper() = default;
    KxQtPaintDeviceWrapper(const KxQtPaintDeviceWrapper &) = delete;
    KxQtPaintDeviceWrapper &operator=(const KxQtPaintDeviceWrapper &) = delete;
    virtual ~KxQtPaintDeviceWrapper();
};

/// A device context: a thin object around a paint device.
///
/// CWnd::GetDC() hands out the one of a window, which the window owns.
class KX_MFC_EXPORT CDC : public CObject
{
public:
    /// The device, a KxQtPaintDeviceWrapper that this object owns; null when there is none.
    HDC m_hDC = nullptr;

    /// Makes a context without a device.
    CDC();
    /// Destroys the device.
    ~CDC() override;

    /// @return #m_hDC.
    operator HDC() const;
    /// @return null, also when there is a device, unlike MFC: use the conversion to HDC.
    HDC GetSafeHdc() const;
};
