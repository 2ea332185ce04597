#pragma once

#include "GalleryPage.h"

/// CListCtrl on a QListWidget, a QTableWidget and a QTableView, and CHeaderCtrl.
class CListPage : public CGalleryPage
{
public:
    enum { IDD = IDD_LIST_PAGE };

    explicit CListPage(CWnd *pParent = nullptr);

    BOOL OnInitDialog() override;
    void OnInsert();
    void OnData();
    void OnSelect();
    void OnSelected();
    void OnHeadings();
    void OnDelete();

protected:
    void DoDataExchange(CDataExchange *pDX) override;

private:
    CListCtrl m_list;
    CListCtrl m_table;
    CListCtrl m_view;
};
