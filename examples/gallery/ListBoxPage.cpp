#include "ListBoxPage.h"

CListBoxPage::CListBoxPage(CWnd *pParent)
    : CGalleryPage(CListBoxPage::IDD, pParent)
{
}

void CListBoxPage::DoDataExchange(CDataExchange *pDX)
{
    CGalleryPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_TREES, m_trees);
    DDX_Control(pDX, IDC_BIRDS, m_birds);
}

BOOL CListBoxPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    SHOW(m_trees.AddString(L"Oak"));
    SHOW(m_trees.AddString(L"Ash"));
    SHOW(m_trees.AddString(L"Lime"));
    SHOW_NOTE(m_trees.AddString(L"Oak"), L"is in the list, so not added again");
    SHOW(m_trees.InsertString(1, L"Elm"));
    SHOW_NOTE(m_trees.SetItemData(1, 40), L"the index");

    SHOW_NOTE(m_birds.AddString(L"  Song   thrush "), L"white space is tidied");
    SHOW(m_birds.AddString(L"Robin"));
    SHOW_NOTE(m_birds.AddString(L"Robin"), L"a list box takes duplicates");
    SHOW_NOTE(m_birds.InsertString(-1, L"Wren"), L"-1 does not append: the first row");
    return TRUE;
}

void CListBoxPage::OnFindTree()
{
    SHOW(m_trees.GetCount());
    SHOW(m_trees.FindString(-1, L"Ash"));
    SHOW_NOTE(m_trees.FindString(-1, L"As"), L"only a whole text is found");
    SHOW_NOTE(m_trees.FindString(-1, L"ash"), L"with case");
    SHOW(m_trees.GetItemData(1));

    CString strText;
    SHOW(m_trees.GetLBText(3, strText));
    SHOW(strText);
    SHOW(m_trees.GetLBTextLen(3));
}

void CListBoxPage::OnSelectTree()
{
    SHOW_NOTE(m_trees.SetCurSel(-1), L"clears the selection");
    SHOW_NOTE(m_trees.SetCurSel(2), L"no signal");
    SHOW(m_trees.GetCurSel());
    SHOW_NOTE(m_trees.SelectString(-1, L"Lime"), L"signals, unlike SetCurSel");
    SHOW_NOTE(m_trees.SetCurSel(9), L"CB_ERR; nothing changes");
}

void CListBoxPage::OnDeleteTree()
{
    SHOW_NOTE(m_trees.DeleteString(0), L"the index, not how many are left");
    SHOW(m_trees.GetCount());
    SHOW_NOTE(m_trees.DeleteString(9), L"CB_ERR");
}

void CListBoxPage::OnFindBird()
{
    SHOW(m_birds.GetCount());
    SHOW_NOTE(m_birds.FindString(-1, L"robin"), L"without case, unlike the combo box");
    SHOW_NOTE(m_birds.FindStringExact(2, L"Robin"), L"LB_ERR: row 3 is not looked at");
    SHOW(m_birds.GetTextLen(1));

    CString strText;
    SHOW(m_birds.GetText(1, strText));
    SHOW(strText);
}

void CListBoxPage::OnSelectBird()
{
    SHOW(m_birds.SetCurSel(0));
    SHOW(m_birds.SetSel(2));
    SHOW(m_birds.GetSelCount());
    SHOW(m_birds.GetSel(2));
    SHOW_NOTE(m_birds.SetCurSel(-1), L"LB_ERR; nothing is deselected");
    SHOW_NOTE(m_birds.SelectString(-1, L"Robin"), L"0 always; the last match is current");
    SHOW(m_birds.GetCurSel());
}

void CListBoxPage::OnDeleteBird()
{
    SHOW_NOTE(m_birds.DeleteString(0), L"the index, not how many are left");
    SHOW_NOTE(m_birds.DeleteString(9), L"the index, though there is no such row");
    SHOW(m_birds.GetCount());
}
