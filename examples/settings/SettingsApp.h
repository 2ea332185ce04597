#pragma once

#include "KxMFCWrapper.h"

class CSettingsApp : public CWinApp
{
public:
    CSettingsApp();

    BOOL InitInstance();
    INT_PTR ShowSettings();
    /// Takes all texts from a library with resources, or from the program again when it is null.
    BOOL UseTextsOf(const wchar_t *lpszLibrary);

private:
    HINSTANCE m_hTexts = nullptr;

    void Load(class CSettingsDlg &dlg);
    void Save(const CSettingsDlg &dlg);
    CString ReadText(const wchar_t *lpszEntry, const wchar_t *lpszDefault);
    void WriteText(const wchar_t *lpszEntry, const wchar_t *lpszText);
};

extern CSettingsApp theApp;
