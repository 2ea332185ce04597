#include "MainDlg.h"

#include "StockClipboard.h"
#include "Texts.h"

CMainDlg::CMainDlg(CWnd *pParent)
    : CDialog(CMainDlg::IDD, pParent)
{
}

void CMainDlg::DoDataExchange(CDataExchange *pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_ROOMS, m_rooms);
    DDX_Control(pDX, IDC_VIEWS, m_views);
    DDX_Control(pDX, IDC_ITEMS, m_roomList);
    DDX_Control(pDX, IDC_ALL_ITEMS, m_foundList);
    DDX_Control(pDX, IDC_PLAN, m_plan);
    DDX_Control(pDX, IDC_SEARCH, m_search);
    DDX_Control(pDX, IDC_ZOOM, m_zoom);
    DDX_Control(pDX, IDC_PROGRESS, m_progress);
}

BOOL CMainDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_stock.MakeSample(0); // the rooms alone
    m_rooms.ShowRooms(m_stock, m_symbols);
    m_plan.SetStock(&m_stock);
    InitLists();
    InitSearch();
    InitZoom();
    m_progress.SetRange(0, 100);
    m_progress.ShowWindow(SW_HIDE);

    m_views.SetActiveTab(m_nView);
    m_rooms.SelectRoom(m_stock.FindRoom(m_strRoom));
    Refresh();
    m_search.SetFocus();
    return FALSE;
}

void CMainDlg::InitLists()
{
    m_foundList.SetModel(&m_model);
    m_roomList.InsertColumns();
    for (int nColumn = 0; nColumn < COLUMN_COUNT; nColumn++) {
        m_roomList.SetColumnWidth(nColumn, GetColumnWidth(nColumn));
        m_foundList.SetColumnWidth(nColumn, GetColumnWidth(nColumn));
    }
}

void CMainDlg::InitSearch()
{
    POSITION pos = m_searches.GetHeadPosition();
    while (pos)
        m_search.AddString(m_searches.GetNext(pos));
    m_search.SetWindowText(m_strSearch);
}

void CMainDlg::InitZoom()
{
    const int nZoom = m_nZoom; // Qt tells of the position that the range brings along
    m_zoom.SetRange(50, 300);
    m_zoom.SetPageSize(25);
    m_zoom.SetTicFreq(5);
    m_zoom.SetPos(nZoom);
}

CItemList *CMainDlg::GetList()
{
    if (m_nView == VIEW_ROOM)
        return &m_roomList;
    return m_nView == VIEW_ALL ? &m_foundList : nullptr;
}

void CMainDlg::Refresh()
{
    m_model.setItems(CPtrArray()); // some may be gone, and it is filled when it is in front
    for (BOOL &bStale : m_bStale)
        bStale = TRUE;
    m_rooms.ShowCounts(m_stock);
    ShowView();
}

void CMainDlg::ShowView()
{
    if (m_nView == VIEW_ROOM)
        ShowRoom();
    else if (m_nView == VIEW_ALL)
        ShowAll();
    else
        ShowPlan();
    m_bStale[m_nView] = FALSE;
    OnSelection();
}

void CMainDlg::ShowRoom()
{
    if (m_bStale[VIEW_ROOM]) {
        m_roomItems.RemoveAll();
        FindItems(m_rooms.GetRoom(), m_roomItems);
        m_roomList.ShowItems(m_roomItems, m_stock, m_symbols);
        m_roomList.SetSortMark(m_nSortColumn, m_bDescending);
    }
    ShowCount(m_roomList.GetItemCount(), int(m_roomItems.GetSize()));
}

void CMainDlg::ShowAll()
{
    if (m_bStale[VIEW_ALL]) {
        CPtrArray found;
        FindItems(NO_ROOM, found);
        m_model.setItems(found);
        m_foundList.SetSortMark(m_nSortColumn, m_bDescending);
    }
    ShowCount(m_foundList.GetRowCount(), m_foundList.GetRowCount());
}

void CMainDlg::ShowPlan()
{
    if (m_bStale[VIEW_PLAN])
        m_plan.Redraw();
    ShowCount(m_stock.GetItemCount(), m_stock.GetItemCount());
}

void CMainDlg::FindItems(int nRoom, CPtrArray &found) const
{
    m_stock.Find(m_strSearch, nRoom, found);
    if (m_nSortColumn >= 0)
        SortByColumn(found, m_stock, m_nSortColumn, m_bDescending);
}

void CMainDlg::ShowCount(int nShown, int nFound)
{
    CString strText;
    if (m_stock.GetItemCount() == 0)
        strText = LoadText(IDS_STATUS_EMPTY);
    else if (nShown < nFound)
        strText.Format(LoadText(IDS_STATUS_FIRST), nShown, nFound);
    else
        strText.Format(LoadText(IDS_STATUS_COUNT), nFound, m_stock.GetItemCount());
    SetDlgItemText(IDC_STATUS, strText);
}

void CMainDlg::SelectItem(const CStockItem *pItem)
{
    if (CItemList *pList = GetList())
        pList->SelectItem(pItem);
}

void CMainDlg::OnRoom()
{
    const int nRoom = m_rooms.GetRoom();
    m_strRoom = m_stock.GetRoom(nRoom).m_strName;
    m_plan.SelectRoom(nRoom);
    m_bStale[VIEW_ROOM] = TRUE;
    ShowView();
}

void CMainDlg::OnView()
{
    m_nView = m_views.GetCurSel();
    ShowView();
}

void CMainDlg::OnFind()
{
    m_search.GetWindowText(m_strSearch);
    RememberSearch();
    m_bStale[VIEW_ROOM] = m_bStale[VIEW_ALL] = TRUE;
    if (m_nView == VIEW_PLAN)
        m_views.SetCurSel(VIEW_ALL);
    else
        ShowView();
}

void CMainDlg::RememberSearch()
{
    if (m_strSearch.IsEmpty())
        return;
    if (POSITION pos = m_searches.Find(m_strSearch))
        m_searches.RemoveAt(pos);
    m_searches.AddHead(m_strSearch);
    if (m_searches.GetCount() > MOST_SEARCHES)
        m_searches.RemoveTail();
    m_search.ResetContent();
    InitSearch();
}

void CMainDlg::OnColumnClick(int nColumn)
{
    m_bDescending = nColumn == m_nSortColumn && !m_bDescending;
    m_nSortColumn = nColumn;
    m_bStale[VIEW_ROOM] = m_bStale[VIEW_ALL] = TRUE;
    ShowView();
}

void CMainDlg::OnSelection()
{
    const CItemList *pList = GetList();
    const BOOL bSelected = pList && pList->GetSelectedCount() > 0;
    for (int nID : {IDC_EDIT, IDC_DELETE, IDC_COPY})
        GetDlgItem(nID)->EnableWindow(bSelected);
    GetDlgItem(IDC_PASTE)->EnableWindow(CanPasteItems());
    GetDlgItem(IDC_EXPORT)->EnableWindow(m_stock.GetItemCount() > 0);
}

void CMainDlg::OnZoom(int nZoom)
{
    m_nZoom = nZoom;
    m_plan.SetZoom(nZoom);
    CString strText;
    strText.Format(_T("%d %%"), nZoom);
    SetDlgItemText(IDC_ZOOM_TEXT, strText);
}

void CMainDlg::OnPlanClick(CPoint point)
{
    m_rooms.SelectRoom(m_plan.HitTest(point));
}

void CMainDlg::OnPlanDoubleClick(CPoint point)
{
    if (m_plan.HitTest(point) != NO_ROOM)
        m_views.SetCurSel(VIEW_ROOM);
}
