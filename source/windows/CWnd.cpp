#include "KxDrawing.h"
#include "KxGuard.h"
#include "WindowGlobals.h"

CWndPrivate::~CWndPrivate() = default;

CWnd::CWnd(CWnd *pParent)
    : CWnd(*new CWndPrivate, pParent)
{
}

CWnd::CWnd(CWndPrivate &d, CWnd *pParent)
    : d_ptr(&d)
{
    d.q_ptr = this;
    d.m_pParentWnd = pParent;
}

static void deleteWrapper(CWnd *window)
{
    if (!window || CWndPrivate::of(window)->m_bPermanent)
        return;
    // Its destructor may bind another object to the handle, which is not to delete it again.
    CWndPrivate::of(window)->m_bPermanent = true;
    delete window;
}

CWnd::~CWnd()
{
    libraryWrappers().erase(this);
    if (!d_ptr->m_bKeepWidget)
        delete d_ptr->m_pWidget.data();
    // Whichever object it maps to: a second object of a handle takes the first one's registration with it.
    if (m_hWnd)
        CWndHandleTable.erase(m_hWnd);
    for (const auto &[id, handle] : d_ptr->m_mapChildren)
        deleteWrapper(FromHandle(handle));
    delete d_ptr->m_pDC;
    delete d_ptr;
}

CWnd *CreateCWndByHandle(HWND h)
{
    auto *wrapper = new CWnd;
    libraryWrappers().insert(wrapper);
    CWndPrivate::of(wrapper)->m_bPermanent = false;
    wrapper->SetHandle(h);
    return wrapper;
}

void CWnd::SetHandle(HWND h)
{
    if (isNullObject(this) || !h || m_hWnd)
        return;
    m_hWnd = h;
    d_ptr->m_pHandleWidget = guardedWidget(h);
    d_ptr->m_pWidget = d_ptr->m_pHandleWidget;
    if (CWnd *other = FromHandle(h)) {
        CWndPrivate::of(other)->m_pWidget = nullptr;
        CWndPrivate::of(other)->m_bUnbound = true;
        deleteWrapper(other);
    }
    // A wrapper has yielded its entry; an application's object keeps the registration it has.
    CWndHandleTable.emplace(h, this);
}

BOOL CWnd::Attach(HWND h)
{
    if (isNullObject(this))
        return withoutWidget<BOOL>(this);
    if (!h)
        return FALSE;
    SetHandle(h);
    return TRUE;
}

HWND CWnd::Detach()
{
    if (!boundWidget(this))
        return withoutWidget<HWND>(this);
    const HWND h = GetSafeHwnd();
    // Unbinds this object, and deletes it if it is a wrapper itself.
    CreateCWndByHandle(h);
    return h;
}

void CWnd::SetAutoDelete(bool bFirst, bool bSecond)
{
    if (isNullObject(this))
        return;
    // Not inverted, whatever the name suggests: callers pass true to keep the object.
    d_ptr->m_bPermanent = bFirst;
    d_ptr->m_bKeepWidget = !bSecond;
}

BOOL CWnd::Create(const wchar_t *, const wchar_t *, DWORD, const RECT &, CWnd *pParent, UINT,
                  CCreateContext *)
{
    if (isNullObject(this))
        return withoutWidget<BOOL>(this);
    if (boundWidget(this))
        d_ptr->m_pParentWnd = pParent;
    return TRUE;
}
