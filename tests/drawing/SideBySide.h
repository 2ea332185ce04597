#ifndef SIDEBYSIDE_H
#define SIDEBYSIDE_H

#include "KxPainter.h"

#include <QImage>
#include <QPainter>

#include <functional>

/// An image with a different colour in every pixel, so that what is painted shows wherever it lands.
inline QImage canvas(int width = 48, int height = 40)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(255 - 4 * (x % 60), 100 + 3 * (y % 50), 200));
    }
    return image;
}

using Draw = std::function<void(KxQtPainterWrapper &)>;
using Paint = std::function<void(QPainter &)>;

/// What the wrapper makes of the canvas.
inline QImage drawn(const Draw &draw)
{
    QImage image = canvas();
    KxQtPainterWrapper painter(&image);
    painter.beginDraw();
    draw(painter);
    painter.endDraw();
    return image;
}

/// What a plain painter with the pen and brush of a new drawing makes of the canvas.
inline QImage painted(const Paint &paint)
{
    QImage image = canvas();
    QPainter painter(&image);
    painter.setPen(QPen(Qt::black, 0));
    painter.setBrush(QBrush(Qt::black));
    paint(painter);
    return image;
}

#endif
