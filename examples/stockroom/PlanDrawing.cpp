#include "PlanDrawing.h"

#include "PlanLayout.h"
#include "Texts.h"
#include "resource.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

// All sizes are in units of the plan, unless their names say pixels.
static const int LEGEND_HEIGHT = 44;
static const int LEGEND_GAP = 12;
static const int OUTER_WALL = 8;
static const int INNER_WALL = 4;
static const int LABEL_HEIGHT = 13;
static const int FRAME_WIDTH = 4;
static const int FRAME_ALPHA = 48; // of 255
static const int MIN_FONT_PIXELS = 8;

static const COLORREF PAPER = RGB(255, 255, 255);
static const COLORREF WALL_COLOR = RGB(69, 78, 94);
static const COLORREF DOOR_COLOR = RGB(110, 120, 136);
static const COLORREF TEXT_COLOR = RGB(33, 39, 51);
static const COLORREF GROUND_COLOR = RGB(228, 235, 226);
static const COLORREF FRAME_COLOR = RGB(21, 101, 192);
static const COLORREF CORRIDOR_COLOR = RGB(247, 247, 244);

static const struct
{
    UINT nIDText;
    COLORREF color;
} USAGES[] = {
    {IDS_PLAN_EMPTY, RGB(232, 236, 241)},       {IDS_PLAN_QUARTER, RGB(190, 224, 193)},
    {IDS_PLAN_HALF, RGB(221, 231, 152)},        {IDS_PLAN_THREE_QUARTERS, RGB(255, 222, 133)},
    {IDS_PLAN_ALMOST_FULL, RGB(245, 160, 131)},
};

static const QImage &ImageOf(HBITMAP hBitmap)
{
    return *reinterpret_cast<const QImage *>(hBitmap);
}

static const QImage &ImageOf(const CDC &dc)
{
    const auto *pDevice = reinterpret_cast<const KxQtPaintDeviceWrapper *>(dc.m_hDC);
    return *static_cast<const QImage *>(pDevice->destinationDevice());
}

static QRect AreaOf(const QImage &image)
{
    return {0, 0, image.width(), image.height()};
}

static void SetFont(KxQtPainterWrapper *pPainter, int nPixels, BOOL bBold)
{
    // The painter counts a font's height in 36ths of the device's colour depth.
    const int nDepth = pPainter->wrappedDevice()->depth();
    LOGFONT lf = {};
    lf.lfHeight = (nPixels * 36 + nDepth - 1) / nDepth;
    lf.lfWeight = bBold ? 750 : 500;
    _tcscpy(lf.lfFaceName, _T("Sans Serif"));
    pPainter->setFontIndirect(&lf);
}

static int GetTextWidth(KxQtPainterWrapper *pPainter, const CString &strText)
{
    return pPainter->wrappedPainter()->fontMetrics().horizontalAdvance(QString::fromStdWString(strText));
}

// In the middle of its place; in smaller letters, or cut off, when it is too long.
static void DrawTextLine(KxQtPainterWrapper *pPainter, const CRect &rect, CString strText, int nPixels,
                         BOOL bBold)
{
    SetFont(pPainter, nPixels, bBold);
    while (nPixels > MIN_FONT_PIXELS && GetTextWidth(pPainter, strText) > rect.Width())
        SetFont(pPainter, --nPixels, bBold);
    const QFontMetrics metrics = pPainter->wrappedPainter()->fontMetrics();
    if (GetTextWidth(pPainter, strText) > rect.Width())
        strText = metrics.elidedText(QString::fromStdWString(strText), Qt::ElideRight, rect.Width())
                      .toStdWString()
                      .c_str();
    const int nLeft = rect.left + (rect.Width() - GetTextWidth(pPainter, strText)) / 2;
    const int nBase = rect.top + (rect.Height() + metrics.ascent() - metrics.descent()) / 2;
    pPainter->drawText(nLeft, nBase, strText, -1);
}

CPlanDrawing::CPlanDrawing(const CStock &stock, int nZoom)
    : m_stock(stock)
    , m_nZoom(nZoom)
{
}

