/// @file KxTreeControl.h
/// @brief CTreeCtrl, a tree view over QTreeWidget, with its records and constants.
///
/// The records are in the published 64-bit layouts.
#pragma once

#include "KxWindows.h"

class CEdit;
class CImageList;
class QTreeWidgetItem;

/// A tree item: the Qt item itself, so that Qt code and ported code may share it. Null means no item.
using HTREEITEM = QTreeWidgetItem *;

/// @name Special items
/// @{

/// The parent of the top-level items, for CTreeCtrl::InsertItem() from a text; no item anywhere else.
inline const HTREEITEM TVI_ROOT = reinterpret_cast<HTREEITEM>(std::intptr_t{-0x10000});
/// A position to insert at; the item is appended all the same, unlike MFC.
inline const HTREEITEM TVI_FIRST = reinterpret_cast<HTREEITEM>(std::intptr_t{-0x0FFFF});
/// A position to insert at: the end.
inline const HTREEITEM TVI_LAST = reinterpret_cast<HTREEITEM>(std::intptr_t{-0x0FFFE});
/// A position to insert at; the item is appended all the same, unlike MFC.
inline const HTREEITEM TVI_SORT = reinterpret_cast<HTREEITEM>(std::intptr_t{-0x0FFFD});
/// @}

/// @name Fields of an item record
/// No operation looks at them.
/// @{
constexpr UINT TVIF_TEXT = 0x0001;          ///< TVITEMW::pszText.
constexpr UINT TVIF_IMAGE = 0x0002;         ///< TVITEMW::iImage.
constexpr UINT TVIF_PARAM = 0x0004;         ///< TVITEMW::lParam.
constexpr UINT TVIF_STATE = 0x0008;         ///< TVITEMW::state.
constexpr UINT TVIF_HANDLE = 0x0010;        ///< TVITEMW::hItem.
constexpr UINT TVIF_SELECTEDIMAGE = 0x0020; ///< TVITEMW::iSelectedImage.
constexpr UINT TVIF_CHILDREN = 0x0040;      ///< TVITEMW::cChildren.
/// @}

/// @name Item states
/// CTreeCtrl::SetItemState() knows TVIS_EXPANDED, alone.
/// @{
constexpr UINT TVIS_SELECTED = 0x0002;       ///< Ignored: use CTreeCtrl::SelectItem().
constexpr UINT TVIS_CUT = 0x0004;            ///< Ignored.
constexpr UINT TVIS_DROPHILITED = 0x0008;    ///< Ignored.
constexpr UINT TVIS_BOLD = 0x0010;           ///< Ignored.
constexpr UINT TVIS_EXPANDED = 0x0020;       ///< Expands.
constexpr UINT TVIS_EXPANDEDONCE = 0x0040;   ///< Ignored.
constexpr UINT TVIS_EXPANDPARTIAL = 0x0080;  ///< Ignored.
constexpr UINT TVIS_OVERLAYMASK = 0x0F00;    ///< Ignored.
constexpr UINT TVIS_STATEIMAGEMASK = 0xF000; ///< Ignored.
constexpr UINT TVIS_USERMASK = 0xF000;       ///< Ignored.
/// @}

/// @name Codes of CTreeCtrl::Expand()
/// All of them expand: nothing collapses an item, unlike MFC.
/// @{
constexpr UINT TVE_COLLAPSE = 0x0001;
constexpr UINT TVE_EXPAND = 0x0002;
constexpr UINT TVE_TOGGLE = 0x0003;
constexpr UINT TVE_EXPANDPARTIAL = 0x4000;
constexpr UINT TVE_COLLAPSERESET = 0x8000;
/// @}

/// @name Relations of items
/// CTreeCtrl::GetNextItem() knows TVGN_NEXT; CTreeCtrl::Select() ignores its code.
/// @{
constexpr UINT TVGN_ROOT = 0x0000;            ///< Finds nothing.
constexpr UINT TVGN_NEXT = 0x0001;            ///< The next item of the same parent.
constexpr UINT TVGN_PREVIOUS = 0x0002;        ///< Finds nothing.
constexpr UINT TVGN_PARENT = 0x0003;          ///< Finds nothing.
constexpr UINT TVGN_CHILD = 0x0004;           ///< Finds nothing.
constexpr UINT TVGN_FIRSTVISIBLE = 0x0005;    ///< Finds nothing.
constexpr UINT TVGN_NEXTVISIBLE = 0x0006;     ///< Finds nothing.
constexpr UINT TVGN_PREVIOUSVISIBLE = 0x0007; ///< Finds nothing.
constexpr UINT TVGN_DROPHILITE = 0x0008;      ///< Finds nothing.
constexpr UINT TVGN_CARET = 0x0009;           ///< Finds nothing.
constexpr UINT TVGN_LASTVISIBLE = 0x000A;     ///< Finds nothing.
/// @}

