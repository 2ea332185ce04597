#include "KxWindows.h"

BOOL CWnd::SubclassWindow(HWND)
{
    return TRUE;
}

CWnd *CWnd::GetParentOwner() const
{
    return nullptr;
}

CWnd *CWnd::GetTopLevelParent() const
{
    return nullptr;
}

CWnd *CWnd::GetOwner() const
{
    return nullptr;
}

void CWnd::SetOwner(CWnd *) {}

void CWnd::ClientToScreen(RECT *) const {}

void CWnd::ScreenToClient(POINT *) const {}

void CWnd::ScreenToClient(RECT *) const {}

void CWnd::MapWindowPoints(CWnd *, RECT *) const {}

void CWnd::MoveWindow(const RECT *, BOOL) {}

void CWnd::CenterWindow(CWnd *) {}

void CWnd::BringWindowToTop() {}

BOOL CWnd::SetForegroundWindow()
{
    return 0;
}

CWnd *CWnd::GetCapture()
{
    return nullptr;
}

CWnd *CWnd::SetCapture()
{
    return nullptr;
}

BOOL CWnd::ModifyStyleEx(DWORD, DWORD, UINT)
{
    return TRUE;
}

DWORD CWnd::GetStyle() const
{
    return 0;
}

void CWnd::UpdateWindow() {}

void CWnd::SetRedraw(BOOL) {}

void CWnd::LockWindowUpdate() {}

void CWnd::UnlockWindowUpdate() {}

BOOL CWnd::RedrawWindow(const RECT *, CRgn *, UINT)
{
    return TRUE;
}

int CWnd::ReleaseDC(CDC *)
{
    return 0;
}

CDC *CWnd::GetWindowDC()
{
    return nullptr;
}

void CWnd::SetFont(CFont *, BOOL) {}

CFont *CWnd::GetFont() const
{
    return nullptr;
}

HICON CWnd::SetIcon(HICON, BOOL)
{
    return nullptr;
}

HICON CWnd::GetIcon(BOOL) const
{
    return nullptr;
}

BOOL CWnd::EnableToolTips(BOOL)
{
    return TRUE;
}

CMenu *CWnd::GetMenu()
{
    return nullptr;
}

BOOL CWnd::SetMenu(CMenu *)
{
    return TRUE;
}

BOOL CWnd::IsKindOf(const CRuntimeClass *) const
{
    return TRUE;
}

void CWnd::BeginWaitCursor() {}

void CWnd::EndWaitCursor() {}

BOOL CWnd::PostMessageW(UINT, WPARAM, LPARAM)
{
    return TRUE;
}

BOOL CWnd::OnChildNotify(UINT, WPARAM, LPARAM, LRESULT *)
{
    return FALSE;
}

LRESULT CWnd::Default()
{
    return 0;
}

UINT_PTR CWnd::SetTimer(UINT_PTR, UINT, TIMERPROC)
{
    return 0;
}

BOOL CWnd::KillTimer(UINT_PTR)
{
    return TRUE;
}

void CWnd::PreSubclassWindow() {}

void CWnd::DoDataExchange(CDataExchange *) {}

BOOL CWnd::PreTranslateMessage(MSG *)
{
    return TRUE;
}

BOOL CWnd::OnCommand(WPARAM, LPARAM)
{
    return TRUE;
}

LRESULT CWnd::WindowProc(UINT, WPARAM, LPARAM)
{
    return 0;
}

int CWnd::OnCreate(CREATESTRUCTW *)
{
    return 1;
}

void CWnd::OnPaint() {}

void CWnd::OnLButtonDown(UINT, CPoint) {}

void CWnd::OnLButtonUp(UINT, CPoint) {}

void CWnd::OnMouseMove(UINT, CPoint) {}

BOOL CWnd::OnMouseWheel(UINT, short, CPoint)
{
    return FALSE;
}

void CWnd::OnTimer(UINT_PTR) {}

void CWnd::OnSize(UINT, int, int) {}

void CWnd::OnSizing(UINT, RECT *) {}

void CWnd::OnClose() {}

void CWnd::OnDestroy() {}

HBRUSH CWnd::OnCtlColor(CDC *, CWnd *, UINT)
{
    return nullptr;
}

void CWnd::OnChar(UINT, UINT, UINT) {}

void CWnd::OnGetMinMaxInfo(MINMAXINFO *) {}
