/// @file KxStyleConstants.h
/// @brief Styles, flags, metrics and colours, for ported code that names them.
///
/// They have their published values. That a constant is here does not mean that a function acts on it: the
/// functions say what they look at. KxWinTypes.h has those that the library itself reads.
#pragma once

#include "KxWinTypes.h"

/// @name Window styles
/// The widget has its flags from Qt: CWnd::Create() and CWnd::ModifyStyle() ignore these, and
/// CWnd::GetStyle() gives 0.
/// @{
constexpr DWORD WS_OVERLAPPED = 0x00000000;
constexpr DWORD WS_POPUP = 0x80000000;
constexpr DWORD WS_CHILD = 0x40000000;
constexpr DWORD WS_MINIMIZE = 0x20000000;
constexpr DWORD WS_CLIPSIBLINGS = 0x04000000;
constexpr DWORD WS_CLIPCHILDREN = 0x02000000;
constexpr DWORD WS_MAXIMIZE = 0x01000000;
constexpr DWORD WS_CAPTION = 0x00C00000;
constexpr DWORD WS_BORDER = 0x00800000;
constexpr DWORD WS_DLGFRAME = 0x00400000;
constexpr DWORD WS_VSCROLL = 0x00200000;
constexpr DWORD WS_HSCROLL = 0x00100000;
constexpr DWORD WS_SYSMENU = 0x00080000;
constexpr DWORD WS_THICKFRAME = 0x00040000;
constexpr DWORD WS_GROUP = 0x00020000;
constexpr DWORD WS_TABSTOP = 0x00010000;
constexpr DWORD WS_MINIMIZEBOX = 0x00020000;
constexpr DWORD WS_MAXIMIZEBOX = 0x00010000;
constexpr DWORD WS_OVERLAPPEDWINDOW = 0x00CF0000;
constexpr DWORD WS_POPUPWINDOW = 0x80880000;
/// @}

/// @name Extended window styles
/// CWnd::ModifyStyleEx() ignores them.
/// @{
constexpr DWORD WS_EX_DLGMODALFRAME = 0x00000001;
constexpr DWORD WS_EX_NOPARENTNOTIFY = 0x00000004;
constexpr DWORD WS_EX_TOPMOST = 0x00000008;
constexpr DWORD WS_EX_ACCEPTFILES = 0x00000010;
constexpr DWORD WS_EX_TRANSPARENT = 0x00000020;
constexpr DWORD WS_EX_MDICHILD = 0x00000040;
constexpr DWORD WS_EX_TOOLWINDOW = 0x00000080;
constexpr DWORD WS_EX_WINDOWEDGE = 0x00000100;
constexpr DWORD WS_EX_CLIENTEDGE = 0x00000200;
constexpr DWORD WS_EX_CONTEXTHELP = 0x00000400;
constexpr DWORD WS_EX_CONTROLPARENT = 0x00010000;
constexpr DWORD WS_EX_STATICEDGE = 0x00020000;
constexpr DWORD WS_EX_APPWINDOW = 0x00040000;
constexpr DWORD WS_EX_LAYERED = 0x00080000;
/// @}

/// @name Dialog styles
/// Ignored: a dialog is a QDialog and has its flags from Qt.
/// @{
constexpr DWORD DS_ABSALIGN = 0x0001;
constexpr DWORD DS_SYSMODAL = 0x0002;
constexpr DWORD DS_LOCALEDIT = 0x0020;
constexpr DWORD DS_SETFONT = 0x0040;
constexpr DWORD DS_MODALFRAME = 0x0080;
constexpr DWORD DS_NOIDLEMSG = 0x0100;
constexpr DWORD DS_SETFOREGROUND = 0x0200;
constexpr DWORD DS_CONTROL = 0x0400;
constexpr DWORD DS_CENTER = 0x0800;
constexpr DWORD DS_CENTERMOUSE = 0x1000;
constexpr DWORD DS_CONTEXTHELP = 0x2000;
/// @}

