#include "SketchApp.h"

#include "SketchDlg.h"
#include "SketchForm.h"

CSketchApp theApp;

CSketchApp::CSketchApp()
{
    g_pWinApp = this;
}

BOOL CSketchApp::InitInstance()
{
    ShowSketch();

    // The dialog has been closed: FALSE exits the application.
    return FALSE;
}

INT_PTR CSketchApp::ShowSketch()
{
    CSketchDlg dlg;
    SketchForm form(dlg); // stands where a dialog template is loaded elsewhere
    return dlg.DoModal();
}
