#pragma once

#include "ItemModel.h"

/// A list of items in columns.
class CItemList : public CListCtrl
{
public:
    /// Appends the selected items.
    void GetSelectedItems(CPtrArray &items) const;
    /// @return the first selected row, -1 when there is none.
    int GetSelectedRow() const;
    /// Selects a row, or the last one when there are fewer, and scrolls to it.
    void SelectRow(int nRow);
    /// Selects an item and scrolls to it; nothing when the list does not have it.
    void SelectItem(const CStockItem *pItem);
    /// In letters. CListCtrl leaves the widths to Qt on this platform.
    void SetColumnWidth(int nCol, int nWidth);
    /// Marks the heading of the column that the list is sorted by; none for -1.
    void SetSortMark(int nCol, BOOL bDescending);

    virtual int GetRowCount() const = 0;
    virtual CStockItem *GetStockItem(int nRow) const = 0;
};

/// A list that holds the texts of its rows, on a QTableWidget. An item's address is the item data of its row.
class CRoomList : public CItemList
{
public:
    void InsertColumns();
    /// Fills the list anew, with the first items when there are more than its rows can be.
    void ShowItems(const CPtrArray &items, const CStock &stock, const CSymbols &symbols);

    int GetRowCount() const override;
    CStockItem *GetStockItem(int nRow) const override;

private:
    void InsertRow(int nRow, CStockItem *pItem, const CStock &stock);
    // The base class shows no pictures on this platform.
    void SetItemImage(int nRow, const QIcon &icon);
};

const int MOST_ROWS = 2000; // of a CRoomList

/// A list that asks a model for the texts of its rows, on a QTableView.
class CFoundList : public CItemList
{
public:
    void SetModel(const ItemModel *pModel) { m_pModel = pModel; }

    int GetRowCount() const override;
    CStockItem *GetStockItem(int nRow) const override;

private:
    const ItemModel *m_pModel = nullptr;
};
