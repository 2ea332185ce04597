/// @file KxListControl.h
/// @brief CListCtrl and CHeaderCtrl, over Qt's item widgets and table views.
#pragma once

#include "KxListControlTypes.h"
#include "KxWindows.h"

#include <memory>

class CEdit;
class CHeaderCtrl;
class CImageList;
struct CListCtrlPrivate;

/// A list control, over the item view that the form holds in its place.
///
/// Three kinds of widget are served, to different depths; each operation says what it does for which:
/// - **list**: a QListWidget. A row is an item; there are no columns, sub-items are ignored.
/// - **table**: a QTableWidget. An item is a row, a sub-item a column. A cell without a QTableWidgetItem does
///   not exist.
/// - **view**: a QTableView that is no QTableWidget. An item is a row of its model. Where "standard view" is
///   said, the model has to be a QStandardItemModel.
///
/// A kind that an operation does not name is left alone. All items, texts, data and the selection live in the
/// widget or its model. Nothing is notified: connect the widget's signals, which are emitted unless an
/// operation says that they are blocked.
///
/// **Item data** is an unsigned 64-bit number: under Qt::UserRole on the list's item and on the table's cell,
/// but under Qt::DisplayRole of column 0 in a view's model, where it replaces the text shown.
///
/// **Selected** is the bit of value 1 in a state, LVIS_FOCUSED, when it is set and when it is reported;
/// LVIS_SELECTED is not looked at, unlike Win32.
///
/// **Range.** Only negative items are refused, where an operation says so. A row or column that does not
/// exist changes no cell; but making a row current that does not exist clears the current one, as it does in
/// Qt.
///
/// An unbound control changes nothing and gives 0, whatever the operation gives otherwise; see CWnd for null
/// objects. A control bound to any other widget changes nothing and gives what is named "else".
class KX_MFC_EXPORT CListCtrl : public CWnd
{
public:
    /// Makes an unbound list control without a logical parent.
    CListCtrl();
    /// Leaves the items and their data alone.
    ~CListCtrl() override;

    /// @name Items
    /// @{

    /// @return the number of rows of a list, a table or a standard view; else 0.
    int GetItemCount() const;
    /// @return the text of a list's row or a table's cell; empty for a negative @p nItem, when there is no
    /// such item, and else.
    CString GetItemText(int nItem, int nSubItem) const;
    /// @return the data of a list's row, of a table's cell in column 0, or the number that the text in column
    /// 0 of a view stands for; 0 for a negative @p nItem, when there is no such item, and else.
    unsigned long GetItemData(int nItem) const;
    /// Reads the data of a table's cell. No other field is filled in, unlike MFC.
    /// @param item iItem and iSubItem name the cell; with LVIF_PARAM in mask, lParam receives its data.
    /// @return TRUE for a table; FALSE, with @p item as it was, when the data of a cell is asked for that
    /// does not exist, for a null @p item, and else.
    BOOL GetItem(LVITEMW *item) const;

    /// Inserts a row into a list, or into a table, where it fills column 0 alone.
    /// @param nItem the new row, 0-based. A list appends when it is past the end; a table then refuses it.
    /// @param text null counts as the empty text.
    /// @param nImage ignored.
    /// @return @p nItem, also when it is negative and nothing is inserted, and else.
    int InsertItem(int nItem, const wchar_t *text, int nImage);
    /// Inserts a row into a list, into a table, where @p text goes into all its columns, or into a standard
    /// view, where the row stays empty.
    /// @param nItem the new row, 0-based. A list appends when it is past the end; the others then refuse it.
    /// @param text null counts as the empty text.
    /// @return @p nItem, also when it is negative and nothing is inserted, and else; -1 for a view whose
    /// model is no QStandardItemModel.
    int InsertItem(int nItem, const wchar_t *text);
    /// Inserts a row into a table.
    /// @param item iItem is the row, the row count if it is more; pszText and lParam go into column iSubItem,
    /// whatever mask says.
    /// @return the row, also when it is negative and nothing is inserted; -1 for a null @p item, and else.
    int InsertItem(const LVITEMW *item);
    /// Removes a row from a list, a table or a view. Whether there is such a row is not told.
    /// @return TRUE, and else TRUE.
    BOOL DeleteItem(int nItem);
    /// Removes all rows; the columns and headings of a table or a view stay. The signals of a list or a table
    /// are blocked, those of its model and of a view's model are not.
    /// @return TRUE, and else TRUE; FALSE for a view whose model is no QStandardItemModel.
    BOOL DeleteAllItems();

