#pragma once

#include "StockData.h"

/// The columns of the lists of items.
enum ITEMCOLUMN {
    COLUMN_NUMBER,
    COLUMN_NAME,
    COLUMN_CATEGORY,
    COLUMN_ROOM,
    COLUMN_STATE,
    COLUMN_SHELF,
    COLUMN_PRICE,
    COLUMN_QUANTITY,
    COLUMN_UNIT,
    COLUMN_COUNT
};

/// Stands behind numbers and their headings, which are at the right of their column.
const TCHAR EN_SPACE = 0x2002;

CString GetColumnHeading(int nColumn);
CString GetColumnText(const CStockItem &item, const CStock &stock, int nColumn);
BOOL IsNumberColumn(int nColumn);
/// In letters.
int GetColumnWidth(int nColumn);

/// Sorts items by a column; those that are alike in it keep their order.
void SortByColumn(CPtrArray &items, const CStock &stock, int nColumn, BOOL bDescending);