/// @name Button styles
/// Ignored: the class of the widget says what kind of button it is.
/// @{
constexpr DWORD BS_PUSHBUTTON = 0x0000;
constexpr DWORD BS_DEFPUSHBUTTON = 0x0001;
constexpr DWORD BS_CHECKBOX = 0x0002;
constexpr DWORD BS_AUTOCHECKBOX = 0x0003;
constexpr DWORD BS_RADIOBUTTON = 0x0004;
constexpr DWORD BS_3STATE = 0x0005;
constexpr DWORD BS_AUTO3STATE = 0x0006;
constexpr DWORD BS_GROUPBOX = 0x0007;
constexpr DWORD BS_AUTORADIOBUTTON = 0x0009;
constexpr DWORD BS_OWNERDRAW = 0x000B;
constexpr DWORD BS_LEFTTEXT = 0x0020;
constexpr DWORD BS_ICON = 0x0040;
constexpr DWORD BS_BITMAP = 0x0080;
constexpr DWORD BS_LEFT = 0x0100;
constexpr DWORD BS_RIGHT = 0x0200;
constexpr DWORD BS_CENTER = 0x0300;
constexpr DWORD BS_TOP = 0x0400;
constexpr DWORD BS_BOTTOM = 0x0800;
constexpr DWORD BS_VCENTER = 0x0C00;
constexpr DWORD BS_PUSHLIKE = 0x1000;
constexpr DWORD BS_MULTILINE = 0x2000;
constexpr DWORD BS_NOTIFY = 0x4000;
constexpr DWORD BS_FLAT = 0x8000;
/// @}

/// @name Edit control styles
/// Ignored: set the properties of the QLineEdit or QTextEdit.
/// @{
constexpr DWORD ES_LEFT = 0x0000;
constexpr DWORD ES_CENTER = 0x0001;
constexpr DWORD ES_RIGHT = 0x0002;
constexpr DWORD ES_MULTILINE = 0x0004;
constexpr DWORD ES_UPPERCASE = 0x0008;
constexpr DWORD ES_LOWERCASE = 0x0010;
constexpr DWORD ES_PASSWORD = 0x0020;
constexpr DWORD ES_AUTOVSCROLL = 0x0040;
constexpr DWORD ES_AUTOHSCROLL = 0x0080;
constexpr DWORD ES_NOHIDESEL = 0x0100;
constexpr DWORD ES_READONLY = 0x0800;
constexpr DWORD ES_WANTRETURN = 0x1000;
constexpr DWORD ES_NUMBER = 0x2000;
/// @}

/// @name Static control styles
/// Ignored: set the properties of the QLabel.
/// @{
constexpr DWORD SS_LEFT = 0x0000;
constexpr DWORD SS_CENTER = 0x0001;
constexpr DWORD SS_RIGHT = 0x0002;
constexpr DWORD SS_ICON = 0x0003;
constexpr DWORD SS_SIMPLE = 0x000B;
constexpr DWORD SS_LEFTNOWORDWRAP = 0x000C;
constexpr DWORD SS_OWNERDRAW = 0x000D;
constexpr DWORD SS_BITMAP = 0x000E;
constexpr DWORD SS_ETCHEDHORZ = 0x0010;
constexpr DWORD SS_ETCHEDVERT = 0x0011;
constexpr DWORD SS_ETCHEDFRAME = 0x0012;
constexpr DWORD SS_NOPREFIX = 0x0080;
constexpr DWORD SS_NOTIFY = 0x0100;
constexpr DWORD SS_CENTERIMAGE = 0x0200;
constexpr DWORD SS_SUNKEN = 0x1000;
/// @}

/// @name Combo box styles
/// Ignored: set the properties of the QComboBox.
/// @{
constexpr DWORD CBS_SIMPLE = 0x0001;
constexpr DWORD CBS_DROPDOWN = 0x0002;
constexpr DWORD CBS_DROPDOWNLIST = 0x0003;
constexpr DWORD CBS_OWNERDRAWFIXED = 0x0010;
constexpr DWORD CBS_OWNERDRAWVARIABLE = 0x0020;
constexpr DWORD CBS_AUTOHSCROLL = 0x0040;
constexpr DWORD CBS_SORT = 0x0100;
constexpr DWORD CBS_HASSTRINGS = 0x0200;
constexpr DWORD CBS_NOINTEGRALHEIGHT = 0x0400;
constexpr DWORD CBS_DISABLENOSCROLL = 0x0800;
constexpr DWORD CBS_UPPERCASE = 0x2000;
constexpr DWORD CBS_LOWERCASE = 0x4000;
/// @}

