#include "stdafx.h"
#include "Converter.h"
#include "ConverterDlg.h"
#ifndef _WIN32
#include "ConverterForm.h"
#endif

CConverterApp theApp;

BOOL CConverterApp::InitInstance()
{
#ifdef _WIN32
    CWinApp::InitInstance();
    SetRegistryKey(_T("Orvane"));
#endif

    CConverterDlg dlg;
    m_pMainWnd = &dlg;
#ifndef _WIN32
    ConverterForm form(dlg);
#endif
    dlg.DoModal();

    // The dialog has been closed: FALSE exits the application.
    return FALSE;
}
