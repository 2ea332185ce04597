#include "KxListControl.h"
#include "ListWidgets.h"
#include "SignalSilencer.h"
#include "foundation/QtConversions.h"

int CListCtrl::GetItemCount() const
{
    const BoundList bound(this);
    if (bound.list)
        return bound.list->count();
    if (bound.table)
        return bound.table->rowCount();
    const auto *model = bound.view ? standardModel(bound.view) : nullptr;
    return model ? model->rowCount() : withoutWidget<int>(this);
}

template <typename Item> static CString textOf(const Item *item)
{
    return item ? toCString(item->text()) : CString();
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const
{
    const BoundList bound(this);
    if (bound.list)
        return textOf(bound.list->item(nItem));
    return bound.table ? textOf(bound.table->item(nItem, nSubItem)) : CString();
}

template <typename Item> static unsigned long dataOf(const Item *item)
{
    return item ? item->data(Qt::UserRole).toULongLong() : 0;
}

unsigned long CListCtrl::GetItemData(int nItem) const
{
    const BoundList bound(this);
    if (bound.list)
        return dataOf(bound.list->item(nItem));
    if (bound.table)
        return dataOf(bound.table->item(nItem, 0));
    if (!bound.view || !bound.view->model())
        return withoutWidget<unsigned long>(this);
    const QModelIndex first = bound.view->model()->index(nItem, 0);
    return first.isValid() ? first.data(Qt::DisplayRole).toULongLong() : 0;
}

BOOL CListCtrl::GetItem(LVITEMW *item) const
{
    const auto *table = boundWidget<QTableWidget>(this);
    if (!table)
        return withoutWidget<BOOL>(this);
    if (!item)
        return FALSE;
    if (!(item->mask & LVIF_PARAM))
        return TRUE;
    const auto *cell = table->item(item->iItem, item->iSubItem);
    if (!cell)
        return FALSE;
    item->lParam = cell->data(Qt::UserRole).toLongLong();
    return TRUE;
}

static void insertRow(const QPointer<QTableWidget> &table, int row, int columns, const QString &text)
{
    table->insertRow(row);
    // A sorted table moves the row as soon as its cell of the sort column is there.
    const QPersistentModelIndex first = table ? table->model()->index(row, 0) : QModelIndex();
    for (int column = 0; table && column < columns; ++column)
        setCell(table, first.row(), column, std::make_unique<QTableWidgetItem>(text));
}

int CListCtrl::InsertItem(int nItem, const wchar_t *text, int)
{
    const BoundList bound(this);
    if (!bound.widget)
        return withoutWidget<int>(this);
    if (nItem < 0)
        return nItem;
    if (bound.list)
        bound.list->insertItem(nItem, toQString(text));
    else if (bound.table)
        insertRow(bound.table, nItem, 1, toQString(text));
    return nItem;
}

int CListCtrl::InsertItem(int nItem, const wchar_t *text)
{
    const BoundList bound(this);
    if (!bound.widget)
        return withoutWidget<int>(this);
    if (nItem < 0)
        return nItem;
    if (bound.list) {
        bound.list->insertItem(nItem, toQString(text));
    } else if (bound.table) {
        // Into all columns: ported code then replaces the texts of the sub-items that it fills.
        insertRow(bound.table, nItem, bound.table->columnCount(), toQString(text));
    } else if (bound.view) {
        auto *model = standardModel(bound.view);
        if (!model)
            return -1;
        model->insertRow(nItem, QModelIndex());
    }
    return nItem;
}

static std::unique_ptr<QTableWidgetItem> newItem(const LVITEMW &item)
{
    auto cell = std::make_unique<QTableWidgetItem>(toQString(item.pszText));
    cell->setData(Qt::UserRole, qulonglong(item.lParam));
    return cell;
}

int CListCtrl::InsertItem(const LVITEMW *item)
{
    if (!boundWidget(this))
        return withoutWidget<int>(this);
    const QPointer<QTableWidget> table = boundWidget<QTableWidget>(this);
    if (!table || !item)
        return -1;
    const int row = qMin(item->iItem, table->rowCount());
    const int column = item->iSubItem;
    auto cell = newItem(*item);
    table->insertRow(row);
    if (table)
        setCell(table, row, column, std::move(cell));
    return row;
}

static void deleteItem(const QPointer<QListWidget> &list, int row)
{
    const std::unique_ptr<QListWidgetItem> item(list->takeItem(row));
    if (list && item)
        list->removeItemWidget(item.get());
}

static void removeRow(QAbstractItemModel *model, int row)
{
    // Models add 1 to a row before they compare it, which overflows for the largest.
    if (model && row < model->rowCount())
        model->removeRow(row);
}

BOOL CListCtrl::DeleteItem(int nItem)
{
    const BoundList bound(this);
    if (!bound.widget)
        return withoutWidget<BOOL>(this);
    if (bound.list)
        deleteItem(bound.list, nItem);
    else if (bound.view)
        removeRow(bound.view->model(), nItem);
    return TRUE;
}

static void removeAllRows(const QPointer<QAbstractItemModel> &model)
{
    while (model && model->rowCount() >= 1 && model->removeRow(0)) {
    }
}

static void clear(QListWidget *list)
{
    // Qt uses the selection model unchecked.
    if (list->selectionModel())
        list->clear();
    else
        removeAllRows(list->model());
}

BOOL CListCtrl::DeleteAllItems()
{
    const BoundList bound(this);
    if (!bound.widget)
        return withoutWidget<BOOL>(this);
    if (bound.list) {
        const SignalSilencer silencer(bound.list);
        clear(bound.list);
    } else if (bound.table) {
        const SignalSilencer silencer(bound.table);
        removeAllRows(bound.table->model());
    } else if (bound.view) {
        auto *model = standardModel(bound.view);
        if (!model)
            return FALSE;
        removeAllRows(model);
    }
    return TRUE;
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, const wchar_t *text)
{
    auto *table = boundWidget<QTableWidget>(this);
    if (!table)
        return withoutWidget<BOOL>(this);
    setCell(table, nItem, nSubItem, std::make_unique<QTableWidgetItem>(toQString(text)));
    return TRUE;
}

template <typename Item> static void setData(Item *item, qulonglong data)
{
    if (item)
        item->setData(Qt::UserRole, data);
}

static BOOL setModelData(QAbstractItemModel *model, int row, qulonglong data)
{
    if (!model)
        return FALSE;
    const QModelIndex first = model->index(row, 0);
    if (first.isValid())
        model->setData(first, data, Qt::DisplayRole);
    return TRUE;
}

BOOL CListCtrl::SetItemData(int nItem, unsigned long data)
{
    const BoundList bound(this);
    if (!bound.widget)
        return withoutWidget<BOOL>(this);
    if (nItem < 0)
        return FALSE;
    if (bound.list)
        setData(bound.list->item(nItem), data);
    else if (bound.table)
        setData(bound.table->item(nItem, 0), data);
    else if (bound.view)
        return setModelData(bound.view->model(), nItem, data);
    return TRUE;
}

BOOL CListCtrl::SetItem(const LVITEMW *item)
{
    if (!boundWidget(this))
        return withoutWidget<BOOL>(this);
    if (!item)
        return FALSE;
    auto *table = boundWidget<QTableWidget>(this);
    if (!table)
        return TRUE;
    const TableCell cell(table, item->iItem, item->iSubItem);
    if (!cell.item()) {
        cell.setItem(newItem(*item));
        return TRUE;
    }
    const auto data = qulonglong(item->lParam);
    cell.setText(toQString(item->pszText));
    cell.setData(data);
    return TRUE;
}

static std::unique_ptr<QTableWidgetItem> newItem(const QString &text, long lParam)
{
    auto cell = std::make_unique<QTableWidgetItem>(text);
    if (lParam)
        cell->setData(Qt::UserRole, qulonglong(lParam));
    return cell;
}

static void changeItem(const TableCell &cell, const wchar_t *text, long lParam)
{
    if (text)
        cell.setText(toQString(text));
    if (lParam)
        cell.setData(qulonglong(lParam));
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, unsigned, const wchar_t *text, int, unsigned nState,
                        unsigned, long lParam)
{
    if (!boundWidget(this))
        return withoutWidget<BOOL>(this);
    auto *table = boundWidget<QTableWidget>(this);
    if (!table)
        return TRUE;
    const TableCell cell(table, nItem, nSubItem);
    if (nState == LVIS_FOCUSED)
        cell.select();
    if (cell.item())
        changeItem(cell, text, lParam);
    else
        cell.setItem(newItem(toQString(text), lParam));
    return TRUE;
}
