#include "KxListBoxes.h"
#include "foundation/QtConversions.h"
#include "windows/KxGuard.h"

#include <QListWidget>
#include <QPointer>

#include <memory>

CListBox::CListBox() = default;

CListBox::~CListBox() = default;

static int findRow(const QListWidget *list, const QString &qtText)
{
    const auto matches = list->findItems(qtText, Qt::MatchFixedString);
    return matches.isEmpty() ? LB_ERR : list->row(matches.first());
}

static void setItemData(const QListWidget *list, int row, const QVariant &data)
{
    if (auto *item = list->item(row))
        item->setData(Qt::UserRole, data);
}

// An invalid variant, which reads as 0 and null, where there is no item.
static QVariant itemData(const QListWidget *list, int row)
{
    const auto *item = list->item(row);
    return item ? item->data(Qt::UserRole) : QVariant();
}

int CListBox::GetCount() const
{
    const auto *list = boundWidget<QListWidget>(this);
    return list ? list->count() : withoutWidget<int>(this);
}

int CListBox::GetCurSel() const
{
    const auto *list = boundWidget<QListWidget>(this);
    return list ? list->currentRow() : withoutWidget<int>(this);
}

int CListBox::SetCurSel(int nSelect)
{
    auto *list = boundWidget<QListWidget>(this);
    if (!list)
        return withoutWidget<int>(this);
    // Unlike in a combo box, -1 is refused.
    if (!list->item(nSelect))
        return LB_ERR;
    list->setCurrentRow(nSelect);
    return nSelect;
}

int CListBox::AddString(const wchar_t *lpszItem)
{
    const QPointer<QListWidget> list = boundWidget<QListWidget>(this);
    if (!list)
        return withoutWidget<int>(this);
    list->addItem(toQString(lpszItem).simplified());
    return list ? list->count() - 1 : LB_ERR;
}

int CListBox::InsertString(int nIndex, const wchar_t *lpszItem)
{
    auto *list = boundWidget<QListWidget>(this);
    if (!list)
        return withoutWidget<int>(this);
    list->insertItem(nIndex, toQString(lpszItem));
    return nIndex;
}

int CListBox::DeleteString(unsigned nIndex)
{
    const QPointer<QListWidget> list = boundWidget<QListWidget>(this);
    if (!list)
        return withoutWidget<int>(this);
    const std::unique_ptr<QListWidgetItem> item(list->takeItem(int(nIndex)));
    if (list)
        list->removeItemWidget(item.get());
    return int(nIndex);
}

void CListBox::ResetContent()
{
    if (auto *list = boundWidget<QListWidget>(this))
        list->clear();
}

void CListBox::GetText(int nIndex, CString &rString) const
{
    const auto *list = boundWidget<QListWidget>(this);
    if (!list)
        return;
    const auto *item = list->item(nIndex);
    rString = item ? toCString(item->text()) : CString();
}

int CListBox::GetTextLen(int nIndex) const
{
    const auto *list = boundWidget<QListWidget>(this);
    if (!list)
        return withoutWidget<int>(this);
    const auto *item = list->item(nIndex);
    return item ? int(toCString(item->text()).size()) : LB_ERR;
}

int CListBox::FindString(int, const wchar_t *lpszString) const
{
    const auto *list = boundWidget<QListWidget>(this);
    return list ? findRow(list, toQString(lpszString)) : withoutWidget<int>(this);
}

int CListBox::FindStringExact(int nStartAfter, const wchar_t *lpszString) const
{
    const auto *list = boundWidget<QListWidget>(this);
    if (!list)
        return withoutWidget<int>(this);
    // A first match at or before the start hides later ones.
    const int row = findRow(list, toQString(lpszString));
    return row > nStartAfter ? row : LB_ERR;
}

int CListBox::SelectString(int, const wchar_t *lpszItem)
{
    const QPointer<QListWidget> list = boundWidget<QListWidget>(this);
    if (!list)
        return withoutWidget<int>(this);
    // Each match emits the list's signals; their receivers may take items away, or the list.
    const QString wanted = toQString(lpszItem).trimmed();
    const int count = list->count();
    for (int row = 0; list && row < count; ++row) {
        const auto *item = list->item(row);
        if (item && item->text().trimmed() == wanted)
            list->setCurrentRow(row);
    }
    return 0;
}

unsigned long CListBox::GetItemData(int nIndex) const
{
    const auto *list = boundWidget<QListWidget>(this);
    return list ? itemData(list, nIndex).toULongLong() : withoutWidget<unsigned long>(this);
}

int CListBox::SetItemData(int nIndex, unsigned long dwItemData)
{
    const auto *list = boundWidget<QListWidget>(this);
    if (!list)
        return withoutWidget<int>(this);
    setItemData(list, nIndex, QVariant(qulonglong(dwItemData)));
    return nIndex;
}

void *CListBox::GetItemDataPtr(int nIndex) const
{
    const auto *list = boundWidget<QListWidget>(this);
    return list ? itemData(list, nIndex).value<void *>() : withoutWidget<void *>(this);
}

int CListBox::SetItemDataPtr(int nIndex, void *pData)
{
    const auto *list = boundWidget<QListWidget>(this);
    if (!list)
        return withoutWidget<int>(this);
    setItemData(list, nIndex, QVariant::fromValue<void *>(pData));
    return nIndex;
}

int CListBox::SetSel(int nIndex, bool bSelect)
{
    const auto *list = boundWidget<QListWidget>(this);
    if (!list)
        return withoutWidget<int>(this);
    auto *item = list->item(nIndex);
    if (!item)
        return LB_ERR;
    item->setSelected(bSelect);
    return 0;
}

int CListBox::GetSel(int nIndex) const
{
    const auto *list = boundWidget<QListWidget>(this);
    if (!list)
        return withoutWidget<int>(this);
    const auto *item = list->item(nIndex);
    return item ? int(item->isSelected()) : LB_ERR;
}

int CListBox::GetSelCount() const
{
    const auto *list = boundWidget<QListWidget>(this);
    return list ? list->selectedItems().count() : withoutWidget<int>(this);
}

int CListBox::GetSelItems(int, int *) const
{
    return 0;
}
