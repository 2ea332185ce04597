#include "ImageFormats.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>
#include <algorithm>
#include <cstdlib>

namespace {
constexpr std::size_t coreHeaderSize = 12;
constexpr std::size_t infoHeaderSize = 40;
constexpr std::size_t fileHeaderSize = 14;
constexpr std::int64_t maxPixels = 1 << 26;

enum Compression : std::uint32_t { Rgb = 0, Rle8 = 1, Rle4 = 2, BitFields = 3, AlphaBitFields = 6 };

// What a bitmap's header tells.
struct BitmapHeader
{
    std::size_t size;
    std::int64_t width;
    std::int64_t height; ///< Negative when the top row comes first.
    unsigned bitsPerPixel;
    std::uint32_t compression = Rgb;
    std::size_t colorsUsed = 0;
    std::size_t colorSize = 4;
    std::size_t gap = 0; ///< Between the colours and the pixels, which only a file has.

    std::size_t colorCount() const
    {
        return colorsUsed || bitsPerPixel > 8 ? colorsUsed : 1U << bitsPerPixel;
    }
    std::size_t masksSize() const;
    std::size_t pixelsOffset() const { return size + masksSize() + colorCount() * colorSize + gap; }
    std::int64_t rowSize() const { return (width * bitsPerPixel + 31) / 32 * 4; }
    bool isCompressed() const { return compression == Rle8 || compression == Rle4; }
    bool isPlausible() const;
};

std::size_t BitmapHeader::masksSize() const
{
    if (size != infoHeaderSize)
        return 0;
    if (compression == BitFields)
        return 12;
    return compression == AlphaBitFields ? 16 : 0;
}

bool BitmapHeader::isPlausible() const
{
    const bool known = compression <= BitFields || compression == AlphaBitFields;
    const bool indexed = bitsPerPixel == 1 || bitsPerPixel == 4 || bitsPerPixel == 8;
    const bool direct = bitsPerPixel == 16 || bitsPerPixel == 24 || bitsPerPixel == 32;
    return known && (indexed || direct) && width > 0 && height != 0 && width <= maxPixels / std::abs(height);
}

BitmapHeader readHeader(Bytes bitmap)
{
    const std::size_t size = bitmap.doubleWord(0);
    if (size == coreHeaderSize) {
        BitmapHeader header{size, bitmap.word(4), bitmap.word(6), bitmap.word(10)};
        header.colorSize = 3;
        return header;
    }
    return {size,
            std::int32_t(bitmap.doubleWord(4)),
            std::int32_t(bitmap.doubleWord(8)),
            bitmap.word(14),
            bitmap.doubleWord(16),
            bitmap.doubleWord(32)};
}

// Whether the rows are all there; those of compressed pixels only show when they are read.
bool hasRows(Bytes bitmap, const BitmapHeader &header, std::int64_t rows)
{
    const Bytes pixels = bitmap.from(header.pixelsOffset());
    return header.isCompressed() ? !pixels.isEmpty() : std::int64_t(pixels.size) >= header.rowSize() * rows;
}

// The format of 16-bit pixels; invalid for masks that are not among the usual ones.
QImage::Format highColorFormat(Bytes bitmap, const BitmapHeader &header)
{
    if (header.compression == Rgb)
        return QImage::Format_RGB555;
    const auto mask = [&](std::size_t index) { return bitmap.doubleWord(infoHeaderSize + 4 * index); };
    if (mask(0) == 0x7C00 && mask(1) == 0x3E0 && mask(2) == 0x1F)
        return QImage::Format_RGB555;
    const bool wideGreen = mask(0) == 0xF800 && mask(1) == 0x7E0 && mask(2) == 0x1F;
    return wideGreen ? QImage::Format_RGB16 : QImage::Format_Invalid;
}

// Qt's reader leaves the low bits of each colour 0, so that white would be grey.
QImage readHighColor(Bytes bitmap, const BitmapHeader &header, QImage::Format format)
{
    QImage image(int(header.width), int(std::abs(header.height)), format);
    const auto rowSize = std::size_t(header.rowSize());
    for (int y = 0; y < image.height(); ++y) {
        const Bytes row = bitmap.part(header.pixelsOffset() + rowSize * std::size_t(y), rowSize);
        std::copy_n(row.data, 2 * header.width,
                    image.scanLine(header.height < 0 ? y : image.height() - 1 - y));
    }
    return image;
}

void append(QByteArray &file, Bytes bytes)
{
    file.append(reinterpret_cast<const char *>(bytes.data), int(bytes.size));
}

template <class Number> void append(QByteArray &file, Number number)
{
    number = qToLittleEndian(number);
    file.append(reinterpret_cast<const char *>(&number), sizeof number);
}

QImage readFile(QByteArray &file, const char *format)
{
    QBuffer buffer(&file);
    return QImageReader(&buffer, format).read();
}

bool isPng(Bytes icon)
{
    constexpr char signature[] = "\x89PNG\r\n\x1A\n";
    constexpr std::size_t length = sizeof signature - 1;
    return icon.size > length &&
           std::equal(signature, signature + length, icon.data,
                      [](char left, std::uint8_t right) { return std::uint8_t(left) == right; });
}

bool isPlausiblePng(Bytes icon)
{
    const std::int64_t width = qFromBigEndian(icon.doubleWord(16));
    const std::int64_t height = qFromBigEndian(icon.doubleWord(20));
    return width > 0 && height > 0 && width <= maxPixels / height;
}

// The rows of an icon's colours are followed by as many of its mask.
bool isPlausibleIcon(Bytes icon)
{
    const BitmapHeader header = readHeader(icon);
    return header.size == infoHeaderSize && header.isPlausible() && header.height > 1 &&
           !header.isCompressed() && hasRows(icon, header, header.height / 2);
}

// A bitmap resource is a bitmap file without the file's own header.
QImage readBitmap(Bytes bitmap, const BitmapHeader &header)
{
    if (!header.isPlausible() || !hasRows(bitmap, header, std::abs(header.height)))
        return {};
    if (header.bitsPerPixel == 16) {
        const QImage::Format format = highColorFormat(bitmap, header);
        if (format != QImage::Format_Invalid)
            return readHighColor(bitmap, header, format);
    }

    QByteArray file("BM");
    append(file, std::uint32_t(fileHeaderSize + bitmap.size));
    append(file, std::uint32_t(0));
    append(file, std::uint32_t(fileHeaderSize + header.pixelsOffset()));
    append(file, bitmap);
    return readFile(file, "bmp");
}
} // namespace

