#ifndef STOCKITEMS_H
#define STOCKITEMS_H

#include "StockData.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <cfloat>
#include <tuple>

enum { Works, Hall, Rack, Office };

/// A works with a hall, a rack in the hall, and an office.
class Stock : public CStock
{
public:
    Stock()
    {
        AddRoom(_T("Works"), NO_ROOM);
        AddRoom(_T("Hall"), Works, CRect(0, 0, 100, 100));
        AddRoom(_T("Rack"), Hall, CRect(0, 0, 50, 50));
        AddRoom(_T("Büro"), Works, CRect(100, 0, 200, 100));
    }
};

inline CString toText(const QString &text)
{
    return text.toStdWString();
}

inline QString toQt(LPCTSTR text)
{
    return QString::fromWCharArray(text);
}

inline CStockItem makeItem(LPCTSTR number, int room = Hall, LPCTSTR name = _T("Bolt"), LPCTSTR note = _T(""))
{
    CStockItem item;
    item.m_strNumber = number;
    item.m_nRoom = room;
    item.m_strName = name;
    _tcsncpy(item.m_szNote, note, NOTE_LENGTH);
    return item;
}

/// Every field at a value that is easily lost.
inline CStockItem extremeItem()
{
    CStockItem item =
        makeItem(_T("\"A\" 1,5; \\41;"), Office, _T("Ж 東京 \U0001F600 'x'\xA0"), _T("a\tb\r\nc\\"));
    item.m_nCategory = 7;
    item.m_strPacking = _T(" ");
    item.m_nShelf = 255;
    item.m_nTemperature = SHRT_MIN;
    item.m_nQuantity = INT_MIN;
    item.m_nReorder = UINT_MAX;
    item.m_lBatch = LONG_MIN;
    item.m_ulSerial = ULONG_MAX;
    item.m_fWeight = FLT_TRUE_MIN;
    item.m_dPrice = 0.1 + 0.2;
    item.m_nState = STATE_BROKEN;
    item.m_bFragile = true;
    item.m_bHazardous = TRUE;
    item.m_nLevel = 0;
    return item;
}

inline auto fieldsOf(const CStockItem &item)
{
    return std::tie(item.m_strNumber, item.m_strName, item.m_nRoom, item.m_nCategory, item.m_strPacking,
                    item.m_strUnit, item.m_nShelf, item.m_nTemperature, item.m_nQuantity, item.m_nReorder,
                    item.m_lBatch, item.m_ulSerial, item.m_fWeight, item.m_dPrice, item.m_nState,
                    item.m_bFragile, item.m_bHazardous, item.m_nLevel);
}

inline bool same(const CStockItem &left, const CStockItem &right)
{
    return fieldsOf(left) == fieldsOf(right) && std::wcscmp(left.m_szNote, right.m_szNote) == 0;
}

/// All items of a stock.
class Items : public CPtrArray
{
public:
    explicit Items(const CStock &stock) { stock.Find(_T(""), NO_ROOM, *this); }
};

/// The numbers of the items, in their order, for example "A-1 A-2".
inline QString numbersIn(const CPtrArray &items)
{
    QStringList numbers;
    for (INT_PTR i = 0; i < items.GetSize(); i++)
        numbers << toQt(static_cast<CStockItem *>(items[i])->m_strNumber);
    return numbers.join(QLatin1Char(' '));
}

inline QString numbersIn(const CStock &stock)
{
    return numbersIn(Items(stock));
}

/// Told every 250 items or lines at least, and at the end.
class Progress : public CProgress
{
public:
    void OnProgress(int nDone, int nTotal) override
    {
        m_good = m_good && nDone >= m_done && nDone - m_done <= 250;
        m_done = nDone;
        m_total = nTotal;
    }
    bool isComplete(int total) const { return m_good && m_done == total && m_total == total; }

private:
    bool m_good = true;
    int m_done = 0;
    int m_total = -1;
};

#endif
