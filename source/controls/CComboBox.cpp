#include "KxListBoxes.h"
#include "SignalSilencer.h"
#include "foundation/QtConversions.h"
#include "windows/KxGuard.h"

#include <QAbstractItemView>
#include <QComboBox>

CComboBox::CComboBox() = default;

CComboBox::~CComboBox() = default;

static bool hasItem(const QComboBox *combo, int index)
{
    return index >= 0 && index < combo->count();
}

static int findItem(const QComboBox *combo, const QString &qtText)
{
    return combo->findText(qtText, Qt::MatchExactly | Qt::MatchCaseSensitive);
}

// The item that keeps a text from being added once more. Ported code may add any number of empty texts.
static int findDuplicate(const QComboBox *combo, const QString &qtText)
{
    return qtText.isEmpty() ? CB_ERR : findItem(combo, qtText);
}

static void insertSilently(QComboBox *combo, int index, const QString &qtText)
{
    const SignalSilencer silencer(combo);
    combo->insertItem(index, qtText);
}

int CComboBox::GetCount() const
{
    const auto *combo = boundWidget<QComboBox>(this);
    return combo ? combo->count() : withoutWidget<int>(this);
}

int CComboBox::GetCurSel() const
{
    const auto *combo = boundWidget<QComboBox>(this);
    return combo ? combo->currentIndex() : withoutWidget<int>(this);
}

int CComboBox::SetCurSel(int nSelect)
{
    auto *combo = boundWidget<QComboBox>(this);
    if (!combo)
        return withoutWidget<int>(this);
    if (nSelect < -1 || nSelect >= combo->count())
        return CB_ERR;

    // Ported code hears of the change through its window procedure, not through the widget's signals.
    const SignalSilencer silencer(combo);
    combo->setCurrentIndex(nSelect);
    WindowProc(CB_SETCURSEL, WPARAM(nSelect), 0);
    return nSelect;
}

int CComboBox::FindString(int, const wchar_t *lpszString) const
{
    const auto *combo = boundWidget<QComboBox>(this);
    return combo ? findItem(combo, toQString(lpszString)) : withoutWidget<int>(this);
}

int CComboBox::FindStringExact(int nStartAfter, const wchar_t *lpszString) const
{
    return FindString(nStartAfter, lpszString);
}

int CComboBox::SelectString(int, const wchar_t *lpszString)
{
    auto *combo = boundWidget<QComboBox>(this);
    if (!combo)
        return withoutWidget<int>(this);
    const int index = findItem(combo, toQString(lpszString));
    if (index >= 0)
        combo->setCurrentIndex(index);
    return index;
}

int CComboBox::AddString(const wchar_t *lpszString)
{
    auto *combo = boundWidget<QComboBox>(this);
    if (!combo)
        return withoutWidget<int>(this);
    const QString qtText = toQString(lpszString);
    const int duplicate = findDuplicate(combo, qtText);
    if (duplicate >= 0)
        return duplicate;

    const int index = combo->count();
    insertSilently(combo, index, qtText);
    return index;
}

int CComboBox::InsertString(int nIndex, const wchar_t *lpszString)
{
    auto *combo = boundWidget<QComboBox>(this);
    if (!combo)
        return withoutWidget<int>(this);
    const QString qtText = toQString(lpszString);
    const int duplicate = findDuplicate(combo, qtText);
    if (duplicate >= 0)
        return duplicate;

    if (nIndex < -1)
        return nIndex;
    insertSilently(combo, nIndex == -1 ? combo->count() : nIndex, qtText);
    return nIndex == -1 ? combo->count() - 1 : nIndex;
}

int CComboBox::DeleteString(unsigned nIndex)
{
    auto *combo = boundWidget<QComboBox>(this);
    if (!combo)
        return withoutWidget<int>(this);
    // The last index of an empty combo box wraps around, so that it refuses none.
    const unsigned count = unsigned(combo->count());
    if (nIndex > count - 1)
        return CB_ERR;
    if (count > 0)
        combo->removeItem(int(nIndex));
    return int(nIndex);
}

