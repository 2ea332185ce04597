#include "stdafx.h"
#include "Converter.h"
#include "ConverterDlg.h"

CConverterApp theApp;

BOOL CConverterApp::InitInstance()
{
    CWinApp::InitInstance();
    SetRegistryKey(_T("Orvane"));

    CConverterDlg dlg;
    m_pMainWnd = &dlg;
    dlg.DoModal();

    // The dialog has been closed: FALSE exits the application.
    return FALSE;
}
