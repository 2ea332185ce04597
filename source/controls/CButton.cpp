#include "BitmapPixmap.h"
#include "KxButtons.h"
#include "windows/KxGuard.h"

#include <QAbstractButton>

CButton::CButton() = default;

CButton::~CButton() = default;

int CButton::GetCheck() const
{
    const auto *button = boundWidget<QAbstractButton>(this);
    return button && button->isChecked() ? int(BST_CHECKED) : int(BST_UNCHECKED);
}

UINT CButton::GetState() const
{
    // Ported code compares a checked button's state with 3.
    return GetCheck() ? 3 : 0;
}

void CButton::SetCheck(int nCheck)
{
    if (auto *button = boundWidget<QAbstractButton>(this))
        button->setChecked(nCheck != 0);
}

HBITMAP CButton::SetBitmap(HBITMAP hBitmap)
{
    auto *button = boundWidget<QAbstractButton>(this);
    if (!button)
        return nullptr;
    const QPixmap pixmap = bitmapPixmap(hBitmap);
    if (!pixmap.isNull())
        button->setIcon(QIcon(pixmap));
    return nullptr;
}

HICON CButton::SetIcon(HICON)
{
    return nullptr;
}

CBitmapButton::CBitmapButton() = default;

CBitmapButton::~CBitmapButton() = default;

BOOL CBitmapButton::LoadBitmaps(const wchar_t *, const wchar_t *, const wchar_t *, const wchar_t *)
{
    return FALSE;
}

BOOL CBitmapButton::LoadBitmaps(unsigned, unsigned, unsigned, unsigned)
{
    return FALSE;
}

BOOL CBitmapButton::AutoLoad(unsigned, CWnd *)
{
    return TRUE;
}
