#pragma once

#include "GalleryPage.h"

/// CComboBox on a QComboBox and CListBox on a QListWidget.
class CListBoxPage : public CGalleryPage
{
public:
    enum { IDD = IDD_LISTBOX_PAGE };

    explicit CListBoxPage(CWnd *pParent = nullptr);

    BOOL OnInitDialog() override;
    void OnFindTree();
    void OnSelectTree();
    void OnDeleteTree();
    void OnFindBird();
    void OnSelectBird();
    void OnDeleteBird();

protected:
    void DoDataExchange(CDataExchange *pDX) override;

private:
    CComboBox m_trees;
    CListBox m_birds;
};
