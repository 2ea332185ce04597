/// @file KxMessageConstants.h
/// @brief Messages, notifications, scroll codes and virtual keys, for ported code that names them.
///
/// They have their published values. That a constant is here does not mean that a function acts on it: the
/// functions say what they look at. KxWinTypes.h has those that the library itself reads.
#pragma once

#include "KxWinTypes.h"

/// @name Window messages
/// SendMessageW() and PostMessageW() bring them to the widget as a QKxMsgEvent. The library itself sends
/// none, and it turns no event of a widget into one.
/// @{
constexpr UINT WM_NULL = 0x0000;
constexpr UINT WM_CREATE = 0x0001;
constexpr UINT WM_DESTROY = 0x0002;
constexpr UINT WM_MOVE = 0x0003;
constexpr UINT WM_SIZE = 0x0005;
constexpr UINT WM_ACTIVATE = 0x0006;
constexpr UINT WM_SETFOCUS = 0x0007;
constexpr UINT WM_KILLFOCUS = 0x0008;
constexpr UINT WM_ENABLE = 0x000A;
constexpr UINT WM_SETREDRAW = 0x000B;
constexpr UINT WM_SETTEXT = 0x000C;
constexpr UINT WM_GETTEXT = 0x000D;
constexpr UINT WM_GETTEXTLENGTH = 0x000E;
constexpr UINT WM_PAINT = 0x000F;
constexpr UINT WM_CLOSE = 0x0010;
constexpr UINT WM_QUERYENDSESSION = 0x0011;
constexpr UINT WM_QUIT = 0x0012;
constexpr UINT WM_QUERYOPEN = 0x0013;
constexpr UINT WM_ERASEBKGND = 0x0014;
constexpr UINT WM_SYSCOLORCHANGE = 0x0015;
constexpr UINT WM_ENDSESSION = 0x0016;
constexpr UINT WM_SHOWWINDOW = 0x0018;
constexpr UINT WM_SETTINGCHANGE = 0x001A;
constexpr UINT WM_ACTIVATEAPP = 0x001C;
constexpr UINT WM_FONTCHANGE = 0x001D;
constexpr UINT WM_TIMECHANGE = 0x001E;
constexpr UINT WM_CANCELMODE = 0x001F;
constexpr UINT WM_SETCURSOR = 0x0020;
constexpr UINT WM_MOUSEACTIVATE = 0x0021;
constexpr UINT WM_GETMINMAXINFO = 0x0024;
constexpr UINT WM_NEXTDLGCTL = 0x0028;
constexpr UINT WM_DRAWITEM = 0x002B;
constexpr UINT WM_MEASUREITEM = 0x002C;
constexpr UINT WM_DELETEITEM = 0x002D;
constexpr UINT WM_SETFONT = 0x0030;
constexpr UINT WM_GETFONT = 0x0031;
constexpr UINT WM_WINDOWPOSCHANGING = 0x0046;
constexpr UINT WM_WINDOWPOSCHANGED = 0x0047;
constexpr UINT WM_COPYDATA = 0x004A;
constexpr UINT WM_NOTIFY = 0x004E;
constexpr UINT WM_HELP = 0x0053;
constexpr UINT WM_CONTEXTMENU = 0x007B;
constexpr UINT WM_STYLECHANGING = 0x007C;
constexpr UINT WM_STYLECHANGED = 0x007D;
constexpr UINT WM_DISPLAYCHANGE = 0x007E;
constexpr UINT WM_GETICON = 0x007F;
constexpr UINT WM_SETICON = 0x0080;
constexpr UINT WM_NCCREATE = 0x0081;
constexpr UINT WM_NCDESTROY = 0x0082;
constexpr UINT WM_NCCALCSIZE = 0x0083;
constexpr UINT WM_NCHITTEST = 0x0084;
constexpr UINT WM_NCPAINT = 0x0085;
constexpr UINT WM_NCACTIVATE = 0x0086;
constexpr UINT WM_GETDLGCODE = 0x0087;
constexpr UINT WM_NCMOUSEMOVE = 0x00A0;
constexpr UINT WM_NCLBUTTONDOWN = 0x00A1;
constexpr UINT WM_NCLBUTTONUP = 0x00A2;
constexpr UINT WM_KEYFIRST = 0x0100;
constexpr UINT WM_KEYDOWN = 0x0100;
constexpr UINT WM_KEYUP = 0x0101;
constexpr UINT WM_CHAR = 0x0102;
constexpr UINT WM_DEADCHAR = 0x0103;
constexpr UINT WM_SYSKEYDOWN = 0x0104;
constexpr UINT WM_SYSKEYUP = 0x0105;
constexpr UINT WM_SYSCHAR = 0x0106;
constexpr UINT WM_INITDIALOG = 0x0110;
constexpr UINT WM_COMMAND = 0x0111;
constexpr UINT WM_SYSCOMMAND = 0x0112;
constexpr UINT WM_TIMER = 0x0113;
constexpr UINT WM_HSCROLL = 0x0114;
constexpr UINT WM_VSCROLL = 0x0115;
constexpr UINT WM_INITMENU = 0x0116;
constexpr UINT WM_INITMENUPOPUP = 0x0117;
constexpr UINT WM_MENUSELECT = 0x011F;
constexpr UINT WM_ENTERIDLE = 0x0121;
constexpr UINT WM_CTLCOLORMSGBOX = 0x0132;
constexpr UINT WM_CTLCOLOREDIT = 0x0133;
constexpr UINT WM_CTLCOLORLISTBOX = 0x0134;
constexpr UINT WM_CTLCOLORBTN = 0x0135;
constexpr UINT WM_CTLCOLORDLG = 0x0136;
constexpr UINT WM_CTLCOLORSCROLLBAR = 0x0137;
constexpr UINT WM_CTLCOLORSTATIC = 0x0138;
constexpr UINT WM_MOUSEFIRST = 0x0200;
constexpr UINT WM_MOUSEMOVE = 0x0200;
constexpr UINT WM_LBUTTONDOWN = 0x0201;
constexpr UINT WM_LBUTTONUP = 0x0202;
constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
constexpr UINT WM_RBUTTONDOWN = 0x0204;
constexpr UINT WM_RBUTTONUP = 0x0205;
constexpr UINT WM_RBUTTONDBLCLK = 0x0206;
constexpr UINT WM_MBUTTONDOWN = 0x0207;
constexpr UINT WM_MBUTTONUP = 0x0208;
constexpr UINT WM_MBUTTONDBLCLK = 0x0209;
constexpr UINT WM_MOUSEWHEEL = 0x020A;
constexpr UINT WM_XBUTTONDOWN = 0x020B;
constexpr UINT WM_XBUTTONUP = 0x020C;
constexpr UINT WM_XBUTTONDBLCLK = 0x020D;
constexpr UINT WM_MOUSEHWHEEL = 0x020E;
constexpr UINT WM_SIZING = 0x0214;
constexpr UINT WM_CAPTURECHANGED = 0x0215;
constexpr UINT WM_MOVING = 0x0216;
constexpr UINT WM_ENTERSIZEMOVE = 0x0231;
constexpr UINT WM_EXITSIZEMOVE = 0x0232;
constexpr UINT WM_DROPFILES = 0x0233;
constexpr UINT WM_MOUSEHOVER = 0x02A1;
constexpr UINT WM_MOUSELEAVE = 0x02A3;
constexpr UINT WM_CUT = 0x0300;
constexpr UINT WM_COPY = 0x0301;
constexpr UINT WM_PASTE = 0x0302;
constexpr UINT WM_CLEAR = 0x0303;
constexpr UINT WM_UNDO = 0x0304;
constexpr UINT WM_DESTROYCLIPBOARD = 0x0307;
constexpr UINT WM_DRAWCLIPBOARD = 0x0308;
constexpr UINT WM_HOTKEY = 0x0312;
constexpr UINT WM_PRINT = 0x0317;
constexpr UINT WM_PRINTCLIENT = 0x0318;
constexpr UINT WM_APP = 0x8000;
/// @}

