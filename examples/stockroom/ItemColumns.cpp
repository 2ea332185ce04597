#include "ItemColumns.h"

#include "Texts.h"
#include "resource.h"

#include <algorithm>

namespace {

struct COLUMN
{
    UINT nIDHeading;
    int nWidth;
    BOOL bNumber;
};

const COLUMN COLUMNS[COLUMN_COUNT] = {
    {IDS_COLUMN_NUMBER, 15, FALSE}, {IDS_COLUMN_NAME, 24, FALSE},    {IDS_COLUMN_CATEGORY, 16, FALSE},
    {IDS_COLUMN_ROOM, 14, FALSE},   {IDS_COLUMN_STATE, 9, FALSE},    {IDS_COLUMN_SHELF, 9, TRUE},
    {IDS_COLUMN_PRICE, 10, TRUE},   {IDS_COLUMN_QUANTITY, 12, TRUE}, {IDS_COLUMN_UNIT, 6, FALSE},
};

const CStockItem &ItemAt(const void *pItem)
{
    return *static_cast<const CStockItem *>(pItem);
}

CString FormatPrice(double dPrice)
{
    CString strText;
    strText.Format(_T("%.2f"), dPrice);
    return strText;
}

CString FormatNumber(int nNumber)
{
    CString strText;
    strText.Format(_T("%d"), nNumber);
    return strText;
}

template <typename Number> int CompareNumbers(Number left, Number right)
{
    return int(right < left) - int(left < right);
}

int CompareItems(const CStockItem &left, const CStockItem &right, const CStock &stock, int nColumn)
{
    switch (nColumn) {
    case COLUMN_SHELF:
        return CompareNumbers(left.m_nShelf, right.m_nShelf);
    case COLUMN_QUANTITY:
        return CompareNumbers(left.m_nQuantity, right.m_nQuantity);
    case COLUMN_PRICE:
        return CompareNumbers(left.m_dPrice, right.m_dPrice);
    case COLUMN_NUMBER:
        return left.m_strNumber.CompareNoCase(right.m_strNumber);
    case COLUMN_NAME:
        return left.m_strName.CompareNoCase(right.m_strName);
    default:
        return GetColumnText(left, stock, nColumn).CompareNoCase(GetColumnText(right, stock, nColumn));
    }
}

} // namespace

CString GetColumnHeading(int nColumn)
{
    CString strHeading = LoadText(COLUMNS[nColumn].nIDHeading);
    if (IsNumberColumn(nColumn))
        strHeading += EN_SPACE;
    return strHeading;
}

BOOL IsNumberColumn(int nColumn)
{
    return COLUMNS[nColumn].bNumber;
}

int GetColumnWidth(int nColumn)
{
    return COLUMNS[nColumn].nWidth;
}

CString GetColumnText(const CStockItem &item, const CStock &stock, int nColumn)
{
    switch (nColumn) {
    case COLUMN_NUMBER:
        return item.m_strNumber;
    case COLUMN_NAME:
        return item.m_strName;
    case COLUMN_CATEGORY:
        return CStock::GetCategories()[item.m_nCategory];
    case COLUMN_ROOM:
        return stock.GetRoom(item.m_nRoom).m_strName;
    case COLUMN_STATE:
        return LoadText(IDS_STATE_NEW + item.m_nState);
    case COLUMN_SHELF:
        return FormatNumber(item.m_nShelf);
    case COLUMN_PRICE:
        return FormatPrice(item.m_dPrice);
    case COLUMN_QUANTITY:
        return FormatNumber(item.m_nQuantity);
    default:
        return item.m_strUnit;
    }
}

void SortByColumn(CPtrArray &items, const CStock &stock, int nColumn, BOOL bDescending)
{
    void **pItems = items.GetData();
    std::stable_sort(pItems, pItems + items.GetSize(), [&](const void *pLeft, const void *pRight) {
        const int nOrder = CompareItems(ItemAt(pLeft), ItemAt(pRight), stock, nColumn);
        return bDescending ? nOrder > 0 : nOrder < 0;
    });
}
