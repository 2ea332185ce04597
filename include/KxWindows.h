/// @file KxWindows.h
/// @brief CWnd, the window object, and the registry of window handles.
///
/// The application makes its widgets with Qt. It binds a window object to each one that ported code works
/// with (CWnd::Attach(), CWnd::SubclassDlgItem(), DDX_Control()) and tells a dialog its controls
/// (CWnd::SetDlgItem()). A handle is the address of the widget, converted to QWidget first:
/// `reinterpret_cast<HWND>(static_cast<QWidget *>(&form))`. The control classes of KxControls.h and the
/// dialogs of KxDialogs.h derive from CWnd; KxUser32.h has the functions that take handles.
#pragma once

#include "KxGeometry.h"
#include "KxString.h"
#include "KxWinTypes.h"

#include <QList>

#include <map>

class CDataExchange;
class CDC;
class CFont;
class CMenu;
class CRgn;
class CWnd;
struct CCreateContext;
struct CRuntimeClass;
struct CWndPrivate;

/// The handle registry: at most one window object per handle.
///
/// CWnd::SetHandle() alone inserts, the CWnd destructor alone erases. A widget that Qt destroys leaves its
/// entry.
extern KX_MFC_EXPORT std::map<HWND, CWnd *> CWndHandleTable;

/// An empty list for ported code that keeps its windows in it. The library never touches it.
extern KX_MFC_EXPORT QList<CWnd *> CWndList;

/// Makes a library-owned window object (a wrapper) bound to @p h.
///
/// The wrapper is deleted by the library when another object binds @p h, or when the window whose child map
/// lists @p h is destroyed; otherwise it lives until the process exits. A null @p h gives an unbound wrapper.
/// @return the wrapper; the caller does not own it.
KX_MFC_EXPORT CWnd *CreateCWndByHandle(HWND h);

/// A window object bound to one QWidget, whose address is the window's handle.
///
/// A CWnd creates no widget and remembers nothing about one: each call looks at the widget as it is now.
///
/// **Guard.** Nearly every member may be called through a null object (an address of 4095 or below), because
/// ported code chains calls on unchecked lookups; the result is then that address converted to the result
/// type, thus 0 or null. Members under "fixed results" give their result for every object. A virtual member
/// has this guard only when it is called non-virtually, as in `window->CWnd::SetFocus()`. Callers that rely
/// on the guard have to be compiled with `-fno-delete-null-pointer-checks`, which the CMake target
/// Kx::MFCWrapper brings along.
///
/// **Unbound.** A window object without a widget, be it never bound, detached, replaced by another object
/// bound to its handle, or left behind by a widget that Qt destroyed, changes nothing and gives the value
/// named "unbound" below.
///
/// The GUI thread alone may call this class.
class KX_MFC_EXPORT CWnd : public CObject
{
public:
    /// The bound handle. Written once, by SetHandle(); it keeps its value when the object becomes unbound.
    HWND m_hWnd = nullptr;

    /// An unbound window object for ported code that names it as an insertion position.
    static CWnd wndTop;

    /// @name Construction and binding
    /// @{

    /// Makes an unbound, application-owned window object.
    /// @param pParent the logical parent, which need not be the widget's Qt parent; not owned.
    explicit CWnd(CWnd *pParent = nullptr);

    /// Deletes the widget if SetAutoDelete() asked for it, takes the handle's entry, whichever object it maps
    /// to, out of the registry, and deletes the library's wrappers of the registered children, and the device
    /// context. Application-owned child objects and child widgets are left alone.
    ~CWnd() override;

    /// Binds this object to @p h and registers it.
    ///
    /// An object is bound once: with a null @p h, or when a handle was set before, nothing happens. Another
    /// object registered for @p h becomes unbound; if it is a wrapper of the library it is deleted and this
    /// object takes its registration, while an application's object keeps its registration and this object
    /// gets none.
    /// @param h the address of a living QWidget. A number up to 0xFFFF is none: this object is then
    /// registered under it and stays unbound.
    void SetHandle(HWND h);

    /// SetHandle() in MFC's shape.
    /// @return FALSE when @p h is null, else TRUE, also when this object was bound already and the call was
    /// ignored.
    BOOL Attach(HWND h);

