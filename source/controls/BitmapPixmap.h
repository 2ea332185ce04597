/// @file BitmapPixmap.h
/// @brief The pictures behind bitmap handles.
#pragma once

#include "KxPlatformServices.h"

#include <QImage>
#include <QPixmap>

/// The bitmap's picture; null when the handle is of no live bitmap.
inline QPixmap bitmapPixmap(HBITMAP bitmap)
{
    return QPixmap::fromImage(platformServices().gdiObjects().bitmapImage(bitmap), Qt::AutoColor);
}
