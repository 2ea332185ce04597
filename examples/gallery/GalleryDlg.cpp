#include "GalleryDlg.h"

CGalleryDlg::CGalleryDlg(CWnd *pParent)
    : CDialog(CGalleryDlg::IDD, pParent)
{
}

void CGalleryDlg::DoDataExchange(CDataExchange *pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_PAGES, m_pages);
}

BOOL CGalleryDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_editPage.Create(CEditPage::IDD, this);
    m_listBoxPage.Create(CListBoxPage::IDD, this);
    m_listPage.Create(CListPage::IDD, this);
    m_treePage.Create(CTreePage::IDD, this);
    m_commonPage.Create(CCommonPage::IDD, this);
    m_pages.SetActiveTab(0);
    return TRUE;
}
