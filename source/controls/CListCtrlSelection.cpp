#include "KxListControl.h"
#include "ListWidgets.h"

#include <algorithm>

// Whether the row is one of selectedRows(0), without making that list.
static bool isSelected(const QItemSelectionModel *selection, int row)
{
    const QItemSelection ranges = selection->selection();
    return std::any_of(ranges.begin(), ranges.end(), [=](const QItemSelectionRange &range) {
        return row >= range.top() && row <= range.bottom() && selection->isRowSelected(row, range.parent());
    });
}

static bool isSelected(const BoundSelection &bound, int row)
{
    if (bound.list) {
        const auto *item = bound.list->item(row);
        return item && item->isSelected();
    }
    if (bound.table) {
        const auto *item = bound.table->item(row, 0);
        return item && item->isSelected();
    }
    return bound.view && isSelected(bound.view->selectionModel(), row);
}

UINT CListCtrl::GetItemState(int nItem, unsigned nMask) const
{
    const BoundSelection bound(this);
    if (!bound.widget)
        return withoutWidget<UINT>(this);
    if (nItem < 0)
        return UINT(nItem);
    return (nMask & LVIS_FOCUSED) && isSelected(bound, nItem);
}

BOOL CListCtrl::SetItemState(int nItem, unsigned nState, unsigned nMask)
{
    const BoundSelection bound(this);
    if (!bound.widget)
        return withoutWidget<BOOL>(this);
    if (nItem < 0)
        return nItem;
    if (bound.list) {
        if (nState & LVIS_FOCUSED)
            bound.list->setCurrentRow(nItem);
    } else if (bound.table) {
        if (nState & LVIS_FOCUSED)
            bound.table->setCurrentCell(nItem, 0);
    } else if (bound.view && (nMask & LVIS_FOCUSED)) {
        // The mask alone counts here.
        bound.view->selectRow(nItem);
    }
    return TRUE;
}

int CListCtrl::GetSelectionMark() const
{
    const BoundList bound(this);
    if (!bound.widget)
        return withoutWidget<int>(this);
    return bound.list ? bound.list->currentRow() : -1;
}

int CListCtrl::GetNextItem(int nItem, int nFlags) const
{
    const BoundList bound(this);
    if (!bound.widget)
        return withoutWidget<int>(this);
    if (nFlags != LVNI_FOCUSED && nFlags != LVNI_SELECTED)
        return -1;
    if (bound.list)
        return bound.list->currentRow();
    return bound.table && bound.table->currentRow() != nItem ? bound.table->currentRow() : -1;
}

UINT CListCtrl::GetSelectedCount() const
{
    const BoundSelection bound(this);
    if (bound.list)
        return UINT(bound.list->selectedItems().count());
    // Ported code only asks a table whether anything is selected.
    if (bound.table)
        return !bound.table->selectedItems().isEmpty();
    if (bound.view)
        return UINT(bound.view->selectionModel()->selectedRows(0).count());
    return withoutWidget<UINT>(this);
}

// The first of selectedRows(0) that was not given yet, -1 when all were. Qt's list would take in every row.
static int nextSelectedRow(const QItemSelectionModel *selection, const QList<int> &given)
{
    int inOrder = 0;
    const auto wasGiven = [&](int row) {
        // Unless the selection changes, the rows come by in the order in which they were given.
        if (inOrder < given.size() && given.at(inOrder) == row)
            return ++inOrder > 0;
        return given.contains(row);
    };
    const QItemSelection ranges = selection->selection();
    for (const QItemSelectionRange &range : ranges) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (!wasGiven(row) && selection->isRowSelected(row, range.parent()))
                return row;
        }
    }
    return -1;
}

static POSITION firstPosition(const QTableView *view)
{
    const int row = nextSelectedRow(view->selectionModel(), {});
    return row < 0 ? nullptr : reinterpret_cast<POSITION>(new LIST_POSITION{row, {}});
}

POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    const BoundSelection bound(this);
    if (bound.table)
        return reinterpret_cast<POSITION>(bound.table->selectedItems().value(0));
    return bound.view ? firstPosition(bound.view) : withoutWidget<POSITION>(this);
}

static int nextRow(const QTableWidget *table, POSITION &pos)
{
    // An address only: the item may have been deleted since.
    const auto *current = reinterpret_cast<const QTableWidgetItem *>(pos);
    pos = nullptr;
    int result = -1;
    const auto selected = table->selectionModel() ? table->selectedItems() : QList<QTableWidgetItem *>();
    for (auto *item : selected) {
        if (item == current) {
            result = item->row();
        } else if (result != -1 && item->row() != result) {
            pos = reinterpret_cast<POSITION>(item);
            break;
        }
    }
    return result;
}

static int nextRow(const QTableView *view, POSITION &pos)
{
    auto *walk = reinterpret_cast<LIST_POSITION *>(pos);
    const int result = walk->m_nRow;
    walk->m_listReturned.append(result);
    const auto *selection = view->selectionModel();
    walk->m_nRow = selection ? nextSelectedRow(selection, walk->m_listReturned) : -1;
    if (walk->m_nRow < 0) {
        delete walk;
        pos = nullptr;
    }
    return result;
}

int CListCtrl::GetNextSelectedItem(POSITION &pos) const
{
    const BoundList bound(this);
    if (!bound.widget)
        return withoutWidget<int>(this);
    if (!pos)
        return -1;
    if (bound.table)
        return nextRow(bound.table, pos);
    return bound.view ? nextRow(bound.view, pos) : -1;
}
