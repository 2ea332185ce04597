/// @file KxDibData.h
/// @brief Device-independent bitmaps whose pixels are read, written and searched in memory.
#pragma once

#include "KxGdiTypes.h"

class KxQtPainterWrapper;
class QImage;

/// An off-screen bitmap of 32 bits per pixel with a Win32 header and a table of its rows.
///
/// Pixels can be drawn through a painter wrapper, read and written one by one, and searched along a row,
/// which is what a flood fill is made of. A pixel value is 0x00RRGGBB, while a COLORREF has red in its low
/// byte: RGBtoValue() and ValueToRGB() convert. Rows lie top-down in memory, although the header's height is
/// positive; row 0 is the top.
///
/// makeBitmap() always makes 32 bits per pixel. A subclass that fills the fields in itself can have 1, 2, 4,
/// 8, 16 or 24: pixels of less than 8 bits begin at the most significant end of a byte, and those of 24 bits
/// have blue in their first byte. At such depths a pixel value is the pixel's bits (of 24 and 32 bits the low
/// 24). At any other depth no pixel can be read and none is found or drawn.
///
/// The image has its pixels in this object's buffer. Do not keep implicit copies of it (use QImage::copy()):
/// Qt would give the image pixels of its own at the next change of either.
class KX_MFC_EXPORT CDibData
{
public:
    /// Makes an object without a bitmap.
    CDibData();
    CDibData(const CDibData &) = delete;
    CDibData &operator=(const CDibData &) = delete;
    /// Destroys the bitmap and what makeBitmap() gave out.
    ~CDibData();

    /// @return the bitmap's header, which this object owns; null without a bitmap.
    BITMAPINFOHEADER *GetHeaderPtr() const;
    /// @return the width in pixels; 0 without a bitmap.
    int GetWidth() const;
    /// @return the height in pixels; 0 without a bitmap.
    int GetHeight() const;

    /// Converts a colour to a pixel value.
    /// @param c a colour, or CLR_INVALID.
    /// @return the pixel value of @p c: 0x00RRGGBB; that of CLR_INVALID is -1, all bits set.
    unsigned RGBtoValue(COLORREF c) const;
    /// Converts a pixel value to a colour.
    /// @param v a pixel value, of which the low 24 bits count, or -1.
    /// @return the colour of @p v; CLR_INVALID for -1.
    COLORREF ValueToRGB(unsigned v) const;

    /// Reads a pixel's colour.
    /// @param x column from 0.
    /// @param y row from 0, the top.
    /// @return the pixel's colour; CLR_INVALID outside of the bitmap or without one.
    COLORREF GetPixel(int x, int y) const;
    /// Reads a pixel's value.
    /// @param x column from 0.
    /// @param y row from 0, the top.
    /// @return the pixel's value; -1 outside of the bitmap or without one.
    unsigned GetPixelValue(int x, int y) const;

    /// Looks along row @p y for a pixel that equals @p v, from column @p x down to column @p xStop.
    ///
    /// Below 8 bits per pixel only the low bits of @p v that fit in a pixel count. At more bits the whole of
    /// it does, so that a value which no pixel can have is never found.
    /// @return the first such column. @p xStop - 1 when there is none or nothing to walk (@p xStop > @p x),
    /// and when @p v is -1 or a column or the row is outside of the bitmap.
    int SearchLeft(int x, int y, int xStop, unsigned v) const;
    /// As SearchLeft(), towards larger columns.
    /// @return the first such column; else @p xStop + 1, where SearchLeft() gives @p xStop - 1.
    int SearchRight(int x, int y, int xStop, unsigned v) const;
    /// Looks along row @p y for a pixel that differs from @p v, from column @p x down to column @p xStop; as
    /// SearchLeft() compares.
    /// @return the first such column. @p xStop - 1 when all pixels equal @p v or there is nothing to walk
    /// (@p xStop > @p x), and when @p v is -1 or a column or the row is outside of the bitmap.
    int ScanLeft(int x, int y, int xStop, unsigned v) const;
    /// As ScanLeft(), towards larger columns.
    /// @return the first such column; else @p xStop + 1, where ScanLeft() gives @p xStop - 1.
    int ScanRight(int x, int y, int xStop, unsigned v) const;

    /// Makes a bitmap of opaque black pixels, in place of the one that this object had.
    ///
    /// The handles are this object's own: @p bmp is the address of a QImage in
    /// QImage::Format_ARGB32_Premultiplied, @p dc that of a KxQtPainterWrapper which draws on it. They are
    /// valid until the next makeBitmap() or the end of this object. A @p dc of this kind is not what CDC
    /// works with; KxQtGrDCAutoSaver takes it.
    ///
    /// A size that is not positive, or beyond what a QImage holds (2 GB, with rows of up to 256 MB), leaves
    /// this object without a bitmap.
    /// @param[out] dc the painter wrapper; null when there is no bitmap.
    /// @param[out] bmp the image; null when there is no bitmap.
    /// @param w width in pixels.
    /// @param h height in pixels.
    /// @param ref ignored.
    void makeBitmap(HDC &dc, HBITMAP &bmp, int w, int h, HDC ref);

    /// Sets a pixel of the image to a colour, as SetPixelValue() does.
    /// @param x column from 0.
    /// @param y row from 0, the top.
    /// @param c the colour; CLR_INVALID draws white.
    /// @return as SetPixelValue().
    bool SetPixel(int x, int y, COLORREF c);
    /// Sets a pixel of the image, always opaque.
    /// @param x column from 0.
    /// @param y row from 0, the top.
    /// @param v the pixel's value, of which the low 24 bits count.
    /// @return true, also when the pixel is outside of the image: then Qt writes a warning and nothing
    /// changes. False without an image.
    bool SetPixelValue(int x, int y, unsigned v);

    /// Sets the pixels of a row between two columns, both included and in either order; columns outside of
    /// the bitmap are left out.
    /// @param x1 one column, from 0.
    /// @param x2 the other column.
    /// @param y row from 0, the top.
    /// @param v what is stored in each pixel: its low bits as far as they fit. At 32 bits that is the alpha
    /// as well, so that a line is opaque when @p v has 0xFF in its high byte; opaque white, 0xFFFFFFFF, is -1
    /// and thus refused. At 24 bits nothing is drawn.
    /// @return true; false, and nothing is drawn, when @p v is -1, when all columns are left of the bitmap or
    /// all right of it, when the row is outside of it, or without a bitmap.
    bool DrawLineH(int x1, int x2, int y, unsigned v);

protected:
    /// @name For subclasses
    /// All of it is owned: the destructor deletes the objects and the row table and frees the rest.
    /// @{
    QImage *m_pImage = nullptr;               ///< Over #m_pBits.
    KxQtPainterWrapper *m_pPainter = nullptr; ///< Its device is #m_pImage.
    BITMAPINFOHEADER *m_pHeader = nullptr;    ///< From malloc.
    unsigned char *m_pBits = nullptr;         ///< The pixels, from malloc.
    unsigned char **m_pRows = nullptr;        ///< Start of each row, from new[].
    int m_nBitsPerPixel = 0;                  ///< 32, and 0 without a bitmap.
    /// @}

private:
    void destroyBitmap();
    bool allocateBitmap(int w, int h);
    const unsigned char *rowForSearch(int x, int y, int xStop, unsigned v) const;
    bool hasColumn(int x) const;
    bool hasRow(int y) const;
};
