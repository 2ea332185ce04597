/// @file KxListControlTypes.h
/// @brief Records and constants of the list control and of its header control.
///
/// The records are in the published 64-bit layouts. A field that the controls neither read nor write is said
/// to be not used; the constants are those that ported code names.
#pragma once

#include "KxWinTypes.h"

#include <QList>

/// An item or sub-item of a list control.
struct LVITEMW
{
    UINT mask;        ///< LVIF_ values. CListCtrl::GetItem() alone looks at them.
    int iItem;        ///< 0-based row.
    int iSubItem;     ///< 0-based column.
    UINT state;       ///< Not used.
    UINT stateMask;   ///< Not used.
    wchar_t *pszText; ///< The text; null counts as the empty text.
    int cchTextMax;   ///< Not used.
    int iImage;       ///< Not used.
    LPARAM lParam;    ///< The item data.
    int iIndent;      ///< Not used.
    int iGroupId;     ///< Not used.
    UINT cColumns;    ///< Not used.
    UINT *puColumns;  ///< Not used.
    int *piColFmt;    ///< Not used.
    int iGroup;       ///< Not used.
};

/// A column of a list control.
struct LVCOLUMNW
{
    UINT mask;        ///< Not used: the text counts whatever the mask says.
    int fmt;          ///< Not used.
    int cx;           ///< Not used.
    wchar_t *pszText; ///< The heading; null counts as the empty text.
    int cchTextMax;   ///< Not used.
    int iSubItem;     ///< Not used.
    int iImage;       ///< Not used.
    int iOrder;       ///< Not used.
    int cxMin;        ///< Not used.
    int cxDefault;    ///< Not used.
    int cxIdeal;      ///< Not used.
};

/// An item, thus a column heading, of a header control.
struct HDITEMW
{
    UINT mask;        ///< Set to HDI_TEXT by CHeaderCtrl::GetItem() and never looked at.
    int cxy;          ///< Not used.
    wchar_t *pszText; ///< The heading.
    HBITMAP hbm;      ///< Not used.
    int cchTextMax;   ///< Not used.
    int fmt;          ///< Not used.
    LPARAM lParam;    ///< Not used.
    int iImage;       ///< Not used.
    int iOrder;       ///< Not used.
    UINT type;        ///< Not used.
    void *pvFilter;   ///< Not used.
    UINT state;       ///< Not used.
};

/// What a POSITION points at during a walk over the selection of a plain table view.
///
/// CListCtrl::GetFirstSelectedItemPosition() allocates it with `new`, and CListCtrl::GetNextSelectedItem()
/// deletes it at the end of the walk. Code that abandons a walk may delete it itself.
struct LIST_POSITION
{
    int m_nRow;                ///< The row that the next call gives.
    QList<int> m_listReturned; ///< The rows given so far.
};

static_assert(offsetof(LVITEMW, iSubItem) == 8 && offsetof(LVITEMW, pszText) == 24);
static_assert(offsetof(LVITEMW, cchTextMax) == 32 && offsetof(LVITEMW, lParam) == 40);
static_assert(offsetof(LVITEMW, puColumns) == 64 && offsetof(LVITEMW, iGroup) == 80);
static_assert(sizeof(LVITEMW) == 88);
static_assert(offsetof(LVCOLUMNW, cx) == 8 && offsetof(LVCOLUMNW, pszText) == 16);
static_assert(offsetof(LVCOLUMNW, iSubItem) == 28 && offsetof(LVCOLUMNW, cxIdeal) == 48);
static_assert(sizeof(LVCOLUMNW) == 56);
static_assert(offsetof(HDITEMW, pszText) == 8 && offsetof(HDITEMW, hbm) == 16);
static_assert(offsetof(HDITEMW, lParam) == 32 && offsetof(HDITEMW, pvFilter) == 56);
static_assert(offsetof(HDITEMW, state) == 64 && sizeof(HDITEMW) == 72);
static_assert(sizeof(LIST_POSITION) == 16);

/// Compares two items for CListCtrl::SortItems(), which never calls it.
using PFNLVCOMPARE = int (*)(LPARAM, LPARAM, LPARAM);

/// @name Fields of LVITEMW
/// CListCtrl::GetItem() alone looks at LVITEMW::mask, and there at LVIF_PARAM.
/// @{
constexpr UINT LVIF_TEXT = 0x0001;   ///< LVITEMW::pszText.
constexpr UINT LVIF_IMAGE = 0x0002;  ///< LVITEMW::iImage.
constexpr UINT LVIF_PARAM = 0x0004;  ///< LVITEMW::lParam.
constexpr UINT LVIF_STATE = 0x0008;  ///< LVITEMW::state.
constexpr UINT LVIF_INDENT = 0x0010; ///< LVITEMW::iIndent.
/// @}

