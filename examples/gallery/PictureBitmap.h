#pragma once

#include "KxWinTypes.h"

/// A bitmap of a bird's egg, which stands where a bitmap resource is loaded elsewhere.
class PictureBitmap
{
public:
    PictureBitmap();
    PictureBitmap(const PictureBitmap &) = delete;
    PictureBitmap &operator=(const PictureBitmap &) = delete;
    ~PictureBitmap();

    HBITMAP handle() const { return static_cast<HBITMAP>(m_handle); }

private:
    HANDLE m_handle;
};