/// @name Button notifications
/// No button sends any: connect the signals of the QAbstractButton.
/// @{
constexpr UINT BN_CLICKED = 0x0;
constexpr UINT BN_PAINT = 0x1;
constexpr UINT BN_HILITE = 0x2;
constexpr UINT BN_UNHILITE = 0x3;
constexpr UINT BN_DISABLE = 0x4;
constexpr UINT BN_DOUBLECLICKED = 0x5;
constexpr UINT BN_DBLCLK = 0x5;
constexpr UINT BN_SETFOCUS = 0x6;
constexpr UINT BN_KILLFOCUS = 0x7;
/// @}

/// @name Edit control notifications
/// No edit control sends any: connect the signals of the QLineEdit or QTextEdit.
/// @{
constexpr UINT EN_SETFOCUS = 0x0100;
constexpr UINT EN_KILLFOCUS = 0x0200;
constexpr UINT EN_CHANGE = 0x0300;
constexpr UINT EN_UPDATE = 0x0400;
constexpr UINT EN_ERRSPACE = 0x0500;
constexpr UINT EN_MAXTEXT = 0x0501;
constexpr UINT EN_HSCROLL = 0x0601;
constexpr UINT EN_VSCROLL = 0x0602;
/// @}

/// @name Combo box notifications
/// No combo box sends any: connect the signals of the QComboBox.
/// @{
constexpr UINT CBN_SELCHANGE = 0x1;
constexpr UINT CBN_DBLCLK = 0x2;
constexpr UINT CBN_SETFOCUS = 0x3;
constexpr UINT CBN_KILLFOCUS = 0x4;
constexpr UINT CBN_EDITCHANGE = 0x5;
constexpr UINT CBN_EDITUPDATE = 0x6;
constexpr UINT CBN_DROPDOWN = 0x7;
constexpr UINT CBN_CLOSEUP = 0x8;
constexpr UINT CBN_SELENDOK = 0x9;
constexpr UINT CBN_SELENDCANCEL = 0xA;
/// @}

