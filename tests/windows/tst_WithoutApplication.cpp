#include "HiddenAddress.h"
#include "KxApplication.h"
#include "KxMessages.h"
#include "KxRegistry.h"
#include "KxUser32.h"
#include "KxWindows.h"
#include "PlainChecks.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

// A program without a QApplication: what needs no widget works, the rest gives its failure value.

namespace {
const auto unknownHandle = reinterpret_cast<HWND>(std::uintptr_t{0x1000});

// Made before main() and destroyed after it.
CWnd earlyWindow;
CString earlyText(L"early");

void checkGlobals()
{
    CHECK(!QCoreApplication::instance());
    CHECK(CWndHandleTable.empty());
    CHECK(CWndList.isEmpty());
    CHECK(g_hwndMap.empty());
    CHECK(!g_pWinApp);
    CHECK(iKxMsgEventType == -1);
    CHECK(!CWnd::wndTop.m_hWnd);
    CHECK(!CWnd::wndTop.GetSafeHwnd());
}

void checkWindows()
{
    CHECK(!CWnd::FromHandle(nullptr));
    CHECK(!CWnd::FromHandle(unknownHandle));
    CHECK(!CWnd::GetFocus());

    CWnd window(&earlyWindow);
    CHECK(!window.Attach(nullptr));
    CHECK(!window.GetDlgItem(1));
    CHECK(window.SendMessageW(WM_USER) == 0);
    CHECK(window.IsWindowEnabled());
    CHECK(!objectAt<CWnd>(0)->GetParent());
}

void checkFunctions()
{
    RECT rect{1, 2, 3, 4};
    CHECK(!GetDlgItem(unknownHandle, 1));
    CHECK(!GetClientRect(unknownHandle, &rect));
    CHECK(!GetWindowRect(nullptr, &rect));
    CHECK(rect.left == 1);
    CHECK(IsWindow(nullptr));
    CHECK(SetWindowLongW(unknownHandle, 1, 5) == 0);
    CHECK(GetWindowLongPtrW(unknownHandle, 1) == 5);
    CHECK(!KxUser32::GetDesktopWindow());
    for (int index : {0, SM_CXFULLSCREEN, SM_CYFULLSCREEN})
        CHECK(GetSystemMetrics(index) == 0);
    for (int key : {int('A'), VK_SHIFT, VK_LBUTTON, VK_CAPITAL})
        CHECK(GetKeyState(key) == 0 && GetAsyncKeyState(key) == 0 && KxUser32::GetKeyState(key) == 0);
}

void checkMessages()
{
    CHECK(SendMessageW(nullptr, WM_USER + 7, 1, 2) == 0);
    CHECK(SendMessageW(unknownHandle, WM_USER + 6, 1, 2) == 0);
    CHECK(!PostMessageW(nullptr, WM_USER + 7, 1, 2));
    CHECK(QKxMsgEvent(1, 2, 3).type() >= QEvent::User);
    CHECK(iKxMsgEventType >= QEvent::User);
}

void checkTexts()
{
    CHECK(earlyText == L"early");
    CString text;
    text.Format(L"%d-%ls", 5, L"x");
    CHECK(text == L"5-x");
    CHECK(!text.LoadStringW(1));
}

void checkSettings()
{
    const QTemporaryDir folder;
    CHECK(folder.isValid());
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));

    CWinApp application;
    CHECK(application.WriteProfileInt(L"A", L"B", 5));
    CHECK(application.GetProfileIntW(L"A", L"B", 9) == 5);
    CHECK(!AfxGetMainWnd());
    CHECK(!kdqt_velmoMainWnd());

    CRegKey key;
    wchar_t value[8] = {};
    unsigned size = 8;
    CHECK(key.Create(HKEY_CURRENT_USER, L"Software") == 0);
    CHECK(key.SetValue(L"text", L"Name") == 0);
    CHECK(key.QueryValue(value, L"Name", &size) == 0);
    CHECK(CString(value) == L"text");

    // Had a store been opened while the library was loaded, the folder would have been an earlier one.
    CHECK(QFile::exists(folder.filePath(QStringLiteral("Orvane/Velmo.conf"))));
}
} // namespace

int main()
{
    checkGlobals();
    checkWindows();
    checkFunctions();
    checkMessages();
    checkTexts();
    checkSettings();
    return failedChecks() == 0 ? 0 : 1;
}
