#include "EditPage.h"

CEditPage::CEditPage(CWnd *pParent)
    : CGalleryPage(CEditPage::IDD, pParent)
{
}

void CEditPage::DoDataExchange(CDataExchange *pDX)
{
    CGalleryPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_NAME, m_name);
    DDX_Control(pDX, IDC_NOTES, m_notes);
    DDX_Control(pDX, IDC_EGGS, m_eggs);
    DDX_Control(pDX, IDC_CAPTION, m_caption);
    DDX_Control(pDX, IDC_SEEN, m_seen);
    DDX_Control(pDX, IDC_PLAY, m_play);
}

BOOL CEditPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    SHOW(m_name.SetWindowTextW(L"Blackbird"));
    SHOW(m_notes.SetWindowTextW(L"Sings at dusk."));
    SHOW_NOTE(m_eggs.SetWindowTextW(L"4"), L"the value; no signal");
    SHOW(m_caption.SetWindowTextW(L"Turdus merula"));
    SHOW(CheckRadioButton(IDC_MALE, IDC_FEMALE, IDC_MALE));
    OnRead();
    return TRUE;
}

void CEditPage::OnWrite()
{
    SHOW_NOTE(m_name.SetLimitText(8), L"shortens the text that is there");
    SHOW(m_name.SetWindowTextW(L"Nightingale"));
    SHOW(m_name.SetReadOnly(true));
    SHOW(m_name.SetReadOnly(false));
    SHOW(m_notes.SetWindowTextW(L"Sings at night."));
    SHOW_NOTE(m_eggs.SetWindowTextW(L"five"), L"no number, so the value becomes 0");
}

void CEditPage::OnRead()
{
    CString strText;
    SHOW(m_name.GetWindowTextW(strText));
    SHOW(strText);
    SHOW(m_name.GetWindowTextLengthW());

    wchar_t szLine[5] = {};
    SHOW_NOTE(m_name.GetLine(0, szLine, 4), L"copies as much as there is room for");
    SHOW(szLine);

    SHOW_NOTE(m_notes.GetWindowTextLengthW(), L"a QTextEdit is written but not read");
    SHOW(m_eggs.GetWindowTextW(strText));
    SHOW_NOTE(strText, L"as it is displayed, with the suffix");
    SHOW_NOTE(m_name.GetModify(), L"also when nothing was edited");
    SHOW_NOTE(m_name.GetSel(), L"no selection is reported");
}

void CEditPage::OnCaption()
{
    CString strName;
    m_name.GetWindowTextW(strName);
    SHOW(m_caption.SetWindowTextW(strName));
    SHOW(m_caption.GetWindowTextLengthW());
}

void CEditPage::OnPicture()
{
    SHOW_NOTE(m_caption.SetBitmap(m_hPicture), L"the former bitmap is not reported");
    SHOW_NOTE(m_caption.GetBitmap(), L"although a picture is shown");
    SHOW_NOTE(m_caption.SetBitmap(nullptr), L"changes nothing");
    SHOW_NOTE(m_play.SetBitmap(m_hPicture), L"becomes the button's icon");
}

void CEditPage::OnCheck()
{
    SHOW_NOTE(m_seen.SetCheck(2), L"checks: there is no third state");
    SHOW(m_seen.GetCheck());
    SHOW_NOTE(m_seen.GetState(), L"3 when checked, else 0");
    SHOW(CheckRadioButton(IDC_MALE, IDC_FEMALE, IDC_FEMALE));
    SHOW_NOTE(GetCheckedRadioButton(IDC_MALE, IDC_FEMALE), L"IDC_FEMALE");
}