/// @name List box notifications
/// No list box sends any: connect the signals of the QListWidget.
/// @{
constexpr UINT LBN_SELCHANGE = 0x1;
constexpr UINT LBN_DBLCLK = 0x2;
constexpr UINT LBN_SELCANCEL = 0x3;
constexpr UINT LBN_SETFOCUS = 0x4;
constexpr UINT LBN_KILLFOCUS = 0x5;
/// @}

/// @name Static control notifications
/// No label sends any.
/// @{
constexpr UINT STN_CLICKED = 0x0;
constexpr UINT STN_DBLCLK = 0x1;
constexpr UINT STN_ENABLE = 0x2;
constexpr UINT STN_DISABLE = 0x3;
/// @}

/// @name Button messages
/// Not among those that SendMessageW() answers: the widget gets a QKxMsgEvent and the result is 0. Call the
/// members of CButton.
/// @{
constexpr UINT BM_GETSTATE = 0x00F2;
constexpr UINT BM_SETSTATE = 0x00F3;
constexpr UINT BM_SETSTYLE = 0x00F4;
constexpr UINT BM_CLICK = 0x00F5;
constexpr UINT BM_GETIMAGE = 0x00F6;
/// @}

/// @name Edit control messages
/// Not among those that SendMessageW() answers: the widget gets a QKxMsgEvent and the result is 0. Call the
/// members of CEdit.
/// @{
constexpr UINT EM_GETSEL = 0x00B0;
constexpr UINT EM_SETSEL = 0x00B1;
constexpr UINT EM_GETRECT = 0x00B2;
constexpr UINT EM_SETRECT = 0x00B3;
constexpr UINT EM_LINESCROLL = 0x00B6;
constexpr UINT EM_SCROLLCARET = 0x00B7;
constexpr UINT EM_GETMODIFY = 0x00B8;
constexpr UINT EM_SETMODIFY = 0x00B9;
constexpr UINT EM_GETLINECOUNT = 0x00BA;
constexpr UINT EM_LINEINDEX = 0x00BB;
constexpr UINT EM_LINELENGTH = 0x00C1;
constexpr UINT EM_REPLACESEL = 0x00C2;
constexpr UINT EM_GETLINE = 0x00C4;
constexpr UINT EM_LIMITTEXT = 0x00C5;
constexpr UINT EM_SETLIMITTEXT = 0x00C5;
constexpr UINT EM_CANUNDO = 0x00C6;
constexpr UINT EM_UNDO = 0x00C7;
constexpr UINT EM_LINEFROMCHAR = 0x00C9;
constexpr UINT EM_SETTABSTOPS = 0x00CB;
constexpr UINT EM_SETPASSWORDCHAR = 0x00CC;
constexpr UINT EM_EMPTYUNDOBUFFER = 0x00CD;
constexpr UINT EM_GETFIRSTVISIBLELINE = 0x00CE;
constexpr UINT EM_SETREADONLY = 0x00CF;
constexpr UINT EM_GETPASSWORDCHAR = 0x00D2;
constexpr UINT EM_SETMARGINS = 0x00D3;
constexpr UINT EM_GETLIMITTEXT = 0x00D5;
/// @}