int CPlanDrawing::Scale(int n) const
{
    return n * m_nZoom / 100;
}

CRect CPlanDrawing::Scale(CRect rect) const
{
    rect.left = Scale(rect.left);
    rect.top = Scale(rect.top);
    rect.right = Scale(rect.right);
    rect.bottom = Scale(rect.bottom);
    return rect;
}

CSize CPlanDrawing::GetSize() const
{
    CSize size;
    size.cx = Scale(PLAN_WIDTH);
    size.cy = Scale(PLAN_HEIGHT + LEGEND_HEIGHT);
    return size;
}

CRect CPlanDrawing::GetRoomRect(int nRoom) const
{
    return Scale(m_stock.GetRoom(nRoom).m_rcPlan);
}

int CPlanDrawing::GetFontPixels() const
{
    return std::max(Scale(LABEL_HEIGHT), MIN_FONT_PIXELS);
}

int CPlanDrawing::GetWall(int nRoom) const
{
    return HasRooms(m_stock, nRoom) ? OUTER_WALL : INNER_WALL;
}

COLORREF CPlanDrawing::GetFloorColor(int nRoom) const
{
    if (HasRooms(m_stock, nRoom))
        return CORRIDOR_COLOR;
    const int nUsage = m_usage[nRoom];
    return USAGES[nUsage == 0 ? 0 : 1 + nUsage / 64].color;
}

void CPlanDrawing::Draw(KxQtPainterWrapper *pPainter)
{
    m_stock.CountItems(m_counts, m_usage);
    const CSize size = GetSize();
    CDibData dib;
    HDC hDC = nullptr;
    HBITMAP hBitmap = nullptr;
    dib.makeBitmap(hDC, hBitmap, size.cx, size.cy, nullptr);
    DrawWalls(reinterpret_cast<KxQtPainterWrapper *>(hDC));
    FillFloors(dib);
    pPainter->drawImage(AreaOf(ImageOf(hBitmap)), ImageOf(hBitmap));

    DrawDoors(pPainter);
    DrawLabels(pPainter);
    DrawSigns(pPainter);
    DrawLegend(pPainter);
}

void CPlanDrawing::DrawSelection(KxQtPainterWrapper *pPainter, int nRoom) const
{
    pPainter->setPen(PS_SOLID, std::max(2, Scale(FRAME_WIDTH)), FRAME_COLOR);
    pPainter->drawAlphaRect(GetRoomRect(nRoom), FRAME_COLOR, FRAME_ALPHA);
    // The frame may go through signs.
    DrawSigns(pPainter);
}

void CPlanDrawing::DrawWalls(KxQtPainterWrapper *pPainter) const
{
    static CBrush brPaper(PAPER);
    const CSize size = GetSize();
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(nullptr, size.cx, size.cy);
    {
        CDC dc;
        dc.SelectObject(&bitmap);
        dc.FillRect(CRect(0, 0, size.cx, size.cy), &brPaper);
        for (int i = 0; i < m_stock.GetRoomCount(); ++i)
            DrawWall(dc, i);
        pPainter->beginDraw();
        pPainter->drawImage(AreaOf(ImageOf(dc)), ImageOf(dc));
        pPainter->endDraw();
    }
    bitmap.DeleteObject();
}

// Walls stand in the middle of the edges, so that neighbours share them.
void CPlanDrawing::DrawWall(CDC &dc, int nRoom) const
{
    static CBrush brWall(WALL_COLOR);
    CRect outer = GetRoomRect(nRoom);
    if (outer.IsRectEmpty())
        return;
    const int nWall = std::max(2, Scale(GetWall(nRoom)));
    outer.InflateRect(nWall / 2, nWall / 2);
    CRect inner = outer;
    inner.DeflateRect(nWall, nWall);
    dc.FillRect(CRect(outer.left, outer.top, outer.right, inner.top), &brWall);
    dc.FillRect(CRect(outer.left, inner.bottom, outer.right, outer.bottom), &brWall);
    dc.FillRect(CRect(outer.left, outer.top, inner.left, outer.bottom), &brWall);
    dc.FillRect(CRect(inner.right, outer.top, outer.right, outer.bottom), &brWall);
}

