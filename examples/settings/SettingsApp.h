#pragma once

#include "KxMFCWrapper.h"

class CSettingsApp : public CWinApp
{
public:
    CSettingsApp();

    BOOL InitInstance();
    INT_PTR ShowSettings();

private:
    void Load(class CSettingsDlg &dlg);
    void Save(const CSettingsDlg &dlg);
    CString ReadText(const wchar_t *lpszEntry, const wchar_t *lpszDefault);
    void WriteText(const wchar_t *lpszEntry, const wchar_t *lpszText);
};

extern CSettingsApp theApp;