/// @name Item states
/// CListCtrl takes bit LVIS_FOCUSED for selected, when it sets and when it reports, and looks at no other.
/// @{
constexpr UINT LVIS_FOCUSED = 0x0001;        ///< Selected, unlike Win32.
constexpr UINT LVIS_SELECTED = 0x0002;       ///< Ignored.
constexpr UINT LVIS_CUT = 0x0004;            ///< Ignored.
constexpr UINT LVIS_DROPHILITED = 0x0008;    ///< Ignored.
constexpr UINT LVIS_OVERLAYMASK = 0x0F00;    ///< Ignored.
constexpr UINT LVIS_STATEIMAGEMASK = 0xF000; ///< Ignored.
/// @}

/// @name Flags of CListCtrl::GetNextItem()
/// Only LVNI_FOCUSED and LVNI_SELECTED, each alone, find anything.
/// @{
constexpr int LVNI_ALL = 0x0000;         ///< Finds nothing.
constexpr int LVNI_FOCUSED = 0x0001;     ///< The current row.
constexpr int LVNI_SELECTED = 0x0002;    ///< The current row, too.
constexpr int LVNI_CUT = 0x0004;         ///< Finds nothing.
constexpr int LVNI_DROPHILITED = 0x0008; ///< Finds nothing.
constexpr int LVNI_ABOVE = 0x0100;       ///< Finds nothing.
constexpr int LVNI_BELOW = 0x0200;       ///< Finds nothing.
constexpr int LVNI_TOLEFT = 0x0400;      ///< Finds nothing.
constexpr int LVNI_TORIGHT = 0x0800;     ///< Finds nothing.
/// @}

/// @name Fields and formats of LVCOLUMNW
/// All are ignored: CListCtrl::InsertColumn() uses the heading alone, whatever LVCOLUMNW::mask says.
/// @{
constexpr UINT LVCF_FMT = 0x0001;
constexpr UINT LVCF_WIDTH = 0x0002;
constexpr UINT LVCF_TEXT = 0x0004;
constexpr UINT LVCF_SUBITEM = 0x0008;
constexpr UINT LVCF_IMAGE = 0x0010;
constexpr UINT LVCF_ORDER = 0x0020;
constexpr int LVCFMT_LEFT = 0x0000;
constexpr int LVCFMT_RIGHT = 0x0001;
constexpr int LVCFMT_CENTER = 0x0002;
constexpr int LVCFMT_JUSTIFYMASK = 0x0003;
/// @}

/// @name Fields of HDITEMW
/// CHeaderCtrl looks at none of them.
/// @{
constexpr UINT HDI_WIDTH = 0x0001;     ///< HDITEMW::cxy.
constexpr UINT HDI_HEIGHT = HDI_WIDTH; ///< HDITEMW::cxy.
constexpr UINT HDI_TEXT = 0x0002;      ///< HDITEMW::pszText; what CHeaderCtrl::GetItem() reports.
constexpr UINT HDI_FORMAT = 0x0004;    ///< HDITEMW::fmt.
constexpr UINT HDI_LPARAM = 0x0008;    ///< HDITEMW::lParam.
constexpr UINT HDI_BITMAP = 0x0010;    ///< HDITEMW::hbm.
constexpr UINT HDI_IMAGE = 0x0020;     ///< HDITEMW::iImage.
constexpr UINT HDI_ORDER = 0x0080;     ///< HDITEMW::iOrder.
/// @}

/// @name Arguments of operations with a fixed result
/// All are ignored, as every argument of such an operation is.
/// @{
constexpr int LVSCW_AUTOSIZE = -1;
constexpr int LVSCW_AUTOSIZE_USEHEADER = -2;
constexpr UINT LVIR_BOUNDS = 0;
constexpr UINT LVIR_ICON = 1;
constexpr UINT LVIR_LABEL = 2;
constexpr UINT LVIR_SELECTBOUNDS = 3;
constexpr int LVSIL_NORMAL = 0;
constexpr int LVSIL_SMALL = 1;
constexpr int LVSIL_STATE = 2;
constexpr UINT LVS_EX_GRIDLINES = 0x00000001;
constexpr UINT LVS_EX_SUBITEMIMAGES = 0x00000002;
constexpr UINT LVS_EX_CHECKBOXES = 0x00000004;
constexpr UINT LVS_EX_TRACKSELECT = 0x00000008;
constexpr UINT LVS_EX_HEADERDRAGDROP = 0x00000010;
constexpr UINT LVS_EX_FULLROWSELECT = 0x00000020;
/// @}
