#pragma once

#include "KxPainter.h"

#include <QImage>

constexpr auto format = QImage::Format_ARGB32_Premultiplied;
constexpr COLORREF red = 0x0000FF;

inline QImage plain(int width, int height, QColor color)
{
    QImage image(width, height, format);
    image.fill(color);
    return image;
}

inline QImage plain(QSize size, QColor color)
{
    return plain(size.width(), size.height(), color);
}

inline void fill(KxQtPainterWrapper *painter, COLORREF color, CRect rect = CRect(0, 0, 100, 100))
{
    painter->beginDraw();
    painter->fillRect(rect, color);
    painter->endDraw();
}
