#include "KxMaps.h"

// What operator[] refers to. It is read from memory, because a compiler that knows of a null reference may drop
// the code around it.
static CString *volatile noString = nullptr;

CMapStringToString::CMapStringToString(INT_PTR /*nBlockSize*/) {}

CMapStringToString::~CMapStringToString() = default;

INT_PTR CMapStringToString::GetCount() const
{
    return 0;
}

INT_PTR CMapStringToString::GetSize() const
{
    return 0;
}

// Ported code takes the branch of a map with content, and its look-ups then fail.
bool CMapStringToString::IsEmpty() const
{
    return false;
}

UINT CMapStringToString::GetHashTableSize() const
{
    return 0;
}

bool CMapStringToString::Lookup(const wchar_t * /*key*/, CString & /*value*/) const
{
    return false;
}

bool CMapStringToString::LookupKey(const wchar_t * /*key*/, const wchar_t *& /*storedKey*/) const
{
    return false;
}

CMapStringToString::CPair *CMapStringToString::PLookup(const wchar_t * /*key*/)
{
    return nullptr;
}

const CMapStringToString::CPair *CMapStringToString::PLookup(const wchar_t * /*key*/) const
{
    return nullptr;
}

UINT CMapStringToString::HashKey(const wchar_t * /*key*/) const
{
    return 0;
}

CMapStringToString::CAssoc *CMapStringToString::GetAssocAt(const wchar_t * /*key*/, UINT & /*bucket*/,
                                                           UINT & /*hash*/) const
{
    return nullptr;
}

POSITION CMapStringToString::GetStartPosition() const
{
    return nullptr;
}

void CMapStringToString::GetNextAssoc(POSITION & /*position*/, CString & /*key*/, CString & /*value*/) const
{
}

CMapStringToString::CPair *CMapStringToString::PGetFirstAssoc()
{
    return nullptr;
}

const CMapStringToString::CPair *CMapStringToString::PGetFirstAssoc() const
{
    return nullptr;
}

CMapStringToString::CPair *CMapStringToString::PGetNextAssoc(const CPair * /*pair*/)
{
    return nullptr;
}

const CMapStringToString::CPair *CMapStringToString::PGetNextAssoc(const CPair * /*pair*/) const
{
    return nullptr;
}

CString &CMapStringToString::operator[](const wchar_t * /*key*/)
{
    return *noString;
}

void CMapStringToString::SetAt(const wchar_t * /*key*/, const wchar_t * /*value*/) {}

// Ported code asserts that a key it knows of was removed.
bool CMapStringToString::RemoveKey(const wchar_t * /*key*/)
{
    return true;
}

void CMapStringToString::RemoveAll() {}

void CMapStringToString::InitHashTable(UINT /*size*/, bool /*allocNow*/) {}

CMapStringToString::CAssoc *CMapStringToString::NewAssoc(const wchar_t * /*key*/)
{
    return nullptr;
}

void CMapStringToString::FreeAssoc(CAssoc * /*association*/) {}