std::vector<IconEntry> readIconGroup(Bytes group)
{
    constexpr std::size_t headerSize = 6;
    constexpr std::size_t entrySize = 14;
    constexpr std::uint16_t iconType = 1;
    const std::size_t count = group.word(4);
    if (group.word(2) != iconType || group.part(headerSize, count * entrySize).isEmpty())
        return {};

    const auto length = [](int byte) { return byte == 0 ? 256 : byte; };
    std::vector<IconEntry> entries;
    for (std::size_t i = 0; i < count; ++i) {
        const Bytes entry = group.part(headerSize + i * entrySize, entrySize);
        entries.push_back(
            {{length(entry.word(0) & 0xFF), length(entry.word(0) >> 8)}, entry.word(6), entry.word(12)});
    }
    return entries;
}

QImage readBitmap(Bytes bitmap)
{
    return readBitmap(bitmap, readHeader(bitmap));
}

QImage readBitmapFile(Bytes file)
{
    constexpr std::uint16_t signature = 0x4D42;
    if (file.word(0) != signature)
        return {};
    const Bytes bitmap = file.from(fileHeaderSize);
    BitmapHeader header = readHeader(bitmap);
    const std::size_t pixelsOffset = fileHeaderSize + header.pixelsOffset();
    header.gap = std::max<std::size_t>(file.doubleWord(10), pixelsOffset) - pixelsOffset;
    return readBitmap(bitmap, header);
}

// An icon resource is what one entry of an icon file points to.
QImage readIcon(Bytes icon)
{
    if (isPng(icon) ? !isPlausiblePng(icon) : !isPlausibleIcon(icon))
        return {};

    constexpr std::uint32_t dataOffset = 22;
    QByteArray file;
    for (const std::uint16_t number : {0, 1, 1})
        append(file, number);
    const bool png = isPng(icon);
    file.append(char(png ? icon.data[19] : icon.data[4]));
    file.append(char(png ? icon.data[23] : icon.doubleWord(8) / 2));
    append(file, std::uint16_t(0));
    append(file, std::uint16_t(1));
    append(file, std::uint16_t(png ? 32 : icon.word(14)));
    append(file, std::uint32_t(icon.size));
    append(file, dataOffset);
    append(file, icon);
    return readFile(file, "ico");
}