// Gives what is still paper in a rectangle another colour.
static void FillPaper(CDibData &dib, const CRect &rect, COLORREF color)
{
    const unsigned nPaper = dib.RGBtoValue(PAPER);
    const unsigned nColor = dib.RGBtoValue(color) | 0xFF000000;
    const int nLast = rect.right - 1;
    for (int y = rect.top; y < rect.bottom; ++y) {
        int x = dib.SearchRight(rect.left, y, nLast, nPaper);
        while (x <= nLast) {
            const int nEnd = dib.ScanRight(x, y, nLast, nPaper);
            dib.DrawLineH(x, nEnd - 1, y, nColor);
            x = dib.SearchRight(nEnd, y, nLast, nPaper);
        }
    }
}

void CPlanDrawing::FillFloors(CDibData &dib) const
{
    // A room within another one has the higher index: what is left of the outer one is filled later.
    for (int i = m_stock.GetRoomCount() - 1; i >= 0; --i)
        FillPaper(dib, GetRoomRect(i), GetFloorColor(i));
    FillPaper(dib, Scale(CRect(0, 0, PLAN_WIDTH, PLAN_HEIGHT)), GROUND_COLOR);
}

void CPlanDrawing::DrawDoors(KxQtPainterWrapper *pPainter) const
{
    pPainter->beginPath();
    for (int i = 0; i < m_stock.GetRoomCount(); ++i) {
        CPlanDoor door;
        if (!FindDoor(m_stock, i, door))
            continue;
        OpenWall(pPainter, door, GetWall(i));
        DrawLeaf(pPainter, door, GetWall(i));
    }
    pPainter->endPath();
    pPainter->setPen(PS_SOLID, std::max(1, Scale(1)), DOOR_COLOR);
    pPainter->setBrush(Qt::NoBrush);
    pPainter->strokeAndFillPath();
}

void CPlanDrawing::OpenWall(KxQtPainterWrapper *pPainter, const CPlanDoor &door, int nWall) const
{
    const int nAcrossX = std::abs(door.m_into.cx) * nWall / 2;
    const int nAcrossY = std::abs(door.m_into.cy) * nWall / 2;
    CRect gap;
    gap.left = door.m_hinge.x - nAcrossX;
    gap.top = door.m_hinge.y - nAcrossY;
    gap.right = door.m_hinge.x + door.m_along.cx * door.m_nWidth + nAcrossX;
    gap.bottom = door.m_hinge.y + door.m_along.cy * door.m_nWidth + nAcrossY;
    pPainter->fillRect(Scale(gap), CORRIDOR_COLOR);
}

// The open leaf, and the quarter of a circle in which it swings.
void CPlanDrawing::DrawLeaf(KxQtPainterWrapper *pPainter, const CPlanDoor &door, int nWall) const
{
    const int STEPS = 8;
    const double RIGHT_ANGLE = 1.5707963267948966;
    const double dWidth = door.m_nWidth * m_nZoom / 100.0;
    CPoint hinge = door.m_hinge;
    hinge.x = Scale(hinge.x + door.m_into.cx * nWall / 2);
    hinge.y = Scale(hinge.y + door.m_into.cy * nWall / 2);
    POINT points[STEPS + 2] = {hinge};
    for (int i = 0; i <= STEPS; ++i) {
        const double dAlong = dWidth * std::sin(RIGHT_ANGLE * i / STEPS);
        const double dInto = dWidth * std::cos(RIGHT_ANGLE * i / STEPS);
        points[i + 1].x = int(std::lround(hinge.x + door.m_along.cx * dAlong + door.m_into.cx * dInto));
        points[i + 1].y = int(std::lround(hinge.y + door.m_along.cy * dAlong + door.m_into.cy * dInto));
    }
    pPainter->drawPolyline(points, STEPS + 2);
}

