/// @file windows.h
/// @brief The Win32 types, constants, helpers and functions under the names that ported sources use.
#pragma once

#include "tchar.h"

#include <KxApplication.h>
#include <KxGdiTypes.h>
#include <KxMessageConstants.h>
#include <KxMessages.h>
#include <KxPlatform.h>
#include <KxStyleConstants.h>
#include <KxUser32.h>
#include <KxWinTypes.h>

/// @name Calling conventions and declaration attributes
/// This platform has none: they stand for nothing, CONST for const.
/// @{
#ifndef CALLBACK
#define CALLBACK
#endif
#ifndef WINAPI
#define WINAPI
#endif
#ifndef APIENTRY
#define APIENTRY
#endif
#ifndef PASCAL
#define PASCAL
#endif
#ifndef FAR
#define FAR
#endif
#ifndef CONST
#define CONST const
#endif
#ifndef __stdcall
#define __stdcall
#endif
#ifndef __cdecl
#define __cdecl
#endif
/// @}

/// @name More names of scalar and pointer types
/// Win32's other names of the types in KxWinTypes.h. What begins with LP or P is a pointer, with LPC or PC a
/// pointer to constants.
/// @{
using VOID = void;
using CHAR = char;
using UCHAR = unsigned char;
using WCHAR = wchar_t;
using INT = int;
using USHORT = std::uint16_t;
using FLOAT = float;
using ATOM = WORD;
using ULONG_PTR = std::uintptr_t;
using SIZE_T = std::size_t;
using HGDIOBJ = void *;
using HLOCAL = void *;
using PVOID = void *;
using LPCVOID = const void *;
using PBYTE = BYTE *;
using LPBYTE = BYTE *;
using LPWORD = WORD *;
using PDWORD = DWORD *;
using LPINT = int *;
using LPLONG = LONG *;
using LPBOOL = BOOL *;
using PWSTR = wchar_t *;
using PCWSTR = const wchar_t *;
using CREATESTRUCT = CREATESTRUCTW;
using LPCREATESTRUCT = CREATESTRUCTW *;
using LPNMHDR = NMHDR *;
using LPMINMAXINFO = MINMAXINFO *;
using LPHELPINFO = HELPINFO *;
/// @}

/// Room for a path in sources that use a fixed buffer. Longer paths exist on this platform.
constexpr int MAX_PATH = 260;
/// The same under the name of the C run-time library.
constexpr int _MAX_PATH = MAX_PATH;

/// @name Parts of values
/// @{

/// @return the low 16 bits.
constexpr WORD LOWORD(DWORD_PTR value)
{
    return WORD(value & 0xFFFF);
}

/// @return bits 16 to 31.
constexpr WORD HIWORD(DWORD_PTR value)
{
    return WORD(value >> 16 & 0xFFFF);
}

/// @return the low 8 bits.
constexpr BYTE LOBYTE(DWORD_PTR value)
{
    return BYTE(value & 0xFF);
}

/// @return bits 8 to 15.
constexpr BYTE HIBYTE(DWORD_PTR value)
{
    return BYTE(value >> 8 & 0xFF);
}

/// @return the 16 bits of both bytes, @p low in bits 0 to 7.
constexpr WORD MAKEWORD(DWORD_PTR low, DWORD_PTR high)
{
    return WORD(LOBYTE(low) | LOBYTE(high) << 8);
}

/// @return the 32 bits of both words, @p low in bits 0 to 15.
constexpr LONG MAKELONG(DWORD_PTR low, DWORD_PTR high)
{
    return LONG(DWORD(LOWORD(low)) | DWORD(LOWORD(high)) << 16);
}

/// @return MAKELONG() as a message parameter, its upper half 0.
constexpr WPARAM MAKEWPARAM(DWORD_PTR low, DWORD_PTR high)
{
    return WPARAM(DWORD(MAKELONG(low, high)));
}

/// @return MAKELONG() as a message parameter, its upper half 0.
constexpr LPARAM MAKELPARAM(DWORD_PTR low, DWORD_PTR high)
{
    return LPARAM(DWORD(MAKELONG(low, high)));
}

/// @return MAKELONG() as a message result, its upper half 0.
constexpr LRESULT MAKELRESULT(DWORD_PTR low, DWORD_PTR high)
{
    return LRESULT(DWORD(MAKELONG(low, high)));
}

/// @return whether a resource name is an identifier.
inline bool IS_INTRESOURCE(const void *name)
{
    return reinterpret_cast<UINT_PTR>(name) <= 0xFFFF;
}
/// @}

/// @name The W functions under their short names
/// As macros they rename members and free functions alike, also those of other libraries that are included
/// later.
/// @{
#define MAKEINTRESOURCE MAKEINTRESOURCEW
#define CreateFile CreateFileW
#define CreateIC CreateICW
#define DeleteFile DeleteFileW
#define GetClassName GetClassNameW
#define GetCurrentDirectory GetCurrentDirectoryW
#define GetDlgItemText GetDlgItemTextW
#define GetFileAttributes GetFileAttributesW
#define GetWindowLongPtr GetWindowLongPtrW
#define GetWindowText GetWindowTextW
#define GetWindowTextLength GetWindowTextLengthW
#define LoadCursor LoadCursorW
#define LoadIcon LoadIconW
#define LoadImage LoadImageW
#define LoadLibrary LoadLibraryW
#define LoadString LoadStringW
#define MessageBox MessageBoxW
#define PeekMessage PeekMessageW
#define PostMessage PostMessageW
#define SendMessage SendMessageW
#define SetCurrentDirectory SetCurrentDirectoryW
#define SetDlgItemText SetDlgItemTextW
#define SetWindowLong SetWindowLongW
#define SetWindowText SetWindowTextW
#define SystemParametersInfo SystemParametersInfoW
/// @}