    /// Puts a new text into a table's cell. The cell is replaced, so that its data is lost, unlike MFC.
    /// @param nItem the row, 0-based.
    /// @param nSubItem the column, 0-based.
    /// @param text null counts as the empty text.
    /// @return TRUE for a table; else FALSE.
    BOOL SetItemText(int nItem, int nSubItem, const wchar_t *text);
    /// Stores the data of a list's row, of a table's row in column 0, or of a view's row, where it replaces
    /// the text shown in column 0.
    /// @return TRUE, also when there is no such item, and else; FALSE for a negative @p nItem, and for a view
    /// without a model.
    BOOL SetItemData(int nItem, unsigned long data);
    /// Writes text and data of a table's cell, which is made if it does not exist.
    /// @param item iItem and iSubItem name the cell; pszText and lParam are written whatever mask says.
    /// @return TRUE, and else TRUE; FALSE for a null @p item.
    BOOL SetItem(const LVITEMW *item);
    /// Writes a table's cell, which is made if it does not exist.
    /// @param nItem the row, 0-based.
    /// @param nSubItem the column, 0-based.
    /// @param nMask ignored.
    /// @param text the text; null leaves that of a cell that exists as it is.
    /// @param nImage ignored.
    /// @param nState exactly 1 makes a cell that exists the current one and selects it.
    /// @param nStateMask ignored.
    /// @param lParam the data; 0 leaves it as it is, so that data cannot be set back to 0 this way.
    /// @return TRUE, and else TRUE.
    BOOL SetItem(int nItem, int nSubItem, unsigned nMask, const wchar_t *text, int nImage, unsigned nState,
                 unsigned nStateMask, long lParam);

    /// Opens the editor: that of a list's row, which becomes editable with the list's signals blocked, or
    /// that of a view's second column, whose row is selected first. A table is left alone.
    /// @return null: no edit control is handed out.
    CEdit *EditLabel(int nItem);
    /// @}

    /// @name Selection
    /// @{

    /// @return 1 when @p nMask has LVIS_FOCUSED and a list's row, a table's cell in column 0, or all columns
    /// of a view's row are selected, otherwise 0, and else 0; a negative @p nItem is given back converted.
    UINT GetItemState(int nItem, unsigned nMask) const;
    /// Makes a list's row, or a table's cell in column 0, the current one when @p nState has LVIS_FOCUSED,
    /// and selects a view's row when @p nMask has it. Nothing is ever deselected for a missing bit.
    /// @return TRUE, and else TRUE; a negative @p nItem, for which nothing happens, is given back.
    BOOL SetItemState(int nItem, unsigned nState, unsigned nMask);
    /// @return a list's current row, -1 when there is none; else -1.
    int GetSelectionMark() const;
    /// Finds the current row, not the next one, unlike MFC.
    /// @param nItem for a table, a current row that is this one is not found; ignored for a list.
    /// @param nFlags LVNI_FOCUSED or LVNI_SELECTED, to the same effect; nothing is found for any other value.
    /// @return the current row of a list or a table; -1 when none is found, and else.
    int GetNextItem(int nItem, int nFlags) const;
    /// @return the number of selected rows of a list or a view; for a table 1 when any cell that exists is
    /// selected, however many are; else 0.
    UINT GetSelectedCount() const;
    /// Begins a walk over the selected rows of a table or a view; see GetNextSelectedItem().
    /// @return the position: for a table its first selected QTableWidgetItem, for a view a LIST_POSITION of
    /// its own, which stays allocated when the walk is abandoned; null when nothing is selected, and else. A
    /// list gives null even when rows are selected.
    POSITION GetFirstSelectedItemPosition() const;
    /// Goes on with a walk. The selection is looked at anew each time, so that it may change during the walk.
    /// @param pos a position of this control; receives the next one, in the next row, or null at the end.
    /// @return the row at @p pos; -1, and the end of the walk, when a table's cell there is selected no
    /// longer; -1 for a null @p pos; else -1, and @p pos is left alone, as it is for a list.
    int GetNextSelectedItem(POSITION &pos) const;
    /// @}

