#include "KxGuard.h"
#include "KxPlatform.h"
#include "KxUser32.h"
#include "foundation/QtConversions.h"
#include "foundation/TextBuffers.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDesktopWidget>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>

HWND GetDlgItem(HWND hDlg, int nIDDlgItem)
{
    CWnd *dialog = CWnd::FromHandle(hDlg);
    CWnd *item = dialog ? dialog->GetDlgItem(nIDDlgItem) : nullptr;
    return item ? item->GetSafeHwnd() : nullptr;
}

int GetDlgCtrlID(HWND hWnd)
{
    const CWnd *window = CWnd::FromHandle(hWnd);
    return window ? window->GetDlgCtrlID() : 0;
}

HWND GetParent(HWND hWnd)
{
    const CWnd *window = CWnd::FromHandle(hWnd);
    CWnd *parent = window ? window->GetParent() : nullptr;
    return isNullObject(parent) ? nullptr : parent->GetSafeHwnd();
}

BOOL GetWindowRect(HWND hWnd, RECT *lpRect)
{
    if (!hWnd || !lpRect)
        return FALSE;
    const QWidget *widget = asWidget(hWnd);
    const QWidget *parent = widget->parentWidget();
    // The frame's size, but from the widget's own position.
    const QPoint position = parent ? parent->mapToGlobal(widget->pos()) : widget->pos();
    *lpRect = toRect(QRect(position, widget->frameGeometry().size()));
    return TRUE;
}

BOOL GetClientRect(HWND hWnd, RECT *lpRect)
{
    CWnd *window = CWnd::FromHandle(hWnd);
    if (!window || !lpRect)
        return FALSE;
    window->GetClientRect(lpRect);
    return TRUE;
}

BOOL ShowWindow(HWND hWnd, int nCmdShow)
{
    CWnd *window = CWnd::FromHandle(hWnd);
    return window ? window->ShowWindow(nCmdShow) : FALSE;
}

BOOL SetWindowTextW(HWND hWnd, const wchar_t *lpString)
{
    CWnd *window = CWnd::FromHandle(hWnd);
    if (!window)
        return FALSE;
    window->SetWindowTextW(lpString);
    return TRUE;
}

int GetWindowTextW(HWND hWnd, wchar_t *lpString, int nMaxCount)
{
    CWnd *window = CWnd::FromHandle(hWnd);
    return window ? window->GetWindowTextW(lpString, nMaxCount) : 0;
}

int GetWindowTextLengthW(HWND hWnd)
{
    CWnd *window = CWnd::FromHandle(hWnd);
    return window ? window->GetWindowTextLengthW() : 0;
}

int GetWindowTextLengthA(HWND hWnd)
{
    return GetWindowTextLengthW(hWnd);
}

BOOL EnableWindow(HWND hWnd, bool bEnable)
{
    if (!hWnd)
        return FALSE;
    asWidget(hWnd)->setEnabled(bEnable);
    return TRUE;
}

static const wchar_t *classNameOf(const QWidget *widget)
{
    if (qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QDoubleSpinBox *>(widget) ||
        qobject_cast<const QSpinBox *>(widget))
        return L"Edit";
    if (qobject_cast<const QAbstractButton *>(widget))
        return L"Button";
    if (qobject_cast<const QComboBox *>(widget))
        return L"ComboBox";
    if (qobject_cast<const QLabel *>(widget))
        return L"Static";
    return L"";
}

int GetClassNameW(HWND hWnd, wchar_t *lpClassName, int nMaxCount)
{
    return copyToBuffer(classNameOf(asWidget(hWnd)), lpClassName, nMaxCount);
}

static constexpr int storedValueIndex = 1;

static long storedValue(HWND hWnd)
{
    const auto entry = g_hwndMap.find(hWnd);
    return entry == g_hwndMap.end() ? 0 : entry->second;
}

LONG_PTR GetWindowLongPtrW(HWND hWnd, int nIndex)
{
    if (!hWnd)
        return 0;
    if (nIndex == GWL_ID)
        return GetDlgCtrlID(hWnd);
    return nIndex == storedValueIndex ? storedValue(hWnd) : 0;
}

long SetWindowLongW(HWND hWnd, int nIndex, long dwNewLong)
{
    if (!hWnd || nIndex != storedValueIndex)
        return 0;
    // The null handle's entry, not this handle's: ported code reads back the first value ever set.
    g_hwndMap.erase(nullptr);
    const long former = storedValue(hWnd);
    g_hwndMap.emplace(hWnd, dwNewLong);
    return former;
}

int GetSystemMetrics(int nIndex)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen)
        return 0;
    if (nIndex == SM_CXFULLSCREEN)
        return screen->geometry().width();
    return nIndex == SM_CYFULLSCREEN ? screen->geometry().height() : 0;
}

HINSTANCE AfxLoadLibrary(const wchar_t *lpszModuleName)
{
    return LoadLibraryW(lpszModuleName);
}

bool AfxFreeLibrary(HINSTANCE hInstLib)
{
    return FreeLibrary(hInstLib) != FALSE;
}

HWND KxUser32::GetDlgItem(HWND hDlg, int nIDDlgItem)
{
    return ::GetDlgItem(hDlg, nIDDlgItem);
}

BOOL KxUser32::GetWindowRect(HWND hWnd, RECT *lpRect)
{
    return ::GetWindowRect(hWnd, lpRect);
}

HWND KxUser32::GetDesktopWindow()
{
    return qApp ? asHandle(QApplication::desktop()) : nullptr;
}

BOOL KxUser32::EnableWindow(HWND hWnd, bool bEnable)
{
    return ::EnableWindow(hWnd, bEnable);
}
