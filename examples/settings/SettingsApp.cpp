#include "SettingsApp.h"

#include "SettingsDlg.h"
#include "SettingsForm.h"

#include <cmath>

static const wchar_t SECTION[] = L"Station";

CSettingsApp theApp;

CSettingsApp::CSettingsApp()
{
    g_pWinApp = this;
}

BOOL CSettingsApp::InitInstance()
{
    ShowSettings();

    // The dialog has been closed: FALSE exits the application.
    return FALSE;
}

INT_PTR CSettingsApp::ShowSettings()
{
    CSettingsDlg dlg;
    SettingsForm form(dlg); // stands where a dialog template is loaded elsewhere
    Load(dlg);
    INT_PTR nResult = dlg.DoModal();
    if (nResult == IDOK)
        Save(dlg);
    return nResult;
}

BOOL CSettingsApp::UseTextsOf(const wchar_t *lpszLibrary)
{
    HINSTANCE hTexts = AfxLoadLibrary(lpszLibrary);
    AfxSetResourceHandle(hTexts);
    AfxFreeLibrary(m_hTexts);
    m_hTexts = hTexts;
    return hTexts || !lpszLibrary;
}

void CSettingsApp::Load(CSettingsDlg &dlg)
{
    dlg.m_strName = ReadText(L"Name", dlg.m_strName);
    dlg.m_nPort = GetProfileIntW(SECTION, L"Port", dlg.m_nPort);
    dlg.m_dInterval =
        GetProfileIntW(SECTION, L"IntervalMs", int(std::lround(dlg.m_dInterval * 1000))) / 1000.0;
    dlg.m_nSpeed = GetProfileIntW(SECTION, L"Speed", dlg.m_nSpeed);
    dlg.m_strFormat = ReadText(L"Format", dlg.m_strFormat);
    dlg.m_nUnits = GetProfileIntW(SECTION, L"Units", dlg.m_nUnits);
    dlg.m_nChannel = GetProfileIntW(SECTION, L"Channel", dlg.m_nChannel);
    dlg.m_nVolume = GetProfileIntW(SECTION, L"Volume", dlg.m_nVolume);
    dlg.m_bAutoStart = GetProfileIntW(SECTION, L"AutoStart", dlg.m_bAutoStart);
}

void CSettingsApp::Save(const CSettingsDlg &dlg)
{
    WriteText(L"Name", dlg.m_strName);
    WriteProfileInt(SECTION, L"Port", dlg.m_nPort);
    WriteProfileInt(SECTION, L"IntervalMs", int(std::lround(dlg.m_dInterval * 1000)));
    WriteProfileInt(SECTION, L"Speed", dlg.m_nSpeed);
    WriteText(L"Format", dlg.m_strFormat);
    WriteProfileInt(SECTION, L"Units", dlg.m_nUnits);
    WriteProfileInt(SECTION, L"Channel", dlg.m_nChannel);
    WriteProfileInt(SECTION, L"Volume", dlg.m_nVolume);
    WriteProfileInt(SECTION, L"AutoStart", dlg.m_bAutoStart);
}

// Texts go through CRegKey: GetProfileStringW() is always empty on this platform.
CString CSettingsApp::ReadText(const wchar_t *lpszEntry, const wchar_t *lpszDefault)
{
    wchar_t szText[256] = {};
    unsigned nCount = 255;
    CRegKey key;
    key.Create(HKEY_CURRENT_USER, SECTION);
    if (key.QueryValue(szText, lpszEntry, &nCount) != 0 || szText[0] == 0)
        return lpszDefault;
    return szText;
}

void CSettingsApp::WriteText(const wchar_t *lpszEntry, const wchar_t *lpszText)
{
    CRegKey key;
    key.Create(HKEY_CURRENT_USER, SECTION);
    key.SetValue(lpszText, lpszEntry);
}