    /// Unbinds this object, which keeps #m_hWnd, and makes a wrapper for the handle.
    ///
    /// An application's object stays registered for the handle, so that the wrapper is not registered; a
    /// wrapper of the library is deleted here, and the new wrapper takes its registration.
    /// @return the handle; null when unbound.
    HWND Detach();

    /// Says what is deleted with what. The names follow the callers; the first flag works against its name.
    /// @param bFirst true: the library never deletes this object. false: the library owns it like a wrapper.
    /// @param bSecond true: the destructor deletes the widget.
    void SetAutoDelete(bool bFirst, bool bSecond);

    /// Binds this object to the child that @p pParent registered under @p nID, replacing the library's
    /// wrapper of that child, and calls PreSubclassWindow().
    /// @return TRUE when the child was found, and at once when this object has a handle already; FALSE when
    /// @p pParent is null or has no such child, and when Qt has destroyed the child's widget.
    BOOL SubclassDlgItem(UINT nID, CWnd *pParent);
    /// @}

    /// @name Objects of handles
    /// @{

    /// @return the object registered for @p h; null when there is none. Never makes a wrapper, unlike MFC.
    static CWnd *FromHandle(HWND h);
    /// Same as FromHandle().
    static CWnd *FromHandlePermanent(HWND h);
    /// @}

    /// @name Handle, parent and controls
    /// @{

    /// @return the handle while this object is bound, else null.
    operator HWND() const;

    /// @return the logical parent; unbound: null.
    CWnd *GetParent() const;
    /// Makes @p pWndNewParent, which is not owned and may be null, the logical parent. The widget's Qt parent
    /// stays.
    /// @return the former one; unbound: null, and nothing is stored.
    CWnd *SetParent(CWnd *pWndNewParent);

    /// Sets this window's control identifier to @p nID; unbound: nothing.
    void SetCtrlID(int nID);
    /// @return this window's control identifier, -1 if none was set; unbound: 0.
    int GetDlgCtrlID() const;

    /// Registers @p h as this window's control @p nID. Ported dialogs tell their controls this way.
    ///
    /// An identifier keeps the first handle registered under it. Qt may give the address of a destroyed
    /// widget to a new one: an object that was left behind under this handle is then bound to the new widget,
    /// which it does not delete, whatever SetAutoDelete() said.
    /// @param nID the control's identifier.
    /// @param h the address of a living QWidget, or null.
    /// @return non-zero; unbound: 0.
    BOOL SetDlgItem(int nID, HWND h);

    /// Finds the object of control @p nID, making a wrapper the first time a handle has none, and sets its
    /// parent and control identifier.
    /// @return the object; for an unknown identifier, and for a control without an object whose handle is
    /// null or whose widget is gone, one shared unbound object, so that chained calls do nothing; unbound:
    /// null. The caller owns none of them.
    CWnd *GetDlgItem(int nID) const;
    /// GetDlgItem() for its effects only: @p phWnd is not written, unlike MFC.
    void GetDlgItem(int nID, HWND *phWnd) const;

    /// @return GetDlgItem() of the registered identifier that follows @p nID; null when none does; unbound:
    /// null.
    CWnd *GetNextCWndFromID(int nID) const;
    /// @return the parent's next control, by ascending identifiers, for GW_HWNDNEXT; null for any other @p
    /// nFlag, without a parent, and unbound.
    CWnd *GetNextWindow(UINT nFlag = GW_HWNDNEXT) const;
    /// @return the control with the smallest identifier for GW_CHILD; null for any other @p nCmd, without
    /// controls, and unbound.
    CWnd *GetWindow(UINT nCmd) const;
    /// @return GetDlgItem() of @p nID; grandchildren are not searched, unlike MFC, and @p bOnlyPerm is
    /// ignored. Unbound: null.
    CWnd *GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;
    /// @}

    /// @name Window text
    /// @{