/// @name Combo box messages
/// Not among those that SendMessageW() answers: the widget gets a QKxMsgEvent and the result is 0. Call the
/// members of CComboBox.
/// @{
constexpr UINT CB_GETEDITSEL = 0x0140;
constexpr UINT CB_LIMITTEXT = 0x0141;
constexpr UINT CB_SETEDITSEL = 0x0142;
constexpr UINT CB_DELETESTRING = 0x0144;
constexpr UINT CB_DIR = 0x0145;
constexpr UINT CB_GETLBTEXT = 0x0148;
constexpr UINT CB_GETLBTEXTLEN = 0x0149;
constexpr UINT CB_INSERTSTRING = 0x014A;
constexpr UINT CB_FINDSTRING = 0x014C;
constexpr UINT CB_SELECTSTRING = 0x014D;
constexpr UINT CB_SHOWDROPDOWN = 0x014F;
constexpr UINT CB_GETITEMDATA = 0x0150;
constexpr UINT CB_SETITEMDATA = 0x0151;
constexpr UINT CB_GETDROPPEDCONTROLRECT = 0x0152;
constexpr UINT CB_SETITEMHEIGHT = 0x0153;
constexpr UINT CB_GETITEMHEIGHT = 0x0154;
constexpr UINT CB_SETEXTENDEDUI = 0x0155;
constexpr UINT CB_GETEXTENDEDUI = 0x0156;
constexpr UINT CB_GETDROPPEDSTATE = 0x0157;
constexpr UINT CB_FINDSTRINGEXACT = 0x0158;
/// @}

/// @name List box messages
/// Not among those that SendMessageW() answers: the widget gets a QKxMsgEvent and the result is 0. Call the
/// members of CListBox.
/// @{
constexpr UINT LB_ADDSTRING = 0x0180;
constexpr UINT LB_INSERTSTRING = 0x0181;
constexpr UINT LB_DELETESTRING = 0x0182;
constexpr UINT LB_RESETCONTENT = 0x0184;
constexpr UINT LB_SETSEL = 0x0185;
constexpr UINT LB_SETCURSEL = 0x0186;
constexpr UINT LB_GETSEL = 0x0187;
constexpr UINT LB_GETCURSEL = 0x0188;
constexpr UINT LB_GETTEXT = 0x0189;
constexpr UINT LB_GETTEXTLEN = 0x018A;
constexpr UINT LB_GETCOUNT = 0x018B;
constexpr UINT LB_SELECTSTRING = 0x018C;
constexpr UINT LB_GETTOPINDEX = 0x018E;
constexpr UINT LB_FINDSTRING = 0x018F;
constexpr UINT LB_GETSELCOUNT = 0x0190;
constexpr UINT LB_GETSELITEMS = 0x0191;
constexpr UINT LB_GETITEMDATA = 0x0199;
constexpr UINT LB_SETITEMDATA = 0x019A;
constexpr UINT LB_FINDSTRINGEXACT = 0x01A2;
/// @}

