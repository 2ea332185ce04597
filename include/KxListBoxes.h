/// @file KxListBoxes.h
/// @brief CComboBox and CListBox, string lists over QComboBox and QListWidget.
///
/// The two look alike and differ in much: CComboBox adds no text twice and blocks signals, CListBox does
/// neither.
#pragma once

#include "KxWindows.h"

/// A combo box, bound to a QComboBox.
///
/// Items are numbered from 0. Texts are compared whole and with case, and a text that is in the list already
/// is not added again. Most changes are made with the combo box's Qt signals blocked, so that the program
/// that fills a list does not hear itself; each operation says so. A null text counts as an empty one.
///
/// **Unbound.** Every operation gives 0, changes nothing and writes nothing when no QComboBox is bound.
/// A null object that is not at address 0 gives its address, as in CWnd.
///
/// **Item data** is one pointer-sized value under Qt::UserRole. Integers and pointers are the same value, as
/// in MFC. It is not owned: nothing frees it.
class KX_MFC_EXPORT CComboBox : public CWnd
{
public:
    /// Makes an unbound combo box without a logical parent.
    CComboBox();
    /// Leaves the items and their data alone.
    ~CComboBox() override;

    /// @name Queries
    /// @{

    /// @return the number of items.
    int GetCount() const;
    /// @return the index of the current item, -1 when there is none.
    int GetCurSel() const;

    /// Finds the first item whose whole text equals @p lpszString with case. Prefixes do not match, unlike
    /// MFC.
    /// @param nStartAfter ignored; the search begins at the first item.
    /// @param lpszString the text to look for.
    /// @return the index; CB_ERR when there is none.
    int FindString(int nStartAfter, const wchar_t *lpszString) const;
    /// Same as FindString(), thus with case, unlike MFC.
    int FindStringExact(int nStartAfter, const wchar_t *lpszString) const;

    /// Writes the text of an item without a terminating null.
    /// @param nIndex the item; the number of items is let through too and reads an empty text.
    /// @param lpszText at least GetLBTextLen() + 1 characters, **filled with nulls by the caller**.
    /// @return the length of what @p lpszText holds now; 0, with nothing written, for any other index and a
    /// null buffer.
    int GetLBText(int nIndex, wchar_t *lpszText) const;
    /// Reads the text of an item; @p rString becomes empty for an index that does not exist.
    void GetLBText(int nIndex, CString &rString) const;
    /// @return the length of an item's text in characters; 0 for an index that does not exist.
    int GetLBTextLen(int nIndex) const;

    /// @return the item's data; 0 when it has none and for an index that does not exist.
    unsigned long GetItemData(int nIndex) const;
    /// @return the item's data; null when it has none and for an index that does not exist.
    void *GetItemDataPtr(int nIndex) const;

    /// @return 1 while the list is dropped down, else 0.
    BOOL GetDroppedState() const;
    /// @}

    /// @name Changes
    /// @{

    /// Makes an item current with the combo box's Qt signals blocked.
    ///
    /// This object's own WindowProc() receives CB_SETCURSEL with the index instead, also when the item was
    /// current already.
    /// @param nSelect the item; -1 clears the selection.
    /// @return @p nSelect; CB_ERR, with nothing changed, when it is below -1 or not below GetCount().
    int SetCurSel(int nSelect);
    /// Finds an item as FindString() does and makes it current; the combo box emits its signals.
    /// @return its index; CB_ERR, with nothing changed, when there is none.
    int SelectString(int nStartAfter, const wchar_t *lpszString);

    /// Appends an item without data, unless its text is in the list already. Signals are blocked. An empty
    /// text is always added.
    /// @return the index of the new item or of the one that is there.
    int AddString(const wchar_t *lpszString);
    /// Inserts an item without data, unless its text is in the list already. Signals are blocked. An empty
    /// text is always inserted.
    /// @param nIndex the new item's place; -1 or one past the end appends.
    /// @param lpszString the text.
    /// @return the index of the item that is there; else the new item's index for -1, else @p nIndex itself:
    /// also when it is past the end, and when it is below -1, where nothing is inserted.
    int InsertString(int nIndex, const wchar_t *lpszString);
    /// Removes an item; the combo box emits its signals.
    /// @return @p nIndex, not the remaining count as in MFC; CB_ERR when there is no such item. An empty
    /// combo box refuses no index.
    int DeleteString(unsigned nIndex);
    /// Removes all items with signals blocked.
    void ResetContent();
    /// Removes all items; the combo box emits its signals. It does not clear an edit selection, unlike MFC.
    void Clear();

    /// Sets an item's data. @return @p nIndex; CB_ERR, with nothing changed, when there is no such item.
    int SetItemData(int nIndex, unsigned long dwItemData);
    /// Sets an item's data. @return @p nIndex; CB_ERR, with nothing changed, when there is no such item.
    int SetItemDataPtr(int nIndex, void *pData);

    /// Drops the list down, whatever @p bShowIt says. An empty list does not show.
    void ShowDropDown(bool bShowIt = true);
    /// @}

    /// @name Virtual operations
    /// @{
    using CWnd::Create;
    /// Reads the current text, which is the edit text of an editable combo box.
    /// @param rString receives the text; unbound: left as it was.
    void GetWindowTextW(CString &rString) override;
    /// Reads the current text into a buffer as CWnd::GetWindowTextW(wchar_t *, int) does.
    int GetWindowTextW(wchar_t *lpszBuffer, int nMaxCount) override;
    /// Fixed result: 1; unbound: 0. Creates nothing, unlike MFC.
    virtual BOOL Create(unsigned dwStyle, const RECT &rect, CWnd *pParentWnd, unsigned nID);
    /// @}

