#include "StockClipboard.h"

#include "StockFile.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>

static CLIPFORMAT GetItemFormat()
{
    static const UINT nFormat = RegisterClipboardFormat(_T("Stockroom items"));
    return CLIPFORMAT(nFormat);
}

static void AppendCell(CString &strRow, LPCTSTR lpszText)
{
    if (!strRow.IsEmpty())
        strRow += _T('\t');
    for (; *lpszText != 0; lpszText++)
        strRow += std::max(*lpszText, _T(' '));
}

// A row of a spreadsheet.
static CString FormatRow(const CStockItem &item, const CStock &stock)
{
    CString strQuantity, strPrice;
    strQuantity.Format(_T("%d"), item.m_nQuantity);
    strPrice.Format(_T("%.2f"), item.m_dPrice);
    const LPCTSTR cells[] = {item.m_strNumber,
                             item.m_strName,
                             stock.GetRoom(item.m_nRoom).m_strName,
                             CStock::GetCategories()[item.m_nCategory],
                             strQuantity,
                             item.m_strUnit,
                             strPrice,
                             item.m_szNote};
    CString strRow;
    for (LPCTSTR lpszCell : cells)
        AppendCell(strRow, lpszCell);
    return strRow;
}

static HGLOBAL GetClipboardData()
{
    COleDataObject data;
    data.AttachClipboard();
    return data.GetGlobalData(GetItemFormat());
}

// The lines that CopyItems() put on the clipboard.
static void GetClipboardLines(CStringList &lines)
{
    const auto *pMemory = static_cast<const KxGlobalMemory *>(GetClipboardData());
    if (!pMemory)
        return;
    auto lpszLine = static_cast<LPCTSTR>(pMemory->block);
    const LPCTSTR lpszEnd = lpszLine + pMemory->size / sizeof(TCHAR);
    while (lpszLine < lpszEnd) {
        const LPCTSTR lpszLineEnd = std::find(lpszLine, lpszEnd, _T('\n'));
        lines.AddTail(CString(std::wstring(lpszLine, lpszLineEnd)));
        lpszLine = lpszLineEnd + 1;
    }
}

void CopyItems(const CPtrArray &items, const CStock &stock)
{
    if (items.IsEmpty())
        return;
    CString strLines, strRows;
    for (INT_PTR i = 0; i < items.GetSize(); i++) {
        const CStockItem &item = *static_cast<CStockItem *>(items[i]);
        strLines += CStockFile::FormatLine(item, stock) + _T('\n');
        strRows += FormatRow(item, stock) + _T('\n');
    }

    CSharedFile file;
    file.Write(reinterpret_cast<BYTE *>(strLines.GetBuffer(0)), UINT(strLines.size() * sizeof(TCHAR)));
    COleDataSource().CacheGlobalData(GetItemFormat(), file.Detach());
    // CF_UNICODETEXT stores nothing: the desktop's clipboard is Qt's.
    QGuiApplication::clipboard()->setText(QString::fromStdWString(strRows));
}

BOOL CanPasteItems()
{
    return GetClipboardData() != nullptr;
}

BOOL PasteItems(CStock &stock, int nRoom, CPtrArray &added)
{
    CStringList lines;
    GetClipboardLines(lines);
    const INT_PTR nBefore = added.GetSize();
    for (POSITION pos = lines.GetHeadPosition(); pos;) {
        CStockItem item;
        if (!CStockFile::ParseLine(lines.GetNext(pos), stock, item))
            continue;
        item.m_strNumber = stock.GetFreeNumber(item.m_strNumber);
        item.m_nRoom = nRoom;
        if (CStockItem *pItem = stock.AddItem(item))
            added.Add(pItem);
    }
    return added.GetSize() > nBefore;
}
