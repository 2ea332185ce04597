/// @file KxGuard.h
/// @brief The guard that members of window objects begin with.
#pragma once

#include "KxWindowPrivate.h"
#include "KxWindows.h"

#include <cstdint>
#include <type_traits>

/// Ported code calls members through failed lookups: null, or null plus the offset of a base or member.
inline bool isNullObject(const void *object)
{
    return reinterpret_cast<std::uintptr_t>(object) <= 4095;
}

/// The result of a guarded member that found no widget: a null object gives its own address.
template <typename Result> Result withoutWidget(const CWnd *window, Result unbound = Result())
{
    if (!isNullObject(window))
        return unbound;
    const auto address = reinterpret_cast<std::uintptr_t>(window);
    if constexpr (std::is_pointer_v<Result>)
        return reinterpret_cast<Result>(address);
    else
        return static_cast<Result>(address);
}

/// The widget of a bound window if it is of the wanted kind, else null.
template <typename Widget = QWidget> Widget *boundWidget(const CWnd *window)
{
    if (isNullObject(window) || !window->m_hWnd || !CWndPrivate::of(window))
        return nullptr;
    if constexpr (std::is_same_v<Widget, QWidget>)
        return CWndPrivate::of(window)->m_pWidget;
    else
        return qobject_cast<Widget *>(CWndPrivate::of(window)->m_pWidget);
}

inline QWidget *asWidget(HWND handle)
{
    return reinterpret_cast<QWidget *>(handle);
}

// The numbers below any address, which ported code gives as handles with a meaning of their own, have no widget.
inline QPointer<QWidget> guardedWidget(HWND handle)
{
    return reinterpret_cast<std::uintptr_t>(handle) > 0xFFFF ? asWidget(handle) : nullptr;
}

inline HWND asHandle(QWidget *widget)
{
    return reinterpret_cast<HWND>(widget);
}

/// The widget behind a window's GetSafeHwnd(), bound or not; null once Qt destroyed it.
inline QWidget *handleWidget(CWnd *window)
{
    const HWND handle = window->GetSafeHwnd();
    return handle == window->m_hWnd ? CWndPrivate::of(window)->m_pHandleWidget.data() : asWidget(handle);
}
