#ifndef RESOURCEBYTES_H
#define RESOURCEBYTES_H

#include "ResourceImage.h"

#include <QByteArray>
#include <QRgb>
#include <QStringList>
#include <QVector>
#include <QtEndian>

#include <initializer_list>

// Bitmaps and resource images, written byte by byte.

inline Bytes bytesOf(const QByteArray &array)
{
    return {reinterpret_cast<const std::uint8_t *>(array.constData()), std::size_t(array.size())};
}

template <class Number> inline void put(QByteArray &bytes, Number number)
{
    number = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char *>(&number), sizeof number);
}

inline void put(QByteArray &bytes, std::initializer_list<int> values)
{
    for (const int value : values)
        bytes.append(char(value));
}

struct InfoHeader
{
    int width = 3;
    int height = 2;
    int bits = 24;
    int compression = 0;
    int colorsUsed = 0;
    int size = 40;
};

inline QByteArray infoHeader(const InfoHeader &fields)
{
    QByteArray bytes;
    put(bytes, std::uint32_t(fields.size));
    put(bytes, std::int32_t(fields.width));
    put(bytes, std::int32_t(fields.height));
    put(bytes, std::uint16_t(1));
    put(bytes, std::uint16_t(fields.bits));
    put(bytes, std::uint32_t(fields.compression));
    for (int i = 0; i < 3; ++i)
        put(bytes, std::uint32_t(0));
    put(bytes, std::uint32_t(fields.colorsUsed));
    put(bytes, std::uint32_t(0));
    return bytes;
}

inline QByteArray coreHeader(int bits)
{
    QByteArray bytes;
    put(bytes, std::uint32_t(12));
    for (const int value : {3, 2, 1, bits})
        put(bytes, std::uint16_t(value));
    return bytes;
}

const QRgb red = 0xFFFF0000;
const QRgb green = 0xFF00FF00;
const QRgb blue = 0xFF0000FF;
const QRgb white = 0xFFFFFFFF;

// Blue, green, red and white, padded to the wanted number, each in as many bytes as wanted.
inline QByteArray palette(int count, int bytesPerColor = 4)
{
    QByteArray bytes;
    for (int i = 0; i < count; ++i) {
        put(bytes, {i == 0 || i == 3 ? 255 : 0, i == 1 || i == 3 ? 255 : 0, i == 2 || i == 3 ? 255 : 0});
        if (bytesPerColor == 4)
            put(bytes, {0});
    }
    return bytes;
}

using Pixels = QVector<QRgb>;
// Three columns, two rows: the top one first.
const Pixels allColors{red, green, blue, white, white, red};
const Pixels twoColors{green, blue, green, blue, blue, green};

// The rows of these in the file, the bottom one first.
inline QByteArray bits1()
{
    QByteArray bytes;
    put(bytes, {0x20, 0, 0, 0, 0xA0, 0, 0, 0});
    return bytes;
}

inline QByteArray bits4()
{
    QByteArray bytes;
    put(bytes, {0x33, 0x20, 0, 0, 0x21, 0x00, 0, 0});
    return bytes;
}

inline QByteArray bits8()
{
    QByteArray bytes;
    put(bytes, {3, 3, 2, 0, 2, 1, 0, 0});
    return bytes;
}

inline QByteArray bits16(int redMask, int greenMask, int blueMask)
{
    QByteArray bytes;
    const int whiteMask = redMask | greenMask | blueMask;
    for (const int value : {whiteMask, whiteMask, redMask, 0, redMask, greenMask, blueMask, 0})
        put(bytes, std::uint16_t(value));
    return bytes;
}

inline QByteArray bits24()
{
    QByteArray bytes;
    put(bytes, {255, 255, 255, 255, 255, 255, 0, 0, 255, 0, 0, 0});
    put(bytes, {0, 0, 255, 0, 255, 0, 255, 0, 0, 0, 0, 0});
    return bytes;
}

inline QByteArray bits32()
{
    QByteArray bytes;
    for (const QRgb color : {white, white, red, red, green, blue})
        put(bytes, std::uint32_t(color & 0xFFFFFF));
    return bytes;
}

inline QByteArray masks(std::initializer_list<std::uint32_t> values)
{
    QByteArray bytes;
    for (const std::uint32_t value : values)
        put(bytes, value);
    return bytes;
}

inline QByteArray topDown(const QByteArray &rows)
{
    return rows.mid(rows.size() / 2) + rows.left(rows.size() / 2);
}

inline QByteArray record(int type, int name, int language, const QByteArray &data)
{
    QByteArray bytes;
    put(bytes, std::uint32_t(data.size()));
    put(bytes, std::uint32_t(32));
    for (const int value : {0xFFFF, type, 0xFFFF, name})
        put(bytes, std::uint16_t(value));
    put(bytes, std::uint32_t(0));
    put(bytes, std::uint16_t(0));
    put(bytes, std::uint16_t(language));
    put(bytes, std::uint32_t(0));
    put(bytes, std::uint32_t(0));
    bytes += data;
    while (bytes.size() % 4)
        bytes += '\0';
    return bytes;
}

// Sixteen strings: those given, then empty ones.
inline QByteArray stringBlock(const QStringList &strings)
{
    QByteArray bytes;
    for (int i = 0; i < 16; ++i) {
        const QString text = strings.value(i);
        put(bytes, std::uint16_t(text.size()));
        for (const QChar unit : text)
            put(bytes, std::uint16_t(unit.unicode()));
    }
    return bytes;
}

inline QByteArray image(const QByteArray &records)
{
    return record(0, 0, 0, {}) + records;
}

#endif
