#include "KxArray_p.h"

template class KxArray<CStringArray, CString, const CString &>;

static_assert(sizeof(CStringArray) == 32);

CStringArray::CStringArray() = default;

CStringArray::~CStringArray() = default;

void CStringArray::SetAt(INT_PTR index, const wchar_t *text)
{
    CheckIndex(index);
    m_pData[index] = text;
}

void CStringArray::SetAtGrow(INT_PTR index, const wchar_t *text)
{
    StoreGrowing(index, text);
}

INT_PTR CStringArray::Add(const CString &value)
{
    if (m_nSize == m_nMaxSize) {
        StoreGrowing(m_nSize, value);
        return m_nSize - 1;
    }
    new (m_pData + m_nSize) CString(value);
    return m_nSize++;
}

INT_PTR CStringArray::Add(const wchar_t *text)
{
    StoreGrowing(m_nSize, text);
    return m_nSize - 1;
}

void CStringArray::InsertAt(INT_PTR index, const wchar_t *text, INT_PTR count)
{
    InsertAt(index, CString(text), count);
}

void CStringArray::InsertAt(INT_PTR index, const CStringArray *other)
{
    InsertArray(index, other);
}
