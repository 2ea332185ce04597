/// @file tchar.h
/// @brief TCHAR, _T() and the _tcs functions, for sources written for both text widths. Texts here are wide.
#pragma once

#include <KxPlatform.h>
#include <KxWinTypes.h>

#include <cwchar>
#include <cwctype>

/// @name Wide texts
/// There is no build with narrow TCHARs. One element has 32 bits.
/// @{
using TCHAR = wchar_t;
using LPTSTR = wchar_t *;
using LPCTSTR = const wchar_t *;
using PTSTR = wchar_t *;
using PCTSTR = const wchar_t *;
/// @}

/// @name Wide literals
/// They make a wide literal, such as L"text", of a narrow one.
/// @{
#ifndef _T
#define _T(text) L##text
#endif
#ifndef _TEXT
#define _TEXT(text) L##text
#endif
#ifndef TEXT
#define TEXT(text) L##text
#endif
/// @}

/// The number of elements of an array.
#ifndef _countof
#define _countof(array) (sizeof(array) / sizeof((array)[0]))
#endif

/// @name Functions on texts
/// Other names of the wide-character functions of the C library and of KxPlatform.h.
/// @{
#define _tcslen wcslen
#define _tcscpy wcscpy
#define _tcsncpy wcsncpy
#define _tcscat wcscat
#define _tcsncat wcsncat
#define _tcscmp wcscmp
#define _tcsncmp wcsncmp
#define _tcsicmp wcscasecmp
#define _tcsnicmp wcsncasecmp
#define _tcschr wcschr
#define _tcsrchr wcsrchr
#define _tcsstr wcsstr
#define _tcstol wcstol
#define _tcstoul wcstoul
#define _tcstod wcstod
#define _stscanf swscanf
#define _ttoi _wtoi
#define _ttol _wtol
#define _ttof _wtof
#define _totupper towupper
#define _totlower towlower
#define _istalpha iswalpha
#define _istdigit iswdigit
#define _istalnum iswalnum
#define _istspace iswspace
/// @}
