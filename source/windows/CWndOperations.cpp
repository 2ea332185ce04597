#include "KxDialogs.h"
#include "KxDrawing.h"
#include "KxGuard.h"
#include "KxUser32.h"
#include "foundation/QtConversions.h"

#include <QApplication>

void CWnd::GetWindowRect(RECT *lpRect) const
{
    if (boundWidget(this))
        ::GetWindowRect(m_hWnd, lpRect);
}

void CWnd::GetClientRect(RECT *lpRect)
{
    auto *widget = boundWidget(this);
    if (widget && lpRect)
        *lpRect = toRect(widget->rect());
}

void CWnd::ClientToScreen(POINT *lpPoint) const
{
    auto *widget = boundWidget(this);
    if (!widget || !lpPoint)
        return;
    const QPoint onScreen = widget->mapToGlobal(QPoint(lpPoint->x, lpPoint->y));
    *lpPoint = {onScreen.x(), onScreen.y()};
}

void CWnd::MoveWindow(int x, int y, int, int, BOOL)
{
    if (auto *widget = boundWidget(this))
        widget->move(x, y);
}

BOOL CWnd::SetWindowPos(const CWnd *, int x, int y, int cx, int cy, UINT)
{
    auto *widget = boundWidget(this);
    if (!widget)
        return withoutWidget<BOOL>(this, TRUE);
    // A call with a size is left to Qt's layouts; one without moves, SWP_NOMOVE or not.
    if (cx <= 0 || cy <= 0)
        widget->move(x, y);
    return TRUE;
}

BOOL CWnd::ShowWindow(int nCmdShow)
{
    auto *widget = boundWidget(this);
    if (!widget)
        return withoutWidget<BOOL>(this);
    widget->setVisible(nCmdShow != SW_HIDE);
    return TRUE;
}

BOOL CWnd::IsWindowVisible() const
{
    const auto *widget = boundWidget(this);
    return widget ? widget->isVisible() : withoutWidget<BOOL>(this);
}

BOOL CWnd::IsWindowEnabled() const
{
    const auto *widget = boundWidget(this);
    return widget ? widget->isEnabled() : withoutWidget<BOOL>(this, TRUE);
}

BOOL CWnd::EnableWindow(BOOL bEnable)
{
    auto *widget = boundWidget(this);
    if (!widget)
        return withoutWidget<BOOL>(this, TRUE);
    // Tells whether it was enabled; Win32 tells whether it was disabled.
    const bool wasEnabled = widget->isEnabled();
    widget->setEnabled(bEnable != FALSE);
    return wasEnabled;
}

CWnd *CWnd::SetFocus()
{
    auto *widget = boundWidget(this);
    if (!widget)
        return withoutWidget<CWnd *>(this);
    CWnd *former = GetFocus();
    widget->setFocus();
    return former;
}

CWnd *CWnd::GetFocus()
{
    return FromHandle(asHandle(QApplication::focusWidget()));
}

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT)
{
    auto *widget = boundWidget(this);
    if (!widget)
        return withoutWidget<BOOL>(this, FALSE);
    if (dwRemove == WS_DISABLED && dwAdd == 0)
        widget->setEnabled(true);
    else if (dwAdd == WS_DISABLED && dwRemove == 0)
        widget->setEnabled(false);
    return TRUE;
}

void CWnd::Invalidate(BOOL)
{
    if (auto *widget = boundWidget(this))
        widget->update();
}

void CWnd::InvalidateRect(const RECT *, BOOL bErase)
{
    Invalidate(bErase);
}

CDC *CWnd::GetDC()
{
    if (!boundWidget(this))
        return withoutWidget<CDC *>(this);
    if (!d_ptr->m_pDC)
        d_ptr->m_pDC = new CDC;
    return d_ptr->m_pDC;
}

HDC CWnd::GetSafeHdc()
{
    if (!boundWidget(this) || !d_ptr->m_pDC)
        return withoutWidget<HDC>(this);
    return *d_ptr->m_pDC;
}

BOOL CWnd::UpdateData(BOOL bSaveAndValidate)
{
    if (isNullObject(this))
        return withoutWidget<BOOL>(this);
    CDataExchange exchange(this, bSaveAndValidate != FALSE);
    DoDataExchange(&exchange);
    return !exchange.m_bFail;
}
