/// @file KxGdiTypes.h
/// @brief Win32 colours and bitmap headers.
#pragma once

#include "KxWinTypes.h"

#include <cstddef>

/// What stands for no colour, and for the value of no pixel.
constexpr COLORREF CLR_INVALID = 0xFFFFFFFF;

/// BITMAPINFOHEADER::biCompression of uncompressed pixels.
constexpr DWORD BI_RGB = 0;

/// @return the colour of these components, each from 0 to 255; only their low 8 bits count.
constexpr COLORREF RGB(int red, int green, int blue)
{
    return static_cast<BYTE>(red) | COLORREF{static_cast<BYTE>(green)} << 8 |
           COLORREF{static_cast<BYTE>(blue)} << 16;
}

/// @return the red component of @p color.
constexpr BYTE GetRValue(COLORREF color)
{
    return static_cast<BYTE>(color);
}

/// @return the green component of @p color.
constexpr BYTE GetGValue(COLORREF color)
{
    return static_cast<BYTE>(color >> 8);
}

/// @return the blue component of @p color.
constexpr BYTE GetBValue(COLORREF color)
{
    return static_cast<BYTE>(color >> 16);
}

/// Size and format of a device-independent bitmap.
struct BITMAPINFOHEADER
{
    DWORD biSize;         ///< Size of this record: 40.
    LONG biWidth;         ///< In pixels.
    LONG biHeight;        ///< In pixels.
    WORD biPlanes;        ///< Always 1.
    WORD biBitCount;      ///< Bits per pixel.
    DWORD biCompression;  ///< #BI_RGB.
    DWORD biSizeImage;    ///< In bytes; 0 is allowed for #BI_RGB.
    LONG biXPelsPerMeter; ///< Horizontal resolution; 0 when it does not matter.
    LONG biYPelsPerMeter; ///< Vertical resolution; 0 when it does not matter.
    DWORD biClrUsed;      ///< Colours of the palette.
    DWORD biClrImportant; ///< Colours of the palette that matter.
};

static_assert(sizeof(BITMAPINFOHEADER) == 40);
static_assert(offsetof(BITMAPINFOHEADER, biWidth) == 4 && offsetof(BITMAPINFOHEADER, biHeight) == 8);
static_assert(offsetof(BITMAPINFOHEADER, biPlanes) == 12 && offsetof(BITMAPINFOHEADER, biBitCount) == 14);
static_assert(offsetof(BITMAPINFOHEADER, biCompression) == 16 &&
              offsetof(BITMAPINFOHEADER, biSizeImage) == 20);
static_assert(offsetof(BITMAPINFOHEADER, biXPelsPerMeter) == 24);
static_assert(offsetof(BITMAPINFOHEADER, biYPelsPerMeter) == 28);
static_assert(offsetof(BITMAPINFOHEADER, biClrUsed) == 32 &&
              offsetof(BITMAPINFOHEADER, biClrImportant) == 36);
