#include "KxTreeControl.h"
#include "foundation/QtConversions.h"
#include "foundation/TextBuffers.h"
#include "windows/KxGuard.h"

#include <QPersistentModelIndex>
#include <QTreeWidget>

CTreeCtrl::CTreeCtrl()
    : CWnd(nullptr)
{
}

CTreeCtrl::~CTreeCtrl() = default;

static QModelIndex indexOf(const QTreeWidget *tree, const QTreeWidgetItem *item)
{
    struct Indexes : QTreeWidget
    {
        using QTreeWidget::indexFromItem;
    };
    using Member = QModelIndex (QTreeWidget::*)(const QTreeWidgetItem *, int) const;
    return (tree->*static_cast<Member>(&Indexes::indexFromItem))(item, 0);
}

// By the index, which remembers an item's row: indexOfChild() searches, and makes walking a tree quadratic.
static HTREEITEM sibling(const QTreeWidget *tree, HTREEITEM item, int distance)
{
    return item->parent()->child(indexOf(tree, item).row() + distance);
}

UINT CTreeCtrl::GetCount() const
{
    const auto *tree = boundWidget<QTreeWidget>(this);
    return tree ? UINT(tree->topLevelItemCount()) : withoutWidget<UINT>(this);
}

HTREEITEM CTreeCtrl::GetRootItem() const
{
    const auto *tree = boundWidget<QTreeWidget>(this);
    return tree ? tree->topLevelItem(0) : withoutWidget<HTREEITEM>(this);
}

HTREEITEM CTreeCtrl::GetSelectedItem() const
{
    const auto *tree = boundWidget<QTreeWidget>(this);
    return tree ? tree->currentItem() : withoutWidget<HTREEITEM>(this);
}

HTREEITEM CTreeCtrl::GetParentItem(HTREEITEM hItem) const
{
    if (!boundWidget<QTreeWidget>(this))
        return withoutWidget<HTREEITEM>(this);
    return hItem ? hItem->parent() : nullptr;
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM hItem) const
{
    if (!boundWidget<QTreeWidget>(this))
        return withoutWidget<HTREEITEM>(this);
    return hItem ? hItem->child(0) : nullptr;
}

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM hItem) const
{
    const auto *tree = boundWidget<QTreeWidget>(this);
    if (!tree)
        return withoutWidget<HTREEITEM>(this);
    return hItem && hItem->parent() ? sibling(tree, hItem, 1) : nullptr;
}

HTREEITEM CTreeCtrl::GetPrevSiblingItem(HTREEITEM hItem) const
{
    const auto *tree = boundWidget<QTreeWidget>(this);
    if (!tree)
        return withoutWidget<HTREEITEM>(this);
    return hItem && hItem->parent() ? sibling(tree, hItem, -1) : nullptr;
}

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM hItem, UINT nCode) const
{
    const auto *tree = boundWidget<QTreeWidget>(this);
    if (!tree)
        return withoutWidget<HTREEITEM>(this);
    if (!hItem || nCode != TVGN_NEXT)
        return nullptr;
    // Top-level items have siblings here only.
    return hItem->parent() ? sibling(tree, hItem, 1) : tree->topLevelItem(indexOf(tree, hItem).row() + 1);
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM hItem) const
{
    if (!boundWidget<QTreeWidget>(this))
        return withoutWidget<BOOL>(this);
    return hItem && hItem->childCount() > 0;
}

CString CTreeCtrl::GetItemText(HTREEITEM hItem) const
{
    return boundWidget<QTreeWidget>(this) && hItem ? toCString(hItem->text(0)) : CString();
}

unsigned long CTreeCtrl::GetItemData(HTREEITEM hItem) const
{
    if (!boundWidget<QTreeWidget>(this))
        return withoutWidget<unsigned long>(this);
    return hItem ? hItem->data(0, Qt::UserRole).toULongLong() : 0;
}

BOOL CTreeCtrl::GetItem(TVITEMW *pItem) const
{
    if (!boundWidget<QTreeWidget>(this))
        return withoutWidget<BOOL>(this);
    if (!pItem || !pItem->hItem)
        return FALSE;
    copyToBuffer(toCString(pItem->hItem->text(0)), pItem->pszText, pItem->cchTextMax);
    pItem->lParam = LPARAM(pItem->hItem->data(0, Qt::UserRole).toULongLong());
    return TRUE;
}

HTREEITEM CTreeCtrl::InsertItem(TVINSERTSTRUCTW *pInsert)
{
    auto *tree = boundWidget<QTreeWidget>(this);
    if (!tree)
        return withoutWidget<HTREEITEM>(this);
    if (!pInsert)
        return nullptr;
    // Only a null parent is the root of a record; of a text, TVI_ROOT is.
    auto *item = pInsert->hParent ? new QTreeWidgetItem(pInsert->hParent) : new QTreeWidgetItem(tree);
    item->setText(0, toQString(pInsert->item.pszText));
    item->setData(0, Qt::UserRole, QVariant(qulonglong(pInsert->item.lParam)));
    return item;
}

