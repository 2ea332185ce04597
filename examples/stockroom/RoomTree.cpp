#include "RoomTree.h"

#include "Texts.h"
#include "resource.h"

#include <QTreeWidgetItem>

void CRoomTree::ShowRooms(const CStock &stock, const CSymbols &symbols)
{
    m_pSymbols = &symbols;
    DeleteAllItems();
    m_hItems.RemoveAll();
    m_hItems.SetSize(stock.GetRoomCount());

    HTREEITEM hAll = InsertItem(LoadText(IDS_ALL_ROOMS), TVI_ROOT);
    SetItemData(hAll, static_cast<unsigned long>(NO_ROOM));
    SetItemImage(hAll, SYMBOL_STOCK);
    InsertRooms(stock, NO_ROOM, hAll);
    Expand(hAll, TVE_EXPAND);
}

void CRoomTree::InsertRooms(const CStock &stock, int nParent, HTREEITEM hParent)
{
    for (int nRoom = 0; nRoom < stock.GetRoomCount(); nRoom++) {
        const CStockRoom &room = stock.GetRoom(nRoom);
        if (room.m_nParent != nParent)
            continue;
        HTREEITEM hRoom = InsertItem(room.m_strName, hParent);
        SetItemData(hRoom, static_cast<unsigned long>(nRoom));
        m_hItems[nRoom] = hRoom;
        InsertRooms(stock, nRoom, hRoom);
        SetItemImage(hRoom, ItemHasChildren(hRoom) ? SYMBOL_BUILDING : SYMBOL_ROOM);
        Expand(hRoom, TVE_EXPAND);
    }
}

void CRoomTree::ShowCounts(const CStock &stock)
{
    CWordArray counts;
    CByteArray usage;
    stock.CountItems(counts, usage);
    CString strText;
    for (int nRoom = 0; nRoom < stock.GetRoomCount(); nRoom++) {
        strText.Format(_T("%ls (%d)"), LPCTSTR(stock.GetRoom(nRoom).m_strName), int(counts[nRoom]));
        SetItemText(static_cast<HTREEITEM>(m_hItems[nRoom]), strText);
    }
    strText.Format(_T("%ls (%d)"), LPCTSTR(LoadText(IDS_ALL_ROOMS)), stock.GetItemCount());
    SetItemText(GetRootItem(), strText);
}

int CRoomTree::GetRoom() const
{
    HTREEITEM hItem = GetSelectedItem();
    return hItem ? int(GetItemData(hItem)) : NO_ROOM;
}

void CRoomTree::SelectRoom(int nRoom)
{
    SelectItem(nRoom == NO_ROOM ? GetRootItem() : static_cast<HTREEITEM>(m_hItems[nRoom]));
}

void CRoomTree::SetItemImage(HTREEITEM hItem, int nImage)
{
    hItem->setIcon(0, m_pSymbols->GetIcon(nImage));
}
