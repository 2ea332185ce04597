/// @file KxUser32.h
/// @brief The Win32 window, input, metrics and resource-module functions.
///
/// "Registered" means that a CWnd is bound to the handle in the registry (CWnd::FromHandle()); no function
/// here makes a window object. Functions that take the handle itself as the widget need the address of a
/// living QWidget.
#pragma once

#include "KxWinTypes.h"

#include <map>

/// What SetWindowLongW() stored, by handle.
extern KX_MFC_EXPORT std::map<HWND, long> g_hwndMap;

/// @name Windows and their controls
/// @{

/// @return the handle of control @p nIDDlgItem, looked up as CWnd::GetDlgItem() does; null when @p hDlg is
/// not registered or has no such control.
KX_MFC_EXPORT HWND GetDlgItem(HWND hDlg, int nIDDlgItem);
/// @return the registered window's control identifier; 0 when @p hWnd is not registered.
KX_MFC_EXPORT int GetDlgCtrlID(HWND hWnd);
/// @return the handle of the logical parent of @p hWnd; null when it has none or is not registered.
KX_MFC_EXPORT HWND GetParent(HWND hWnd);
/// Gives a window's rectangle on the screen, in pixels, right and bottom inclusive.
///
/// The rectangle starts at the widget's own position, mapped to the screen through its parent widget when it
/// has one, and has the size of the frame.
/// @param hWnd taken as the widget itself.
/// @param lpRect receives the rectangle.
/// @return TRUE; FALSE when an argument is null.
KX_MFC_EXPORT BOOL GetWindowRect(HWND hWnd, RECT *lpRect);
/// Gives the inside of a registered window through CWnd::GetClientRect(), right and bottom inclusive.
/// @return TRUE; FALSE when @p hWnd is not registered or @p lpRect is null.
KX_MFC_EXPORT BOOL GetClientRect(HWND hWnd, RECT *lpRect);
/// Hides a registered window when @p nCmdShow is SW_HIDE, else shows it.
/// @return the result of CWnd::ShowWindow(); FALSE when @p hWnd is not registered.
KX_MFC_EXPORT BOOL ShowWindow(HWND hWnd, int nCmdShow);
/// Sets a registered window's text through CWnd::SetWindowTextW(). A null @p lpString changes nothing.
/// @return TRUE; FALSE when @p hWnd is not registered.
KX_MFC_EXPORT BOOL SetWindowTextW(HWND hWnd, const wchar_t *lpString);
/// Reads a registered window's text through CWnd::GetWindowTextW().
/// @param hWnd the window.
/// @param lpString receives the text, which is cut where needed and always terminated.
/// @param nMaxCount size of @p lpString in characters, the terminator included.
/// @return the number of characters copied; 0 when the window is not registered.
KX_MFC_EXPORT int GetWindowTextW(HWND hWnd, wchar_t *lpString, int nMaxCount);
/// @return the length in characters of a registered window's text; 0 when the window is not registered.
KX_MFC_EXPORT int GetWindowTextLengthW(HWND hWnd);
/// @return the same number as GetWindowTextLengthW(): characters, not bytes.
KX_MFC_EXPORT int GetWindowTextLengthA(HWND hWnd);
/// Enables or disables a window.
/// @param hWnd taken as the widget itself.
/// @param bEnable true to enable.
/// @return TRUE, not the former state as in Win32; FALSE when @p hWnd is null.
KX_MFC_EXPORT BOOL EnableWindow(HWND hWnd, bool bEnable);
/// Names the window class of a widget: "Edit" for a QLineEdit, QDoubleSpinBox or QSpinBox, "Button" for a
/// QAbstractButton, "ComboBox" for a QComboBox, "Static" for a QLabel, and the empty text for every other
/// one.
/// @param hWnd taken as the widget itself; null counts as another one.
/// @param lpClassName receives at most @p nMaxCount - 1 characters, always ended by a null at @p nMaxCount -
/// 1.
/// @param nMaxCount size of @p lpClassName in characters.
/// @return the length of what is in the buffer now; 0 with nothing written when @p nMaxCount is below 1.
KX_MFC_EXPORT int GetClassNameW(HWND hWnd, wchar_t *lpClassName, int nMaxCount);
/// @}

