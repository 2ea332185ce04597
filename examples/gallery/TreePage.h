#pragma once

#include "GalleryPage.h"

/// CTreeCtrl on a QTreeWidget.
class CTreePage : public CGalleryPage
{
public:
    enum { IDD = IDD_TREE_PAGE };

    explicit CTreePage(CWnd *pParent = nullptr);

    BOOL OnInitDialog() override;
    void OnExpand();
    void OnWalk();
    void OnSelect();
    void OnEdit();
    void OnDelete();

protected:
    void DoDataExchange(CDataExchange *pDX) override;

private:
    CTreeCtrl m_tree;
};