/// @name Kinds of image lists
/// Ignored: a tree has no image lists.
/// @{
constexpr int TVSIL_NORMAL = 0;
constexpr int TVSIL_STATE = 2;
/// @}

/// An item of a tree.
struct TVITEMW
{
    UINT mask;          ///< Ignored: TVIF_ values.
    HTREEITEM hItem;    ///< The item that CTreeCtrl::GetItem() reads.
    UINT state;         ///< Ignored.
    UINT stateMask;     ///< Ignored.
    wchar_t *pszText;   ///< The text, or the buffer for it.
    int cchTextMax;     ///< Size of the buffer in characters.
    int iImage;         ///< Ignored.
    int iSelectedImage; ///< Ignored.
    int cChildren;      ///< Ignored.
    LPARAM lParam;      ///< The item's data.
};

/// An item of a tree, with the fields of later systems, which are ignored.
struct TVITEMEXW
{
    UINT mask;          ///< Ignored: TVIF_ values.
    HTREEITEM hItem;    ///< The item.
    UINT state;         ///< Ignored.
    UINT stateMask;     ///< Ignored.
    wchar_t *pszText;   ///< The text.
    int cchTextMax;     ///< Size of the text's buffer in characters.
    int iImage;         ///< Ignored.
    int iSelectedImage; ///< Ignored.
    int cChildren;      ///< Ignored.
    LPARAM lParam;      ///< The item's data.
    int iIntegral;      ///< Ignored.
    UINT uStateEx;      ///< Ignored.
    HWND hwnd;          ///< Ignored.
    int iExpandedImage; ///< Ignored.
    int iReserved;      ///< Ignored.
};

/// An item to insert.
struct TVINSERTSTRUCTW
{
    /// The parent item; null: the new item is a top-level one. TVI_ROOT is no parent here.
    HTREEITEM hParent;
    HTREEITEM hInsertAfter; ///< Ignored: every item is appended.
    union {
        TVITEMEXW itemex; ///< The same item with more fields.
        TVITEMW item;     ///< The item: its text and its data count.
    };
};

using LPTVITEMW = TVITEMW *;                 ///< A pointer to an item.
using LPTVINSERTSTRUCTW = TVINSERTSTRUCTW *; ///< A pointer to an item to insert.

static_assert(offsetof(TVITEMW, hItem) == 8 && offsetof(TVITEMW, state) == 16);
static_assert(offsetof(TVITEMW, stateMask) == 20 && offsetof(TVITEMW, pszText) == 24);
static_assert(offsetof(TVITEMW, cchTextMax) == 32 && offsetof(TVITEMW, iImage) == 36);
static_assert(offsetof(TVITEMW, iSelectedImage) == 40 && offsetof(TVITEMW, cChildren) == 44);
static_assert(offsetof(TVITEMW, lParam) == 48 && sizeof(TVITEMW) == 56);
static_assert(offsetof(TVITEMEXW, lParam) == 48 && offsetof(TVITEMEXW, iIntegral) == 56);
static_assert(offsetof(TVITEMEXW, uStateEx) == 60 && offsetof(TVITEMEXW, hwnd) == 64);
static_assert(offsetof(TVITEMEXW, iExpandedImage) == 72 && sizeof(TVITEMEXW) == 80);
static_assert(offsetof(TVINSERTSTRUCTW, hInsertAfter) == 8 && offsetof(TVINSERTSTRUCTW, item) == 16);
static_assert(offsetof(TVINSERTSTRUCTW, itemex) == 16 && sizeof(TVINSERTSTRUCTW) == 96);

/// A tree control, bound to a QTreeWidget.
///
/// An item's text is that of column 0. Its data is an unsigned 64-bit integer under Qt::UserRole of column 0.
/// Items belong to the tree: they live until DeleteItem(), DeleteAllItems() or the widget's end. No
/// notification is sent; connect the widget's signals, which no operation blocks. A null text counts as an
/// empty one.
///
/// **Unbound.** Every operation gives 0, null or an empty text, changes nothing and writes nothing when no
/// QTreeWidget is bound. A null object that is not at address 0 gives its address, as in CWnd.
///
/// **Items** are not checked: apart from null, an item has to be a living one.
class KX_MFC_EXPORT CTreeCtrl : public CWnd
{
public:
    /// Makes an unbound tree control without a logical parent.
    CTreeCtrl();
    /// Leaves the items alone.
    ~CTreeCtrl() override;

    /// @name Navigation
    /// @{

