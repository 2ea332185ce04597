#pragma once

#include "StockData.h"

class PlanCanvas;

/// The device behind a window's context; null when it has none.
KxGrQtDoubleBufferImage *DeviceOf(CWnd *pWnd);

/// Draws the rooms of a stock in the colours of how full they are.
class CFloorPlanWnd : public CWnd
{
public:
    int m_nZoom = 100; // per cent
    int m_nSelected = NO_ROOM;

    void PreSubclassWindow() override;
    void SetStock(const CStock *pStock);
    /// Draws everything anew, for example after an item moved; called by the other members.
    void Redraw();
    /// Also gives the window the size of the plan.
    /// @param nPercent from 50 to 300; what is beyond counts as these.
    void SetZoom(int nPercent);
    /// Frames a room and scrolls to it.
    void SelectRoom(int nRoom);
    /// @return the innermost room at a point of the window, or NO_ROOM.
    int HitTest(CPoint point) const;

private:
    const CStock *m_pStock = nullptr;

    PlanCanvas *GetCanvas() const;
    CRect GetSelection() const;
    void SetSize(CSize size);
    void ShowSelection();
};
