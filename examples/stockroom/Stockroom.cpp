#include "Stockroom.h"

#include "MainDlg.h"
#include "MainForm.h"

#include <QDir>

#include <algorithm>

static const TCHAR SECTION[] = _T("Stockroom");
static const unsigned TEXT_SIZE = 1024;

CStockroomApp theApp;

CStockroomApp::CStockroomApp()
{
    g_pWinApp = this;
}

BOOL CStockroomApp::InitInstance()
{
    ShowStockroom();

    // The dialog has been closed: FALSE exits the application.
    return FALSE;
}

INT_PTR CStockroomApp::ShowStockroom()
{
    CMainDlg dlg;
    MainForm form(dlg); // stands where a dialog template is loaded elsewhere
    m_pMainWnd = &dlg;
    Load(dlg, form);
    const INT_PTR nResult = dlg.DoModal();
    Save(dlg, form);
    m_pMainWnd = nullptr;
    return nResult;
}

void CStockroomApp::Load(CMainDlg &dlg, MainForm &form)
{
    const int nView = GetProfileInt(SECTION, _T("View"), dlg.m_nView);
    dlg.m_nView = std::clamp(nView, 0, VIEW_COUNT - 1);
    dlg.m_nZoom = GetProfileInt(SECTION, _T("Zoom"), dlg.m_nZoom);
    dlg.m_strRoom = ReadText(_T("Room"));
    dlg.m_strSearch = ReadText(_T("Search"));
    dlg.m_strFile = ReadText(_T("File"));
    if (dlg.m_strFile.IsEmpty())
        dlg.m_strFile = CString(QDir::homePath().toStdWString()) + _T("/stock.stk");
    LoadSearches(dlg.m_searches);
    form.setLayoutSizes(GetProfileInt(SECTION, _T("Width"), 0), GetProfileInt(SECTION, _T("Height"), 0),
                        GetProfileInt(SECTION, _T("TreeWidth"), 0));
}

void CStockroomApp::Save(const CMainDlg &dlg, const MainForm &form)
{
    WriteProfileInt(SECTION, _T("View"), dlg.m_nView);
    WriteProfileInt(SECTION, _T("Zoom"), dlg.m_nZoom);
    WriteText(_T("Room"), dlg.m_strRoom);
    WriteText(_T("Search"), dlg.m_strSearch);
    WriteText(_T("File"), dlg.m_strFile);
    SaveSearches(dlg.m_searches);
    WriteProfileInt(SECTION, _T("Width"), form.normalGeometry().width());
    WriteProfileInt(SECTION, _T("Height"), form.normalGeometry().height());
    WriteProfileInt(SECTION, _T("TreeWidth"), form.treeWidth());
}

void CStockroomApp::LoadSearches(CStringList &searches)
{
    CString strEntry;
    for (int nIndex = 0; nIndex < MOST_SEARCHES; nIndex++) {
        strEntry.Format(_T("Search%d"), nIndex);
        const CString strSearch = ReadText(strEntry);
        if (!strSearch.IsEmpty())
            searches.AddTail(strSearch);
    }
}

void CStockroomApp::SaveSearches(const CStringList &searches)
{
    CString strEntry;
    POSITION pos = searches.GetHeadPosition();
    for (int nIndex = 0; pos; nIndex++) {
        strEntry.Format(_T("Search%d"), nIndex);
        WriteText(strEntry, searches.GetNext(pos));
    }
}

// Texts go through CRegKey: GetProfileString() is always empty on this platform.
CString CStockroomApp::ReadText(LPCTSTR lpszEntry)
{
    TCHAR szText[TEXT_SIZE + 1] = {};
    unsigned nCount = TEXT_SIZE;
    CRegKey key;
    key.Create(HKEY_CURRENT_USER, SECTION);
    key.QueryValue(szText, lpszEntry, &nCount);
    return szText;
}

void CStockroomApp::WriteText(LPCTSTR lpszEntry, LPCTSTR lpszText)
{
    CRegKey key;
    key.Create(HKEY_CURRENT_USER, SECTION);
    key.SetValue(lpszText, lpszEntry);
}
