#include "KxGuard.h"

CWnd *CWnd::FromHandle(HWND h)
{
    const auto entry = CWndHandleTable.find(h);
    return h && entry != CWndHandleTable.end() ? entry->second : nullptr;
}

CWnd *CWnd::FromHandlePermanent(HWND h)
{
    return FromHandle(h);
}

CWnd::operator HWND() const
{
    return boundWidget(this) ? m_hWnd : withoutWidget<HWND>(this);
}

HWND CWnd::GetSafeHwnd()
{
    // No bound test: ported code still asks a detached window for the handle it had.
    return isNullObject(this) ? withoutWidget<HWND>(this) : m_hWnd;
}

CWnd *CWnd::GetParent() const
{
    return boundWidget(this) ? d_ptr->m_pParentWnd : withoutWidget<CWnd *>(this);
}

CWnd *CWnd::SetParent(CWnd *pWndNewParent)
{
    if (!boundWidget(this))
        return withoutWidget<CWnd *>(this);
    CWnd *former = d_ptr->m_pParentWnd;
    d_ptr->m_pParentWnd = pWndNewParent;
    return former;
}

void CWnd::SetCtrlID(int nID)
{
    if (boundWidget(this))
        d_ptr->m_nCtrlID = nID;
}

int CWnd::GetDlgCtrlID() const
{
    return boundWidget(this) ? d_ptr->m_nCtrlID : withoutWidget<int>(this);
}

// Qt gives the address of a destroyed widget to another one, and the object of that handle then serves the new one.
static void renewObject(HWND h, const QPointer<QWidget> &widget)
{
    CWnd *window = CWnd::FromHandle(h);
    CWndPrivate *d = window ? CWndPrivate::of(window) : nullptr;
    if (!d || d->m_bUnbound || d->m_pHandleWidget)
        return;
    d->m_pWidget = widget;
    d->m_pHandleWidget = widget;
    d->m_bKeepWidget = true; // what it was to delete is gone
}

BOOL CWnd::SetDlgItem(int nID, HWND h)
{
    if (!boundWidget(this))
        return withoutWidget<BOOL>(this);
    if (d_ptr->m_mapChildren.emplace(nID, h).first->second != h)
        return TRUE;
    const QPointer<QWidget> widget = guardedWidget(h);
    d_ptr->m_mapChildWidgets[nID] = widget;
    renewObject(h, widget);
    return TRUE;
}

CWnd *CWnd::GetDlgItem(int nID) const
{
    // Chained calls on an unknown control do nothing on this object.
    static CWnd sNullWnd;

    if (!boundWidget(this))
        return withoutWidget<CWnd *>(this);
    const auto child = d_ptr->m_mapChildren.find(nID);
    if (child == d_ptr->m_mapChildren.end() || !child->second)
        return &sNullWnd;

    CWnd *item = FromHandle(child->second);
    // No wrapper is made for a widget that Qt destroyed.
    if (!item && !d_ptr->m_mapChildWidgets[nID])
        return &sNullWnd;
    if (!item)
        item = CreateCWndByHandle(child->second);
    item->SetParent(const_cast<CWnd *>(this));
    item->SetCtrlID(nID);
    return item;
}

void CWnd::GetDlgItem(int nID, HWND *) const
{
    // The caller's handle keeps its value; ported code counts on the binding alone.
    GetDlgItem(nID);
}

CWnd *CWnd::GetNextCWndFromID(int nID) const
{
    if (!boundWidget(this))
        return withoutWidget<CWnd *>(this);
    const auto next = d_ptr->m_mapChildren.upper_bound(nID);
    return next == d_ptr->m_mapChildren.end() ? nullptr : GetDlgItem(next->first);
}

CWnd *CWnd::GetNextWindow(UINT nFlag) const
{
    if (!boundWidget(this))
        return withoutWidget<CWnd *>(this);
    if (nFlag != GW_HWNDNEXT || isNullObject(d_ptr->m_pParentWnd))
        return nullptr;
    return d_ptr->m_pParentWnd->GetNextCWndFromID(GetDlgCtrlID());
}

CWnd *CWnd::GetWindow(UINT nCmd) const
{
    if (!boundWidget(this))
        return withoutWidget<CWnd *>(this);
    if (nCmd != GW_CHILD || d_ptr->m_mapChildren.empty())
        return nullptr;
    return GetDlgItem(d_ptr->m_mapChildren.begin()->first);
}

CWnd *CWnd::GetDescendantWindow(int nID, BOOL) const
{
    return GetDlgItem(nID);
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd *pParent)
{
    if (isNullObject(this))
        return withoutWidget<BOOL>(this);
    if (isNullObject(pParent))
        return FALSE;
    if (m_hWnd)
        return TRUE;
    // The parent's own binding does not matter: its controls stay registered when it is detached.
    CWndPrivate *parent = CWndPrivate::of(pParent);
    const auto id = static_cast<int>(nID);
    const auto child = parent->m_mapChildren.find(id);
    if (child == parent->m_mapChildren.end() || (child->second && !parent->m_mapChildWidgets[id]))
        return FALSE;
    SetHandle(child->second);
    SetParent(pParent);
    SetCtrlID(id);
    PreSubclassWindow();
    return TRUE;
}
