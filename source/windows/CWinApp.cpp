#include "KxApplication.h"
#include "KxGuard.h"
#include "foundation/QtConversions.h"
#include "foundation/SettingsStore.h"

CWinApp *AfxGetApp()
{
    return g_pWinApp;
}

CWnd *AfxGetMainWnd()
{
    return g_pWinApp ? g_pWinApp->GetMainWnd() : nullptr;
}

HWND kdqt_velmoMainWnd()
{
    CWnd *window = AfxGetMainWnd();
    return isNullObject(window) ? nullptr : window->GetSafeHwnd();
}

CWinApp::CWinApp() = default;

CWnd *CWinApp::GetMainWnd()
{
    return m_pMainWnd;
}

void CWinApp::SetMainWnd(CWnd *pWnd)
{
    m_pMainWnd = pWnd;
}

static bool isEntry(const wchar_t *section, const wchar_t *entry)
{
    return section && entry && *entry;
}

int CWinApp::GetProfileIntW(const wchar_t *lpszSection, const wchar_t *lpszEntry, int nDefault)
{
    if (!isEntry(lpszSection, lpszEntry))
        return nDefault;
    const auto store = openSettingsStore();
    store->beginGroup(toQString(lpszSection));
    return store->value(toQString(lpszEntry), nDefault).toInt();
}

BOOL CWinApp::WriteProfileInt(const wchar_t *lpszSection, const wchar_t *lpszEntry, int nValue)
{
    if (!isEntry(lpszSection, lpszEntry))
        return FALSE;
    const auto store = openSettingsStore();
    store->beginGroup(toQString(lpszSection));
    store->setValue(toQString(lpszEntry), nValue);
    return TRUE;
}

CString CWinApp::GetProfileStringW(const wchar_t *, const wchar_t *, const wchar_t *)
{
    return {};
}

BOOL CWinApp::WriteProfileStringW(const wchar_t *, const wchar_t *, const wchar_t *)
{
    return FALSE;
}

BOOL CWinApp::GetProfileBinary(const wchar_t *, const wchar_t *, BYTE **, UINT *)
{
    return FALSE;
}

BOOL CWinApp::WriteProfileBinary(const wchar_t *, const wchar_t *, BYTE *, UINT)
{
    return FALSE;
}

HCURSOR CWinApp::LoadCursorW(UINT)
{
    return nullptr;
}

HICON CWinApp::LoadIconW(UINT)
{
    return nullptr;
}

HCURSOR CWinApp::LoadStandardCursor(const wchar_t *)
{
    return nullptr;
}

HCURSOR CWinApp::LoadStandardCursor(UINT)
{
    return nullptr;
}

CDocument *CWinApp::OpenDocumentFile(const wchar_t *)
{
    return nullptr;
}

CDocTemplate *CWinApp::GetNextDocTemplate(POSITION &)
{
    return nullptr;
}

POSITION CWinApp::GetFirstDocTemplatePosition() const
{
    return nullptr;
}

CDocument::CDocument() = default;

CDocument::~CDocument() = default;

CArchive::CArchive(CFile *, UINT, int, void *) {}

CArchive::~CArchive() = default;

void CArchive::Close() {}
