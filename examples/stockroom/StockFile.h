#pragma once

#include "StockData.h"

/// The extension of the files.
static const TCHAR STOCK_FILE_EXTENSION[] = _T("stk");

/// A stock as a text file: a line for each item, fields separated by tabs. Texts are plain ASCII, with other
/// characters as their codes between a backslash and a semicolon, so that no locale spoils them.
class CStockFile
{
public:
    /// What could not be read or written, or why nothing was; empty after a success.
    CString m_strError;
    int m_nSkipped = 0; // lines without a usable item, or whose number the stock has already

    /// Adds the items of a file. Nothing is added when the file cannot be read or is none of ours.
    /// @return the number of items added, -1 after a failure.
    int Import(CStock &stock, LPCTSTR lpszPath, CProgress *pProgress = nullptr);
    /// Writes items to a file in place of the one that is there, which stays as it was after a failure.
    /// @return the number of items written, -1 after a failure.
    int Export(const CPtrArray &items, const CStock &stock, LPCTSTR lpszPath, CProgress *pProgress = nullptr);

    /// One line of the file, without its end.
    static CString FormatLine(const CStockItem &item, const CStock &stock);
    /// @return FALSE when the line is none that FormatLine() makes.
    static BOOL ParseLine(LPCTSTR lpszLine, const CStock &stock, CStockItem &item);

private:
    void Begin();
    int Fail(UINT nIDReason, LPCTSTR lpszPath);
    void AddLine(CStock &stock, LPCTSTR lpszLine);
};