    /// @name Columns
    /// @{

    /// Inserts a column with a heading into a table. Only the text of @p col is used.
    /// @param nCol the new column, 0-based; past the end it is refused.
    /// @param col pszText is the heading, null the empty one.
    /// @return @p nCol, and else @p nCol; -1 when it is negative or @p col is null.
    int InsertColumn(int nCol, const LVCOLUMNW *col);
    /// Gives a column of a table or a standard view its heading. A column that has a heading is renamed;
    /// otherwise a new column is inserted.
    /// @param nCol the column, 0-based; past the end it is refused.
    /// @param heading null counts as the empty text.
    /// @param nFormat ignored.
    /// @param nWidth ignored.
    /// @param nSubItem ignored.
    /// @return @p nCol, also when it is negative and nothing happens, and else; -1 for a view whose model is
    /// no QStandardItemModel.
    int InsertColumn(int nCol, const wchar_t *heading, int nFormat = LVCFMT_LEFT, int nWidth = -1,
                     int nSubItem = -1);
    /// Removes a column from the model of a table or a view. Whether there is such a column is not told.
    /// @return TRUE; FALSE for a view without a model, and else.
    BOOL DeleteColumn(int nCol);
    /// Makes a new wrapper for the horizontal header of a table or a view.
    ///
    /// The wrapper of the call before is deleted here, so do not keep the pointer. An application's own
    /// object that was bound to the header becomes unbound and keeps the registration; each wrapper made then
    /// lives until the process exits.
    /// @return the wrapper, which belongs to the library; else null.
    CHeaderCtrl *GetHeaderCtrl() const;
    /// @}

    /// @name Fixed results
    /// No counterpart on this platform: these do nothing and leave their arguments alone. Unbound: 0 or null.
    /// @{
    void SetSelectionMark(int nItem);                                           ///< Nothing.
    BOOL SetColumnWidth(int nCol, int nWidth);                                  ///< TRUE.
    BOOL EnsureVisible(int nItem, bool bPartialOK);                             ///< TRUE.
    BOOL GetItemRect(int nItem, RECT *rect, unsigned nArea) const;              ///< TRUE.
    BOOL GetSubItemRect(int nItem, int nSubItem, int nArea, CRect &rect) const; ///< TRUE.
    BOOL GetColumn(int nCol, LVCOLUMNW *col) const;                             ///< FALSE.
    BOOL SortItems(PFNLVCOMPARE compare, DWORD_PTR data);                       ///< FALSE; no sorting.
    DWORD GetExtendedStyle() const;                                             ///< 0.
    DWORD SetExtendedStyle(unsigned nStyle);                                    ///< 0.
    CImageList *SetImageList(CImageList *images, int nKind);                    ///< Null.
    /// @}

private:
    std::unique_ptr<CListCtrlPrivate> m_d;
};

/// The column headings of a table, bound to its QHeaderView.
///
/// The table is the header's parent widget: a QTableWidget, or a QTableView with a QStandardItemModel. The
/// headings asked for are always the horizontal ones. An unbound control, or one bound to any other widget,
/// changes nothing and gives 0; see CWnd for null objects.
class KX_MFC_EXPORT CHeaderCtrl : public CWnd
{
public:
    /// Makes an unbound header control without a logical parent.
    CHeaderCtrl();
    /// Leaves the headings alone, and frees the text that GetItem() gave last.
    ~CHeaderCtrl() override;

    /// @return the number of columns of the header's model, whatever it is; 0 without one.
    int GetItemCount() const;
    /// Reads a heading.
    /// @param nPos the column, 0-based.
    /// @param item pszText receives the address of the heading's text, which this object keeps until its next
    /// GetItem() and which is not to be freed; no text is copied into a buffer of the caller, unlike MFC.
    /// mask is set to HDI_TEXT, whatever was asked for. No other field is written.
    /// @return TRUE; FALSE, with @p item as it was, when there is no such heading or @p item is null.
    BOOL GetItem(int nPos, HDITEMW *item) const;
    /// Renames a heading that exists.
    /// @param nPos the column, 0-based.
    /// @param item pszText is the new text, null the empty one; mask is not looked at.
    /// @return TRUE; FALSE when there is no such heading or @p item is null.
    BOOL SetItem(int nPos, HDITEMW *item);
};
