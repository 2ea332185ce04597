#include "ItemLists.h"

#include <QHeaderView>
#include <QTableWidget>

#include <algorithm>

static QTableView *ViewOf(const CItemList &list)
{
    return static_cast<QTableView *>(reinterpret_cast<QWidget *>(list.m_hWnd));
}

// A walk with GetNextSelectedItem() looks through the selection for each row, too often for thousands of them.
void CItemList::GetSelectedItems(CPtrArray &items) const
{
    for (int nRow = 0; nRow < GetRowCount(); nRow++) {
        if (GetItemState(nRow, LVIS_FOCUSED))
            items.Add(GetStockItem(nRow));
    }
}

int CItemList::GetSelectedRow() const
{
    int nRow = 0;
    while (nRow < GetRowCount() && !GetItemState(nRow, LVIS_FOCUSED))
        nRow++;
    return nRow < GetRowCount() ? nRow : -1;
}

void CItemList::SelectRow(int nRow)
{
    SetItemState(std::min(nRow, GetRowCount() - 1), LVIS_FOCUSED, LVIS_FOCUSED);
}

void CItemList::SelectItem(const CStockItem *pItem)
{
    int nRow = 0;
    while (nRow < GetRowCount() && GetStockItem(nRow) != pItem)
        nRow++;
    if (nRow < GetRowCount())
        SelectRow(nRow);
}

void CItemList::SetColumnWidth(int nCol, int nWidth)
{
    QTableView *pView = ViewOf(*this);
    pView->setColumnWidth(nCol, nWidth * pView->fontMetrics().averageCharWidth());
}

void CItemList::SetSortMark(int nCol, BOOL bDescending)
{
    ViewOf(*this)->horizontalHeader()->setSortIndicator(nCol, bDescending ? Qt::DescendingOrder
                                                                          : Qt::AscendingOrder);
}

void CRoomList::InsertColumns()
{
    const auto *pTable = static_cast<QTableWidget *>(ViewOf(*this));
    for (int nColumn = 0; nColumn < COLUMN_COUNT; nColumn++) {
        InsertColumn(nColumn, GetColumnHeading(nColumn));
        if (IsNumberColumn(nColumn))
            pTable->horizontalHeaderItem(nColumn)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
}

void CRoomList::ShowItems(const CPtrArray &items, const CStock &stock, const CSymbols &symbols)
{
    DeleteAllItems();
    const int nRows = std::min(int(items.GetSize()), MOST_ROWS);
    for (int nRow = 0; nRow < nRows; nRow++) {
        auto *pItem = static_cast<CStockItem *>(items[nRow]);
        InsertRow(nRow, pItem, stock);
        SetItemImage(nRow, symbols.GetIcon(GetItemSymbol(*pItem)));
    }
}

void CRoomList::InsertRow(int nRow, CStockItem *pItem, const CStock &stock)
{
    CString strNumber = pItem->m_strNumber;
    LVITEM item = {};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.iItem = nRow;
    item.pszText = strNumber.GetBuffer(0);
    item.lParam = reinterpret_cast<LPARAM>(pItem);
    InsertItem(&item);
    for (int nColumn = COLUMN_NAME; nColumn < COLUMN_COUNT; nColumn++)
        SetItemText(nRow, nColumn, GetColumnText(*pItem, stock, nColumn));
}

void CRoomList::SetItemImage(int nRow, const QIcon &icon)
{
    static_cast<QTableWidget *>(ViewOf(*this))->item(nRow, 0)->setIcon(icon);
}

int CRoomList::GetRowCount() const
{
    return GetItemCount();
}

CStockItem *CRoomList::GetStockItem(int nRow) const
{
    return reinterpret_cast<CStockItem *>(GetItemData(nRow));
}

int CFoundList::GetRowCount() const
{
    return int(m_pModel->items().GetSize());
}

CStockItem *CFoundList::GetStockItem(int nRow) const
{
    return static_cast<CStockItem *>(m_pModel->items()[nRow]);
}
