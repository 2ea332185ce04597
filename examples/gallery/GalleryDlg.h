#pragma once

#include "CommonPage.h"
#include "EditPage.h"
#include "ListBoxPage.h"
#include "ListPage.h"
#include "TreePage.h"

class CGalleryDlg : public CDialog
{
public:
    enum { IDD = IDD_GALLERY };

    explicit CGalleryDlg(CWnd *pParent = nullptr);

    CEditPage m_editPage;
    CListBoxPage m_listBoxPage;
    CListPage m_listPage;
    CTreePage m_treePage;
    CCommonPage m_commonPage;

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange *pDX) override;

private:
    CTabCtrl m_pages;
};