/// @name List box styles
/// Ignored: set the properties of the QListWidget.
/// @{
constexpr DWORD LBS_NOTIFY = 0x0001;
constexpr DWORD LBS_SORT = 0x0002;
constexpr DWORD LBS_NOREDRAW = 0x0004;
constexpr DWORD LBS_MULTIPLESEL = 0x0008;
constexpr DWORD LBS_OWNERDRAWFIXED = 0x0010;
constexpr DWORD LBS_OWNERDRAWVARIABLE = 0x0020;
constexpr DWORD LBS_HASSTRINGS = 0x0040;
constexpr DWORD LBS_USETABSTOPS = 0x0080;
constexpr DWORD LBS_NOINTEGRALHEIGHT = 0x0100;
constexpr DWORD LBS_MULTICOLUMN = 0x0200;
constexpr DWORD LBS_WANTKEYBOARDINPUT = 0x0400;
constexpr DWORD LBS_EXTENDEDSEL = 0x0800;
constexpr DWORD LBS_DISABLENOSCROLL = 0x1000;
constexpr DWORD LBS_NODATA = 0x2000;
constexpr DWORD LBS_NOSEL = 0x4000;
constexpr DWORD LBS_STANDARD = 0x00A00003;
/// @}

/// @name Show commands
/// CWnd::ShowWindow() shows the widget for each of them, as for SW_SHOW; none of them activates, minimises,
/// maximises or restores it.
/// @{
constexpr int SW_NORMAL = 0x1;
constexpr int SW_MAXIMIZE = 0x3;
constexpr int SW_SHOWNOACTIVATE = 0x4;
constexpr int SW_MINIMIZE = 0x6;
constexpr int SW_SHOWMINNOACTIVE = 0x7;
constexpr int SW_SHOWNA = 0x8;
constexpr int SW_RESTORE = 0x9;
constexpr int SW_SHOWDEFAULT = 0xA;
constexpr int SW_FORCEMINIMIZE = 0xB;
/// @}

/// @name Window position flags
/// CWnd::SetWindowPos() ignores them.
/// @{
constexpr UINT SWP_NOREDRAW = 0x0008;
constexpr UINT SWP_NOACTIVATE = 0x0010;
constexpr UINT SWP_FRAMECHANGED = 0x0020;
constexpr UINT SWP_DRAWFRAME = 0x0020;
constexpr UINT SWP_SHOWWINDOW = 0x0040;
constexpr UINT SWP_HIDEWINDOW = 0x0080;
constexpr UINT SWP_NOCOPYBITS = 0x0100;
constexpr UINT SWP_NOOWNERZORDER = 0x0200;
constexpr UINT SWP_NOREPOSITION = 0x0200;
constexpr UINT SWP_NOSENDCHANGING = 0x0400;
/// @}

/// @name Window relations
/// CWnd::GetWindow() and CWnd::GetNextWindow() give null for them.
/// @{
constexpr UINT GW_HWNDFIRST = 0x0;
constexpr UINT GW_HWNDLAST = 0x1;
constexpr UINT GW_HWNDPREV = 0x3;
constexpr UINT GW_OWNER = 0x4;
/// @}

/// @name Redraw flags
/// CWnd::RedrawWindow() ignores them.
/// @{
constexpr UINT RDW_INVALIDATE = 0x0001;
constexpr UINT RDW_INTERNALPAINT = 0x0002;
constexpr UINT RDW_ERASE = 0x0004;
constexpr UINT RDW_VALIDATE = 0x0008;
constexpr UINT RDW_NOERASE = 0x0020;
constexpr UINT RDW_NOCHILDREN = 0x0040;
constexpr UINT RDW_ALLCHILDREN = 0x0080;
constexpr UINT RDW_UPDATENOW = 0x0100;
constexpr UINT RDW_ERASENOW = 0x0200;
constexpr UINT RDW_FRAME = 0x0400;
/// @}

/// @name Menu flags
/// No function takes them: menus are made with Qt.
/// @{
constexpr UINT MF_BYCOMMAND = 0x0000;
constexpr UINT MF_BYPOSITION = 0x0400;
constexpr UINT MF_SEPARATOR = 0x0800;
constexpr UINT MF_ENABLED = 0x0000;
constexpr UINT MF_GRAYED = 0x0001;
constexpr UINT MF_DISABLED = 0x0002;
constexpr UINT MF_UNCHECKED = 0x0000;
constexpr UINT MF_CHECKED = 0x0008;
constexpr UINT MF_STRING = 0x0000;
constexpr UINT MF_BITMAP = 0x0004;
constexpr UINT MF_OWNERDRAW = 0x0100;
constexpr UINT MF_POPUP = 0x0010;
/// @}

