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

/// @name Values of BOOL
/// Functions that take a BOOL take every value but 0 as TRUE, unless they say otherwise.
/// @{
#ifndef TRUE
#define TRUE 1
#endif
#ifndef FALSE
#define FALSE 0
#endif
/// @}

/// @name Scalar types
/// They have the widths of 64-bit Win32, whatever C's long has.
/// @{
using BOOL = int; ///< FALSE, or TRUE or another number for true.
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using LANGID = std::uint16_t; ///< A language in the low 10 bits, its variant above.
using SHORT = std::int16_t;
using UINT = std::uint32_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;   ///< 32 bits, not the 64 of C's long.
using ULONG = std::uint32_t; ///< 32 bits, not the 64 of C's unsigned long.
using LONGLONG = long long;
using ULONGLONG = unsigned long long;
using WPARAM = std::uint64_t; ///< First parameter of a message: a number or an address.
using LPARAM = std::int64_t;  ///< Second parameter of a message: a number or an address.
using LRESULT = std::int64_t; ///< Result of a message.
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using DWORD_PTR = std::uintptr_t;
using COLORREF = std::uint32_t; ///< Red in bits 0-7, green in 8-15, blue in 16-23.
/// @}

/// @name Handles
/// Opaque pointers of distinct types, so that one kind cannot be passed for another; null is no object. Kinds
/// that no function makes are there for the declarations of ported code.
/// @{
using HANDLE = void *;        ///< A file of CreateFileW(), an image of LoadImageW(), or any other object.
using HGLOBAL = void *;       ///< The address of a KxGlobalMemory.
using HWND = struct HWND__ *; ///< The address of the window's QWidget; nothing mints or recycles handles.
using HDC = struct HDC__ *;   ///< The address of a KxQtPaintDeviceWrapper, owned by its CDC.
using HBITMAP = struct HBITMAP__ *;
using HBRUSH = struct HBRUSH__ *;
using HCURSOR = struct HCURSOR__ *;
using HFONT = struct HFONT__ *;
using HICON = struct HICON__ *;
using HINSTANCE = struct HINSTANCE__ *;
using HMODULE = HINSTANCE;
using HKEY = struct HKEY__ *; ///< Registry key; CRegKey ignores it.
using HMENU = struct HMENU__ *;
using HPALETTE = struct HPALETTE__ *;
using HPEN = struct HPEN__ *;
using HRGN = struct HRGN__ *;
using POSITION = struct POSITION__ *; ///< Opaque iteration position.
/// @}

/// Timer callback: window, message, identifier of the timer, time in milliseconds. SetTimer() never calls it.
using TIMERPROC = void (*)(HWND, UINT, UINT_PTR, DWORD);

/// A point in pixels.
struct POINT
{
    LONG x; ///< Column.
    LONG y; ///< Row, counted downwards.
};

/// A size in pixels.
struct SIZE
{
    LONG cx; ///< Width.
    LONG cy; ///< Height.
};

/// A rectangle in pixels.
///
/// Those filled by this library carry Qt's inclusive right and bottom: right = left + width - 1.
struct RECT
{
    LONG left;   ///< First column.
    LONG top;    ///< First row.
    LONG right;  ///< Last column in rectangles of this library; in those of MFC the one behind it.
    LONG bottom; ///< Last row in rectangles of this library; in those of MFC the one below it.
};

/// A message of a message loop. No function of this library fills or reads one.
struct MSG
{
    HWND hwnd;     ///< The window that it is for.
    UINT message;  ///< Number of the message.
    WPARAM wParam; ///< First parameter.
    LPARAM lParam; ///< Second parameter.
    DWORD time;    ///< When it was posted, in milliseconds.
    POINT pt;      ///< Where the pointer was then, on the screen.
};

/// Header of a notification. No control sends any.
struct NMHDR
{
    HWND hwndFrom;   ///< The control.
    UINT_PTR idFrom; ///< The control's identifier.
    UINT code;       ///< The notification, for example NM_CLICK.
};

/// Access rights of a new object. Accepted and ignored.
struct SECURITY_ATTRIBUTES
{
    DWORD nLength;              ///< Bytes of the record.
    void *lpSecurityDescriptor; ///< The rights.
    BOOL bInheritHandle;        ///< Whether child processes get the handle.
};

/// Size limits of a window in pixels, as CWnd::OnGetMinMaxInfo() takes and ignores them. Set minimumSize and
/// maximumSize of the widget.
struct MINMAXINFO
{
    POINT ptReserved;     ///< Not used.
    POINT ptMaxSize;      ///< Size of the maximised window.
    POINT ptMaxPosition;  ///< Position of the maximised window.
    POINT ptMinTrackSize; ///< Smallest size.
    POINT ptMaxTrackSize; ///< Largest size.
};

/// What a window is created from, as CWnd::OnCreate() takes and ignores it.
struct CREATESTRUCTW
{
    void *lpCreateParams;     ///< The application's own.
    HINSTANCE hInstance;      ///< The module.
    HMENU hMenu;              ///< The menu, or the identifier of a control.
    HWND hwndParent;          ///< The parent.
    int cy;                   ///< Height in pixels.
    int cx;                   ///< Width in pixels.
    int y;                    ///< Top in pixels.
    int x;                    ///< Left in pixels.
    LONG style;               ///< WS_ flags.
    const wchar_t *lpszName;  ///< The text.
    const wchar_t *lpszClass; ///< The name of the window class.
    DWORD dwExStyle;          ///< WS_EX_ flags.
};

