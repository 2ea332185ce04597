#include "ClipRegion.h"
#include "DrawingConversions.h"
#include "KxPainter.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <climits>
#include <cwchar>

KxQtPainterWrapper::KxQtPainterWrapper()
    : KxQtPainterWrapper(nullptr)
{
}

KxQtPainterWrapper::KxQtPainterWrapper(QPaintDevice *device)
    : m_pDevice(device)
    , m_pPainter(std::make_unique<QPainter>())
    , m_pPath(std::make_unique<QPainterPath>())
    , m_pClipRegion(std::make_unique<QRegion>())
{
}

KxQtPainterWrapper::~KxQtPainterWrapper() = default;

void KxQtPainterWrapper::setWrappedDevice(QPaintDevice *device)
{
    m_pDevice = device;
}

QPaintDevice *KxQtPainterWrapper::wrappedDevice() const
{
    return m_pDevice;
}

QPainter *KxQtPainterWrapper::wrappedPainter() const
{
    return m_pPainter.get();
}

// Qt warns of every call on an idle painter, and ignores it.
bool KxQtPainterWrapper::isDrawing() const
{
    return m_pPainter->isActive();
}

bool KxQtPainterWrapper::beginDraw()
{
    if (!m_pDevice)
        return false;
    // Ported code takes the device for success, whatever Qt makes of it.
    if (!isDrawing() && !m_pPainter->begin(m_pDevice))
        return true;
    save();
    setDefaultPenAndBrush();
    applyClipRegion();
    return true;
}

bool KxQtPainterWrapper::endDraw()
{
    if (!m_pDevice || !isDrawing())
        return false;
    restore();
    return m_pPainter->end();
}

void KxQtPainterWrapper::setDefaultPenAndBrush()
{
    if (!isDrawing())
        return;
    QPen pen(Qt::SolidLine);
    pen.setWidth(0);
    m_pPainter->setPen(pen);
    m_pPainter->setBrush(Qt::SolidPattern);
}

void KxQtPainterWrapper::applyClipRegion()
{
    m_pPainter->setClipRegion(*m_pClipRegion, m_pClipRegion->isEmpty() ? Qt::NoClip : Qt::ReplaceClip);
}

void KxQtPainterWrapper::save()
{
    if (isDrawing())
        m_pPainter->save();
}

void KxQtPainterWrapper::restore()
{
    if (isDrawing())
        m_pPainter->restore();
}

void KxQtPainterWrapper::beginPath()
{
    m_bPathMode = true;
}

void KxQtPainterWrapper::endPath()
{
    m_bPathMode = false;
}

void KxQtPainterWrapper::strokePath()
{
    if (isDrawing())
        m_pPainter->strokePath(*m_pPath, m_pPainter->pen());
    m_pPath->clear();
}

void KxQtPainterWrapper::fillPath()
{
    if (isDrawing()) {
        m_pPainter->setRenderHint(QPainter::Antialiasing);
        m_pPainter->fillPath(*m_pPath, m_pPainter->brush());
    }
    m_pPath->clear();
}

void KxQtPainterWrapper::strokeAndFillPath()
{
    if (isDrawing()) {
        m_pPainter->setRenderHint(QPainter::Antialiasing);
        m_pPainter->strokePath(*m_pPath, m_pPainter->pen());
        m_pPainter->fillPath(*m_pPath, m_pPainter->brush());
    }
    m_pPath->clear();
}

Qt::PenStyle LsToQPenStyle(int style)
{
    switch (style) {
    case PS_SOLID:
        return Qt::SolidLine;
    case PS_DASH:
        return Qt::DashLine;
    case PS_DOT:
        return Qt::DotLine;
    case PS_DASHDOT:
        return Qt::DashDotLine;
    case PS_DASHDOTDOT:
        return Qt::DashDotDotLine;
    case PS_NULL:
        return Qt::NoPen;
    case PS_USERSTYLE:
        return Qt::CustomDashLine;
    default:
        return Qt::PenStyle(style);
    }
}

void KxQtPainterWrapper::setPen(int style, int width, COLORREF c)
{
    if (!isDrawing())
        return;
    QPen pen(LsToQPenStyle(style & 15));
    if (pen.style() == Qt::DashLine || pen.style() == Qt::CustomDashLine)
        pen.setDashPattern({12, 4});
    if (width >= 0 && width < 1 << 15)
        pen.setWidth(width);
    pen.setColor(toColor(c));
    m_pPainter->setPen(pen);
}

void KxQtPainterWrapper::setPenColor(COLORREF c)
{
    if (!isDrawing())
        return;
    QPen pen = m_pPainter->pen();
    pen.setColor(toColor(c));
    m_pPainter->setPen(pen);
}

void KxQtPainterWrapper::setBrush(const QBrush &brush)
{
    if (isDrawing())
        m_pPainter->setBrush(brush);
}

void KxQtPainterWrapper::setBrush(int style)
{
    const bool isPattern = style >= Qt::NoBrush && style <= Qt::DiagCrossPattern;
    if (isDrawing())
        m_pPainter->setBrush(isPattern ? Qt::BrushStyle(style) : Qt::NoBrush);
}

void KxQtPainterWrapper::setBrush(COLORREF c)
{
    setBrush(QBrush(toColor(c)));
}

void KxQtPainterWrapper::setBkMode(int mode)
{
    if (isDrawing())
        m_pPainter->setBackgroundMode(mode == OPAQUE ? Qt::OpaqueMode : Qt::TransparentMode);
}

