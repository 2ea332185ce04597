#include "KxDibData.h"

#include "KxPainter.h"
#include "PixelRuns.h"

#include <QImage>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <new>
#include <utility>

namespace {

constexpr int bytesPerPixel = 4;
constexpr int bitsPerPixel = 8 * bytesPerPixel;
constexpr std::uint32_t opaqueBlack = 0xFF000000;

// The columns beyond a stop column at either end of int wrap around.
int columnAfter(int x)
{
    return static_cast<int>(static_cast<unsigned>(x) + 1);
}

int columnBefore(int x)
{
    return static_cast<int>(static_cast<unsigned>(x) - 1);
}

bool isPossibleSize(int w, int h)
{
    // The bytes of the bitmap are counted by an int.
    return w > 0 && h > 0 && w <= std::numeric_limits<int>::max() / bytesPerPixel / h;
}

unsigned withSwappedEnds(unsigned color)
{
    return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

BITMAPINFOHEADER *newHeader(int w, int h)
{
    auto *header = static_cast<BITMAPINFOHEADER *>(std::calloc(1, sizeof(BITMAPINFOHEADER)));
    if (!header)
        return nullptr;
    header->biSize = sizeof(BITMAPINFOHEADER);
    header->biWidth = w;
    header->biHeight = h;
    header->biPlanes = 1;
    header->biBitCount = bitsPerPixel;
    header->biCompression = BI_RGB;
    return header;
}

} // namespace

CDibData::CDibData() = default;

CDibData::~CDibData()
{
    destroyBitmap();
}

void CDibData::destroyBitmap()
{
    delete std::exchange(m_pPainter, nullptr);
    delete std::exchange(m_pImage, nullptr);
    std::free(std::exchange(m_pHeader, nullptr));
    std::free(std::exchange(m_pBits, nullptr));
    delete[] std::exchange(m_pRows, nullptr);
    m_nBitsPerPixel = 0;
}

void CDibData::makeBitmap(HDC &dc, HBITMAP &bmp, int w, int h, HDC /*ref*/)
{
    destroyBitmap();
    if (!isPossibleSize(w, h) || !allocateBitmap(w, h))
        destroyBitmap();
    bmp = reinterpret_cast<HBITMAP>(m_pImage);
    dc = reinterpret_cast<HDC>(m_pPainter);
}

bool CDibData::allocateBitmap(int w, int h)
{
    const int stride = w * bytesPerPixel;
    m_pBits = static_cast<unsigned char *>(std::malloc(std::size_t(stride) * std::size_t(h)));
    m_pHeader = newHeader(w, h);
    m_pRows = new (std::nothrow) unsigned char *[std::size_t(h)];
    if (!m_pBits || !m_pHeader || !m_pRows)
        return false;
    m_pImage = new QImage(m_pBits, w, h, stride, QImage::Format_ARGB32_Premultiplied);
    if (m_pImage->isNull())
        return false;

    m_pPainter = new KxQtPainterWrapper(m_pImage);
    std::fill_n(reinterpret_cast<std::uint32_t *>(m_pBits), std::size_t(w) * std::size_t(h), opaqueBlack);
    for (int y = 0; y < h; ++y)
        m_pRows[y] = m_pBits + std::ptrdiff_t{y} * stride;
    m_nBitsPerPixel = bitsPerPixel;
    return true;
}

BITMAPINFOHEADER *CDibData::GetHeaderPtr() const
{
    return m_pHeader;
}

int CDibData::GetWidth() const
{
    return m_pHeader ? m_pHeader->biWidth : 0;
}

int CDibData::GetHeight() const
{
    return m_pHeader ? m_pHeader->biHeight : 0;
}

bool CDibData::hasColumn(int x) const
{
    return x >= 0 && x < GetWidth();
}

bool CDibData::hasRow(int y) const
{
    // A height below 0 is how a header tells that its rows are top-down.
    return m_pRows && y >= 0 && y < std::abs(std::int64_t{GetHeight()});
}

unsigned CDibData::RGBtoValue(COLORREF c) const
{
    return c == CLR_INVALID ? noPixelValue : withSwappedEnds(c);
}

COLORREF CDibData::ValueToRGB(unsigned v) const
{
    return v == noPixelValue ? CLR_INVALID : withSwappedEnds(v);
}

COLORREF CDibData::GetPixel(int x, int y) const
{
    return ValueToRGB(GetPixelValue(x, y));
}

unsigned CDibData::GetPixelValue(int x, int y) const
{
    if (!hasRow(y) || !hasColumn(x))
        return noPixelValue;
    return pixelAt(m_pRows[y], m_nBitsPerPixel, x);
}

bool CDibData::SetPixel(int x, int y, COLORREF c)
{
    return SetPixelValue(x, y, RGBtoValue(c));
}

bool CDibData::SetPixelValue(int x, int y, unsigned v)
{
    if (!m_pImage)
        return false;
    m_pImage->setPixel(x, y, v | opaqueBlack);
    return true;
}

// The row that a search walks along; null when its arguments are invalid.
const unsigned char *CDibData::rowForSearch(int x, int y, int xStop, unsigned v) const
{
    if (v == noPixelValue || !hasRow(y) || !hasColumn(x) || !hasColumn(xStop))
        return nullptr;
    return m_pRows[y];
}

int CDibData::SearchLeft(int x, int y, int xStop, unsigned v) const
{
    const unsigned char *row = rowForSearch(x, y, xStop, v);
    if (!row)
        return columnBefore(xStop);
    return findPixelLeft(row, m_nBitsPerPixel, x, xStop, v, PixelMatch::Equal);
}

int CDibData::SearchRight(int x, int y, int xStop, unsigned v) const
{
    const unsigned char *row = rowForSearch(x, y, xStop, v);
    if (!row)
        return columnAfter(xStop);
    return findPixelRight(row, m_nBitsPerPixel, x, xStop, v, PixelMatch::Equal);
}

int CDibData::ScanLeft(int x, int y, int xStop, unsigned v) const
{
    const unsigned char *row = rowForSearch(x, y, xStop, v);
    if (!row)
        return columnBefore(xStop);
    return findPixelLeft(row, m_nBitsPerPixel, x, xStop, v, PixelMatch::Different);
}

int CDibData::ScanRight(int x, int y, int xStop, unsigned v) const
{
    const unsigned char *row = rowForSearch(x, y, xStop, v);
    if (!row)
        return columnAfter(xStop);
    return findPixelRight(row, m_nBitsPerPixel, x, xStop, v, PixelMatch::Different);
}

bool CDibData::DrawLineH(int x1, int x2, int y, unsigned v)
{
    const int first = std::max(std::min(x1, x2), 0);
    const int last = std::min(std::max(x1, x2), GetWidth() - 1);
    if (v == noPixelValue || !hasRow(y) || first > last)
        return false;
    fillPixels(m_pRows[y], m_nBitsPerPixel, first, last, v);
    return true;
}
