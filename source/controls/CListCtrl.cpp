#include "KxListControl.h"
#include "ListWidgets.h"
#include "SignalSilencer.h"

struct CListCtrlPrivate
{
};

CListCtrl::CListCtrl()
    : CWnd(nullptr)
    , m_d(std::make_unique<CListCtrlPrivate>())
{
}

CListCtrl::~CListCtrl() = default;

static void editLabel(const QPointer<QListWidget> &list, int row)
{
    auto *item = list->item(row);
    if (!item)
        return;
    const SignalSilencer silencer(list);
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    if (list && list->item(row) == item)
        list->editItem(item);
}

static void editLabel(const QPointer<QTableView> &view, int row)
{
    if (view->selectionModel())
        view->selectRow(row);
    if (!view || !view->model())
        return;
    // Ported code expects the editor in the second column.
    const QModelIndex label = view->model()->index(row, 1);
    if (label.isValid())
        view->edit(label);
}

CEdit *CListCtrl::EditLabel(int nItem)
{
    CEdit *const noControl = withoutWidget<CEdit *>(this);
    if (nItem < 0)
        return noControl;
    const BoundList bound(this);
    if (bound.list)
        editLabel(QPointer<QListWidget>(bound.list), nItem);
    else if (bound.view && !bound.table)
        editLabel(QPointer<QTableView>(bound.view), nItem);
    return noControl;
}

void CListCtrl::SetSelectionMark(int) {}

BOOL CListCtrl::SetColumnWidth(int, int)
{
    return boundWidget(this) ? TRUE : withoutWidget<BOOL>(this);
}

BOOL CListCtrl::EnsureVisible(int, bool)
{
    return boundWidget(this) ? TRUE : withoutWidget<BOOL>(this);
}

BOOL CListCtrl::GetItemRect(int, RECT *, unsigned) const
{
    return boundWidget(this) ? TRUE : withoutWidget<BOOL>(this);
}

BOOL CListCtrl::GetSubItemRect(int, int, int, CRect &) const
{
    return boundWidget(this) ? TRUE : withoutWidget<BOOL>(this);
}

BOOL CListCtrl::GetColumn(int, LVCOLUMNW *) const
{
    return withoutWidget<BOOL>(this);
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE, DWORD_PTR)
{
    return withoutWidget<BOOL>(this);
}

DWORD CListCtrl::GetExtendedStyle() const
{
    return withoutWidget<DWORD>(this);
}

DWORD CListCtrl::SetExtendedStyle(unsigned)
{
    return withoutWidget<DWORD>(this);
}

CImageList *CListCtrl::SetImageList(CImageList *, int)
{
    return withoutWidget<CImageList *>(this);
}