    /// @return the length in characters of the text that GetWindowTextW() reads; unbound: 0.
    int GetWindowTextLengthW();
    /// Reads the text of control @p nID. @p rString is left as it was when the identifier is unknown.
    /// @return the length of @p rString; unbound: 0.
    int GetDlgItemTextW(int nID, CString &rString) const;
    /// Sets the text of control @p nID; null @p lpszString, unknown identifier or unbound: nothing.
    void SetDlgItemTextW(int nID, const wchar_t *lpszString);
    /// @}

    /// @name Rectangles and coordinates
    /// Rectangles carry Qt's inclusive right and bottom (left + width - 1). A null argument is left alone.
    /// @{

    /// Gives the window's position on the screen with the size of its frame; see the free GetWindowRect().
    void GetWindowRect(RECT *lpRect) const;
    /// Maps a point from the widget to the screen, in pixels.
    void ClientToScreen(POINT *lpPoint) const;
    /// Moves the widget to (x, y) in its parent's coordinates, in pixels. @p nWidth, @p nHeight and @p
    /// bRepaint are ignored: the size stays, unlike MFC.
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    /// Moves the widget to (x, y) unless @p cx and @p cy are both positive; then nothing happens. Neither the
    /// size nor the stacking order changes, and @p nFlags is ignored, SWP_NOMOVE included, unlike Win32.
    /// @return TRUE.
    BOOL SetWindowPos(const CWnd *pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    /// @}

    /// @name Showing and enabling
    /// @{

    /// Hides the widget when @p nCmdShow is SW_HIDE and shows it for every other command.
    /// @return TRUE, not the former state as in Win32; unbound: 0.
    BOOL ShowWindow(int nCmdShow);
    /// @return whether the widget is visible; unbound: 0.
    BOOL IsWindowVisible() const;
    /// @return whether the widget is enabled; unbound: TRUE.
    BOOL IsWindowEnabled() const;
    /// Enables the widget unless @p bEnable is 0, else disables it.
    /// @return whether the widget was enabled before, the opposite of Win32; unbound: TRUE.
    BOOL EnableWindow(BOOL bEnable = TRUE);
    /// @}

    /// @name Focus
    /// @{

    /// @return the object registered for the widget that has the focus, or null.
    static CWnd *GetFocus();
    /// @}

    /// @name Styles
    /// @{

    /// Enables (WS_DISABLED removed, nothing added) or disables (WS_DISABLED added, nothing removed) the
    /// widget. Every other combination changes nothing; @p nFlags is ignored.
    /// @return TRUE; unbound: FALSE.
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    /// @}

    /// @name Painting and the device context
    /// @{

    /// Schedules a repaint of the whole widget; @p bErase is ignored.
    void Invalidate(BOOL bErase = TRUE);
    /// Invalidate(): the whole widget is repainted and the rectangle ignored, unlike MFC.
    void InvalidateRect(const RECT *lpRect, BOOL bErase = TRUE);
    /// @return this window's one device context, made on the first call and owned by the window; unbound:
    /// null.
    CDC *GetDC();
    /// @}

    /// @name Check and radio buttons of a dialog
    /// A control counts when its handle is a QAbstractButton; every other one is skipped.
    /// @{

    /// @return 1 when button @p nIDButton is checked, else 0; 0 when there is no such button.
    UINT IsDlgButtonChecked(int nIDButton) const;
    /// Checks button @p nIDButton when @p nCheck is not 0, so BST_INDETERMINATE checks as well; else unchecks
    /// it.
    void CheckDlgButton(int nIDButton, UINT nCheck);
    /// Unchecks every button from @p nIDFirst to @p nIDLast, both included, and checks @p nIDCheckButton if
    /// it is among them.
    void CheckRadioButton(int nIDFirst, int nIDLast, int nIDCheckButton);
    /// @return the first identifier from @p nIDFirst to @p nIDLast whose button is checked; 0 when none is.
    int GetCheckedRadioButton(int nIDFirst, int nIDLast) const;
    /// @}

    /// @name Messages and data exchange
    /// @{

    /// Calls this object's WindowProc() directly; neither the free SendMessageW() nor an event takes part.
    /// @return its result; 0 for a null object.
    LRESULT SendMessageW(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    /// Runs DoDataExchange(), also when unbound (each exchange then skips its control).
    /// @param bSaveAndValidate TRUE: controls to members. FALSE: members to controls.
    /// @return FALSE when the exchange called CDataExchange::Fail(), else TRUE.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    /// The free MessageBoxW(); this window does not become the box's owner.
    /// @return as the free MessageBoxW(), whether bound or not; 0 for a null object.
    int MessageBoxW(const wchar_t *lpszText, const wchar_t *lpszCaption = nullptr, UINT nType = MB_OK);
    /// @}

    /// @name Virtual operations
    /// In the order of their table, which is part of the binary interface.
    /// @{

    /// Takes note of a logical parent; creates no widget, unlike MFC.
    ///
    /// @p pParent, which is not owned, is recorded when this object is bound. The other arguments are
    /// ignored.
    /// @return TRUE, bound or not.
    virtual BOOL Create(const wchar_t *lpszClassName, const wchar_t *lpszWindowName, DWORD dwStyle,
                        const RECT &rect, CWnd *pParent, UINT nID, CCreateContext *pContext = nullptr);
    /// Fixed result: null.
    virtual CWnd *GetCapture();
    /// Fixed result: null.
    virtual CWnd *SetCapture();
    /// @return #m_hWnd as it is stored, also after Detach(); null for a null object.
    virtual HWND GetSafeHwnd();
    /// @return the device of the context that GetDC() made; null when it made none or the window is unbound.
    virtual HDC GetSafeHdc();
    /// Gives the widget's inside: left and top 0, right width - 1, bottom height - 1. Unbound: nothing is
    /// written.
    virtual void GetClientRect(RECT *lpRect);
    /// Called by SubclassDlgItem() after binding. Does nothing.
    virtual void PreSubclassWindow();
    /// Called by UpdateData(). Does nothing.
    virtual void DoDataExchange(CDataExchange *pDX);
    /// Called by no message loop. @return TRUE.
    virtual BOOL PreTranslateMessage(MSG *pMsg);
    /// Sets the text that the kind of widget shows, tried in this order: QLineEdit text, QDoubleSpinBox and
    /// QSpinBox value (the text as a number, 0 when it is none, with the widget's signals blocked), QLabel
    /// text, QGroupBox title, QAbstractButton text, QComboBox edit text, QTextEdit text, else the window
    /// title.
    /// @param lpszString the text; null: nothing happens. Unbound: nothing.
    virtual void SetWindowTextW(const wchar_t *lpszString);
    /// Reads the text that the kind of widget shows, tried in this order: QLineEdit text, displayed text of a
    /// spin box with its prefix and suffix, QLabel text, QGroupBox title, QAbstractButton text, edit text of
    /// an editable QComboBox or current text of another, plain text of a QTextEdit, else the window title.
    /// @param rString receives the text; unbound: left as it was.
    virtual void GetWindowTextW(CString &rString);
    /// Reads the text into a buffer: at most @p nMaxCount - 1 characters, always ended by a null at @p
    /// nMaxCount - 1, with nulls between the text's end and there.
    /// @param lpszBuffer receives the text; owned by the caller.
    /// @param nMaxCount size of @p lpszBuffer in characters; below 1: nothing is written.
    /// @return the length of what is in the buffer now; 0 when nothing was written; unbound: 0.
    virtual int GetWindowTextW(wchar_t *lpszBuffer, int nMaxCount);
    /// Fixed result: null.
    virtual CMenu *GetMenu();
    /// Fixed result: TRUE.
    virtual BOOL SetMenu(CMenu *pMenu);
    /// @return TRUE.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    /// Receives SendMessageW() of this object, and the seven application messages that the free
    /// SendMessageW() routes to objects. @return 0.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Fixed result: 0.
    virtual BOOL SetForegroundWindow();
    /// Gives the widget the keyboard focus.
    /// @return the object registered for the widget that had the focus, or null; unbound: null.
    virtual CWnd *SetFocus();
    /// @}

    /// @name Fixed results
    /// No counterpart on this platform: these do nothing, leave their arguments alone, and give the same
    /// result for every object, bound, unbound or null.
    /// @{
    BOOL SubclassWindow(HWND h);                                      ///< TRUE.
    CWnd *GetParentOwner() const;                                     ///< Null.
    CWnd *GetTopLevelParent() const;                                  ///< Null.
    CWnd *GetOwner() const;                                           ///< Null.
    void SetOwner(CWnd *pOwnerWnd);                                   ///< Nothing.
    void ClientToScreen(RECT *lpRect) const;                          ///< Nothing.
    void ScreenToClient(POINT *lpPoint) const;                        ///< Nothing.
    void ScreenToClient(RECT *lpRect) const;                          ///< Nothing.
    void MapWindowPoints(CWnd *pwndTo, RECT *lpRect) const;           ///< Nothing.
    void MoveWindow(const RECT *lpRect, BOOL bRepaint = TRUE);        ///< Nothing.
    void CenterWindow(CWnd *pAlternateOwner = nullptr);               ///< Nothing.
    void BringWindowToTop();                                          ///< Nothing.
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0); ///< TRUE.
    DWORD GetStyle() const;                                           ///< 0.
    void UpdateWindow();                                              ///< Nothing.
    void SetRedraw(BOOL bRedraw = TRUE);                              ///< Nothing.
    void LockWindowUpdate();                                          ///< Nothing.
    void UnlockWindowUpdate();                                        ///< Nothing.
    BOOL RedrawWindow(const RECT *lpRectUpdate = nullptr, CRgn *prgnUpdate = nullptr,
                      UINT flags = 0);                ///< TRUE.
    int ReleaseDC(CDC *pDC);                          ///< 0; the context stays with the window.
    CDC *GetWindowDC();                               ///< Null.
    void SetFont(CFont *pFont, BOOL bRedraw = TRUE);  ///< Nothing.
    CFont *GetFont() const;                           ///< Null.
    HICON SetIcon(HICON hIcon, BOOL bBigIcon);        ///< Null.
    HICON GetIcon(BOOL bBigIcon) const;               ///< Null.
    BOOL EnableToolTips(BOOL bEnable = TRUE);         ///< TRUE.
    BOOL IsKindOf(const CRuntimeClass *pClass) const; ///< TRUE.
    void BeginWaitCursor();                           ///< Nothing.
    void EndWaitCursor();                             ///< Nothing.
    BOOL PostMessageW(UINT message, WPARAM wParam = 0, LPARAM lParam = 0); ///< TRUE; nothing is posted.
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT *pResult); ///< FALSE.
    LRESULT Default();                                                                ///< 0.
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer); ///< 0; there are no timers.
    BOOL KillTimer(UINT_PTR nIDEvent);                                       ///< TRUE.
    /// @}

    /// @name Message handlers
    /// For ported handlers that call their base class. They are not virtual and no event of the widget
    /// reaches them.
    /// @{
    int OnCreate(CREATESTRUCTW *lpCreateStruct);             ///< 1.
    void OnPaint();                                          ///< Nothing.
    void OnLButtonDown(UINT nFlags, CPoint point);           ///< Nothing.
    void OnLButtonUp(UINT nFlags, CPoint point);             ///< Nothing.
    void OnMouseMove(UINT nFlags, CPoint point);             ///< Nothing.
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt); ///< FALSE.
    void OnTimer(UINT_PTR nIDEvent);                         ///< Nothing.
    void OnSize(UINT nType, int cx, int cy);                 ///< Nothing.
    void OnSizing(UINT nSide, RECT *lpRect);                 ///< Nothing.
    void OnClose();                                          ///< Nothing.
    void OnDestroy();                                        ///< Nothing.
    HBRUSH OnCtlColor(CDC *pDC, CWnd *pWnd, UINT nCtlColor); ///< Null.
    void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);      ///< Nothing.
    void OnGetMinMaxInfo(MINMAXINFO *lpMMI);                 ///< Nothing.
    /// @}

protected:
    /// For subclasses with private data of their own.
    /// @param d private data made with `new`; this object takes it over and deletes it.
    /// @param pParent the logical parent; not owned.
    CWnd(CWndPrivate &d, CWnd *pParent);

private:
    friend struct CWndPrivate;
    CWndPrivate *d_ptr;
};
