#ifndef DIBOFDEPTH_H
#define DIBOFDEPTH_H

#include "KxDibData.h"

#include <QByteArray>
#include <QVector>

#include <cstddef>
#include <cstdlib>
#include <cstring>

/// A bitmap of any depth. Its rows begin at odd addresses and follow each other without a gap, the last one
/// ending with its buffer, so that sanitizers notice every unaligned access and every step beyond a row's last
/// byte.
class DibOfDepth : public CDibData
{
public:
    /// @param height  negative as in the header of a bitmap whose rows are top-down.
    DibOfDepth(int bitsPerPixel, int width, int height)
        : m_stride((width * bitsPerPixel + 7) / 8)
        , m_size(1 + m_stride * std::abs(height))
    {
        m_pHeader = static_cast<BITMAPINFOHEADER *>(std::calloc(1, sizeof(BITMAPINFOHEADER)));
        m_pHeader->biWidth = width;
        m_pHeader->biHeight = height;
        m_pBits = static_cast<unsigned char *>(std::calloc(std::size_t(m_size), 1));
        m_pRows = new unsigned char *[std::size_t(std::abs(height))];
        for (int y = 0; y < std::abs(height); ++y)
            m_pRows[y] = m_pBits + 1 + y * m_stride;
        m_nBitsPerPixel = bitsPerPixel;
    }

    int bitsPerPixel() const { return m_nBitsPerPixel; }
    int stride() const { return m_stride; }
    QByteArray bytes() const { return QByteArray(reinterpret_cast<const char *>(m_pBits), m_size); }
    QByteArray rowBytes(int y) const { return bytes().mid(1 + y * m_stride, m_stride); }
    void setRowBytes(int y, const QByteArray &bytes)
    {
        std::memcpy(m_pRows[y], bytes.constData(), std::size_t(qMin(bytes.size(), m_stride)));
    }

private:
    int m_stride;
    int m_size;
};

/// What the pixels of a row are, worked out bit by bit.
namespace PlainPixels {

inline bool bitAt(const QByteArray &row, int bit)
{
    return static_cast<unsigned char>(row[bit / 8]) >> (7 - bit % 8) & 1;
}

inline void setBit(QByteArray &row, int bit, bool on)
{
    const int mask = 1 << (7 - bit % 8);
    row[bit / 8] = static_cast<char>(on ? row[bit / 8] | mask : row[bit / 8] & ~mask);
}

/// The bit of the row that holds bit @p valueBit of the value of pixel @p x: words are little-endian.
inline int placeOf(int bitsPerPixel, int x, int valueBit)
{
    if (bitsPerPixel < 8)
        return x * bitsPerPixel + bitsPerPixel - 1 - valueBit;
    return x * bitsPerPixel + valueBit / 8 * 8 + 7 - valueBit % 8;
}

inline unsigned read(const QByteArray &row, int bitsPerPixel, int x)
{
    unsigned value = 0;
    for (int bit = 0; bit < qMin(bitsPerPixel, 24); ++bit)
        value |= unsigned(bitAt(row, placeOf(bitsPerPixel, x, bit))) << bit;
    return value;
}

/// Stores all of a pixel's bits, also the high byte of one of 32 bits.
inline void write(QByteArray &row, int bitsPerPixel, int x, unsigned value)
{
    for (int bit = 0; bit < bitsPerPixel; ++bit)
        setBit(row, placeOf(bitsPerPixel, x, bit), value >> bit & 1);
}

/// The pixel values of a row.
inline QVector<unsigned> readAll(const QByteArray &row, int bitsPerPixel, int width)
{
    QVector<unsigned> values(width);
    for (int x = 0; x < width; ++x)
        values[x] = read(row, bitsPerPixel, x);
    return values;
}

} // namespace PlainPixels

#endif
