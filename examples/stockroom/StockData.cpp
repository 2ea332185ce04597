#include "StockData.h"

#include "Texts.h"
#include "resource.h"

#include <QChar>

#include <algorithm>

// A prime, about as large as a large stock.
static const UINT HASH_TABLE_SIZE = 50021;
static const INT_PTR ITEMS_GROW_BY = 16384;
static const int MOST_COUNTED = 0xFFFF;
static const int MOST_DIGITS = 9; // that are counted up without overflow

static void LoadCategories(CStringArray &categories)
{
    for (UINT nID = IDS_CATEGORY_FIRST; nID <= IDS_CATEGORY_LAST; nID++)
        categories.Add(LoadText(nID));
}

// towlower() knows ASCII alone in the C locale.
static TCHAR Fold(TCHAR ch)
{
    if (ch >= _T('A') && ch <= _T('Z'))
        return TCHAR(ch - _T('A') + _T('a'));
    return ch < 0x80 ? ch : TCHAR(QChar::toCaseFolded(UINT(ch)));
}

static BOOL BeginsWith(LPCTSTR lpszText, LPCTSTR lpszFolded)
{
    while (*lpszFolded != 0 && Fold(*lpszText) == *lpszFolded) {
        lpszText++;
        lpszFolded++;
    }
    return *lpszFolded == 0;
}

static BOOL Contains(LPCTSTR lpszText, LPCTSTR lpszFolded)
{
    for (; *lpszText != 0; lpszText++) {
        if (BeginsWith(lpszText, lpszFolded))
            return TRUE;
    }
    return FALSE;
}

static double GetDensity(const CStockRoom &room, int nItems)
{
    const CRect &rcPlan = room.m_rcPlan;
    return rcPlan.IsRectEmpty() ? 0 : double(nItems) / (double(rcPlan.Width()) * rcPlan.Height());
}

// The numbers that follow one: the digits at its end are counted up, or those behind an appended hyphen.
class CNumberSeries
{
public:
    explicit CNumberSeries(LPCTSTR lpszFirst);
    CString GetAt(int nIndex) const;

private:
    CString m_strFirst;
    CString m_strStem;
    int m_nDigits = 0;
    int m_nStart = 1;
};

CNumberSeries::CNumberSeries(LPCTSTR lpszFirst)
    : m_strFirst(CString(lpszFirst).Left(NUMBER_LENGTH))
{
    const int nLength = m_strFirst.GetLength();
    while (m_nDigits < std::min(nLength, MOST_DIGITS) &&
           iswdigit(wint_t(m_strFirst[nLength - m_nDigits - 1])))
        m_nDigits++;
    m_strStem = m_strFirst.Left(std::min(nLength - m_nDigits, NUMBER_LENGTH - MOST_DIGITS - 2));
    if (m_nDigits > 0)
        m_nStart = _ttoi(m_strFirst.Mid(nLength - m_nDigits));
    else if (nLength > 0)
        m_strStem += _T('-');
}

CString CNumberSeries::GetAt(int nIndex) const
{
    if (nIndex == 0 && !m_strFirst.IsEmpty())
        return m_strFirst;
    CString strNumber;
    strNumber.Format(_T("%ls%0*d"), LPCTSTR(m_strStem), m_nDigits, m_nStart + nIndex);
    return strNumber;
}

CStock::CStock()
{
    m_items.SetSize(0, ITEMS_GROW_BY);
    m_byNumber.InitHashTable(HASH_TABLE_SIZE, false);
}

CStock::~CStock()
{
    RemoveItems();
    RemoveRooms();
}

const CStringArray &CStock::GetCategories()
{
    static CStringArray categories;
    if (categories.IsEmpty())
        LoadCategories(categories);
    return categories;
}

int CStock::AddRoom(LPCTSTR lpszName, int nParent, const CRect &rcPlan)
{
    CString strName = lpszName;
    if (strName.IsEmpty() || FindRoom(strName) != NO_ROOM || (nParent != NO_ROOM && !IsRoom(nParent)))
        return NO_ROOM;
    return int(m_rooms.Add(new CStockRoom{strName, nParent, rcPlan}));
}

int CStock::GetRoomCount() const
{
    return int(m_rooms.GetSize());
}

const CStockRoom &CStock::GetRoom(int nRoom) const
{
    static const CStockRoom none;
    return IsRoom(nRoom) ? *static_cast<CStockRoom *>(m_rooms[nRoom]) : none;
}

int CStock::FindRoom(LPCTSTR lpszName) const
{
    for (int nRoom = 0; nRoom < GetRoomCount(); nRoom++) {
        if (GetRoom(nRoom).m_strName.Compare(lpszName) == 0)
            return nRoom;
    }
    return NO_ROOM;
}

BOOL CStock::IsRoomIn(int nRoom, int nOuter) const
{
    while (nRoom != nOuter && IsRoom(nRoom))
        nRoom = GetRoom(nRoom).m_nParent;
    return nRoom == nOuter;
}

CStockItem *CStock::AddItem(const CStockItem &item)
{
    if (!IsUsable(item) || FindNumber(item.m_strNumber))
        return nullptr;
    CStockItem *pItem = new CStockItem(item);
    m_items.Add(pItem);
    m_byNumber.SetAt(pItem->m_strNumber, pItem);
    return pItem;
}

BOOL CStock::ChangeItem(CStockItem *pItem, const CStockItem &item)
{
    if (!Owns(pItem) || !IsUsable(item))
        return FALSE;
    const CStockItem *pNamesake = FindNumber(item.m_strNumber);
    if (pNamesake && pNamesake != pItem)
        return FALSE;

    m_byNumber.RemoveKey(pItem->m_strNumber);
    *pItem = item;
    m_byNumber.SetAt(pItem->m_strNumber, pItem);
    return TRUE;
}

