#pragma once

#include "KxGdiTypes.h"

#include <QColor>
#include <QPolygon>
#include <QRect>

#include <algorithm>

inline QColor toColor(COLORREF color, int alpha = 255)
{
    return QColor(GetRValue(color), GetGValue(color), GetBValue(color), alpha);
}

/// Empty for a null pointer or a count below 1.
inline QPolygon toPolygon(const POINT *points, int count)
{
    if (!points || count < 1)
        return QPolygon();
    QPolygon polygon(count);
    std::transform(points, points + count, polygon.begin(),
                   [](POINT point) { return QPoint(point.x, point.y); });
    return polygon;
}

/// Right and bottom are exclusive. Edges far outside of any device come nearer, so that the size fits an int.
inline QRect toQRect(const RECT &rect)
{
    const auto edge = [](LONG position) { return std::clamp(position, -(1 << 29), 1 << 29); };
    const QPoint topLeft(edge(rect.left), edge(rect.top));
    return QRect(topLeft, QSize(edge(rect.right) - topLeft.x(), edge(rect.bottom) - topLeft.y()));
}
