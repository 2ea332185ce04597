#include "FloorPlanWnd.h"

#include "PlanCanvas.h"
#include "PlanDrawing.h"
#include "PlanLayout.h"

#include <QImage>

#include <algorithm>

static const int MIN_ZOOM = 50;
static const int MAX_ZOOM = 300;

KxGrQtDoubleBufferImage *DeviceOf(CWnd *pWnd)
{
    HDC hDC = pWnd ? pWnd->GetSafeHdc() : nullptr;
    return static_cast<KxGrQtDoubleBufferImage *>(reinterpret_cast<KxQtPaintDeviceWrapper *>(hDC));
}

void CFloorPlanWnd::PreSubclassWindow()
{
    _CreateDCforHwnd(m_hWnd);
    Redraw();
}

void CFloorPlanWnd::SetStock(const CStock *pStock)
{
    m_pStock = pStock;
    m_nSelected = NO_ROOM;
    Redraw();
}

void CFloorPlanWnd::SetZoom(int nPercent)
{
    m_nZoom = std::clamp(nPercent, MIN_ZOOM, MAX_ZOOM);
    Redraw();
}

void CFloorPlanWnd::SelectRoom(int nRoom)
{
    m_nSelected = nRoom;
    if (!m_pStock || !DeviceOf(this))
        return;
    ShowSelection();
    const CRect rect = GetSelection();
    PlanCanvas *pCanvas = GetCanvas();
    if (pCanvas && !rect.IsRectEmpty())
        pCanvas->scrollTo(QRect(rect.left, rect.top, rect.Width(), rect.Height()));
}

PlanCanvas *CFloorPlanWnd::GetCanvas() const
{
    return qobject_cast<PlanCanvas *>(reinterpret_cast<QWidget *>(m_hWnd));
}

// Empty when what is selected is not on the plan.
CRect CFloorPlanWnd::GetSelection() const
{
    if (m_nSelected < 0 || m_nSelected >= m_pStock->GetRoomCount())
        return CRect();
    return CPlanDrawing(*m_pStock, m_nZoom).GetRoomRect(m_nSelected);
}

void CFloorPlanWnd::Redraw()
{
    KxGrQtDoubleBufferImage *pDevice = DeviceOf(this);
    if (!pDevice || !m_pStock)
        return;
    CPlanDrawing drawing(*m_pStock, m_nZoom);
    SetSize(drawing.GetSize());
    if (!pDevice->memImage())
        return;
    pDevice->memPainter()->beginDraw();
    drawing.Draw(pDevice->memPainter());
    pDevice->memPainter()->endDraw();
    ShowSelection();
}

void CFloorPlanWnd::SetSize(CSize size)
{
    KxGrQtDoubleBufferImage *pDevice = DeviceOf(this);
    const QImage *pImage = pDevice->memImage();
    if (pImage && pImage->width() == size.cx && pImage->height() == size.cy)
        return;
    // Images that are there would keep their size.
    pDevice->destroyImages();
    pDevice->createImages(size.cx, size.cy, 4);
    // MoveWindow() only moves on this platform.
    if (PlanCanvas *pCanvas = GetCanvas())
        pCanvas->zoomTo(QSize(size.cx, size.cy));
}

// On the front image alone: the plan in the memory image stays as it is, and takes the former frame away.
void CFloorPlanWnd::ShowSelection()
{
    KxGrQtDoubleBufferImage *pDevice = DeviceOf(this);
    pDevice->repairFrontBuffer();
    if (GetSelection().IsRectEmpty())
        return;
    pDevice->frontPainter()->beginDraw();
    CPlanDrawing(*m_pStock, m_nZoom).DrawSelection(pDevice->frontPainter(), m_nSelected);
    pDevice->frontPainter()->endDraw();
}

int CFloorPlanWnd::HitTest(CPoint point) const
{
    if (!m_pStock)
        return NO_ROOM;
    return FindRoomAt(*m_pStock, CPoint(point.x * 100 / m_nZoom, point.y * 100 / m_nZoom));
}