BOOL CStock::RemoveItem(CStockItem *pItem)
{
    if (!Owns(pItem))
        return FALSE;
    CPtrArray items;
    items.Add(pItem);
    RemoveItems(items);
    return TRUE;
}

void CStock::RemoveItems(const CPtrArray &items)
{
    CPtrArray removed;
    removed.SetSize(0, items.GetSize());
    for (INT_PTR i = 0; i < items.GetSize(); i++) {
        auto *pItem = static_cast<CStockItem *>(items[i]);
        if (Owns(pItem)) {
            m_byNumber.RemoveKey(pItem->m_strNumber);
            removed.Add(pItem);
        }
    }
    void **pRemoved = removed.GetData();
    void **pRemovedEnd = pRemoved + removed.GetSize();
    std::sort(pRemoved, pRemovedEnd);
    void **pItems = m_items.GetData();
    void **pItemsEnd = std::remove_if(pItems, pItems + GetItemCount(), [=](const void *pItem) {
        return std::binary_search(pRemoved, pRemovedEnd, pItem);
    });
    m_items.SetSize(pItemsEnd - pItems);
    for (INT_PTR i = 0; i < removed.GetSize(); i++)
        delete static_cast<CStockItem *>(removed[i]);
}

void CStock::RemoveItems()
{
    m_byNumber.RemoveAll();
    for (int i = 0; i < GetItemCount(); i++)
        delete GetItem(i);
    m_items.RemoveAll();
}

int CStock::GetItemCount() const
{
    return int(m_items.GetSize());
}

CStockItem *CStock::GetItem(int nIndex) const
{
    return nIndex >= 0 && nIndex < GetItemCount() ? static_cast<CStockItem *>(m_items[nIndex]) : nullptr;
}

CStockItem *CStock::FindNumber(LPCTSTR lpszNumber) const
{
    void *pItem = nullptr;
    m_byNumber.Lookup(lpszNumber, pItem);
    return static_cast<CStockItem *>(pItem);
}

// Doubles its steps and then halves them: a large stock has long runs of numbers that are taken.
CString CStock::GetFreeNumber(LPCTSTR lpszLike) const
{
    const CNumberSeries series(lpszLike);
    int nTaken = -1;
    int nFree = 0;
    while (FindNumber(series.GetAt(nFree))) {
        nTaken = nFree;
        nFree = 2 * nFree + 1;
    }
    while (nFree - nTaken > 1) {
        const int nMiddle = (nTaken + nFree) / 2;
        (FindNumber(series.GetAt(nMiddle)) ? nTaken : nFree) = nMiddle;
    }
    return series.GetAt(nFree);
}

void CStock::Find(LPCTSTR lpszText, int nRoom, CPtrArray &found) const
{
    CString strFolded = lpszText;
    for (int i = 0; i < strFolded.GetLength(); i++)
        strFolded.SetAt(i, Fold(strFolded[i]));
    CByteArray inRoom;
    inRoom.SetSize(GetRoomCount());
    for (int i = 0; i < GetRoomCount(); i++)
        inRoom[i] = BYTE(IsRoomIn(i, nRoom));

    for (int i = 0; i < GetItemCount(); i++) {
        CStockItem *pItem = GetItem(i);
        if (inRoom[pItem->m_nRoom] &&
            (Contains(pItem->m_strNumber, strFolded) || Contains(pItem->m_strName, strFolded) ||
             Contains(pItem->m_szNote, strFolded)))
            found.Add(pItem);
    }
}

void CStock::CountItems(CWordArray &counts, CByteArray &usage) const
{
    counts.RemoveAll();
    counts.SetSize(GetRoomCount());
    for (int i = 0; i < GetItemCount(); i++) {
        for (int nRoom = GetItem(i)->m_nRoom; nRoom != NO_ROOM; nRoom = GetRoom(nRoom).m_nParent)
            counts[nRoom] = WORD(std::min(counts[nRoom] + 1, MOST_COUNTED));
    }

    double dMost = 0;
    for (int nRoom = 0; nRoom < GetRoomCount(); nRoom++)
        dMost = std::max(dMost, GetDensity(GetRoom(nRoom), counts[nRoom]));
    usage.SetSize(GetRoomCount());
    for (int nRoom = 0; nRoom < GetRoomCount(); nRoom++) {
        const double dDensity = GetDensity(GetRoom(nRoom), counts[nRoom]);
        // A room with a single item is not shown as an empty one.
        usage[nRoom] = dDensity > 0 ? BYTE(1 + int(254 * dDensity / dMost)) : BYTE(0);
    }
}

void CStock::RemoveRooms()
{
    for (INT_PTR i = 0; i < m_rooms.GetSize(); i++)
        delete static_cast<CStockRoom *>(m_rooms[i]);
    m_rooms.RemoveAll();
}

BOOL CStock::IsRoom(int nRoom) const
{
    return nRoom >= 0 && nRoom < GetRoomCount();
}

BOOL CStock::IsUsable(const CStockItem &item) const
{
    const int nLength = item.m_strNumber.GetLength();
    return nLength > 0 && nLength <= NUMBER_LENGTH && IsRoom(item.m_nRoom) && item.m_nCategory >= 0 &&
           item.m_nCategory < GetCategories().GetSize();
}

BOOL CStock::Owns(const CStockItem *pItem) const
{
    return pItem && FindNumber(pItem->m_strNumber) == pItem;
}
