/// @file KxButtons.h
/// @brief Push buttons, check boxes and radio buttons: CButton, over any QAbstractButton.
#pragma once

#include "KxWindows.h"

/// A button: any QAbstractButton, so push buttons, check boxes and radio buttons alike.
///
/// "Unbound" also covers a widget of another class and a null object.
class KX_MFC_EXPORT CButton : public CWnd
{
public:
    /// Makes an unbound button without a logical parent.
    CButton();
    /// Leaves the widget alone.
    ~CButton() override;

    /// @return BST_CHECKED when the button is checked, a partially checked box included, else BST_UNCHECKED;
    /// never BST_INDETERMINATE. Unbound: 0.
    int GetCheck() const;
    /// @return 3 when the button is checked, else 0. The pushed and focus bits of MFC are never reported.
    /// Unbound: 0.
    UINT GetState() const;

    /// Checks the button when @p nCheck is not 0, so BST_INDETERMINATE checks as well. Its signals are
    /// emitted. Unbound: nothing.
    void SetCheck(int nCheck);
    /// Makes a picture the button's icon, drawn in the button's icon size.
    /// @param hBitmap a handle of the platform's GDI objects, copied: it may be deleted afterwards. One that
    /// is of no live bitmap changes nothing.
    /// @return null: the former bitmap is not reported, unlike MFC.
    HBITMAP SetBitmap(HBITMAP hBitmap);

    /// Fixed result: null; the icon is not shown. The same for every object, bound, unbound or null.
    HICON SetIcon(HICON hIcon);
};

/// A button with bitmaps: a button that loads none. Set the icon of the QAbstractButton.
class KX_MFC_EXPORT CBitmapButton : public CButton
{
public:
    /// Makes an unbound button without a logical parent.
    CBitmapButton();
    /// Leaves the widget alone.
    ~CBitmapButton() override;

    /// @name Fixed results
    /// No counterpart on this platform: these load nothing, and give the same result for every object, bound,
    /// unbound or null.
    /// @{

    /// @return FALSE.
    BOOL LoadBitmaps(const wchar_t *lpszBitmapResource, const wchar_t *lpszBitmapResourceSel = nullptr,
                     const wchar_t *lpszBitmapResourceFocus = nullptr,
                     const wchar_t *lpszBitmapResourceDisabled = nullptr);
    /// @return FALSE.
    BOOL LoadBitmaps(unsigned nIDBitmapResource, unsigned nIDBitmapResourceSel = 0,
                     unsigned nIDBitmapResourceFocus = 0, unsigned nIDBitmapResourceDisabled = 0);
    /// @return TRUE, so that dialogs that test it go on.
    BOOL AutoLoad(unsigned nID, CWnd *pParent);
    /// @}
};