HTREEITEM CTreeCtrl::InsertItem(const wchar_t *lpszItem, HTREEITEM hParent, HTREEITEM)
{
    auto *tree = boundWidget<QTreeWidget>(this);
    if (!tree)
        return withoutWidget<HTREEITEM>(this);
    if (!hParent)
        return nullptr;
    const QStringList texts(toQString(lpszItem));
    return hParent == TVI_ROOT ? new QTreeWidgetItem(tree, texts) : new QTreeWidgetItem(hParent, texts);
}

BOOL CTreeCtrl::DeleteItem(HTREEITEM hItem)
{
    if (!boundWidget<QTreeWidget>(this))
        return withoutWidget<BOOL>(this);
    delete hItem;
    return TRUE;
}

BOOL CTreeCtrl::DeleteAllItems()
{
    auto *tree = boundWidget<QTreeWidget>(this);
    if (!tree)
        return withoutWidget<BOOL>(this);
    tree->clear();
    return TRUE;
}

BOOL CTreeCtrl::SetItemText(HTREEITEM hItem, const wchar_t *lpszItem)
{
    if (!boundWidget<QTreeWidget>(this))
        return withoutWidget<BOOL>(this);
    if (hItem)
        hItem->setText(0, toQString(lpszItem));
    return TRUE;
}

BOOL CTreeCtrl::SetItemData(HTREEITEM hItem, unsigned long dwData)
{
    if (!boundWidget<QTreeWidget>(this))
        return withoutWidget<BOOL>(this);
    if (hItem)
        hItem->setData(0, Qt::UserRole, QVariant(qulonglong(dwData)));
    return TRUE;
}

BOOL CTreeCtrl::Expand(HTREEITEM hItem, UINT)
{
    if (!boundWidget<QTreeWidget>(this))
        return withoutWidget<BOOL>(this);
    if (hItem)
        hItem->setExpanded(true);
    return TRUE;
}

BOOL CTreeCtrl::SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask)
{
    if (!boundWidget<QTreeWidget>(this))
        return withoutWidget<BOOL>(this);
    if (hItem && (nState & nStateMask) == TVIS_EXPANDED)
        hItem->setExpanded(true);
    return TRUE;
}

// In the three below the first step emits signals, whose receivers may delete the item, or the tree: an index
// that stays valid tells that neither happened.

BOOL CTreeCtrl::Select(HTREEITEM hItem, UINT)
{
    auto *tree = boundWidget<QTreeWidget>(this);
    if (!tree)
        return withoutWidget<BOOL>(this);
    const QPersistentModelIndex index = indexOf(tree, hItem);
    if (hItem)
        tree->setCurrentItem(hItem);
    if (index.isValid())
        hItem->setSelected(true);
    return TRUE;
}

BOOL CTreeCtrl::SelectItem(HTREEITEM hItem)
{
    auto *tree = boundWidget<QTreeWidget>(this);
    if (!tree)
        return withoutWidget<BOOL>(this);
    const QPersistentModelIndex index = indexOf(tree, hItem);
    if (hItem)
        hItem->setSelected(true);
    if (index.isValid())
        tree->setCurrentItem(hItem);
    return TRUE;
}

CEdit *CTreeCtrl::EditLabel(HTREEITEM hItem)
{
    auto *tree = boundWidget<QTreeWidget>(this);
    if (!tree)
        return withoutWidget<CEdit *>(this);
    const QPersistentModelIndex index = indexOf(tree, hItem);
    if (hItem)
        hItem->setFlags(hItem->flags() | Qt::ItemIsEditable);
    if (index.isValid())
        tree->editItem(hItem, 0);
    return nullptr;
}

HTREEITEM CTreeCtrl::InsertItem(unsigned, const wchar_t *, int, int, unsigned, unsigned, long, HTREEITEM,
                                HTREEITEM)
{
    return nullptr;
}

HTREEITEM CTreeCtrl::InsertItem(const wchar_t *, int, int, HTREEITEM, HTREEITEM)
{
    return nullptr;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM, int, int)
{
    return boundWidget<QTreeWidget>(this) ? TRUE : withoutWidget<BOOL>(this);
}

BOOL CTreeCtrl::EnsureVisible(HTREEITEM)
{
    return FALSE;
}

BOOL CTreeCtrl::EndEditLabelNow(bool)
{
    return FALSE;
}

CImageList *CTreeCtrl::GetImageList(int) const
{
    return nullptr;
}

CImageList *CTreeCtrl::SetImageList(CImageList *, int)
{
    return nullptr;
}

CEdit *CTreeCtrl::GetEditControl() const
{
    return nullptr;
}

short CTreeCtrl::SetItemHeight(short cyHeight)
{
    return boundWidget<QTreeWidget>(this) ? cyHeight : withoutWidget<short>(this);
}