/// @name Scroll bar codes
/// Which bar, and what WM_HSCROLL and WM_VSCROLL tell. No function reads them and no scroll bar sends any.
/// @{
constexpr int SB_HORZ = 0x0;
constexpr int SB_VERT = 0x1;
constexpr int SB_CTL = 0x2;
constexpr int SB_BOTH = 0x3;
constexpr int SB_LINEUP = 0x0;
constexpr int SB_LINELEFT = 0x0;
constexpr int SB_LINEDOWN = 0x1;
constexpr int SB_LINERIGHT = 0x1;
constexpr int SB_PAGEUP = 0x2;
constexpr int SB_PAGELEFT = 0x2;
constexpr int SB_PAGEDOWN = 0x3;
constexpr int SB_PAGERIGHT = 0x3;
constexpr int SB_THUMBPOSITION = 0x4;
constexpr int SB_THUMBTRACK = 0x5;
constexpr int SB_TOP = 0x6;
constexpr int SB_LEFT = 0x6;
constexpr int SB_BOTTOM = 0x7;
constexpr int SB_RIGHT = 0x7;
constexpr int SB_ENDSCROLL = 0x8;
/// @}

/// @name Track bar codes
/// What WM_HSCROLL and WM_VSCROLL of a slider tell. No slider sends any.
/// @{
constexpr int TB_LINEUP = 0x0;
constexpr int TB_LINEDOWN = 0x1;
constexpr int TB_PAGEUP = 0x2;
constexpr int TB_PAGEDOWN = 0x3;
constexpr int TB_THUMBPOSITION = 0x4;
constexpr int TB_THUMBTRACK = 0x5;
constexpr int TB_TOP = 0x6;
constexpr int TB_BOTTOM = 0x7;
constexpr int TB_ENDTRACK = 0x8;
/// @}

/// @name Keys and buttons held during a mouse message
/// Flags of the mouse messages, which the library never sends.
/// @{
constexpr UINT MK_LBUTTON = 0x0001;
constexpr UINT MK_RBUTTON = 0x0002;
constexpr UINT MK_SHIFT = 0x0004;
constexpr UINT MK_CONTROL = 0x0008;
constexpr UINT MK_MBUTTON = 0x0010;
constexpr UINT MK_XBUTTON1 = 0x0020;
constexpr UINT MK_XBUTTON2 = 0x0040;
/// @}

/// @name Kinds of WM_SIZE
/// The library never sends that message.
/// @{
constexpr UINT SIZE_RESTORED = 0x0;
constexpr UINT SIZE_MINIMIZED = 0x1;
constexpr UINT SIZE_MAXIMIZED = 0x2;
constexpr UINT SIZE_MAXSHOW = 0x3;
constexpr UINT SIZE_MAXHIDE = 0x4;
/// @}

/// @name Kinds of WM_ACTIVATE
/// The library never sends that message.
/// @{
constexpr UINT WA_INACTIVE = 0x0;
constexpr UINT WA_ACTIVE = 0x1;
constexpr UINT WA_CLICKACTIVE = 0x2;
/// @}

