#include "WindowGlobals.h"

#include "KxApplication.h"
#include "KxMessages.h"
#include "KxUser32.h"
#include "KxWindows.h"

// Destroyed in reverse order: a window object erases itself from the registry.
std::map<HWND, CWnd *> CWndHandleTable;
std::map<HWND, long> g_hwndMap;
QList<CWnd *> CWndList;
CWnd CWnd::wndTop;

CWinApp *g_pWinApp = nullptr;
int iKxMsgEventType = -1;

std::set<CWnd *> &libraryWrappers()
{
    static auto &wrappers = *new std::set<CWnd *>;
    return wrappers;
}
