/// @file KxEditControls.h
/// @brief Edit and static controls: CEdit, CRichEditCtrl and CStatic.
///
/// In the control classes "unbound" also covers a widget of another class than the one named, and a null
/// object: nothing changes, and the result is the failure value given. Members under "fixed results" look at
/// no widget and give their result for every object.
#pragma once

#include "KxWindows.h"

/// An edit control: a QLineEdit, QTextEdit, QSpinBox or QDoubleSpinBox. A QPlainTextEdit is none.
class KX_MFC_EXPORT CEdit : public CWnd
{
public:
    /// Makes an unbound edit control without a logical parent.
    CEdit();
    /// Leaves the widget alone.
    ~CEdit() override;

    /// @return the length in characters of the text that GetWindowTextW() reads, thus 0 for a QTextEdit;
    /// unbound: 0.
    int GetWindowTextLengthW();
    /// Copies the text of a QLineEdit, which counts as one line, and fills the rest of @p lpszBuffer with
    /// nulls. A text that fills the buffer gets no null at its end, as in Win32.
    /// @param nIndex ignored.
    /// @param lpszBuffer receives the text; null: nothing is copied.
    /// @param nMaxLength size of @p lpszBuffer in characters; below 1: nothing is copied. The text is cut
    /// there by Qt's count, in which a character above U+FFFF takes two places.
    /// @return the number of characters copied; unbound: 0, and nothing is written.
    int GetLine(int nIndex, wchar_t *lpszBuffer, int nMaxLength) const;

    /// Makes a QLineEdit or QTextEdit read-only or editable; a spin box stays as it is.
    void SetReadOnly(bool bReadOnly = true);
    /// Sets the maximum length of a QLineEdit, which shortens a longer text. Other widgets: nothing.
    /// @param nMaxChars the length as QLineEdit counts it. 0 lets no text in; it does not mean unlimited,
    /// unlike MFC.
    void SetLimitText(unsigned nMaxChars = 0);

    /// Sets the text of a QLineEdit or QTextEdit, with their signals, or the value of a QDoubleSpinBox or
    /// QSpinBox (the text as a number, 0 when it is none), with the widget's signals blocked.
    /// @param lpszString the text; null: nothing happens. Unbound: nothing.
    void SetWindowTextW(const wchar_t *lpszString) override;
    /// Reads the text of a QLineEdit, or the displayed text of any spin box with its prefix and suffix. A
    /// QTextEdit is not read, although SetWindowTextW() writes it.
    /// @param rString receives the text; unbound, or a QTextEdit: left as it was.
    void GetWindowTextW(CString &rString) override;
    /// Reads the text into a buffer: at most @p nMaxCount - 1 characters, nulls in the rest. Where there is
    /// no text to read, unbound included, the buffer is filled with nulls, unlike CWnd's.
    /// @param lpszBuffer receives the text; null: nothing is written.
    /// @param nMaxCount size of @p lpszBuffer in characters; below 1: nothing is written.
    /// @return the length of what is in the buffer now; 0 when nothing was written. A null object: 0, and
    /// nothing is written.
    int GetWindowTextW(wchar_t *lpszBuffer, int nMaxCount) override;

    /// @name Fixed results
    /// No counterpart on this platform: these do nothing, leave their arguments alone, and give the same
    /// result for every object, bound, unbound or null.
    /// @{
    void SetSel(unsigned dwSelection, bool bNoScroll = false);          ///< Nothing.
    void SetSel(int nStartChar, int nEndChar, bool bNoScroll = false);  ///< Nothing.
    DWORD GetSel() const;                                               ///< 0.
    void GetSel(int &nStartChar, int &nEndChar) const;                  ///< Nothing.
    void ReplaceSel(const wchar_t *lpszNewText, bool bCanUndo = false); ///< Nothing.
    void SetModify(bool bModified = true);                              ///< Nothing.
    BOOL GetModify() const;                                             ///< TRUE, also when never edited.
    BOOL Undo();                                                        ///< TRUE; nothing is undone.
    void Clear();                                                       ///< Nothing.
    void Copy();                                                        ///< Nothing.
    void Cut();                                                         ///< Nothing.
    void Paste();                                                       ///< Nothing.
    /// @}
};

/// A rich edit control: an edit control that has no more of its own than the fixed results.
class KX_MFC_EXPORT CRichEditCtrl : public CEdit
{
public:
    /// Makes an unbound rich edit control without a logical parent.
    CRichEditCtrl();
    /// Leaves the widget alone.
    ~CRichEditCtrl() override;

    /// @name Fixed results
    /// No counterpart on this platform: the same for every object, bound, unbound or null.
    /// @{
    DWORD SetEventMask(unsigned dwEventMask); ///< 0; no control sends notifications.
    DWORD GetEventMask() const;               ///< 0.
    /// @}
};

/// A static control: a QLabel. Its text operations work on any widget, as those of CWnd do.
class KX_MFC_EXPORT CStatic : public CWnd
{
public:
    /// Makes an unbound static control without a logical parent.
    CStatic();
    /// Leaves the widget alone.
    ~CStatic() override;

    /// Shows a picture in the QLabel in place of its text.
    /// @param hBitmap a handle of the platform's GDI objects, copied: it may be deleted afterwards. One that
    /// is of no live bitmap changes nothing.
    /// @return null: the former bitmap is not reported, unlike MFC.
    HBITMAP SetBitmap(HBITMAP hBitmap);

    /// Sets the text as CWnd::SetWindowTextW() does.
    void SetWindowTextW(const wchar_t *lpszString) override;
    using CWnd::GetWindowTextW;
    /// Reads the text as CWnd::GetWindowTextW() does.
    void GetWindowTextW(CString &rString) override;
    using CWnd::Create;
    /// Calls the virtual CWnd::Create() of this object for the window class "STATIC"; creates no widget,
    /// unlike MFC.
    /// @return the low byte of that call's result: CWnd's gives TRUE.
    virtual BOOL Create(const wchar_t *lpszText, unsigned dwStyle, const RECT &rect, CWnd *pParentWnd,
                        unsigned nID = 0xFFFF);

    /// @name Fixed results
    /// No counterpart on this platform: these do nothing, and give the same result for every object, bound,
    /// unbound or null.
    /// @{
    HICON SetIcon(HICON hIcon); ///< Null.
    HBITMAP GetBitmap() const;  ///< Null, also after SetBitmap().
    /// @}
};
