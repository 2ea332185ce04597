#pragma once

#include "KxMFCWrapper.h"
#include "resource.h"

#include <memory>
#include <vector>

class QPdfWriter;

/// What to draw with.
struct PEN
{
    int nStyle; // a PS_ constant
    int nWidth; // in pixels
    COLORREF color;
};

enum TOOL { TOOL_LINE, TOOL_FREEHAND, TOOL_BOX, TOOL_FILL };

/// The device behind a window's context; null when it has none.
KxGrQtDoubleBufferImage *DeviceOf(CWnd *pWnd);

/// The drawing window.
class CSketchWnd : public CWnd
{
public:
    TOOL m_nTool = TOOL_LINE;
    PEN m_pen{PS_SOLID, 1, RGB(0, 0, 0)};
    CString m_strStatus; // what the last operation did

    void PreSubclassWindow() override;
    void OnLButtonDown(CPoint point);
    void OnMouseMove(CPoint point);
    void OnLButtonUp(CPoint point);

    BOOL CanUndo() const;
    void Undo();
    void Clear();
    BOOL Print(const CString &strFile);

private:
    KxQtPainterWrapper *BeginPaint();
    void EndPaint(KxQtPainterWrapper *pPainter);
    void SaveForUndo();
    void DrawLine(CPoint from, CPoint to);
    void DrawBox(CRect rect);
    void DrawRubberBand();
    void Fill(CPoint point);
    void DrawPage(QPdfWriter &pdf);

    bool m_bDragging = false;
    TOOL m_nDragTool = TOOL_LINE; // as it was when the button went down
    CPoint m_start;
    CPoint m_last;
    // Each one puts back what was there before its operation when it is destroyed.
    std::vector<std::unique_ptr<KxQtGrDCAutoSaver>> m_undo;
};
