#include "ListPage.h"

CListPage::CListPage(CWnd *pParent)
    : CGalleryPage(CListPage::IDD, pParent)
{
}

void CListPage::DoDataExchange(CDataExchange *pDX)
{
    CGalleryPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_LIST, m_list);
    DDX_Control(pDX, IDC_TABLE, m_table);
    DDX_Control(pDX, IDC_VIEW, m_view);
}

BOOL CListPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    SHOW(m_list.InsertItem(0, L"Oak"));
    SHOW(m_list.InsertItem(1, L"Ash"));

    SHOW(m_table.InsertColumn(0, L"Tree"));
    SHOW(m_table.InsertColumn(1, L"Height"));
    SHOW_NOTE(m_table.InsertItem(0, L"Oak", 0), L"fills column 0 alone");
    SHOW(m_table.SetItemText(0, 1, L"30 m"));
    SHOW_NOTE(m_table.InsertItem(1, L"Ash"), L"fills every column");
    SHOW(m_table.SetItemText(1, 1, L"35 m"));

    SHOW_NOTE(m_view.InsertColumn(1, L"Height"), L"renames the heading that is there");
    return TRUE;
}

void CListPage::OnInsert()
{
    wchar_t szTree[] = L"Lime";
    LVITEMW item = {};
    item.iItem = m_table.GetItemCount();
    item.pszText = szTree;
    item.lParam = 28;
    SHOW_NOTE(m_list.InsertItem(9, L"Lime"), L"the argument; a list appends");
    SHOW_NOTE(m_table.InsertItem(&item), L"text and data go into one cell");
    SHOW_NOTE(m_table.InsertItem(9, L"Elm"), L"the argument; a table refuses the row");
    SHOW_NOTE(m_view.InsertItem(2, L"Lime"), L"the row stays empty");
    SHOW(m_list.GetItemCount());
    SHOW(m_table.GetItemCount());
    SHOW(m_view.GetItemCount());
}

void CListPage::OnData()
{
    SHOW(m_list.SetItemData(0, 30));
    SHOW(m_list.GetItemData(0));
    LVITEMW item = {};
    item.mask = LVIF_PARAM;
    item.iItem = 2;
    SHOW(m_table.GetItem(&item));
    SHOW(item.lParam);
    SHOW_NOTE(m_view.SetItemData(1, 35), L"a view shows the number as text");
    SHOW(m_view.GetItemData(1));
    SHOW(m_table.GetItemText(0, 1));
    SHOW_NOTE(m_view.GetItemText(0, 1), L"a view gives no text");
    SHOW_NOTE(m_list.SortItems(nullptr, 0), L"nothing is sorted");
}

void CListPage::OnSelect()
{
    SHOW_NOTE(m_list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED), L"TRUE, but nothing is selected");
    SHOW_NOTE(m_list.SetItemState(0, LVIS_FOCUSED, LVIS_FOCUSED), L"this bit stands for selected");
    SHOW(m_list.GetItemState(0, LVIS_FOCUSED));
    SHOW(m_table.SetItemState(0, LVIS_FOCUSED, LVIS_FOCUSED));
    SHOW(m_view.SetItemState(0, LVIS_FOCUSED, LVIS_FOCUSED));
}

void CListPage::OnSelected()
{
    SHOW(m_list.GetSelectedCount());
    SHOW_NOTE(m_table.GetSelectedCount(), L"1, however many rows are selected");
    SHOW(m_view.GetSelectedCount());

    SHOW_NOTE(m_list.GetFirstSelectedItemPosition(), L"a list has no walk: use GetNextItem");
    SHOW(m_list.GetNextItem(-1, LVNI_SELECTED));
    POSITION pos = m_table.GetFirstSelectedItemPosition();
    while (pos)
        SHOW(m_table.GetNextSelectedItem(pos));
    pos = m_view.GetFirstSelectedItemPosition();
    while (pos)
        SHOW(m_view.GetNextSelectedItem(pos));
}

void CListPage::OnHeadings()
{
    CHeaderCtrl *pHeader = m_table.GetHeaderCtrl();
    SHOW(pHeader->GetItemCount());
    HDITEMW item = {};
    SHOW(pHeader->GetItem(1, &item));
    SHOW_NOTE(item.pszText, L"the header's own text: do not free it");

    wchar_t szHeading[] = L"Tallest";
    item.pszText = szHeading;
    SHOW(pHeader->SetItem(1, &item));
    SHOW_NOTE(m_list.GetHeaderCtrl(), L"a list has no header");
}

void CListPage::OnDelete()
{
    SHOW(m_list.DeleteItem(0));
    SHOW_NOTE(m_list.DeleteItem(9), L"TRUE, though there is no such row");
    SHOW(m_list.GetItemCount());
    SHOW_NOTE(m_table.DeleteAllItems(), L"the columns stay");
    SHOW(m_table.GetItemCount());
    SHOW(m_view.DeleteItem(0));
    SHOW(m_view.GetItemCount());
}
