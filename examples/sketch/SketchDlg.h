#pragma once

#include "SketchWnd.h"

// Of the items in the list of colours.
const COLORREF COLORS[] = {RGB(32, 32, 32),    RGB(200, 40, 40), RGB(240, 150, 30), RGB(120, 170, 60),
                           RGB(150, 205, 240), RGB(40, 90, 180), RGB(255, 255, 255)};

class CSketchDlg : public CDialog
{
public:
    enum { IDD = IDD_SKETCH };

    explicit CSketchDlg(CWnd *pParent = nullptr);

    int m_nTool = TOOL_LINE;
    int m_nColor = 0; // index into the list of colours
    int m_nStyle = 0; // index into the list of pen styles
    int m_nWidth = 3; // of the pen, in pixels
    CString m_strFile = L"sketch.pdf";
    CSketchWnd m_wndCanvas;

    BOOL OnInitDialog() override;
    void OnChange();
    void OnLButtonDown(CPoint point);
    void OnMouseMove(CPoint point);
    void OnLButtonUp(CPoint point);
    void OnUndo();
    void OnClear();
    void OnPrint();

protected:
    void DoDataExchange(CDataExchange *pDX) override;

private:
    void ShowState();
};
