/// @file windowsx.h
/// @brief Mouse coordinates and the control macros whose messages are answered, as functions.
#pragma once

#include "windows.h"

/// @return the column in a mouse message's parameter, negative left of the origin.
constexpr int GET_X_LPARAM(LPARAM packed)
{
    return SHORT(LOWORD(DWORD_PTR(packed)));
}

/// @return the row in a mouse message's parameter, negative above the origin.
constexpr int GET_Y_LPARAM(LPARAM packed)
{
    return SHORT(HIWORD(DWORD_PTR(packed)));
}

/// Sends BM_GETCHECK.
/// @return 1 when @p button is checked, else 0.
inline int Button_GetCheck(HWND button)
{
    return int(SendMessageW(button, BM_GETCHECK, 0, 0));
}

/// Sends BM_SETCHECK: checks @p button when @p check is not 0.
inline void Button_SetCheck(HWND button, int check)
{
    SendMessageW(button, BM_SETCHECK, WPARAM(check), 0);
}

/// Sends CB_ADDSTRING, which adds @p text; null adds nothing.
/// @return 0, not the index as in Win32.
inline int ComboBox_AddString(HWND combo, const wchar_t *text)
{
    return int(SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
}

/// Sends CB_GETCOUNT.
/// @return the number of items; 0 when @p combo is no QComboBox.
inline int ComboBox_GetCount(HWND combo)
{
    return int(SendMessageW(combo, CB_GETCOUNT, 0, 0));
}

/// Sends CB_GETCURSEL.
/// @return the index of the selected item, -1 when there is none; 0 when @p combo is no QComboBox.
inline int ComboBox_GetCurSel(HWND combo)
{
    return int(SendMessageW(combo, CB_GETCURSEL, 0, 0));
}

/// Sends CB_SETCURSEL, which selects the item at @p index, or none when there is no such item.
/// @return 0, not the index as in Win32.
inline int ComboBox_SetCurSel(HWND combo, int index)
{
    return int(SendMessageW(combo, CB_SETCURSEL, WPARAM(index), 0));
}

/// Sends CB_RESETCONTENT, which removes all items.
/// @return 0.
inline int ComboBox_ResetContent(HWND combo)
{
    return int(SendMessageW(combo, CB_RESETCONTENT, 0, 0));
}
