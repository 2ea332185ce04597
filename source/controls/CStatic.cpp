#include "BitmapPixmap.h"
#include "KxEditControls.h"
#include "windows/KxGuard.h"

#include <QLabel>

CStatic::CStatic() = default;

CStatic::~CStatic() = default;

BOOL CStatic::Create(const wchar_t *lpszText, unsigned dwStyle, const RECT &rect, CWnd *pParentWnd,
                     unsigned nID)
{
    if (isNullObject(this))
        return FALSE;
    // Ported overrides return truth values; only the low byte of them counts.
    return BYTE(Create(L"STATIC", lpszText, dwStyle, rect, pParentWnd, nID, nullptr));
}

void CStatic::SetWindowTextW(const wchar_t *lpszString)
{
    CWnd::SetWindowTextW(lpszString);
}

void CStatic::GetWindowTextW(CString &rString)
{
    CWnd::GetWindowTextW(rString);
}

HBITMAP CStatic::SetBitmap(HBITMAP hBitmap)
{
    auto *label = boundWidget<QLabel>(this);
    if (!label)
        return nullptr;
    const QPixmap pixmap = bitmapPixmap(hBitmap);
    if (!pixmap.isNull())
        label->setPixmap(pixmap);
    return nullptr;
}

HICON CStatic::SetIcon(HICON)
{
    return nullptr;
}

HBITMAP CStatic::GetBitmap() const
{
    return nullptr;
}
