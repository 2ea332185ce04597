#include "KxUser32.h"

HWND SetFocus(HWND)
{
    return nullptr;
}

HWND GetFocus()
{
    return nullptr;
}

HCURSOR GetCursor()
{
    return nullptr;
}

HCURSOR SetCursor(HCURSOR hCursor)
{
    return hCursor;
}

HCURSOR LoadCursorW(HINSTANCE, UINT nID)
{
    return reinterpret_cast<HCURSOR>(std::uintptr_t{nID});
}

HCURSOR LoadCursorW(HINSTANCE, const wchar_t *)
{
    return nullptr;
}

HWND GetCapture()
{
    return nullptr;
}

HWND SetCapture(HWND)
{
    return nullptr;
}

BOOL ReleaseCapture()
{
    return FALSE;
}

BOOL IsWindow(HWND)
{
    return TRUE;
}

UINT IsDlgButtonChecked(HWND, int)
{
    return 0;
}

BOOL CheckDlgButton(HWND, int, UINT)
{
    return 0;
}

BOOL CheckRadioButton(HWND, int, int, int)
{
    return 0;
}

BOOL RegisterHotKey(HWND, int, UINT, UINT)
{
    return TRUE;
}

BOOL UnregisterHotKey(HWND, int)
{
    return TRUE;
}

UINT_PTR SetTimer(HWND, UINT_PTR, UINT, TIMERPROC)
{
    return 0;
}

BOOL KillTimer(HWND, UINT_PTR)
{
    return TRUE;
}

BOOL MessageBeep(UINT)
{
    return TRUE;
}

BOOL SystemParametersInfoW(UINT, UINT, void *, UINT)
{
    return FALSE;
}

BOOL PeekMessageW(MSG *, HWND, UINT, UINT, UINT)
{
    return TRUE;
}

HBRUSH CreateSolidBrush(COLORREF)
{
    return nullptr;
}

HDC CreateICW(const wchar_t *, const wchar_t *, const wchar_t *, const void *)
{
    return nullptr;
}

HPALETTE CreatePalette(const LOGPALETTE *)
{
    return nullptr;
}

int GetMapMode(HDC)
{
    return 0;
}

UINT GetNearestPaletteIndex(HPALETTE, COLORREF)
{
    return 0;
}

HWND KxUser32::SetFocus(HWND hWnd)
{
    return ::SetFocus(hWnd);
}

HWND KxUser32::GetFocus()
{
    return ::GetFocus();
}

HCURSOR KxUser32::GetCursor()
{
    return ::GetCursor();
}

HCURSOR KxUser32::SetCursor(HCURSOR hCursor)
{
    return ::SetCursor(hCursor);
}

BOOL KxKernel32::MoveToEx(HDC, int, int, POINT *)
{
    return 0;
}

BOOL KxKernel32::LineTo(HDC, int, int)
{
    return 0;
}

BOOL KxKernel32::Polyline(HDC, const POINT *, int)
{
    return 0;
}

int KxKernel32::SetPolyFillMode(HDC, int)
{
    return 0;
}

BOOL KxKernel32::PolyPolygon(HDC, const POINT *, const int *, int)
{
    return 0;
}