/// @name System commands
/// Parameters of WM_SYSCOMMAND, which the library never sends.
/// @{
constexpr UINT SC_SIZE = 0xF000;
constexpr UINT SC_MOVE = 0xF010;
constexpr UINT SC_MINIMIZE = 0xF020;
constexpr UINT SC_MAXIMIZE = 0xF030;
constexpr UINT SC_CLOSE = 0xF060;
constexpr UINT SC_KEYMENU = 0xF100;
constexpr UINT SC_RESTORE = 0xF120;
/// @}

/// @name System metrics
/// GetSystemMetrics() gives 0 for them.
/// @{
constexpr int SM_CXSCREEN = 0x0;
constexpr int SM_CYSCREEN = 0x1;
constexpr int SM_CXVSCROLL = 0x2;
constexpr int SM_CYHSCROLL = 0x3;
constexpr int SM_CYCAPTION = 0x4;
constexpr int SM_CXBORDER = 0x5;
constexpr int SM_CYBORDER = 0x6;
constexpr int SM_CXDLGFRAME = 0x7;
constexpr int SM_CYDLGFRAME = 0x8;
constexpr int SM_CXICON = 0xB;
constexpr int SM_CYICON = 0xC;
constexpr int SM_CXCURSOR = 0xD;
constexpr int SM_CYCURSOR = 0xE;
constexpr int SM_CYMENU = 0xF;
constexpr int SM_CXMIN = 0x1C;
constexpr int SM_CYMIN = 0x1D;
constexpr int SM_CXFRAME = 0x20;
constexpr int SM_CYFRAME = 0x21;
constexpr int SM_CXDOUBLECLK = 0x24;
constexpr int SM_CYDOUBLECLK = 0x25;
constexpr int SM_CXSMICON = 0x31;
constexpr int SM_CYSMICON = 0x32;
constexpr int SM_CXVIRTUALSCREEN = 0x4E;
constexpr int SM_CYVIRTUALSCREEN = 0x4F;
/// @}

/// @name System colours
/// No function takes them: colours come from the QPalette of a widget.
/// @{
constexpr int COLOR_SCROLLBAR = 0x0;
constexpr int COLOR_BACKGROUND = 0x1;
constexpr int COLOR_ACTIVECAPTION = 0x2;
constexpr int COLOR_INACTIVECAPTION = 0x3;
constexpr int COLOR_MENU = 0x4;
constexpr int COLOR_WINDOW = 0x5;
constexpr int COLOR_WINDOWFRAME = 0x6;
constexpr int COLOR_MENUTEXT = 0x7;
constexpr int COLOR_WINDOWTEXT = 0x8;
constexpr int COLOR_CAPTIONTEXT = 0x9;
constexpr int COLOR_ACTIVEBORDER = 0xA;
constexpr int COLOR_INACTIVEBORDER = 0xB;
constexpr int COLOR_APPWORKSPACE = 0xC;
constexpr int COLOR_HIGHLIGHT = 0xD;
constexpr int COLOR_HIGHLIGHTTEXT = 0xE;
constexpr int COLOR_BTNFACE = 0xF;
constexpr int COLOR_3DFACE = 0xF;
constexpr int COLOR_BTNSHADOW = 0x10;
constexpr int COLOR_GRAYTEXT = 0x11;
constexpr int COLOR_BTNTEXT = 0x12;
constexpr int COLOR_BTNHIGHLIGHT = 0x14;
constexpr int COLOR_3DDKSHADOW = 0x15;
constexpr int COLOR_3DLIGHT = 0x16;
constexpr int COLOR_INFOTEXT = 0x17;
constexpr int COLOR_INFOBK = 0x18;
/// @}

/// @name Message box types
/// MessageBoxW() ignores them: Qt chooses the default button, and a box is always modal and on top.
/// @{
constexpr UINT MB_DEFBUTTON1 = 0x0000;
constexpr UINT MB_DEFBUTTON2 = 0x0100;
constexpr UINT MB_DEFBUTTON3 = 0x0200;
constexpr UINT MB_APPLMODAL = 0x0000;
constexpr UINT MB_SYSTEMMODAL = 0x1000;
constexpr UINT MB_TASKMODAL = 0x2000;
constexpr UINT MB_SETFOREGROUND = 0x00010000;
constexpr UINT MB_TOPMOST = 0x00040000;
/// @}

/// @name Control and dialog identifiers
/// No function gives them as a result.
/// @{
constexpr int IDCLOSE = 0x8;
constexpr int IDHELP = 0x9;
constexpr int IDTRYAGAIN = 0xA;
constexpr int IDCONTINUE = 0xB;
/// @}
