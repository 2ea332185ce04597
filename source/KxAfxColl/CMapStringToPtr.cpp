#include "KxMaps.h"

#include "FreeList.h"

#include <cstddef>
#include <cstdlib>
#include <cwchar>
#include <type_traits>

namespace {

const POSITION beforeStart = reinterpret_cast<POSITION>(INT_PTR(-1));

constexpr std::size_t keyElements = std::extent_v<decltype(CMapStringToPtr::CAssoc::key)>;

bool fits(const wchar_t *key)
{
    return key && std::wcslen(key) < keyElements;
}

UINT hashOf(const wchar_t *key)
{
    if (!key)
        return 0;

    // hash * 33 + element, two elements at a time.
    UINT hash = 0;
    for (; key[0] && key[1]; key += 2)
        hash = hash * (33 * 33) + (static_cast<UINT>(key[0]) * 33 + static_cast<UINT>(key[1]));
    return key[0] ? hash * 33 + static_cast<UINT>(key[0]) : hash;
}

} // namespace

static_assert(offsetof(CMapStringToPtr::CAssoc, nBucket) == 8 &&
              offsetof(CMapStringToPtr::CAssoc, key) == 12);
static_assert(offsetof(CMapStringToPtr::CAssoc, value) == 2064 && sizeof(CMapStringToPtr::CAssoc) == 2072);

CMapStringToPtr::CMapStringToPtr(INT_PTR nBlockSize)
    : m_nBlockSize(blockSizeOf(nBlockSize))
{
}

CMapStringToPtr::~CMapStringToPtr()
{
    RemoveAll();
}

UINT CMapStringToPtr::bucketOf(const wchar_t *key) const
{
    return hashOf(key) % m_nHashTableSize;
}

CMapStringToPtr::CAssoc *CMapStringToPtr::find(const wchar_t *key, UINT bucket) const
{
    if (!m_pHashTable || !key)
        return nullptr;

    CAssoc *association = m_pHashTable[bucket];
    while (association && std::wcscmp(association->key, key) != 0)
        association = association->pNext;
    return association;
}

CMapStringToPtr::CAssoc *CMapStringToPtr::firstFrom(UINT bucket) const
{
    if (!m_pHashTable)
        return nullptr;
    while (bucket < m_nHashTableSize && !m_pHashTable[bucket])
        ++bucket;
    return bucket < m_nHashTableSize ? m_pHashTable[bucket] : nullptr;
}

bool CMapStringToPtr::makeTable()
{
    if (!m_pHashTable)
        InitHashTable(m_nHashTableSize);
    return m_pHashTable;
}

bool CMapStringToPtr::Lookup(const wchar_t *key, void *&value) const
{
    const CAssoc *association = find(key, bucketOf(key));
    if (!association)
        return false;
    value = association->value;
    return true;
}

bool CMapStringToPtr::LookupKey(const wchar_t *key, const wchar_t *&storedKey) const
{
    const CAssoc *association = find(key, bucketOf(key));
    if (!association)
        return false;
    storedKey = association->key;
    return true;
}

UINT CMapStringToPtr::HashKey(const wchar_t *key) const
{
    return hashOf(key);
}

CMapStringToPtr::CAssoc *CMapStringToPtr::GetAssocAt(const wchar_t *key, UINT &bucket, UINT & /*hash*/) const
{
    bucket = bucketOf(key);
    return find(key, bucket);
}

POSITION CMapStringToPtr::GetStartPosition() const
{
    return m_nCount > 0 ? beforeStart : nullptr;
}

void CMapStringToPtr::GetNextAssoc(POSITION &position, CString &key, void *&value) const
{
    const CAssoc *association =
        position == beforeStart ? firstFrom(0) : reinterpret_cast<const CAssoc *>(position);
    position = nullptr;
    if (!association)
        return;

    CAssoc *next = association->pNext ? association->pNext : firstFrom(association->nBucket + 1);
    position = reinterpret_cast<POSITION>(next);
    key.assign(association->key);
    value = association->value;
}

void *&CMapStringToPtr::operator[](const wchar_t *key)
{
    const UINT bucket = bucketOf(key);
    if (CAssoc *association = find(key, bucket))
        return association->value;

    // Ported code writes through the result unseen, so a key that has no place gets a slot of no consequence.
    if (!fits(key) || !makeTable()) {
        m_refused = nullptr;
        return m_refused;
    }
    CAssoc *association = NewAssoc();
    association->nBucket = bucket;
    std::wcscpy(association->key, key);
    association->pNext = m_pHashTable[bucket];
    m_pHashTable[bucket] = association;
    return association->value;
}

void CMapStringToPtr::SetAt(const wchar_t *key, void *value)
{
    (*this)[key] = value;
}

bool CMapStringToPtr::RemoveKey(const wchar_t *key)
{
    if (!m_pHashTable || !key)
        return false;

    CAssoc **link = &m_pHashTable[bucketOf(key)];
    while (*link && std::wcscmp((*link)->key, key) != 0)
        link = &(*link)->pNext;
    CAssoc *association = *link;
    if (!association)
        return false;

    *link = association->pNext;
    FreeAssoc(association);
    return true;
}

void CMapStringToPtr::RemoveAll()
{
    std::free(m_pHashTable);
    m_pHashTable = nullptr;
    m_nCount = 0;
    m_pFreeList = nullptr;
    m_pBlocks->FreeDataChain();
    m_pBlocks = nullptr;
}

void CMapStringToPtr::InitHashTable(UINT size, bool allocNow)
{
    // A key could belong to no bucket of an empty table.
    if (size == 0)
        return;

    std::free(m_pHashTable);
    m_pHashTable = nullptr;
    if (allocNow) {
        m_pHashTable = static_cast<CAssoc **>(std::calloc(size, sizeof(void *)));
        if (!m_pHashTable)
            return;
    }
    m_nHashTableSize = size;
}

CMapStringToPtr::CAssoc *CMapStringToPtr::NewAssoc()
{
    if (!m_pFreeList)
        addBlock(m_pBlocks, m_nBlockSize, m_pFreeList);

    CAssoc *association = m_pFreeList;
    m_pFreeList = association->pNext;
    std::wmemset(association->key, L'\0', keyElements);
    association->value = nullptr;
    ++m_nCount;
    return association;
}

void CMapStringToPtr::FreeAssoc(CAssoc *association)
{
    if (!association)
        return;
    association->pNext = m_pFreeList;
    m_pFreeList = association;
    if (--m_nCount == 0)
        RemoveAll();
}
