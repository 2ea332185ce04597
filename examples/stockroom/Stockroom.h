#pragma once

#include "stdafx.h"

class CMainDlg;
class MainForm;

class CStockroomApp : public CWinApp
{
public:
    CStockroomApp();

    BOOL InitInstance();
    /// Runs the main window.
    INT_PTR ShowStockroom();

private:
    void Load(CMainDlg &dlg, MainForm &form);
    void Save(const CMainDlg &dlg, const MainForm &form);
    void LoadSearches(CStringList &searches);
    void SaveSearches(const CStringList &searches);
    CString ReadText(LPCTSTR lpszEntry);
    void WriteText(LPCTSTR lpszEntry, LPCTSTR lpszText);
};

extern CStockroomApp theApp;
