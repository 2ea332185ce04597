#include "TreePage.h"

CTreePage::CTreePage(CWnd *pParent)
    : CGalleryPage(CTreePage::IDD, pParent)
{
}

void CTreePage::DoDataExchange(CDataExchange *pDX)
{
    CGalleryPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_TREE, m_tree);
}

BOOL CTreePage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    HTREEITEM hTrees = nullptr;
    SHOW(hTrees = m_tree.InsertItem(L"Hardwood", TVI_ROOT));
    SHOW(m_tree.InsertItem(L"Oak", hTrees));
    SHOW_NOTE(m_tree.InsertItem(L"Ash", hTrees, TVI_FIRST), L"appended, whatever the position");
    SHOW(hTrees = m_tree.InsertItem(L"Softwood", TVI_ROOT));
    SHOW(m_tree.InsertItem(L"Larch", hTrees));
    SHOW(m_tree.SetItemData(hTrees, 7));
    SHOW_NOTE(m_tree.InsertItem(L"Palms", nullptr), L"no parent: nothing is inserted");

    wchar_t szTree[] = L"Yew";
    TVINSERTSTRUCTW insert = {};
    insert.hParent = hTrees;
    insert.item.pszText = szTree;
    SHOW_NOTE(m_tree.InsertItem(&insert), L"the mask is not looked at");
    return TRUE;
}

void CTreePage::OnExpand()
{
    HTREEITEM hTrees = m_tree.GetRootItem();
    SHOW_NOTE(m_tree.Expand(hTrees, TVE_COLLAPSE), L"expands, whatever the code");
    hTrees = m_tree.GetNextItem(hTrees, TVGN_NEXT);
    SHOW_NOTE(m_tree.SetItemState(hTrees, TVIS_EXPANDED, TVIS_EXPANDED), L"expands");
    SHOW_NOTE(m_tree.SetItemState(hTrees, 0, TVIS_EXPANDED), L"TRUE, but nothing collapses");
    SHOW_NOTE(m_tree.EnsureVisible(hTrees), L"no counterpart");
}

void CTreePage::OnWalk()
{
    SHOW_NOTE(m_tree.GetCount(), L"top-level items only");
    HTREEITEM hTrees = m_tree.GetRootItem();
    SHOW(m_tree.GetItemText(hTrees));
    SHOW(m_tree.ItemHasChildren(hTrees));
    HTREEITEM hTree = nullptr;
    SHOW(hTree = m_tree.GetChildItem(hTrees));
    SHOW(m_tree.GetItemText(hTree));
    SHOW(m_tree.GetParentItem(hTree) == hTrees);
    SHOW(hTree = m_tree.GetNextSiblingItem(hTree));
    SHOW(m_tree.GetItemText(hTree));
    SHOW_NOTE(m_tree.GetNextSiblingItem(hTrees), L"null for every top-level item");
    SHOW(hTrees = m_tree.GetNextItem(hTrees, TVGN_NEXT));
    SHOW(m_tree.GetItemText(hTrees));
    SHOW(m_tree.GetItemData(hTrees));
}

void CTreePage::OnSelect()
{
    HTREEITEM hTree = m_tree.GetChildItem(m_tree.GetRootItem());
    SHOW(m_tree.SelectItem(hTree));
    SHOW(m_tree.GetSelectedItem() == hTree);
    SHOW(m_tree.SetItemText(hTree, L"English oak"));
    SHOW_NOTE(m_tree.SelectItem(nullptr), L"TRUE, also for no item");
}

void CTreePage::OnEdit()
{
    HTREEITEM hTree = m_tree.GetSelectedItem();
    SHOW_NOTE(m_tree.EditLabel(hTree), L"Qt's editor opens; none is handed out");
    SHOW(m_tree.GetEditControl());
}

void CTreePage::OnDelete()
{
    SHOW(m_tree.DeleteItem(m_tree.GetRootItem()));
    SHOW_NOTE(m_tree.DeleteItem(nullptr), L"TRUE, also for no item");
    SHOW(m_tree.GetCount());
}
