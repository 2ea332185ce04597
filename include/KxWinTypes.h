/// @file KxWinTypes.h
/// @brief Win32 scalar types, handles, records and constants.
///
/// Scalars keep their Win32 widths on every platform (LONG has 32 bits, not those of C's long) and records
/// have the published 64-bit layouts with a wchar_t of four bytes. Handles are distinct pointer types, so
/// that mixing them up does not compile.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cwchar>

/// Marks what the library exports.
#define KX_MFC_EXPORT __attribute__((visibility("default")))

#ifndef TRUE
#define TRUE 1
#endif
#ifndef FALSE
#define FALSE 0
#endif

/// @name Scalar types
/// @{
using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using LANGID = std::uint16_t; ///< A language in the low 10 bits, its variant above.
using SHORT = std::int16_t;
using UINT = std::uint32_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using LONGLONG = long long;
using ULONGLONG = unsigned long long;
using WPARAM = std::uint64_t;
using LPARAM = std::int64_t;
using LRESULT = std::int64_t;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using DWORD_PTR = std::uintptr_t;
using COLORREF = std::uint32_t; ///< Red in bits 0-7, green in 8-15, blue in 16-23.
/// @}

/// @name Handles
/// A window handle is the address of its QWidget; nothing mints or recycles handles.
/// @{
using HANDLE = void *;
using HGLOBAL = void *;
using HWND = struct HWND__ *;
using HDC = struct HDC__ *; ///< Points to a KxQtPaintDeviceWrapper.
using HBITMAP = struct HBITMAP__ *;
using HBRUSH = struct HBRUSH__ *;
using HCURSOR = struct HCURSOR__ *;
using HFONT = struct HFONT__ *;
using HICON = struct HICON__ *;
using HINSTANCE = struct HINSTANCE__ *;
using HMODULE = HINSTANCE;
using HKEY = struct HKEY__ *;
using HMENU = struct HMENU__ *;
using HPALETTE = struct HPALETTE__ *;
using HPEN = struct HPEN__ *;
using HRGN = struct HRGN__ *;
using POSITION = struct POSITION__ *; ///< Opaque iteration position.
/// @}

/// Timer callback of SetTimer(), which never calls it.
using TIMERPROC = void (*)(HWND, UINT, UINT_PTR, DWORD);

/// @name Records
/// @{
/// A point in pixels.
struct POINT
{
    LONG x;
    LONG y;
};

/// A width and height in pixels.
struct SIZE
{
    LONG cx;
    LONG cy;
};

/// A rectangle. Those filled by this library carry Qt's inclusive right and bottom: right = left + width - 1.
struct RECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

/// A message of a message loop. No function of this library fills one.
struct MSG
{
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};

/// Header of a notification; no control sends any.
struct NMHDR
{
    HWND hwndFrom;
    UINT_PTR idFrom;
    UINT code;
};

/// Accepted and ignored.
struct SECURITY_ATTRIBUTES
{
    DWORD nLength;
    void *lpSecurityDescriptor;
    BOOL bInheritHandle;
};

/// Size limits, as CWnd::OnGetMinMaxInfo() takes them.
struct MINMAXINFO
{
    POINT ptReserved;
    POINT ptMaxSize;
    POINT ptMaxPosition;
    POINT ptMinTrackSize;
    POINT ptMaxTrackSize;
};

/// Creation data, as CWnd::OnCreate() takes them.
struct CREATESTRUCTW
{
    void *lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu;
    HWND hwndParent;
    int cy;
    int cx;
    int y;
    int x;
    LONG style;
    const wchar_t *lpszName;
    const wchar_t *lpszClass;
    DWORD dwExStyle;
};

/// A request for help, as CDialog::OnHelpInfo() takes it.
struct HELPINFO
{
    UINT cbSize;
    int iContextType;
    int iCtrlId;
    HANDLE hItemHandle;
    DWORD_PTR dwContextId;
    POINT MousePos;
};

/// A colour of a palette.
struct PALETTEENTRY
{
    BYTE peRed;
    BYTE peGreen;
    BYTE peBlue;
    BYTE peFlags;
};

/// A palette, as CreatePalette() takes it.
struct LOGPALETTE
{
    WORD palVersion;
    WORD palNumEntries;
    PALETTEENTRY palPalEntry[1];
};
/// @}

/// @name Pointer types
/// @{
using LPVOID = void *;
using LPSTR = char *;
using LPCSTR = const char *;
using LPWSTR = wchar_t *;
using LPCWSTR = const wchar_t *;
using LPDWORD = DWORD *;
using LPPOINT = POINT *;
using LPSIZE = SIZE *;
using LPRECT = RECT *;
using LPCRECT = const RECT *;
using LPMSG = MSG *;
using LPCREATESTRUCTW = CREATESTRUCTW *;
/// @}

