#pragma once

#include "GalleryPage.h"

/// CEdit on a QLineEdit, a QTextEdit and a QSpinBox; CStatic; CButton on check boxes and push buttons.
class CEditPage : public CGalleryPage
{
public:
    enum { IDD = IDD_EDIT_PAGE };

    explicit CEditPage(CWnd *pParent = nullptr);

    HBITMAP m_hPicture = nullptr; // not owned

    BOOL OnInitDialog() override;
    void OnWrite();
    void OnRead();
    void OnCaption();
    void OnPicture();
    void OnCheck();

protected:
    void DoDataExchange(CDataExchange *pDX) override;

private:
    CEdit m_name;
    CEdit m_notes;
    CEdit m_eggs;
    CStatic m_caption;
    CButton m_seen;
    CButton m_play;
};
