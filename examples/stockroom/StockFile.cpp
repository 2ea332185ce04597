#include "StockFile.h"

#include "Texts.h"
#include "resource.h"

#include <algorithm>
#include <cstring>

// The first line of every file.
static const char SIGNATURE[] = "Stockroom 1";
static const char UTF8_MARK[] = "\xEF\xBB\xBF"; // of editors that save in UTF-8

static const UINT BLOCK_SIZE = 65536;
static const int LINES_PER_PROGRESS = 250;
static const int DISPLAYED_LENGTH = 60;

static void Tell(CProgress *pProgress, INT_PTR nDone, INT_PTR nTotal)
{
    if (pProgress && (nDone % LINES_PER_PROGRESS == 0 || nDone == nTotal))
        pProgress->OnProgress(int(nDone), int(nTotal));
}

static BOOL HasSignature(const BYTE *pFirst, const BYTE *pEnd)
{
    const size_t nMark = sizeof(UTF8_MARK) - 1;
    if (size_t(pEnd - pFirst) >= nMark && memcmp(pFirst, UTF8_MARK, nMark) == 0)
        pFirst += nMark;
    const BYTE *pLineEnd = std::find(pFirst, pEnd, '\n');
    if (pLineEnd > pFirst && pLineEnd[-1] == '\r')
        pLineEnd--;
    return std::equal(pFirst, pLineEnd, SIGNATURE, SIGNATURE + sizeof(SIGNATURE) - 1);
}

// Reads the whole file, so that nothing is added when that fails, and since ReadString() does not tell where the
// lines end.
// @return 0, or the text that says why it is no file to import.
static UINT CountLines(LPCTSTR lpszPath, int &nLines)
{
    CFile file;
    if (!CFileFind().FindFile(lpszPath))
        return IDS_FILE_MISSING;
    if (!file.Open(lpszPath, CFile::modeRead))
        return IDS_FILE_UNREADABLE;

    CByteArray block;
    block.SetSize(BLOCK_SIZE);
    const BYTE *pFirst = block.GetData();
    UINT nRead = file.Read(block.GetData(), BLOCK_SIZE);
    if (nRead != UINT(-1) && !HasSignature(pFirst, pFirst + nRead))
        return IDS_FILE_FOREIGN;
    // Another line may follow the last line end.
    for (nLines = 1; nRead > 0 && nRead != UINT(-1); nRead = file.Read(block.GetData(), BLOCK_SIZE))
        nLines += int(std::count(pFirst, pFirst + nRead, '\n'));
    return nRead == 0 ? 0 : IDS_FILE_UNREADABLE;
}

int CStockFile::Import(CStock &stock, LPCTSTR lpszPath, CProgress *pProgress)
{
    Begin();
    int nLines = 0;
    const UINT nIDReason = CountLines(lpszPath, nLines);
    if (nIDReason != 0)
        return Fail(nIDReason, lpszPath);
    CStdioFile file;
    if (!file.Open(lpszPath, CFile::modeRead))
        return Fail(IDS_FILE_UNREADABLE, lpszPath);

    const int nBefore = stock.GetItemCount();
    CString strLine;
    file.ReadString(strLine);
    for (int nLine = 1; nLine < nLines; nLine++) {
        file.ReadString(strLine);
        AddLine(stock, strLine);
        Tell(pProgress, nLine + 1, nLines);
    }
    return stock.GetItemCount() - nBefore;
}

void CStockFile::AddLine(CStock &stock, LPCTSTR lpszLine)
{
    CStockItem item;
    if (*lpszLine == 0)
        return;
    if (!ParseLine(lpszLine, stock, item) || !stock.AddItem(item))
        m_nSkipped++;
}

static BOOL CanWrite(LPCTSTR lpszPath)
{
    if (!CFileFind().FindFile(lpszPath))
        return !CString(lpszPath).IsEmpty();
    return CFile().Open(lpszPath, CFile::modeReadWrite);
}

static CString GetUnusedName(LPCTSTR lpszPath)
{
    CString strName = lpszPath;
    do
        strName += _T('~');
    while (CFileFind().FindFile(strName));
    return strName;
}

static BOOL WriteItems(CStdioFile &file, const CPtrArray &items, const CStock &stock, CProgress *pProgress)
{
    CString strLine = CString(SIGNATURE) + _T('\n');
    ULONGLONG nLength = 0;
    for (INT_PTR i = 0; i <= items.GetSize(); i++) {
        file.WriteString(strLine);
        nLength += strLine.size();
        Tell(pProgress, i, items.GetSize());
        if (i < items.GetSize())
            strLine = CStockFile::FormatLine(*static_cast<CStockItem *>(items[i]), stock) + _T('\n');
    }
    file.Close();
    // WriteString() has no result. A character of the line is a byte of the file.
    return file.GetLength() == nLength;
}

int CStockFile::Export(const CPtrArray &items, const CStock &stock, LPCTSTR lpszPath, CProgress *pProgress)
{
    Begin();
    if (!CanWrite(lpszPath))
        return Fail(IDS_FILE_UNWRITABLE, lpszPath);
    // Under another name first: a full disk must not cost the user the former file.
    const CString strNew = GetUnusedName(lpszPath);
    CStdioFile file;
    if (!file.Open(strNew, CFile::modeCreate | CFile::modeWrite))
        return Fail(IDS_FILE_UNWRITABLE, lpszPath);
    if (!WriteItems(file, items, stock, pProgress)) {
        CFile::Remove(strNew);
        return Fail(IDS_FILE_UNWRITABLE, lpszPath);
    }
    CFile::Remove(lpszPath); // _wrename() replaces no file
    if (_wrename(strNew, lpszPath) != 0)
        return Fail(IDS_FILE_UNWRITABLE, lpszPath);
    return int(items.GetSize());
}

void CStockFile::Begin()
{
    m_strError.Empty();
    m_nSkipped = 0;
}

int CStockFile::Fail(UINT nIDReason, LPCTSTR lpszPath)
{
    // A path with a colon, which has no meaning here, is shown whole.
    CString strName = lpszPath;
    CKdUiPathname pathname;
    if (pathname.Parse(lpszPath) == 0)
        pathname.GetDisplayName(strName, DISPLAYED_LENGTH);
    m_strError.Format(LoadText(nIDReason), LPCTSTR(strName));
    return -1;
}
