#include "GalleryApp.h"

#include "GalleryDlg.h"
#include "GalleryForm.h"

CGalleryApp theApp;

CGalleryApp::CGalleryApp()
{
    g_pWinApp = this;
}

BOOL CGalleryApp::InitInstance()
{
    ShowGallery();

    // The dialog has been closed: FALSE exits the application.
    return FALSE;
}

INT_PTR CGalleryApp::ShowGallery()
{
    CGalleryDlg dlg;
    GalleryForm form(dlg); // stands where a dialog template is loaded elsewhere
    return dlg.DoModal();
}
