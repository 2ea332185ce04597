/// @file KxWindowPrivate.h
/// @brief Private data of window objects, for authors of CWnd subclasses that add to it.
#pragma once

#include "KxWindows.h"

#include <QPointer>
#include <QWidget>

#include <map>

/// Private data of a CWnd, owned by it.
struct KX_MFC_EXPORT CWndPrivate
{
    CWndPrivate() = default;
    CWndPrivate(const CWndPrivate &) = delete;
    CWndPrivate &operator=(const CWndPrivate &) = delete;
    virtual ~CWndPrivate();

    /// @return the private data of @p window, which must not be a null object.
    static CWndPrivate *of(const CWnd *window) { return window->d_ptr; }

    QPointer<QWidget> m_pWidget;       ///< The bound widget; null while the window is unbound.
    CWnd *q_ptr = nullptr;             ///< The window object.
    CWnd *m_pParentWnd = nullptr;      ///< Logical parent, not owned.
    CDC *m_pDC = nullptr;              ///< Device context, owned.
    bool m_bPermanent = true;          ///< false: a wrapper, which the library deletes.
    bool m_bKeepWidget = true;         ///< false: the destructor of the window deletes the widget.
    std::map<int, HWND> m_mapChildren; ///< Registered controls by their identifiers.
    int m_nCtrlID = -1;                ///< The window's own control identifier.
    /// The widget behind the handle for as long as Qt keeps it, also when the window was unbound.
    QPointer<QWidget> m_pHandleWidget;
    /// The widgets behind #m_mapChildren for as long as Qt keeps them.
    std::map<int, QPointer<QWidget>> m_mapChildWidgets;
    bool m_bUnbound = false; ///< Detached, or replaced by another object of its handle.
};

/// Private data of a CDialog.
struct KX_MFC_EXPORT CDialogPrivate : CWndPrivate
{
    int m_nReserved = 1; ///< Read by no operation.
};
