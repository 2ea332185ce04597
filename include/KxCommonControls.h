/// @file KxCommonControls.h
/// @brief Tab, slider, scroll bar, spin button, tool tip and image list.
///
/// CTabCtrl serves a QTabWidget; CSliderCtrl and CScrollBar serve any QAbstractSlider. The others exist so
/// that ported code compiles, and do nothing. "Unbound" also covers a widget of another class than the one
/// named, and a null object.
#pragma once

#include "KxWindows.h"

class CBitmap;

/// @name Fields of TCITEMW
/// @{
constexpr UINT TCIF_TEXT = 0x0001;  ///< TCITEMW::pszText.
constexpr UINT TCIF_IMAGE = 0x0002; ///< TCITEMW::iImage.
constexpr UINT TCIF_PARAM = 0x0008; ///< TCITEMW::lParam.
/// @}

/// A tab, as CTabCtrl::InsertItem() takes it. No function of this library reads one.
struct TCITEMW
{
    UINT mask;         ///< Which members are valid: TCIF_ constants.
    DWORD dwState;     ///< State bits.
    DWORD dwStateMask; ///< Which bits of dwState are valid.
    wchar_t *pszText;  ///< Text; not owned.
    int cchTextMax;    ///< Size of pszText in characters.
    int iImage;        ///< Index in an image list.
    LPARAM lParam;     ///< The application's own value.
};

static_assert(offsetof(TCITEMW, dwState) == 4 && offsetof(TCITEMW, dwStateMask) == 8);
static_assert(offsetof(TCITEMW, pszText) == 16 && offsetof(TCITEMW, cchTextMax) == 24);
static_assert(offsetof(TCITEMW, iImage) == 28 && offsetof(TCITEMW, lParam) == 32 && sizeof(TCITEMW) == 40);

/// A tab control: a QTabWidget, so that each tab has a page.
class KX_MFC_EXPORT CTabCtrl : public CWnd
{
public:
    /// Makes an unbound tab control without a logical parent.
    CTabCtrl();
    /// Leaves the widget alone.
    ~CTabCtrl() override;

    /// @return the 0-based index of the current tab; -1 when there are no tabs; unbound: 0.
    int GetCurSel() const;
    /// Same as GetCurSel().
    int GetActiveTab() const;
    /// @return the number of tabs; unbound: 0.
    int GetItemCount() const;

    /// Makes a tab the current one, with the widget's signals. The current index, and one that is not of a
    /// tab, change nothing and emit nothing.
    /// @param nItem 0-based index.
    /// @return the index that was current before, -1 when there are no tabs; unbound: 0.
    int SetCurSel(int nItem);
    /// Makes a tab the current one with the widget's signals blocked.
    /// @param nItem 0-based index; Qt ignores one that is not of a tab.
    /// @return the index that was current before, -1 when there are no tabs; unbound: 0.
    int SetActiveTab(int nItem);
    /// Inserts a page with the widget's signals blocked.
    /// @param nIndex 0-based index of the new tab; below 0 or above the number of tabs: at the end.
    /// @param nTextID identifier of the string resource with the tab's text; empty if there is none.
    /// @param nImage ignored.
    /// @param pPage the page; the tab widget takes over its widget. Null, or without a widget: nothing
    /// happens.
    void AddTab(int nIndex, int nTextID, int nImage, CWnd *pPage);
    /// Takes a tab out, with the widget's signals. Its page is not deleted and stays with the tab widget.
    /// @param nItem 0-based index.
    /// @return TRUE, also for GetItemCount(), which removes nothing; FALSE for an index below 0 or above
    /// that; unbound: FALSE.
    BOOL DeleteItem(int nItem);
    /// Takes all tabs out; their pages are not deleted.
    /// @return TRUE; unbound: FALSE.
    BOOL DeleteAllItems();

    /// @name Fixed results
    /// No counterpart on this platform: these do nothing, leave their arguments alone, and give the same
    /// result for every object, bound, unbound or null.
    /// @{
    LONG InsertItem(int nItem, const wchar_t *lpszItem); ///< 0: a tab needs a page, use AddTab().
    LONG InsertItem(int nItem, TCITEMW *pTabCtrlItem);   ///< 0.
    BOOL GetItemRect(int nItem, RECT *lpRect) const;     ///< FALSE.
    void AdjustRect(bool bLarger, RECT *lpRect);         ///< Nothing.
    /// @}
};

/// A slider: any QAbstractSlider, so a QSlider, QDial or QScrollBar alike.
class KX_MFC_EXPORT CSliderCtrl : public CWnd
{
public:
    /// Makes an unbound slider without a logical parent.
    CSliderCtrl();
    /// Leaves the widget alone.
    ~CSliderCtrl() override;

    /// @return the position of the handle, which differs from the value while it is dragged without tracking;
    /// unbound: 0.
    int GetPos() const;

    /// Moves the handle, with the widget's signals, to @p nPos bounded to the range.
    void SetPos(int nPos);
    /// Sets the range and bounds the value to it, with the widget's signals.
    /// @param nMin the minimum.
    /// @param nMax the maximum; below @p nMin it counts as @p nMin.
    /// @param bRedraw ignored.
    void SetRange(int nMin, int nMax, bool bRedraw = false);
    /// Sets the page step.
    /// @return the former page step; unbound: 0.
    int SetPageSize(int nSize);
    /// Sets the single step of a QSlider. The tick marks stay as they are, unlike MFC. Any other widget:
    /// nothing.
    void SetTicFreq(int nFreq);