static_assert(sizeof(wchar_t) == 4, "texts are UTF-32");
static_assert(sizeof(POINT) == 8 && offsetof(POINT, y) == 4);
static_assert(sizeof(SIZE) == 8 && offsetof(SIZE, cy) == 4);
static_assert(sizeof(RECT) == 16 && offsetof(RECT, right) == 8 && offsetof(RECT, bottom) == 12);
static_assert(offsetof(MSG, message) == 8 && offsetof(MSG, wParam) == 16 && offsetof(MSG, lParam) == 24);
static_assert(offsetof(MSG, time) == 32 && offsetof(MSG, pt) == 36 && sizeof(MSG) == 48);
static_assert(offsetof(NMHDR, idFrom) == 8 && offsetof(NMHDR, code) == 16 && sizeof(NMHDR) == 24);
static_assert(offsetof(SECURITY_ATTRIBUTES, bInheritHandle) == 16 && sizeof(SECURITY_ATTRIBUTES) == 24);
static_assert(offsetof(MINMAXINFO, ptMaxTrackSize) == 32 && sizeof(MINMAXINFO) == 40);
static_assert(offsetof(CREATESTRUCTW, cy) == 32 && offsetof(CREATESTRUCTW, lpszName) == 56);
static_assert(offsetof(CREATESTRUCTW, dwExStyle) == 72 && sizeof(CREATESTRUCTW) == 80);
static_assert(offsetof(HELPINFO, hItemHandle) == 16 && sizeof(HELPINFO) == 40);
static_assert(offsetof(LOGPALETTE, palPalEntry) == 4 && sizeof(LOGPALETTE) == 8);

/// Root of the object classes. Adds nothing but its virtual destructor.
class KX_MFC_EXPORT CObject
{
public:
    CObject() = default;
    CObject(const CObject &) = delete;
    CObject &operator=(const CObject &) = delete;
    virtual ~CObject();
};

/// @name Dialog results and predefined control identifiers
/// @{
constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;
constexpr int IDABORT = 3;
constexpr int IDRETRY = 4;
constexpr int IDIGNORE = 5;
constexpr int IDYES = 6;
constexpr int IDNO = 7;
/// @}

/// @name Message box types
/// @{
constexpr UINT MB_OK = 0x00;
constexpr UINT MB_OKCANCEL = 0x01;
constexpr UINT MB_ABORTRETRYIGNORE = 0x02;
constexpr UINT MB_YESNOCANCEL = 0x03;
constexpr UINT MB_YESNO = 0x04;
constexpr UINT MB_RETRYCANCEL = 0x05;
constexpr UINT MB_CANCELTRYCONTINUE = 0x06;
constexpr UINT MB_ICONERROR = 0x10;
constexpr UINT MB_ICONHAND = MB_ICONERROR;
constexpr UINT MB_ICONSTOP = MB_ICONERROR;
constexpr UINT MB_ICONQUESTION = 0x20;
constexpr UINT MB_ICONWARNING = 0x30;
constexpr UINT MB_ICONEXCLAMATION = MB_ICONWARNING;
constexpr UINT MB_ICONINFORMATION = 0x40;
constexpr UINT MB_ICONASTERISK = MB_ICONINFORMATION;
/// @}

/// @name Messages
/// @{
constexpr UINT BM_GETCHECK = 0x00F0;
constexpr UINT BM_SETCHECK = 0x00F1;
constexpr UINT BM_SETIMAGE = 0x00F7;
constexpr UINT CB_ADDSTRING = 0x0143;
constexpr UINT CB_GETCOUNT = 0x0146;
constexpr UINT CB_GETCURSEL = 0x0147;
constexpr UINT CB_RESETCONTENT = 0x014B;
constexpr UINT CB_SETCURSEL = 0x014E;
constexpr UINT WM_USER = 0x0400;
/// @}

/// @name Failure values and check states of the standard controls
/// @{
constexpr int CB_ERR = -1;
constexpr int LB_ERR = -1;
constexpr UINT BST_UNCHECKED = 0;
constexpr UINT BST_CHECKED = 1;
constexpr UINT BST_INDETERMINATE = 2;
/// @}

/// @name Window styles, show commands, relations and metrics
/// @{
constexpr DWORD WS_DISABLED = 0x08000000;
constexpr DWORD WS_VISIBLE = 0x10000000;
constexpr int SW_HIDE = 0;
constexpr int SW_SHOWNORMAL = 1;
constexpr int SW_SHOWMINIMIZED = 2;
constexpr int SW_SHOWMAXIMIZED = 3;
constexpr int SW_SHOW = 5;
constexpr UINT SWP_NOSIZE = 0x0001;
constexpr UINT SWP_NOMOVE = 0x0002;
constexpr UINT SWP_NOZORDER = 0x0004;
constexpr UINT GW_HWNDNEXT = 2;
constexpr UINT GW_CHILD = 5;
constexpr int GWL_ID = -12;
constexpr int SM_CXFULLSCREEN = 16;
constexpr int SM_CYFULLSCREEN = 17;
/// @}

