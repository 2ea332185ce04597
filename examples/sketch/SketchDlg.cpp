#include "SketchDlg.h"

static const int STYLES[] = {PS_SOLID, PS_DASH, PS_DOT, PS_DASHDOT, PS_DASHDOTDOT};

CSketchDlg::CSketchDlg(CWnd *pParent)
    : CDialog(CSketchDlg::IDD, pParent)
{
}

void CSketchDlg::DoDataExchange(CDataExchange *pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_CANVAS, m_wndCanvas);
    DDX_Radio(pDX, IDC_TOOL_LINE, m_nTool);
    DDX_CBIndex(pDX, IDC_COLOR, m_nColor);
    DDX_CBIndex(pDX, IDC_STYLE, m_nStyle);
    DDX_Slider(pDX, IDC_WIDTH, m_nWidth);
    DDX_Text(pDX, IDC_FILE, m_strFile);
}

BOOL CSketchDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_wndCanvas.m_strStatus = L"Draw with the left mouse button";
    OnChange();
    ShowState();
    return TRUE;
}

void CSketchDlg::OnChange()
{
    UpdateData(TRUE);
    m_wndCanvas.m_nTool = static_cast<TOOL>(m_nTool);
    m_wndCanvas.m_pen = {STYLES[m_nStyle], m_nWidth, COLORS[m_nColor]};

    CString strText;
    strText.Format(L"%d px", m_nWidth);
    SetDlgItemTextW(IDC_WIDTH_TEXT, strText);
}

void CSketchDlg::OnLButtonDown(CPoint point)
{
    m_wndCanvas.OnLButtonDown(point);
    ShowState();
}

void CSketchDlg::OnMouseMove(CPoint point)
{
    m_wndCanvas.OnMouseMove(point);
}

void CSketchDlg::OnLButtonUp(CPoint point)
{
    m_wndCanvas.OnLButtonUp(point);
    ShowState();
}

void CSketchDlg::OnUndo()
{
    m_wndCanvas.Undo();
    ShowState();
}

void CSketchDlg::OnClear()
{
    m_wndCanvas.Clear();
    ShowState();
}

void CSketchDlg::OnPrint()
{
    UpdateData(TRUE);
    const BOOL bPrinted = m_wndCanvas.Print(m_strFile);
    ShowState();
    if (bPrinted)
        return;
    CString strReason;
    strReason.Format(L"Cannot write %ls.", m_strFile.c_str());
    AfxMessageBox(strReason, MB_ICONWARNING);
}

void CSketchDlg::ShowState()
{
    SetDlgItemTextW(IDC_STATUS, m_wndCanvas.m_strStatus);
    GetDlgItem(IDC_UNDO)->EnableWindow(m_wndCanvas.CanUndo());
}