void KxQtPainterWrapper::setBackground(COLORREF c)
{
    if (isDrawing())
        m_pPainter->setBackground(toColor(c));
}

int KxQtPainterWrapper::getROP2() const
{
    return isDrawing() ? m_pPainter->compositionMode() : QPainter::CompositionMode_SourceOver;
}

void KxQtPainterWrapper::setROP2(int mode)
{
    const bool isKnown =
        mode >= QPainter::CompositionMode_SourceOver && mode <= QPainter::RasterOp_NotDestination;
    if (isDrawing() && isKnown)
        m_pPainter->setCompositionMode(QPainter::CompositionMode(mode));
}

void KxQtPainterWrapper::setFontIndirect(const LOGFONTW *lf)
{
    if (!isDrawing() || !lf)
        return;
    const auto nameLength = int(wcsnlen(lf->lfFaceName, LF_FACESIZE));
    QFont font(QString::fromWCharArray(lf->lfFaceName, nameLength));
    // What is not set comes from the device: a widget has a font of its own.
    if (lf->lfItalic != 0)
        font.setItalic(true);
    if (lf->lfWeight != 0)
        font.setWeight(std::clamp(lf->lfWeight / 10, 0, 127)); // All that a QFont keeps.

    // Ported code is tuned to the weight standing in for the height.
    const LONG size = lf->lfHeight < 1 ? lf->lfWeight : lf->lfHeight;
    const double pixels = m_pDevice ? m_pDevice->depth() * double(size) / 36.0 : 0;
    if (pixels >= 1)
        font.setPixelSize(int(std::min(pixels, double(INT_MAX))));
    if (lf->lfPitchAndFamily == 1)
        font.setFixedPitch(true);
    m_pPainter->setFont(font);
}

void KxQtPainterWrapper::setClipRegion(POINT *pts, UINT *counts, UINT n)
{
    QRectF visible = m_pDevice ? QRectF(0, 0, m_pDevice->width(), m_pDevice->height()) : QRectF();
    if (isDrawing())
        visible = m_pPainter->combinedTransform().inverted().mapRect(visible);
    *m_pClipRegion = clipRegion(pts, counts, n, visible);
    if (isDrawing())
        applyClipRegion();
}

void KxQtPainterWrapper::Rotate(double angle, int cx, int cy)
{
    if (!isDrawing())
        return;
    m_pPainter->translate(cx, cy);
    m_pPainter->rotate(angle);
}

void KxQtPainterWrapper::drawPoint(int x, int y)
{
    if (isDrawing())
        m_pPainter->drawPoint(x, y);
}

void KxQtPainterWrapper::drawLine(int x1, int y1, int x2, int y2)
{
    if (isDrawing())
        m_pPainter->drawLine(x1, y1, x2, y2);
}

void KxQtPainterWrapper::drawPolyline(const POINT *pts, int n)
{
    QPolygon points = toPolygon(pts, n);
    if (m_bPathMode)
        m_pPath->addPolygon(points);
    if (m_bPathMode || !isDrawing() || points.isEmpty())
        return;
    if (points.first() != points.last() || getROP2() != QPainter::RasterOp_SourceXorDestination) {
        m_pPainter->drawPolyline(points);
        return;
    }
    // Two XORs of the closing point would take it away again.
    points.removeLast();
    save();
    m_pPainter->setBrush(Qt::NoBrush);
    m_pPainter->drawPolygon(points);
    restore();
}

void KxQtPainterWrapper::drawPolygon(const POINT *pts, int n)
{
    if (isDrawing())
        m_pPainter->drawPolygon(toPolygon(pts, n), Qt::OddEvenFill);
}

void KxQtPainterWrapper::drawText(int x, int y, const wchar_t *s, int len)
{
    if (isDrawing())
        m_pPainter->drawText(x, y, QString::fromWCharArray(s, len));
}

static QBrush alphaBrush(COLORREF c, int alpha)
{
    return alpha >= 1 ? QBrush(toColor(c, std::min(alpha, 255))) : QBrush(Qt::NoBrush);
}

void KxQtPainterWrapper::drawAlphaRect(const CRect &rect, COLORREF c, int alpha)
{
    if (!isDrawing())
        return;
    const RECT exchanged = {rect.right, rect.bottom, rect.left, rect.top};
    setBrush(alphaBrush(c, alpha));
    m_pPainter->drawRect(toQRect(rect.left >= rect.right ? exchanged : rect));
}

void KxQtPainterWrapper::drawAlphaArea(const CPoint *pts, int n, COLORREF c, int alpha)
{
    setBrush(alphaBrush(c, alpha));
    drawPolygon(pts, n);
}

void KxQtPainterWrapper::drawImage(int a, int b, unsigned char *bits, int, int, int format)
{
    // Formats up to that one need a colour table, without which Qt crashes.
    const bool isDrawable = format > QImage::Format_Indexed8 && format < QImage::NImageFormats;
    if (!isDrawing() || !isDrawable)
        return;
    // Ported code passes the position where a width and height would be expected.
    m_pPainter->drawImage(a, b, QImage(bits, a, b, QImage::Format(format)));
}

void KxQtPainterWrapper::drawImage(const QRect &target, const QImage &image)
{
    if (isDrawing())
        m_pPainter->drawImage(target, image);
}

void KxQtPainterWrapper::fillRect(const CRect &r, COLORREF c)
{
    if (isDrawing())
        m_pPainter->fillRect(toQRect(r), toColor(c));
}