/// @name Window longs
/// @{

/// @return for @p nIndex GWL_ID the control identifier of the registered window, for 1 the value that
/// SetWindowLongW() stored; 0 when there is none, for every other index and for a null @p hWnd.
KX_MFC_EXPORT LONG_PTR GetWindowLongPtrW(HWND hWnd, int nIndex);
/// Stores @p dwNewLong for @p hWnd when @p nIndex is 1. A handle keeps the first value ever stored for it,
/// also when its widget dies and another one gets the same address.
/// @return the value that was stored before the call; 0 when there was none, for every other index and for a
/// null handle.
KX_MFC_EXPORT long SetWindowLongW(HWND hWnd, int nIndex, long dwNewLong);
/// @}

/// @name Input and metrics
/// @{

/// @return the state of @p nVirtKey, a VK_ code or the ASCII code of a digit or capital letter, as the
/// platform's keyboard service tells it: negative while the key is down, bit 0 set while a lock key is on; 0
/// for an unknown key.
KX_MFC_EXPORT SHORT GetKeyState(int nVirtKey);
/// GetKeyState(), unlike Win32 without a bit for presses since the last call.
KX_MFC_EXPORT SHORT GetAsyncKeyState(int vKey);
/// @return width (SM_CXFULLSCREEN) or height (SM_CYFULLSCREEN) of the default screen in pixels, panels
/// included; 0 for every other @p nIndex and without a screen.
KX_MFC_EXPORT int GetSystemMetrics(int nIndex);
/// @}

/// @name Resource modules
/// @{

/// Loads the shared library @p lpszModuleName through the platform's LoadLibraryW().
/// @return its handle, owned by the caller and released with AfxFreeLibrary(); null when it cannot be loaded.
KX_MFC_EXPORT HINSTANCE AfxLoadLibrary(const wchar_t *lpszModuleName);
/// Releases a library that AfxLoadLibrary() gave.
/// @return whether it was released.
KX_MFC_EXPORT bool AfxFreeLibrary(HINSTANCE hInstLib);
/// @return the module that string resources are loaded from; null until AfxSetResourceHandle() was called.
KX_MFC_EXPORT HINSTANCE AfxGetResourceHandle();
/// Sets the module that string resources are loaded from, for the whole process; null is the program itself.
KX_MFC_EXPORT void AfxSetResourceHandle(HINSTANCE hInstResource);
/// @}

/// @name Fixed results
/// No counterpart on this platform: these do nothing and leave their arguments alone.
/// @{
KX_MFC_EXPORT HWND SetFocus(HWND hWnd);                           ///< Null; see CWnd::SetFocus().
KX_MFC_EXPORT HWND GetFocus();                                    ///< Null; see CWnd::GetFocus().
KX_MFC_EXPORT HCURSOR GetCursor();                                ///< Null.
KX_MFC_EXPORT HCURSOR SetCursor(HCURSOR hCursor);                 ///< @p hCursor itself.
KX_MFC_EXPORT HCURSOR LoadCursorW(HINSTANCE hInstance, UINT nID); ///< @p nID itself as the handle.
KX_MFC_EXPORT HCURSOR LoadCursorW(HINSTANCE hInstance, const wchar_t *lpCursorName); ///< Null.
KX_MFC_EXPORT HWND GetCapture();                                                     ///< Null.
KX_MFC_EXPORT HWND SetCapture(HWND hWnd);                                            ///< Null.
KX_MFC_EXPORT BOOL ReleaseCapture();                                                 ///< FALSE.
KX_MFC_EXPORT BOOL IsWindow(HWND hWnd);                                              ///< TRUE, also for null.
KX_MFC_EXPORT UINT IsDlgButtonChecked(HWND hDlg, int nIDButton);          ///< 0; see the CWnd member.
KX_MFC_EXPORT BOOL CheckDlgButton(HWND hDlg, int nIDButton, UINT uCheck); ///< 0; see the CWnd member.
KX_MFC_EXPORT BOOL CheckRadioButton(HWND hDlg, int nIDFirst, int nIDLast,
                                    int nIDCheck);                               ///< 0; see the CWnd member.