/// A request for help, as CDialog::OnHelpInfo() takes and ignores it.
struct HELPINFO
{
    UINT cbSize;           ///< Bytes of the record.
    int iContextType;      ///< 1: about a window, 2: about a menu item.
    int iCtrlId;           ///< Identifier of the control or menu item.
    HANDLE hItemHandle;    ///< The window or the menu.
    DWORD_PTR dwContextId; ///< Number of the help text.
    POINT MousePos;        ///< Where the pointer is on the screen, in pixels.
};

/// A colour of a palette.
struct PALETTEENTRY
{
    BYTE peRed;   ///< Red, 0 to 255.
    BYTE peGreen; ///< Green, 0 to 255.
    BYTE peBlue;  ///< Blue, 0 to 255.
    BYTE peFlags; ///< How the entry is used.
};

/// A palette, as CreatePalette() takes and ignores it.
struct LOGPALETTE
{
    WORD palVersion;             ///< 0x300.
    WORD palNumEntries;          ///< Number of colours.
    PALETTEENTRY palPalEntry[1]; ///< The first colour; the others follow it.
};

/// @name Pointer types
/// LPSTR and LPCSTR point to narrow text, LPWSTR and LPCWSTR to wide text. tchar.h has LPTSTR and LPCTSTR.
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
/// Message boxes give IDOK, IDCANCEL, IDYES and IDNO and never the others; dialogs give what they are ended
/// with, usually IDOK or IDCANCEL.
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
/// Buttons and icon of MessageBoxW(), which says what it makes of them: its boxes have no buttons but OK,
/// Cancel, Yes and No.
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
/// Those that SendMessageW() answers itself. From WM_USER on an application numbers messages of its own;
/// SendMessageW() tells which of these it hands to window objects.
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
/// Members that can fail with something else say so.
/// @{
constexpr int CB_ERR = -1;            ///< A CComboBox has no such item.
constexpr int LB_ERR = -1;            ///< A CListBox has no such item.
constexpr UINT BST_UNCHECKED = 0;     ///< Button state: not checked.
constexpr UINT BST_CHECKED = 1;       ///< Button state: checked.
constexpr UINT BST_INDETERMINATE = 2; ///< Third button state.
/// @}

/// @name Window styles, show commands, relations and metrics
/// KxStyleConstants.h has those that no function looks at.
/// @{
constexpr DWORD WS_DISABLED = 0x08000000; ///< What CWnd::ModifyStyle() enables and disables with.
constexpr DWORD WS_VISIBLE = 0x10000000;  ///< Ignored: CWnd::ShowWindow() shows and hides.
constexpr int SW_HIDE = 0;                ///< CWnd::ShowWindow() hides the window.
constexpr int SW_SHOWNORMAL = 1;          ///< CWnd::ShowWindow() shows the window.
constexpr int SW_SHOWMINIMIZED = 2;       ///< CWnd::ShowWindow() shows the window as it was, not minimised.
constexpr int SW_SHOWMAXIMIZED = 3;       ///< CWnd::ShowWindow() shows the window as it was, not maximised.
constexpr int SW_SHOW = 5;                ///< CWnd::ShowWindow() shows the window.
constexpr UINT SWP_NOSIZE = 0x0001;       ///< Ignored by CWnd::SetWindowPos(), which never resizes.
constexpr UINT SWP_NOMOVE = 0x0002;       ///< Ignored by CWnd::SetWindowPos().
constexpr UINT SWP_NOZORDER = 0x0004;     ///< Ignored by CWnd::SetWindowPos(), which never restacks.
constexpr UINT GW_HWNDNEXT = 2;           ///< For CWnd::GetNextWindow(): the next control.
constexpr UINT GW_CHILD = 5;              ///< For CWnd::GetWindow(): the first control.
constexpr int GWL_ID = -12;               ///< For GetWindowLongPtrW(): the control's identifier.
constexpr int SM_CXFULLSCREEN = 16;       ///< For GetSystemMetrics(): width of the screen in pixels.
constexpr int SM_CYFULLSCREEN = 17;       ///< For GetSystemMetrics(): height of the screen in pixels.
/// @}

/// @name Virtual keys
/// What GetKeyState() takes, KxMessageConstants.h has more. Letters and digits are their own ASCII codes. The
/// numeric keypad and the function keys are numbered without a gap.
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
/// Kinds and flags of LoadImageW().
/// @{
constexpr UINT IMAGE_BITMAP = 0;
constexpr UINT IMAGE_ICON = 1;
constexpr UINT IMAGE_CURSOR = 2;         ///< Refused: no cursors are loaded.
constexpr UINT LR_DEFAULTCOLOR = 0x0000; ///< No flags.
constexpr UINT LR_LOADFROMFILE = 0x0010; ///< From a file in place of a resource.
/// @}

/// @name File access, creation and attributes
/// What CreateFileW() takes. It ignores the sharing modes, attributes and flags.
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
/// @}

/// @name Access to registry keys
/// CRegKey ignores it: the user's own settings can be read and written.
/// @{
constexpr DWORD KEY_READ = 0x00020019;
constexpr DWORD KEY_WRITE = 0x00020006;
constexpr DWORD KEY_ALL_ACCESS = 0x000F003F;
/// @}

// Last, because it builds on the records above: CPoint, CSize and CRect belong to the types.
#include "KxGeometry.h"