/// @name Common control notifications
/// Codes of NMHDR::code: negative numbers as unsigned ones. No control sends any.
/// @{
constexpr UINT NM_OUTOFMEMORY = 0xFFFFFFFF;
constexpr UINT NM_CLICK = 0xFFFFFFFE;
constexpr UINT NM_DBLCLK = 0xFFFFFFFD;
constexpr UINT NM_RETURN = 0xFFFFFFFC;
constexpr UINT NM_RCLICK = 0xFFFFFFFB;
constexpr UINT NM_RDBLCLK = 0xFFFFFFFA;
constexpr UINT NM_SETFOCUS = 0xFFFFFFF9;
constexpr UINT NM_KILLFOCUS = 0xFFFFFFF8;
constexpr UINT NM_CUSTOMDRAW = 0xFFFFFFF4;
constexpr UINT NM_HOVER = 0xFFFFFFF3;
constexpr UINT NM_RELEASEDCAPTURE = 0xFFFFFFF0;
/// @}

/// @name Virtual keys
/// GetKeyState() tells the state of the keys of the numeric keypad, the function keys, and VK_OEM_1 to
/// VK_OEM_7 with VK_OEM_PLUS, VK_OEM_COMMA, VK_OEM_MINUS and VK_OEM_PERIOD, which are named after the
/// American keyboard. For the others it gives 0.
/// @{
constexpr int VK_CANCEL = 0x03;
constexpr int VK_KANA = 0x15;
constexpr int VK_FINAL = 0x18;
constexpr int VK_CONVERT = 0x1C;
constexpr int VK_NONCONVERT = 0x1D;
constexpr int VK_SELECT = 0x29;
constexpr int VK_PRINT = 0x2A;
constexpr int VK_EXECUTE = 0x2B;
constexpr int VK_SLEEP = 0x5F;
constexpr int VK_NUMPAD1 = 0x61;
constexpr int VK_NUMPAD2 = 0x62;
constexpr int VK_NUMPAD3 = 0x63;
constexpr int VK_NUMPAD4 = 0x64;
constexpr int VK_NUMPAD5 = 0x65;
constexpr int VK_NUMPAD6 = 0x66;
constexpr int VK_NUMPAD7 = 0x67;
constexpr int VK_NUMPAD8 = 0x68;
constexpr int VK_SEPARATOR = 0x6C;
constexpr int VK_F2 = 0x71;
constexpr int VK_F3 = 0x72;
constexpr int VK_F4 = 0x73;
constexpr int VK_F5 = 0x74;
constexpr int VK_F6 = 0x75;
constexpr int VK_F7 = 0x76;
constexpr int VK_F8 = 0x77;
constexpr int VK_F9 = 0x78;
constexpr int VK_F10 = 0x79;
constexpr int VK_F11 = 0x7A;
constexpr int VK_F12 = 0x7B;
constexpr int VK_F13 = 0x7C;
constexpr int VK_F14 = 0x7D;
constexpr int VK_F15 = 0x7E;
constexpr int VK_F16 = 0x7F;
constexpr int VK_F17 = 0x80;
constexpr int VK_F18 = 0x81;
constexpr int VK_F19 = 0x82;
constexpr int VK_F20 = 0x83;
constexpr int VK_F21 = 0x84;
constexpr int VK_F22 = 0x85;
constexpr int VK_F23 = 0x86;
constexpr int VK_OEM_1 = 0xBA;
constexpr int VK_OEM_PLUS = 0xBB;
constexpr int VK_OEM_COMMA = 0xBC;
constexpr int VK_OEM_MINUS = 0xBD;
constexpr int VK_OEM_PERIOD = 0xBE;
constexpr int VK_OEM_2 = 0xBF;
constexpr int VK_OEM_3 = 0xC0;
constexpr int VK_OEM_4 = 0xDB;
constexpr int VK_OEM_5 = 0xDC;
constexpr int VK_OEM_6 = 0xDD;
constexpr int VK_OEM_7 = 0xDE;
constexpr int VK_OEM_8 = 0xDF;
constexpr int VK_OEM_102 = 0xE2;
/// @}