KX_MFC_EXPORT BOOL RegisterHotKey(HWND hWnd, int id, UINT fsModifiers, UINT vk); ///< TRUE.
KX_MFC_EXPORT BOOL UnregisterHotKey(HWND hWnd, int id);                          ///< TRUE.
KX_MFC_EXPORT UINT_PTR SetTimer(HWND hWnd, UINT_PTR nIDEvent, UINT uElapse, TIMERPROC lpTimerFunc); ///< 0.
KX_MFC_EXPORT BOOL KillTimer(HWND hWnd, UINT_PTR uIDEvent);                                         ///< TRUE.
KX_MFC_EXPORT BOOL MessageBeep(UINT uType);                                                         ///< TRUE.
KX_MFC_EXPORT BOOL SystemParametersInfoW(UINT uiAction, UINT uiParam, void *pvParam,
                                         UINT fWinIni); ///< FALSE.
KX_MFC_EXPORT BOOL PeekMessageW(MSG *lpMsg, HWND hWnd, UINT wMsgFilterMin, UINT wMsgFilterMax,
                                UINT wRemoveMsg); ///< TRUE; a loop that drains a queue with it would not end.
KX_MFC_EXPORT HBRUSH CreateSolidBrush(COLORREF color); ///< Null.
KX_MFC_EXPORT HDC CreateICW(const wchar_t *pszDriver, const wchar_t *pszDevice, const wchar_t *pszPort,
                            const void *pdm);                          ///< Null.
KX_MFC_EXPORT HPALETTE CreatePalette(const LOGPALETTE *plpal);         ///< Null.
KX_MFC_EXPORT int GetMapMode(HDC hdc);                                 ///< 0.
KX_MFC_EXPORT UINT GetNearestPaletteIndex(HPALETTE h, COLORREF color); ///< 0.
/// @}

/// The user32 functions that ported code calls through this class. Each is the free function of its name.
class KX_MFC_EXPORT KxUser32
{
public:
    static HWND GetDlgItem(HWND hDlg, int nIDDlgItem);  ///< See ::GetDlgItem().
    static BOOL GetWindowRect(HWND hWnd, RECT *lpRect); ///< See ::GetWindowRect().
    /// @return the handle of the application's QDesktopWidget; null without an application.
    static HWND GetDesktopWindow();
    static BOOL EnableWindow(HWND hWnd, bool bEnable); ///< See ::EnableWindow().
    static HWND SetFocus(HWND hWnd);                   ///< Null; does nothing.
    static HWND GetFocus();                            ///< Null.
    static SHORT GetKeyState(int nVirtKey);            ///< See ::GetKeyState().
    static HCURSOR GetCursor();                        ///< Null.
    static HCURSOR SetCursor(HCURSOR hCursor);         ///< @p hCursor itself; changes nothing.
};

/// GDI functions that ported code calls through this class. They draw nothing and give 0.
class KX_MFC_EXPORT KxKernel32
{
public:
    static BOOL MoveToEx(HDC hdc, int x, int y, POINT *lppt);                    ///< 0.
    static BOOL LineTo(HDC hdc, int x, int y);                                   ///< 0.
    static BOOL Polyline(HDC hdc, const POINT *apt, int cpt);                    ///< 0.
    static int SetPolyFillMode(HDC hdc, int mode);                               ///< 0.
    static BOOL PolyPolygon(HDC hdc, const POINT *apt, const int *asz, int csz); ///< 0.
};
