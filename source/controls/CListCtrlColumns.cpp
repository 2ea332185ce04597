#include "KxListControl.h"
#include "ListWidgets.h"
#include "foundation/QtConversions.h"
#include "windows/WindowGlobals.h"

#include <QHeaderView>

// A table widget and a standard model name these operations alike.
template <typename Item, typename Columns>
static void insertColumn(const QPointer<Columns> &columns, int nCol, const QString &heading)
{
    columns->insertColumn(nCol);
    // For a column that it refused, a table would leak the heading, and a model would add columns up to it.
    if (columns && nCol < columns->columnCount())
        columns->setHorizontalHeaderItem(nCol, new Item(heading));
}

template <typename Item, typename Columns>
static void nameColumn(Columns *columns, int nCol, const QString &heading)
{
    if (auto *existing = columns->horizontalHeaderItem(nCol))
        existing->setText(heading);
    else
        insertColumn<Item>(QPointer<Columns>(columns), nCol, heading);
}

int CListCtrl::InsertColumn(int nCol, const LVCOLUMNW *col)
{
    if (!boundWidget(this))
        return withoutWidget<int>(this);
    if (nCol < 0 || !col)
        return -1;
    if (auto *table = boundWidget<QTableWidget>(this))
        insertColumn<QTableWidgetItem>(QPointer<QTableWidget>(table), nCol, toQString(col->pszText));
    return nCol;
}

int CListCtrl::InsertColumn(int nCol, const wchar_t *heading, int, int, int)
{
    const BoundList bound(this);
    if (!bound.widget)
        return withoutWidget<int>(this);
    if (nCol < 0)
        return nCol;
    if (bound.table) {
        nameColumn<QTableWidgetItem>(bound.table, nCol, toQString(heading));
    } else if (bound.view) {
        auto *model = standardModel(bound.view);
        if (!model)
            return -1;
        nameColumn<QStandardItem>(model, nCol, toQString(heading));
    }
    return nCol;
}

BOOL CListCtrl::DeleteColumn(int nCol)
{
    const auto *view = boundWidget<QTableView>(this);
    auto *model = view ? view->model() : nullptr;
    if (!model)
        return withoutWidget<BOOL>(this);
    // Models add 1 to a column before they compare it, which overflows for the largest.
    if (nCol < model->columnCount())
        model->removeColumn(nCol);
    return TRUE;
}

CHeaderCtrl *CListCtrl::GetHeaderCtrl() const
{
    const auto *view = boundWidget<QTableView>(this);
    if (!view || !view->horizontalHeader())
        return withoutWidget<CHeaderCtrl *>(this);
    auto *wrapper = new CHeaderCtrl;
    libraryWrappers().insert(wrapper);
    CWndPrivate::of(wrapper)->m_bPermanent = false;
    wrapper->SetHandle(asHandle(view->horizontalHeader()));
    return wrapper;
}
