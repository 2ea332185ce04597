#include "StockFile.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <type_traits>

static const TCHAR FIELD_END = _T('\t');
static const int NUMBER_ROOM = 32; // characters of any number

template <typename Type> using IfNumber = std::enable_if_t<std::is_arithmetic_v<Type>>;

// Puts a line together, field by field.
class CLineWriter
{
public:
    CLineWriter &operator<<(LPCTSTR lpszText);
    template <typename Number, typename = IfNumber<Number>> CLineWriter &operator<<(Number number);
    /// @return the fields written.
    CString GetLine() const { return m_strLine.Left(m_strLine.GetLength() - 1); }

private:
    void Add(TCHAR ch);

    CString m_strLine;
};

CLineWriter &CLineWriter::operator<<(LPCTSTR lpszText)
{
    for (; *lpszText != 0; lpszText++)
        Add(*lpszText);
    m_strLine += FIELD_END;
    return *this;
}

// The same in every locale, and floating-point numbers lose nothing.
template <typename Number, typename> CLineWriter &CLineWriter::operator<<(Number number)
{
    char szNumber[NUMBER_ROOM];
    m_strLine.append(szNumber, std::to_chars(szNumber, szNumber + NUMBER_ROOM, number).ptr);
    m_strLine += FIELD_END;
    return *this;
}

// CStdioFile replaces what the codec of the locale lacks, so only ASCII is written as it is.
void CLineWriter::Add(TCHAR ch)
{
    if (ch >= _T(' ') && ch <= _T('~') && ch != _T('\\')) {
        m_strLine += ch;
        return;
    }
    CString strEscape;
    strEscape.Format(_T("\\%x;"), UINT(ch));
    m_strLine += strEscape;
}

// Takes a line to pieces, field by field.
class CLineReader
{
public:
    explicit CLineReader(LPCTSTR lpszLine)
        : m_lpszNext(lpszLine)
    {
    }

    CLineReader &operator>>(CString &strText);
    template <typename Number, typename = IfNumber<Number>> CLineReader &operator>>(Number &number);
    /// @return whether every field was good, and there are no more.
    bool IsDone() const { return m_bGood && !m_lpszNext; }

private:
    bool ReadField();
    bool ReadEscape(TCHAR &ch);

    bool m_bGood = true;
    LPCTSTR m_lpszNext; // null behind the last field
    LPCTSTR m_lpsz = nullptr;
    LPCTSTR m_lpszEnd = nullptr; // of the field
};

bool CLineReader::ReadField()
{
    if (!m_lpszNext)
        m_bGood = false;
    if (!m_bGood)
        return false;
    const LPCTSTR lpszTab = _tcschr(m_lpszNext, FIELD_END);
    m_lpsz = m_lpszNext;
    m_lpszEnd = lpszTab ? lpszTab : m_lpsz + _tcslen(m_lpsz);
    m_lpszNext = lpszTab ? lpszTab + 1 : nullptr;
    return true;
}

CLineReader &CLineReader::operator>>(CString &strText)
{
    if (!ReadField())
        return *this;
    while (m_lpsz < m_lpszEnd) {
        TCHAR ch = *m_lpsz++;
        if (ch == _T('\\') && !ReadEscape(ch))
            m_bGood = false;
        strText += ch;
    }
    return *this;
}

// Reads what follows the backslash, for example "20ac;".
bool CLineReader::ReadEscape(TCHAR &ch)
{
    if (!iswxdigit(wint_t(*m_lpsz)))
        return false;
    TCHAR *lpszEnd;
    const unsigned long nCode = _tcstoul(m_lpsz, &lpszEnd, 16);
    if (*lpszEnd != _T(';') || nCode == 0 || nCode > UINT_MAX)
        return false;
    ch = TCHAR(nCode);
    m_lpsz = lpszEnd + 1;
    return true;
}

template <typename Number, typename> CLineReader &CLineReader::operator>>(Number &number)
{
    if (!ReadField())
        return *this;
    char szNumber[NUMBER_ROOM];
    char *pEnd = szNumber;
    while (m_lpsz < m_lpszEnd && pEnd < szNumber + NUMBER_ROOM && *m_lpsz < 0x80)
        *pEnd++ = char(*m_lpsz++);
    const auto result = std::from_chars(szNumber, pEnd, number);
    m_bGood = m_lpsz == m_lpszEnd && result.ec == std::errc() && result.ptr == pEnd && std::isfinite(number);
    return *this;
}

static bool IsIn(int nValue, int nLeast, int nMost)
{
    return nValue >= nLeast && nValue <= nMost;
}

CString CStockFile::FormatLine(const CStockItem &item, const CStock &stock)
{
    CLineWriter writer;
    writer << item.m_strNumber << item.m_strName << item.m_szNote << stock.GetRoom(item.m_nRoom).m_strName
           << item.m_nCategory << item.m_strPacking << item.m_strUnit << item.m_nShelf << item.m_nTemperature
           << item.m_nQuantity << item.m_nReorder << item.m_lBatch << item.m_ulSerial << item.m_fWeight
           << item.m_dPrice << item.m_nState << int(item.m_bFragile) << item.m_bHazardous << item.m_nLevel;
    return writer.GetLine();
}

BOOL CStockFile::ParseLine(LPCTSTR lpszLine, const CStock &stock, CStockItem &item)
{
    CStockItem read;
    CString strNote, strRoom;
    int nFragile = 0;
    CLineReader reader(lpszLine);
    reader >> read.m_strNumber >> read.m_strName >> strNote >> strRoom >> read.m_nCategory >>
        read.m_strPacking >> read.m_strUnit >> read.m_nShelf >> read.m_nTemperature >> read.m_nQuantity >>
        read.m_nReorder >> read.m_lBatch >> read.m_ulSerial >> read.m_fWeight >> read.m_dPrice >>
        read.m_nState >> nFragile >> read.m_bHazardous >> read.m_nLevel;
    read.m_nRoom = stock.FindRoom(strRoom);
    const int nCategories = int(CStock::GetCategories().GetSize());
    if (!reader.IsDone() || read.m_nRoom == NO_ROOM || strNote.GetLength() > NOTE_LENGTH ||
        !IsIn(read.m_nCategory, 0, nCategories - 1) || !IsIn(read.m_nState, STATE_NEW, STATE_BROKEN) ||
        !IsIn(nFragile, FALSE, TRUE) || !IsIn(read.m_bHazardous, FALSE, TRUE) || !IsIn(read.m_nLevel, 0, 100))
        return FALSE;

    _tcscpy(read.m_szNote, strNote);
    read.m_bFragile = nFragile != 0;
    item = read;
    return TRUE;
}
