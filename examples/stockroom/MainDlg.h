#pragma once

#include "FloorPlanWnd.h"
#include "ItemLists.h"
#include "ProgressBar.h"
#include "RoomTree.h"
#include "resource.h"

enum VIEW { VIEW_ROOM, VIEW_ALL, VIEW_PLAN, VIEW_COUNT };

const int MOST_SEARCHES = 8; // that are remembered

/// The main window: the rooms at the left; at the right what they hold, in three views.
class CMainDlg : public CDialog
{
public:
    enum { IDD = IDD_MAIN };

    explicit CMainDlg(CWnd *pParent = nullptr);

    // What the application keeps from run to run.
    int m_nView = VIEW_ROOM;
    int m_nZoom = 70;       // of the floor plan, per cent; at first it fits into the window
    CString m_strRoom;      // empty: all rooms
    CString m_strSearch;    // what the items shown contain
    CStringList m_searches; // the latest one first
    CString m_strFile;      // the latest one imported or exported

    const CSymbols &GetSymbols() const { return m_symbols; }
    ItemModel &GetModel() { return m_model; }

    BOOL OnInitDialog() override;
    void OnRoom();
    void OnView();
    void OnFind();
    void OnColumnClick(int nColumn);
    void OnSelection();
    void OnZoom(int nZoom);
    void OnPlanClick(CPoint point);
    void OnPlanDoubleClick(CPoint point);

    void OnNew();
    void OnEdit();
    void OnDelete();
    void OnCopy();
    void OnPaste();
    void OnImport();
    void OnExport();
    void OnSample();

protected:
    void DoDataExchange(CDataExchange *pDX) override;

private:
    void InitLists();
    void InitSearch();
    void InitZoom();
    void RememberSearch();

    /// Shows anew what the stock, the room, the search and the order give.
    void Refresh();
    void ShowView();
    void ShowRoom();
    void ShowAll();
    void ShowPlan();
    void ShowCount(int nShown, int nFound);
    void FindItems(int nRoom, CPtrArray &found) const;
    /// The list in front; null when the floor plan is.
    CItemList *GetList();
    /// @return GetList().
    CItemList *GetSelectedItems(CPtrArray &items);
    void SelectItem(const CStockItem *pItem);

    BOOL AskImportNames(CStringList &pathNames);
    BOOL AskExportName();
    void BeginProgress();
    void EndProgress();
    int ShowMessage(const CString &strText, UINT nType);
    QWidget *GetWidget() const;

    CStock m_stock;
    CSymbols m_symbols;
    ItemModel m_model{m_stock, m_symbols};
    CPtrArray m_roomItems;                          // those that are found in the room
    BOOL m_bStale[VIEW_COUNT] = {TRUE, TRUE, TRUE}; // to be filled when it comes to the front
    int m_nSortColumn = -1;                         // none: in the order of the stock
    BOOL m_bDescending = FALSE;

    CRoomTree m_rooms;
    CTabCtrl m_views;
    CRoomList m_roomList;
    CFoundList m_foundList;
    CFloorPlanWnd m_plan;
    CComboBox m_search;
    CSliderCtrl m_zoom;
    CProgressCtrl m_progress;
};
