/// @file ExchangeControl.h
/// @brief The guard that every exchange begins with.
#pragma once

#include "KxDialogs.h"
#include "windows/KxGuard.h"

/// The bound control that an exchange works on; null when there is none.
inline CWnd *exchangeControl(const CDataExchange *exchange, int nIDC)
{
    if (!exchange || isNullObject(exchange->m_pDlgWnd) || !exchange->m_pDlgWnd->m_hWnd)
        return nullptr;
    CWnd *control = exchange->m_pDlgWnd->GetDlgItem(nIDC);
    return boundWidget(control) ? control : nullptr;
}

/// The same control's widget if it is of the wanted kind, else null.
template <typename Widget> Widget *exchangeWidget(const CDataExchange *exchange, int nIDC)
{
    return boundWidget<Widget>(exchangeControl(exchange, nIDC));
}
