#pragma once

#include "ResourceImage.h"

#include <QImage>

/// The images in a group of icons.
struct IconEntry
{
    QSize size;
    int bitsPerPixel;
    std::uint16_t id;
};

/// @return the entries of a group of icons; none when it is damaged.
std::vector<IconEntry> readIconGroup(Bytes group);

/// @return the bitmap in a resource; null when it is damaged or of a kind that cannot be read.
QImage readBitmap(Bytes bitmap);

/// @return the bitmap in a file; null as above.
QImage readBitmapFile(Bytes file);

/// @return one image of an icon; null as above.
QImage readIcon(Bytes icon);
