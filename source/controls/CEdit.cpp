#include "KxEditControls.h"
#include "foundation/QtConversions.h"
#include "foundation/TextBuffers.h"
#include "windows/KxGuard.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTextEdit>

#include <algorithm>

template <typename... Widgets> static bool isBoundToOneOf(const CWnd *window)
{
    const QWidget *widget = boundWidget(window);
    return (qobject_cast<const Widgets *>(widget) || ...);
}

CEdit::CEdit() = default;

CEdit::~CEdit() = default;

// An edit control takes fewer kinds of widgets than a window, and does the same with them.
void CEdit::SetWindowTextW(const wchar_t *lpszString)
{
    if (isBoundToOneOf<QLineEdit, QDoubleSpinBox, QSpinBox, QTextEdit>(this))
        CWnd::SetWindowTextW(lpszString);
}

// Ported code relies on a text edit being written but not read.
void CEdit::GetWindowTextW(CString &rString)
{
    if (isBoundToOneOf<QLineEdit, QAbstractSpinBox>(this))
        CWnd::GetWindowTextW(rString);
}

int CEdit::GetWindowTextW(wchar_t *lpszBuffer, int nMaxCount)
{
    if (isNullObject(this) || nMaxCount < 1)
        return 0;
    CString text;
    GetWindowTextW(text);
    return copyToBuffer(text, lpszBuffer, nMaxCount);
}

int CEdit::GetWindowTextLengthW()
{
    return CWnd::GetWindowTextLengthW();
}

int CEdit::GetLine(int, wchar_t *lpszBuffer, int nMaxLength) const
{
    const auto *edit = boundWidget<QLineEdit>(this);
    if (!edit || !lpszBuffer || nMaxLength < 1)
        return 0;
    std::fill_n(lpszBuffer, nMaxLength, L'\0');
    return edit->text().left(nMaxLength).toWCharArray(lpszBuffer);
}

void CEdit::SetReadOnly(bool bReadOnly)
{
    if (auto *edit = boundWidget<QLineEdit>(this))
        edit->setReadOnly(bReadOnly);
    else if (auto *textEdit = boundWidget<QTextEdit>(this))
        textEdit->setReadOnly(bReadOnly);
}

void CEdit::SetLimitText(unsigned nMaxChars)
{
    if (auto *edit = boundWidget<QLineEdit>(this))
        edit->setMaxLength(int(nMaxChars));
}

void CEdit::SetSel(unsigned, bool) {}

void CEdit::SetSel(int, int, bool) {}

DWORD CEdit::GetSel() const
{
    return 0;
}

void CEdit::GetSel(int &, int &) const {}

void CEdit::ReplaceSel(const wchar_t *, bool) {}

void CEdit::SetModify(bool) {}

BOOL CEdit::GetModify() const
{
    return TRUE;
}

BOOL CEdit::Undo()
{
    return TRUE;
}

void CEdit::Clear() {}

void CEdit::Copy() {}

void CEdit::Cut() {}

void CEdit::Paste() {}

CRichEditCtrl::CRichEditCtrl() = default;

CRichEditCtrl::~CRichEditCtrl() = default;

DWORD CRichEditCtrl::SetEventMask(unsigned)
{
    return 0;
}

DWORD CRichEditCtrl::GetEventMask() const
{
    return 0;
}
