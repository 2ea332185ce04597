#pragma once

#include "stdafx.h"

/// The stock: rooms, which lie in one another, and the items in them.
enum ITEMSTATE { STATE_NEW, STATE_USED, STATE_BROKEN };

const int NUMBER_LENGTH = 40;
const int NOTE_LENGTH = 80;
const int NO_ROOM = -1;

/// One article in one room.
struct CStockItem
{
    CString m_strNumber; // the key: unique, not empty and at most NUMBER_LENGTH characters
    CString m_strName;
    TCHAR m_szNote[NOTE_LENGTH + 1] = {};
    int m_nRoom = 0;     // index of a room
    int m_nCategory = 0; // index into CStock::GetCategories()
    CString m_strPacking;
    CString m_strUnit;
    BYTE m_nShelf = 1;
    short m_nTemperature = 20; // of storage, degrees Celsius
    int m_nQuantity = 0;
    UINT m_nReorder = 0; // order again when fewer are left
    long m_lBatch = 0;
    unsigned long m_ulSerial = 0;
    float m_fWeight = 0; // kg
    double m_dPrice = 0;
    int m_nState = STATE_NEW;
    bool m_bFragile = false;
    BOOL m_bHazardous = FALSE;
    int m_nLevel = 100; // how full the package is, per cent
};

struct CStockRoom
{
    CString m_strName;
    int m_nParent = NO_ROOM; // index of the building or floor it belongs to
    CRect m_rcPlan;          // on the floor plan, which is PLAN_WIDTH by PLAN_HEIGHT; empty: not drawn
};

const int PLAN_WIDTH = 1000;
const int PLAN_HEIGHT = 640;

/// Told how far a long operation has come.
class CProgress
{
public:
    virtual ~CProgress() = default;
    virtual void OnProgress(int nDone, int nTotal) = 0;
};

/// Owns the rooms and items. Pointers to items stay valid until the item is removed.
class CStock
{
public:
    CStock();
    ~CStock();
    CStock(const CStock &) = delete;
    CStock &operator=(const CStock &) = delete;

    /// @return the names of the categories, the same ones for every stock.
    static const CStringArray &GetCategories();

    /// @return the new room's index; NO_ROOM when the name is empty or taken, or the parent unknown.
    int AddRoom(LPCTSTR lpszName, int nParent, const CRect &rcPlan = CRect());
    int GetRoomCount() const;
    /// @return the room; one without a name when there is none of that index.
    const CStockRoom &GetRoom(int nRoom) const;
    /// @return the room of that name, NO_ROOM when there is none.
    int FindRoom(LPCTSTR lpszName) const;
    /// @return whether a room is another one or lies in it; everything lies in NO_ROOM.
    BOOL IsRoomIn(int nRoom, int nOuter) const;

    /// @return the stock's own copy; null when the number is empty, too long or taken, or the room or category
    /// unknown.
    CStockItem *AddItem(const CStockItem &item);
    /// @return FALSE, with the item as it was, in the cases in which AddItem() gives null.
    BOOL ChangeItem(CStockItem *pItem, const CStockItem &item);
    BOOL RemoveItem(CStockItem *pItem);
    /// Removes those of the items that the stock owns, many at once.
    void RemoveItems(const CPtrArray &items);
    void RemoveItems();

    int GetItemCount() const;
    /// @return null when there is no item of that index.
    CStockItem *GetItem(int nIndex) const;
    CStockItem *FindNumber(LPCTSTR lpszNumber) const;
    /// @return a number like the given one that is free, for a pasted copy or a new item: the same, or with the
    /// digits at its end counted up.
    CString GetFreeNumber(LPCTSTR lpszLike) const;

    /// Appends to @p found the items of a room and those within it, in their order, whose number, name or note
    /// contains the text, whatever the case.
    void Find(LPCTSTR lpszText, int nRoom, CPtrArray &found) const;

    /// Counts the items in each room and those within it, by room index.
    /// @param counts receives the numbers, 65535 for larger ones.
    /// @param usage receives how full each room is, compared with the fullest one, which gets 255. Rooms without
    /// items and those that are not drawn get 0.
    void CountItems(CWordArray &counts, CByteArray &usage) const;

    /// Empties the stock and fills it with the rooms of a small works and that many made-up items.
    void MakeSample(int nItems, CProgress *pProgress = nullptr);

private:
    CPtrArray m_rooms; // CStockRoom
    CPtrArray m_items; // CStockItem
    CMapStringToPtr m_byNumber;

    void RemoveRooms();
    BOOL IsRoom(int nRoom) const;
    BOOL IsUsable(const CStockItem &item) const;
    BOOL Owns(const CStockItem *pItem) const;
};