void CComboBox::ResetContent()
{
    auto *combo = boundWidget<QComboBox>(this);
    if (!combo)
        return;
    const SignalSilencer silencer(combo);
    combo->clear();
}

void CComboBox::Clear()
{
    if (auto *combo = boundWidget<QComboBox>(this))
        combo->clear();
}

int CComboBox::GetLBText(int nIndex, wchar_t *lpszText) const
{
    const auto *combo = boundWidget<QComboBox>(this);
    if (!combo)
        return withoutWidget<int>(this);
    // The count itself is let through and reads an empty text.
    if (!lpszText || nIndex < 0 || nIndex > combo->count())
        return 0;
    // No null is added: ported code hands in a buffer of nulls.
    combo->itemText(nIndex).toWCharArray(lpszText);
    return int(std::wcslen(lpszText));
}

void CComboBox::GetLBText(int nIndex, CString &rString) const
{
    if (const auto *combo = boundWidget<QComboBox>(this))
        rString = toCString(combo->itemText(nIndex));
}

int CComboBox::GetLBTextLen(int nIndex) const
{
    const auto *combo = boundWidget<QComboBox>(this);
    return combo ? int(toCString(combo->itemText(nIndex)).size()) : withoutWidget<int>(this);
}

void *CComboBox::GetItemDataPtr(int nIndex) const
{
    const auto *combo = boundWidget<QComboBox>(this);
    if (!combo)
        return withoutWidget<void *>(this);
    return hasItem(combo, nIndex) ? combo->itemData(nIndex).value<void *>() : nullptr;
}

int CComboBox::SetItemDataPtr(int nIndex, void *pData)
{
    auto *combo = boundWidget<QComboBox>(this);
    if (!combo)
        return withoutWidget<int>(this);
    if (!hasItem(combo, nIndex))
        return CB_ERR;
    combo->setItemData(nIndex, QVariant::fromValue<void *>(pData));
    return nIndex;
}

unsigned long CComboBox::GetItemData(int nIndex) const
{
    return reinterpret_cast<unsigned long>(GetItemDataPtr(nIndex));
}

int CComboBox::SetItemData(int nIndex, unsigned long dwItemData)
{
    return SetItemDataPtr(nIndex, reinterpret_cast<void *>(dwItemData));
}

void CComboBox::ShowDropDown(bool)
{
    if (auto *combo = boundWidget<QComboBox>(this))
        combo->showPopup();
}

BOOL CComboBox::GetDroppedState() const
{
    const auto *combo = boundWidget<QComboBox>(this);
    if (!combo)
        return withoutWidget<BOOL>(this);
    const auto *view = combo->view();
    return view && view->isVisible();
}

void CComboBox::GetWindowTextW(CString &rString)
{
    if (const auto *combo = boundWidget<QComboBox>(this))
        rString = toCString(combo->currentText());
}

int CComboBox::GetWindowTextW(wchar_t *lpszBuffer, int nMaxCount)
{
    return boundWidget<QComboBox>(this) ? CWnd::GetWindowTextW(lpszBuffer, nMaxCount)
                                        : withoutWidget<int>(this);
}

BOOL CComboBox::Create(unsigned, const RECT &, CWnd *, unsigned)
{
    return boundWidget<QComboBox>(this) ? TRUE : withoutWidget<BOOL>(this);
}

BOOL CComboBox::SetEditSel(int, int)
{
    return boundWidget<QComboBox>(this) ? TRUE : withoutWidget<BOOL>(this);
}

DWORD CComboBox::GetEditSel() const
{
    return 0;
}

unsigned CComboBox::GetHorizontalExtent() const
{
    return 0;
}

void CComboBox::SetHorizontalExtent(unsigned) {}

int CComboBox::GetDroppedWidth() const
{
    return 0;
}

int CComboBox::SetDroppedWidth(unsigned)
{
    return 0;
}

int CComboBox::SetItemHeight(int, unsigned)
{
    return 0;
}
