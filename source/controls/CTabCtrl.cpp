#include "KxCommonControls.h"
#include "SignalSilencer.h"
#include "foundation/QtConversions.h"
#include "windows/KxGuard.h"

#include <QTabWidget>

CTabCtrl::CTabCtrl() = default;

CTabCtrl::~CTabCtrl() = default;

int CTabCtrl::GetCurSel() const
{
    const auto *tabs = boundWidget<QTabWidget>(this);
    return tabs ? tabs->currentIndex() : 0;
}

int CTabCtrl::GetActiveTab() const
{
    return GetCurSel();
}

int CTabCtrl::GetItemCount() const
{
    const auto *tabs = boundWidget<QTabWidget>(this);
    return tabs ? tabs->count() : 0;
}

int CTabCtrl::SetCurSel(int nItem)
{
    auto *tabs = boundWidget<QTabWidget>(this);
    if (!tabs)
        return 0;
    const int previous = tabs->currentIndex();
    if (nItem != previous && nItem >= 0 && nItem < tabs->count())
        tabs->setCurrentIndex(nItem);
    return previous;
}

int CTabCtrl::SetActiveTab(int nItem)
{
    auto *tabs = boundWidget<QTabWidget>(this);
    if (!tabs)
        return 0;
    const int previous = tabs->currentIndex();
    // Unlike with SetCurSel(), the handlers of a change are not told.
    const SignalSilencer silencer(tabs);
    tabs->setCurrentIndex(nItem);
    return previous;
}

void CTabCtrl::AddTab(int nIndex, int nTextID, int, CWnd *pPage)
{
    auto *tabs = boundWidget<QTabWidget>(this);
    if (!tabs || isNullObject(pPage))
        return;
    CString text;
    text.LoadStringW(unsigned(nTextID));
    const SignalSilencer silencer(tabs);
    tabs->insertTab(nIndex, handleWidget(pPage), toQString(text));
}

BOOL CTabCtrl::DeleteItem(int nItem)
{
    auto *tabs = boundWidget<QTabWidget>(this);
    // The count itself passes and removes nothing; ported code tests the result.
    if (!tabs || nItem < 0 || nItem > tabs->count())
        return FALSE;
    tabs->removeTab(nItem);
    return TRUE;
}

BOOL CTabCtrl::DeleteAllItems()
{
    auto *tabs = boundWidget<QTabWidget>(this);
    if (!tabs)
        return FALSE;
    tabs->clear();
    return TRUE;
}

LONG CTabCtrl::InsertItem(int, const wchar_t *)
{
    return 0;
}

LONG CTabCtrl::InsertItem(int, TCITEMW *)
{
    return 0;
}

BOOL CTabCtrl::GetItemRect(int, RECT *) const
{
    return FALSE;
}

void CTabCtrl::AdjustRect(bool, RECT *) {}
