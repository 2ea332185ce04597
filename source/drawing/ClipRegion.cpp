#include "ClipRegion.h"

#include "DrawingConversions.h"

#include <QPainterPath>

// What of a polygon lies on the inner side of a line, plus edges on the line itself. Odd-even, the area of the
// inner side stays as it is.
static QPolygonF cut(const QPolygonF &polygon, QPointF outwards, qreal limit)
{
    QPolygonF inside;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF from = polygon[i];
        const QPointF to = polygon[(i + 1) % polygon.size()];
        const qreal fromDepth = limit - QPointF::dotProduct(from, outwards);
        const qreal toDepth = limit - QPointF::dotProduct(to, outwards);
        if (fromDepth >= 0)
            inside << from;
        if ((fromDepth >= 0) != (toDepth >= 0))
            inside << from + (to - from) * (fromDepth / (fromDepth - toDepth));
    }
    return inside;
}

static QPolygonF cut(const QPolygonF &polygon, const QRectF &rect)
{
    const QPolygonF columns = cut(cut(polygon, {-1, 0}, -rect.left()), {1, 0}, rect.right());
    return cut(cut(columns, {0, -1}, -rect.top()), {0, 1}, rect.bottom());
}

static QRectF upTo(int reach)
{
    return {QPointF(-reach, -reach), QPointF(reach, reach)};
}

QRegion clipRegion(const POINT *points, const UINT *counts, UINT n, const QRectF &visible)
{
    // Qt takes a division by zero or all memory for a region that is too large, and seconds well before. What is
    // near may be seen on devices that take the place of this one and with other origins.
    constexpr int near = 8192;
    constexpr int margin = 4096;
    constexpr int most = 32768;
    const QRectF reach = (visible.adjusted(-margin, -margin, margin, margin) | upTo(near)) & upTo(most);
    QPainterPath path;
    QRectF box;
    for (UINT i = 0; points && counts && i < n; ++i) {
        const QPolygonF polygon = toPolygon(points, int(counts[i]));
        box |= polygon.boundingRect();
        path.addPolygon(cut(polygon, reach));
        points += counts[i];
    }
    const QRegion region(path.toFillPolygon().toPolygon(), Qt::OddEvenFill);
    // An empty region would remove clipping, but polygons out of reach hide all.
    const bool isOutOfReach = region.isEmpty() && !box.isEmpty() && !reach.contains(box);
    return isOutOfReach ? QRegion(-2 * most, -2 * most, 1, 1) : region;
}