    /// @name Fixed results
    /// No counterpart on this platform: these do nothing.
    /// @{
    BOOL SetEditSel(int nStartChar, int nEndChar);        ///< 1.
    DWORD GetEditSel() const;                             ///< 0.
    unsigned GetHorizontalExtent() const;                 ///< 0.
    void SetHorizontalExtent(unsigned nExtent);           ///< Nothing.
    int GetDroppedWidth() const;                          ///< 0.
    int SetDroppedWidth(unsigned nWidth);                 ///< 0.
    int SetItemHeight(int nIndex, unsigned cyItemHeight); ///< 0.
    /// @}
};

/// A list box, bound to a QListWidget.
///
/// Items are numbered from 0. No operation blocks the list's Qt signals, and duplicates are added, unlike in
/// CComboBox. A null text counts as an empty one.
///
/// **Unbound.** Every operation gives 0, changes nothing and writes nothing when no QListWidget is bound.
/// A null object that is not at address 0 gives its address, as in CWnd.
///
/// **Item data** is kept under Qt::UserRole as an unsigned 64-bit integer or as a pointer. Each form reads
/// what its own setter stored: read integers with GetItemData() and pointers with GetItemDataPtr(). It is not
/// owned.
class KX_MFC_EXPORT CListBox : public CWnd
{
public:
    /// Makes an unbound list box without a logical parent.
    CListBox();
    /// Leaves the items and their data alone.
    ~CListBox() override;

    /// @name Queries
    /// @{

    /// @return the number of items.
    int GetCount() const;
    /// @return the current row, -1 when there is none.
    int GetCurSel() const;

    /// Reads the text of an item; @p rString becomes empty for an index that does not exist.
    void GetText(int nIndex, CString &rString) const;
    /// @return the length of an item's text in characters; LB_ERR for an index that does not exist.
    int GetTextLen(int nIndex) const;

    /// Finds the first item whose whole text equals @p lpszString without regard to case. Prefixes do not
    /// match, unlike MFC.
    /// @param nStartAfter ignored; the search begins at the first item.
    /// @param lpszString the text to look for.
    /// @return the row; LB_ERR when there is none.
    int FindString(int nStartAfter, const wchar_t *lpszString) const;
    /// Finds the same item as FindString() but gives it only when its row is greater than @p nStartAfter.
    /// Neither later matches nor the rows before are looked at, unlike MFC.
    /// @return the row; LB_ERR otherwise.
    int FindStringExact(int nStartAfter, const wchar_t *lpszString) const;

    /// @return the integer that SetItemData() stored; 0 when there is none and for an index that does not
    /// exist.
    unsigned long GetItemData(int nIndex) const;
    /// @return the pointer that SetItemDataPtr() stored; null when there is none and for an index that does
    /// not exist.
    void *GetItemDataPtr(int nIndex) const;

    /// @return 1 when the item is selected, else 0; LB_ERR for an index that does not exist.
    int GetSel(int nIndex) const;
    /// @return the number of selected items.
    int GetSelCount() const;
    /// @}

    /// @name Changes
    /// @{

    /// Makes a row current.
    /// @return @p nSelect; LB_ERR, with nothing changed, for an index that does not exist. -1 is refused and
    /// does not clear the selection, unlike MFC.
    int SetCurSel(int nSelect);
    /// Makes each item current in turn whose text, without white space around it, equals that of @p lpszItem
    /// with case. The last match stays current.
    /// @param nStartAfter ignored; every item is looked at.
    /// @param lpszItem the text to look for.
    /// @return 0, whether or not an item matched, unlike MFC.
    int SelectString(int nStartAfter, const wchar_t *lpszItem);
    /// Selects an item, or takes it out of the selection, as the list's selection mode allows.
    /// @return 0; LB_ERR for an index that does not exist. -1 does not stand for all items, unlike MFC.
    int SetSel(int nIndex, bool bSelect = true);

    /// Appends an item without data. White space around the text is removed, and each run of it inside
    /// becomes one blank.
    /// @return the last row, which is the new item's unless the list is sorted; unbound: 0.
    int AddString(const wchar_t *lpszItem);
    /// Inserts an item without data and with its text unchanged, unlike AddString().
    /// @param nIndex the new item's place; below 0 counts as the first, past the end appends. -1 does not
    /// append, unlike MFC.
    /// @param lpszItem the text.
    /// @return @p nIndex.
    int InsertString(int nIndex, const wchar_t *lpszItem);
    /// Removes and deletes an item; nothing happens when there is none.
    /// @return @p nIndex in each case, not the remaining count as in MFC.
    int DeleteString(unsigned nIndex);
    /// Removes all items.
    void ResetContent();

    /// Sets an item's data to an integer; nothing happens when there is no such item.
    /// @return @p nIndex in both cases.
    int SetItemData(int nIndex, unsigned long dwItemData);
    /// Sets an item's data to a pointer; nothing happens when there is no such item.
    /// @return @p nIndex in both cases.
    int SetItemDataPtr(int nIndex, void *pData);
    /// @}

    /// @name Fixed results
    /// No counterpart on this platform: does nothing.
    /// @{
    int GetSelItems(int nMaxItems, int *rgIndex) const; ///< 0; @p rgIndex is not written.
    /// @}
};