/// @name Virtual keys
/// Letters and digits are their own ASCII codes.
/// @{
constexpr int VK_LBUTTON = 0x01;
constexpr int VK_RBUTTON = 0x02;
constexpr int VK_MBUTTON = 0x04;
constexpr int VK_XBUTTON1 = 0x05;
constexpr int VK_XBUTTON2 = 0x06;
constexpr int VK_BACK = 0x08;
constexpr int VK_TAB = 0x09;
constexpr int VK_CLEAR = 0x0C;
constexpr int VK_RETURN = 0x0D;
constexpr int VK_SHIFT = 0x10;
constexpr int VK_CONTROL = 0x11;
constexpr int VK_MENU = 0x12;
constexpr int VK_PAUSE = 0x13;
constexpr int VK_CAPITAL = 0x14;
constexpr int VK_ESCAPE = 0x1B;
constexpr int VK_SPACE = 0x20;
constexpr int VK_PRIOR = 0x21;
constexpr int VK_NEXT = 0x22;
constexpr int VK_END = 0x23;
constexpr int VK_HOME = 0x24;
constexpr int VK_LEFT = 0x25;
constexpr int VK_UP = 0x26;
constexpr int VK_RIGHT = 0x27;
constexpr int VK_DOWN = 0x28;
constexpr int VK_SNAPSHOT = 0x2C;
constexpr int VK_INSERT = 0x2D;
constexpr int VK_DELETE = 0x2E;
constexpr int VK_HELP = 0x2F;
constexpr int VK_LWIN = 0x5B;
constexpr int VK_RWIN = 0x5C;
constexpr int VK_APPS = 0x5D;
constexpr int VK_NUMPAD0 = 0x60;
constexpr int VK_NUMPAD9 = 0x69;
constexpr int VK_MULTIPLY = 0x6A;
constexpr int VK_ADD = 0x6B;
constexpr int VK_SUBTRACT = 0x6D;
constexpr int VK_DECIMAL = 0x6E;
constexpr int VK_DIVIDE = 0x6F;
constexpr int VK_F1 = 0x70;
constexpr int VK_F24 = 0x87;
constexpr int VK_NUMLOCK = 0x90;
constexpr int VK_SCROLL = 0x91;
constexpr int VK_LSHIFT = 0xA0;
constexpr int VK_RSHIFT = 0xA1;
constexpr int VK_LCONTROL = 0xA2;
constexpr int VK_RCONTROL = 0xA3;
constexpr int VK_LMENU = 0xA4;
constexpr int VK_RMENU = 0xA5;
/// @}

/// @name Loading images
/// @{
constexpr UINT IMAGE_BITMAP = 0;
constexpr UINT IMAGE_ICON = 1;
constexpr UINT IMAGE_CURSOR = 2;
constexpr UINT LR_DEFAULTCOLOR = 0x0000;
constexpr UINT LR_LOADFROMFILE = 0x0010;
/// @}

/// @name File access, creation and attributes
/// @{
constexpr DWORD GENERIC_READ = 0x80000000;
constexpr DWORD GENERIC_WRITE = 0x40000000;
constexpr DWORD FILE_SHARE_READ = 0x00000001;
constexpr DWORD FILE_SHARE_WRITE = 0x00000002;
constexpr DWORD CREATE_NEW = 1;
constexpr DWORD CREATE_ALWAYS = 2;
constexpr DWORD OPEN_EXISTING = 3;
constexpr DWORD OPEN_ALWAYS = 4;
constexpr DWORD TRUNCATE_EXISTING = 5;
constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x00000080;
constexpr DWORD FILE_FLAG_SEQUENTIAL_SCAN = 0x08000000;
/// What GetFileAttributesW() gives for an object that does not exist.
constexpr DWORD INVALID_FILE_ATTRIBUTES = 0xFFFFFFFF;
/// @}

/// What CreateFileW() gives when it fails: all bits set.
inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(std::intptr_t{-1});

/// @name Predefined registry roots
/// CRegKey ignores them: every key lives in the one per-user store.
/// @{
inline const HKEY HKEY_CLASSES_ROOT = reinterpret_cast<HKEY>(std::uintptr_t{0x80000000});
inline const HKEY HKEY_CURRENT_USER = reinterpret_cast<HKEY>(std::uintptr_t{0x80000001});
inline const HKEY HKEY_LOCAL_MACHINE = reinterpret_cast<HKEY>(std::uintptr_t{0x80000002});
inline const HKEY HKEY_USERS = reinterpret_cast<HKEY>(std::uintptr_t{0x80000003});
constexpr DWORD KEY_READ = 0x00020019;
constexpr DWORD KEY_WRITE = 0x00020006;
constexpr DWORD KEY_ALL_ACCESS = 0x000F003F;
/// @}

// Last, because it builds on the records above: CPoint, CSize and CRect belong to the types.
#include "KxGeometry.h"
