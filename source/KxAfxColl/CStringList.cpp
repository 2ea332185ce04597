#include "KxLists.h"

#include "FreeList.h"

#include <cwchar>
#include <memory>
#include <new>
#include <string_view>
#include <utility>

static bool equal(const std::wstring &data, std::wstring_view text)
{
    return data.size() == text.size() && std::wmemcmp(data.data(), text.data(), text.size()) == 0;
}

CStringList::CStringList(INT_PTR nBlockSize)
    : m_nBlockSize(blockSizeOf(nBlockSize))
{
}

CStringList::~CStringList()
{
    RemoveAll();
}

CStringList::CNode *CStringList::NewNode(CNode *previous, CNode *next, CString &&data)
{
    if (!m_pNodeFree)
        addBlock(m_pBlocks, m_nBlockSize, m_pNodeFree);

    CNode *node = m_pNodeFree;
    m_pNodeFree = node->pNext;
    node->pNext = next;
    node->pPrev = previous;
    new (&node->data) CString(std::move(data));
    ++m_nCount;
    return node;
}

void CStringList::FreeNode(CNode *node)
{
    std::destroy_at(&node->data);
    node->pNext = m_pNodeFree;
    m_pNodeFree = node;
    if (--m_nCount == 0)
        RemoveAll();
}

POSITION CStringList::insert(CNode *previous, CNode *next, CString &&data)
{
    CNode *node = NewNode(previous, next, std::move(data));
    (previous ? previous->pNext : m_pNodeHead) = node;
    (next ? next->pPrev : m_pNodeTail) = node;
    return positionOf(node);
}

void CStringList::unlink(CNode *node)
{
    (node->pPrev ? node->pPrev->pNext : m_pNodeHead) = node->pNext;
    (node->pNext ? node->pNext->pPrev : m_pNodeTail) = node->pPrev;
    FreeNode(node);
}

POSITION CStringList::FindIndex(INT_PTR n) const
{
    if (n < 0 || n >= m_nCount)
        return nullptr;

    CNode *node = m_pNodeHead;
    while (n-- > 0)
        node = node->pNext;
    return positionOf(node);
}

POSITION CStringList::Find(const wchar_t *value, POSITION startAfter) const
{
    const std::wstring_view text(value ? value : L"");
    CNode *node = startAfter ? nodeAt(startAfter)->pNext : m_pNodeHead;
    while (node && !equal(node->data, text))
        node = node->pNext;
    return positionOf(node);
}

void CStringList::SetAt(POSITION position, const wchar_t *value)
{
    checkedNode(position)->data = value;
}

void CStringList::SetAt(POSITION position, const CString &value)
{
    checkedNode(position)->data = value;
}

POSITION CStringList::AddHead(const wchar_t *value)
{
    return insert(nullptr, m_pNodeHead, CString(value));
}

POSITION CStringList::AddHead(const CString &value)
{
    return insert(nullptr, m_pNodeHead, CString(value));
}

POSITION CStringList::AddTail(const wchar_t *value)
{
    return insert(m_pNodeTail, nullptr, CString(value));
}

POSITION CStringList::AddTail(const CString &value)
{
    return insert(m_pNodeTail, nullptr, CString(value));
}

// The strings to add are counted before, because a list that is added to itself would never come to its end.
POSITION CStringList::AddHead(CStringList *list)
{
    if (!list) {
        AfxThrowInvalidArgException();
        return nullptr;
    }
    POSITION position = list->GetTailPosition();
    for (INT_PTR left = list->GetCount(); left > 0; --left)
        AddHead(list->GetPrev(position));
    return nullptr;
}

POSITION CStringList::AddTail(CStringList *list)
{
    if (!list) {
        AfxThrowInvalidArgException();
        return nullptr;
    }
    POSITION position = list->GetHeadPosition();
    for (INT_PTR left = list->GetCount(); left > 0; --left)
        AddTail(list->GetNext(position));
    return nullptr;
}

POSITION CStringList::InsertBefore(POSITION position, const wchar_t *value)
{
    return InsertBefore(position, CString(value));
}

POSITION CStringList::InsertBefore(POSITION position, const CString &value)
{
    if (!position)
        return AddHead(value);
    CNode *next = nodeAt(position);
    return insert(next->pPrev, next, CString(value));
}

POSITION CStringList::InsertAfter(POSITION position, const wchar_t *value)
{
    return InsertAfter(position, CString(value));
}

POSITION CStringList::InsertAfter(POSITION position, const CString &value)
{
    if (!position)
        return AddTail(value);
    CNode *previous = nodeAt(position);
    return insert(previous, previous->pNext, CString(value));
}

CString CStringList::RemoveHead()
{
    CString data = std::move(m_pNodeHead->data);
    unlink(m_pNodeHead);
    return data;
}

CString CStringList::RemoveTail()
{
    CString data = std::move(m_pNodeTail->data);
    unlink(m_pNodeTail);
    return data;
}

void CStringList::RemoveAt(POSITION position)
{
    unlink(checkedNode(position));
}

void CStringList::RemoveAll()
{
    for (CNode *node = m_pNodeHead; node; node = node->pNext)
        std::destroy_at(&node->data);
    m_pNodeHead = nullptr;
    m_pNodeTail = nullptr;
    m_nCount = 0;
    m_pNodeFree = nullptr;
    m_pBlocks->FreeDataChain();
    m_pBlocks = nullptr;
}