    /// @name Fixed results
    /// No counterpart on this platform: these do nothing, leave their arguments alone, and give the same
    /// result for every object, bound, unbound or null.
    /// @{
    int GetPageSize() const;                          ///< 0, also after SetPageSize().
    int GetLineSize() const;                          ///< 0.
    int SetLineSize(int nSize);                       ///< 0.
    int GetRangeMin() const;                          ///< 0.
    int GetRangeMax() const;                          ///< 0.
    void GetRange(int &nMin, int &nMax) const;        ///< Nothing.
    void SetRangeMin(int nMin, bool bRedraw = false); ///< Nothing.
    void SetRangeMax(int nMax, bool bRedraw = false); ///< Nothing.
    void GetSelection(int &nMin, int &nMax) const;    ///< Nothing.
    void SetSelection(int nMin, int nMax);            ///< Nothing.
    UINT GetNumTics() const;                          ///< 0.
    DWORD *GetTicArray() const;                       ///< Null.
    int GetTic(int nTic) const;                       ///< 0.
    int GetTicPos(int nTic) const;                    ///< 0.
    BOOL SetTic(int nTic);                            ///< FALSE.
    void GetChannelRect(RECT *lprc) const;            ///< Nothing.
    void GetThumbRect(RECT *lprc) const;              ///< Nothing.
    /// @}
};

/// A scroll bar: any QAbstractSlider, as for CSliderCtrl.
class KX_MFC_EXPORT CScrollBar : public CWnd
{
public:
    /// Makes an unbound scroll bar without a logical parent.
    CScrollBar();
    /// Leaves the widget alone.
    ~CScrollBar() override;

    /// Sets the value, with the widget's signals.
    /// @param nPos the value, which is bounded to the range.
    /// @param bRedraw ignored.
    /// @return the former value; unbound: 0.
    int SetScrollPos(int nPos, bool bRedraw = true);
    /// Sets the range and bounds the value to it, with the widget's signals.
    /// @param nMinPos the minimum.
    /// @param nMaxPos the maximum; below @p nMinPos it counts as @p nMinPos.
    /// @param bRedraw ignored.
    void SetScrollRange(int nMinPos, int nMaxPos, bool bRedraw = true);

    /// @name Fixed results
    /// No counterpart on this platform: these do nothing, leave their arguments alone, and give the same
    /// result for every object, bound, unbound or null.
    /// @{
    int GetScrollPos() const;                                ///< 0, also after SetScrollPos().
    void GetScrollRange(int *lpMinPos, int *lpMaxPos) const; ///< Nothing.
    /// @}
};

/// A spin button. Spin boxes are served by CEdit; this class looks at no widget.
class KX_MFC_EXPORT CSpinButtonCtrl : public CWnd
{
public:
    /// Makes an unbound spin button without a logical parent.
    CSpinButtonCtrl();
    /// Leaves the widget alone.
    ~CSpinButtonCtrl() override;

    /// @name Fixed results
    /// No counterpart on this platform: the same for every object, bound, unbound or null.
    /// @{
    CWnd *SetBuddy(CWnd *pWndBuddy);           ///< Null.
    CWnd *GetBuddy() const;                    ///< Null.
    int SetPos(int nPos);                      ///< 0.
    int GetPos() const;                        ///< 0.
    void SetRange(short nLower, short nUpper); ///< Nothing.
    void SetRange32(int nLower, int nUpper);   ///< Nothing.
    /// @}
};

/// A tool tip control, which shows nothing. Give the widgets tool tips in Qt.
class KX_MFC_EXPORT CToolTipCtrl : public CWnd
{
public:
    /// Makes an unbound tool tip control without a logical parent.
    CToolTipCtrl();
    /// Leaves the widget alone.
    ~CToolTipCtrl() override;

    using CWnd::Create;

    /// @name Fixed results
    /// No counterpart on this platform: the same for every object, bound, unbound or null.
    /// @{
    virtual BOOL Create(CWnd *pParentWnd, unsigned dwStyle = 0); ///< TRUE; no parent is recorded.
    /// TRUE, unlike the form with a text.
    BOOL AddTool(CWnd *pWnd, unsigned nIDText, const RECT *lpRectTool = nullptr, unsigned long nIDTool = 0);
    /// FALSE, unlike the form with an identifier.
    BOOL AddTool(CWnd *pWnd, const wchar_t *lpszText, const RECT *lpRectTool = nullptr,
                 unsigned long nIDTool = 0);
    void Activate(bool bActivate); ///< Nothing.
    void RelayEvent(MSG *lpMsg);   ///< Nothing.
    /// @}
};

/// An image list, which holds no images and has no base class.
class KX_MFC_EXPORT CImageList
{
public:
    /// @name Fixed results
    /// No counterpart on this platform: these do nothing, and give the same result for every object, null
    /// included.
    /// @{
    BOOL Create(int cx, int cy, unsigned nFlags, int nInitial, int nGrow); ///< TRUE.
    int Add(CBitmap *pbmImage, unsigned crMask);                           ///< 0.
    int Add(HICON hIcon);                                                  ///< 0.
    COLORREF SetBkColor(unsigned cr);                                      ///< 0.
    HICON ExtractIconW(int nImage);                                        ///< Null.
    BOOL DeleteImageList();                                                ///< FALSE.
    /// @}
};
