#pragma once

#include "Symbols.h"

/// The rooms of a stock as a tree, under an item that stands for all of them.
class CRoomTree : public CTreeCtrl
{
public:
    /// Fills the tree; nothing is selected.
    void ShowRooms(const CStock &stock, const CSymbols &symbols);
    /// Writes how many items each room holds behind its name.
    void ShowCounts(const CStock &stock);

    /// @return the selected room; NO_ROOM for the item of all.
    int GetRoom() const;
    void SelectRoom(int nRoom);

private:
    void InsertRooms(const CStock &stock, int nParent, HTREEITEM hParent);
    // The base class shows no pictures on this platform.
    void SetItemImage(HTREEITEM hItem, int nImage);

    const CSymbols *m_pSymbols = nullptr;
    CPtrArray m_hItems; // HTREEITEM by room
};