void CPlanDrawing::DrawLabels(KxQtPainterWrapper *pPainter) const
{
    for (int i = 0; i < m_stock.GetRoomCount(); ++i) {
        if (!HasRooms(m_stock, i))
            DrawLabel(pPainter, i);
    }
}

void CPlanDrawing::DrawSigns(KxQtPainterWrapper *pPainter) const
{
    for (int i = 0; i < m_stock.GetRoomCount(); ++i) {
        if (HasRooms(m_stock, i))
            DrawSign(pPainter, i);
    }
}

// The name of a room, and the number of items in it.
void CPlanDrawing::DrawLabel(KxQtPainterWrapper *pPainter, int nRoom) const
{
    CRect rcLine = GetRoomRect(nRoom);
    if (rcLine.IsRectEmpty())
        return;
    const int nItems = m_counts[nRoom];
    const CString strItems = FormatText(nItems == 1 ? IDS_PLAN_ITEM : IDS_PLAN_ITEMS, nItems);
    const int nLine = GetFontPixels() * 5 / 4;
    rcLine.DeflateRect(Scale(INNER_WALL), 0);
    rcLine.bottom = rcLine.top + rcLine.Height() / 2;
    rcLine.top = rcLine.bottom - nLine;
    pPainter->setPen(PS_SOLID, 1, TEXT_COLOR);
    DrawTextLine(pPainter, rcLine, m_stock.GetRoom(nRoom).m_strName, GetFontPixels(), TRUE);
    rcLine.OffsetRect(0, nLine);
    DrawTextLine(pPainter, rcLine, strItems, GetFontPixels(), FALSE);
}

// The name of a building on its upper wall.
void CPlanDrawing::DrawSign(KxQtPainterWrapper *pPainter, int nRoom) const
{
    const CRect rcRoom = GetRoomRect(nRoom);
    if (rcRoom.IsRectEmpty())
        return;
    const CString &strName = m_stock.GetRoom(nRoom).m_strName;
    const int nMargin = GetFontPixels() / 4;
    const int nHeight = GetFontPixels() + 2 * nMargin;
    SetFont(pPainter, GetFontPixels(), TRUE);
    CRect rcSign = rcRoom;
    rcSign.left += nHeight;
    rcSign.top -= nHeight / 2;
    rcSign.right = rcSign.left + GetTextWidth(pPainter, strName) + 4 * nMargin;
    rcSign.bottom = rcSign.top + nHeight;
    pPainter->fillRect(rcSign, WALL_COLOR);
    pPainter->setPen(PS_SOLID, 1, PAPER);
    rcSign.DeflateRect(2 * nMargin, nMargin);
    DrawTextLine(pPainter, rcSign, strName, GetFontPixels(), TRUE);
}

void CPlanDrawing::DrawLegend(KxQtPainterWrapper *pPainter) const
{
    const int COLUMN = PLAN_WIDTH / int(_countof(USAGES) + 1);
    pPainter->fillRect(Scale(CRect(0, PLAN_HEIGHT, PLAN_WIDTH, PLAN_HEIGHT + LEGEND_HEIGHT)), PAPER);
    pPainter->setPen(PS_SOLID, 1, TEXT_COLOR);
    CRect rcEntry;
    rcEntry.left = LEGEND_GAP;
    rcEntry.top = PLAN_HEIGHT + (LEGEND_HEIGHT - LABEL_HEIGHT) / 2;
    rcEntry.right = COLUMN - LEGEND_GAP;
    rcEntry.bottom = rcEntry.top + LABEL_HEIGHT;
    DrawTextLine(pPainter, Scale(rcEntry), LoadText(IDS_PLAN_USAGE), GetFontPixels(), TRUE);
    for (const auto &usage : USAGES) {
        rcEntry.OffsetRect(COLUMN, 0);
        CRect rcColor = rcEntry;
        rcColor.InflateRect(LEGEND_GAP / 2, LEGEND_GAP / 2);
        pPainter->fillRect(Scale(rcColor), usage.color);
        DrawTextLine(pPainter, Scale(rcEntry), LoadText(usage.nIDText), GetFontPixels(), FALSE);
    }
}