    /// @return the number of top-level items; items below them are not counted, unlike MFC.
    UINT GetCount() const;
    /// @return the first top-level item; null when there is none.
    HTREEITEM GetRootItem() const;
    /// @return the current item; null when there is none.
    HTREEITEM GetSelectedItem() const;
    /// @return the item above @p hItem; null for a top-level item and for null.
    HTREEITEM GetParentItem(HTREEITEM hItem) const;
    /// @return the first item below @p hItem; null when there is none and for null.
    HTREEITEM GetChildItem(HTREEITEM hItem) const;
    /// @return the next item of the same parent; null for the last one, for null, and for every top-level
    /// item, unlike MFC: use GetNextItem() there.
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const;
    /// @return the previous item of the same parent; null for the first one, for null, and for every
    /// top-level item, unlike MFC.
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) const;
    /// @return for TVGN_NEXT the next item of the same parent or the next top-level item, null for the last
    /// one; null for every other code and for a null item.
    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const;
    /// @return 1 when there are items below @p hItem, else 0; 0 for null.
    BOOL ItemHasChildren(HTREEITEM hItem) const;
    /// @}

    /// @name Items
    /// @{

    /// @return the text; empty for a null item.
    CString GetItemText(HTREEITEM hItem) const;
    /// @return the data; 0 when there is none and for a null item.
    unsigned long GetItemData(HTREEITEM hItem) const;
    /// Reads text and data of TVITEMW::hItem, whatever the mask says.
    ///
    /// TVITEMW::pszText receives at most TVITEMW::cchTextMax - 1 characters, and nulls from there to its end;
    /// it is not written when it is null or its size is below 1.
    /// @return 1; 0, with nothing written, when @p pItem or its item is null.
    BOOL GetItem(TVITEMW *pItem) const;
    /// @}

    /// @name Changes
    /// @{

    /// Appends an item with the record's text and data to TVINSERTSTRUCTW::hParent, or to the top-level items
    /// when that is null. TVI_ROOT must not be given here, unlike MFC.
    /// @return the new item, owned by its parent or the tree; null for a null record.
    HTREEITEM InsertItem(TVINSERTSTRUCTW *pInsert);
    /// Appends an item without data to @p hParent, or to the top-level items for TVI_ROOT.
    /// @param lpszItem the text.
    /// @param hParent the parent item or TVI_ROOT.
    /// @param hInsertAfter ignored.
    /// @return the new item, owned by its parent or the tree; null, with nothing inserted, when @p hParent is
    /// null, unlike MFC.
    HTREEITEM InsertItem(const wchar_t *lpszItem, HTREEITEM hParent = TVI_ROOT,
                         HTREEITEM hInsertAfter = TVI_LAST);
    /// Deletes an item with all below it. TVI_ROOT does not stand for all items, unlike MFC, and must not be
    /// given. @return 1, also for null.
    BOOL DeleteItem(HTREEITEM hItem);
    /// Deletes all items. @return 1.
    BOOL DeleteAllItems();
    /// Sets an item's text. @return 1, also for null.
    BOOL SetItemText(HTREEITEM hItem, const wchar_t *lpszItem);
    /// Sets an item's data. @return 1, also for null.
    BOOL SetItemData(HTREEITEM hItem, unsigned long dwData);

    /// Expands an item, whatever @p nCode says: nothing collapses one. @return 1, also for null.
    BOOL Expand(HTREEITEM hItem, UINT nCode);
    /// Expands an item when the bits of @p nState in @p nStateMask are TVIS_EXPANDED and no other; every
    /// other state changes nothing. @return 1, also for null.
    BOOL SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask);
    /// Makes an item current, then selects it.
    /// @param hItem the item; nothing happens for null.
    /// @param nCode ignored.
    /// @return 1, also for null.
    BOOL Select(HTREEITEM hItem, UINT nCode);
    /// Selects an item, then makes it current. In a tree with QAbstractItemView::MultiSelection, where
    /// becoming current toggles the selection, this order leaves an item unselected that was not current; use
    /// Select() there. @return 1, also for null.
    BOOL SelectItem(HTREEITEM hItem);
    /// Makes an item editable and opens Qt's editor on its text; nothing for null. The item stays editable.
    /// @return null: no edit control is handed out.
    CEdit *EditLabel(HTREEITEM hItem);
    /// @}

    /// @name Fixed results
    /// No counterpart on this platform: these do nothing.
    /// @{
    HTREEITEM InsertItem(unsigned nMask, const wchar_t *lpszItem, int nImage, int nSelectedImage,
                         unsigned nState, unsigned nStateMask, long lParam, HTREEITEM hParent,
                         HTREEITEM hInsertAfter); ///< Null; nothing is inserted.
    HTREEITEM InsertItem(const wchar_t *lpszItem, int nImage, int nSelectedImage,
                         HTREEITEM hParent = TVI_ROOT,
                         HTREEITEM hInsertAfter = TVI_LAST);            ///< Null; nothing is inserted.
    BOOL SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage); ///< 1.
    BOOL EnsureVisible(HTREEITEM hItem);                                ///< 0.
    BOOL EndEditLabelNow(bool bCancel);                                 ///< 0.
    CImageList *GetImageList(int nImageList) const;                     ///< Null.
    CImageList *SetImageList(CImageList *pImageList, int nImageList);   ///< Null.
    CEdit *GetEditControl() const;                                      ///< Null.
    short SetItemHeight(short cyHeight);                                ///< @p cyHeight.
    /// @}
};
