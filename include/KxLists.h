/// @file KxLists.h
/// @brief CStringList, the block allocator beneath it, and what all collections share.
#pragma once

#include "KxString.h"
#include "KxWinTypes.h"

#include <cstddef>

/// Reports a bad argument of a collection. Returns at once: unlike MFC, nothing is thrown.
///
/// The checks of the collections are advisory. The operation that found the bad argument carries on as if the
/// check had passed, unless its own description says otherwise.
KX_MFC_EXPORT void AfxThrowInvalidArgException();

/// @name Strings in raw storage
/// A count of 0 or less does nothing.
/// @{

/// Makes an empty string in the storage at @p element.
KX_MFC_EXPORT void ConstructElement(CString *element);
/// Destroys the string at @p element and leaves its storage alone.
KX_MFC_EXPORT void DestructElement(CString *element);
/// Makes @p count empty strings in the storage at @p elements.
KX_MFC_EXPORT void _ConstructElements(CString *elements, INT_PTR count);
/// Destroys @p count strings from @p elements on and leaves their storage alone.
KX_MFC_EXPORT void _DestructElements(CString *elements, INT_PTR count);
/// Assigns @p count strings from @p src on, the first one first, to strings that exist from @p dst on.
KX_MFC_EXPORT void _CopyElements(CString *dst, const CString *src, INT_PTR count);
/// @}

/// The header of a block of storage, which is one allocation. Blocks form a chain, the newest one first.
struct KX_MFC_EXPORT CPlex
{
    CPlex *pNext; ///< The next older block, or null.

    /// Allocates a block and puts it in front of a chain.
    /// @param head the chain; set to the new block. Null is an empty chain.
    /// @param nMax elements of the block.
    /// @param cbElement bytes of one element.
    /// @return the new block; null, with @p head as it was, when either count is 0. Freed by FreeDataChain().
    /// @throws std::bad_alloc when there is no memory; @p head is as it was.
    static CPlex *Create(CPlex *&head, std::size_t nMax, std::size_t cbElement);

    /// @return the storage of the block, its first byte after the header. It is not initialised.
    void *data() { return this + 1; }

    /// Frees this block and all older ones. Called through a null pointer, an empty chain, it does nothing.
    void FreeDataChain();
};

/// A doubly linked list of strings.
///
/// A POSITION is the address of a node; it stays valid until that node is removed. Nodes are handed out from
/// blocks, a freed node being the next one to be used again, and a list that becomes empty frees its blocks.
/// Not synchronised. Where a position or the list must not be null or empty, nothing checks that it is not.
class KX_MFC_EXPORT CStringList
{
public:
    /// An empty list.
    /// @param nBlockSize nodes per block. A value below 1 counts as 10.
    explicit CStringList(INT_PTR nBlockSize = 10);
    CStringList(const CStringList &) = delete;
    CStringList &operator=(const CStringList &) = delete;
    ~CStringList();

    /// @name Size
    /// @{

    /// @return the number of strings.
    INT_PTR GetCount() const { return m_nCount; }
    /// @return true when there are no strings.
    bool IsEmpty() const { return m_nCount == 0; }
    /// @}

    /// @name First and last
    /// @{

    /// @return the first string. The list must not be empty.
    CString &GetHead() { return m_pNodeHead->data; }
    /// @return the first string. The list must not be empty.
    const CString &GetHead() const { return m_pNodeHead->data; }
    /// @return the last string. The list must not be empty.
    CString &GetTail() { return m_pNodeTail->data; }
    /// @return the last string. The list must not be empty.
    const CString &GetTail() const { return m_pNodeTail->data; }
    /// @}

    /// @name Iteration
    /// @{

    /// @return the position of the first string; null when the list is empty.
    POSITION GetHeadPosition() const { return positionOf(m_pNodeHead); }
    /// @return the position of the last string; null when the list is empty.
    POSITION GetTailPosition() const { return positionOf(m_pNodeTail); }
    /// Moves @p position to the next string, or to null behind the last one.
    /// @param position not null.
    /// @return the string at the former position.
    CString &GetNext(POSITION &position) { return stepNext(position)->data; }
    /// Moves @p position to the next string, or to null behind the last one.
    /// @param position not null.
    /// @return the string at the former position.
    const CString &GetNext(POSITION &position) const { return stepNext(position)->data; }
    /// Moves @p position to the previous string, or to null before the first one.
    /// @param position not null.
    /// @return the string at the former position.
    CString &GetPrev(POSITION &position) { return stepPrev(position)->data; }
    /// Moves @p position to the previous string, or to null before the first one.
    /// @param position not null.
    /// @return the string at the former position.
    const CString &GetPrev(POSITION &position) const { return stepPrev(position)->data; }
    /// @return the string at @p position, which must not be null.
    CString &GetAt(POSITION position) { return checkedNode(position)->data; }
    /// @return the string at @p position, which must not be null.
    const CString &GetAt(POSITION position) const { return checkedNode(position)->data; }
    /// @}

    /// @name Searching
    /// @{

    /// @return the position of string number @p n, counted from 0; null when there is none.
    POSITION FindIndex(INT_PTR n) const;
    /// Searches for a text, with regard to case.
    /// @param value the text; null counts as the empty text.
    /// @param startAfter the position *behind* which the search begins; null to begin at the first string.
    /// @return the position of the first string that equals @p value, or null.
    POSITION Find(const wchar_t *value, POSITION startAfter = nullptr) const;
    /// @}

    /// @name Changes
    /// They take a string as `value`. A null text counts as the empty text. A CString that is passed in may
    /// be one of the list.
    /// @{

    /// Assigns the string at @p position, which must not be null.
    void SetAt(POSITION position, const wchar_t *value);
    /// Assigns the string at @p position, which must not be null.
    void SetAt(POSITION position, const CString &value);
    /// Adds a string before the first one.
    /// @return its position.
    POSITION AddHead(const wchar_t *value);
    /// Adds a string before the first one.
    /// @return its position.
    POSITION AddHead(const CString &value);
    /// Adds a string behind the last one.
    /// @return its position.
    POSITION AddTail(const wchar_t *value);
    /// Adds a string behind the last one.
    /// @return its position.
    POSITION AddTail(const CString &value);
    /// Adds copies of the strings of @p list before the first one, in their order.
    /// @param list may be this list, whose content is then doubled; null adds nothing.
    /// @return null, unlike the other forms.
    POSITION AddHead(CStringList *list);
    /// Adds copies of the strings of @p list behind the last one, in their order.
    /// @param list may be this list, whose content is then doubled; null adds nothing.
    /// @return null, unlike the other forms.
    POSITION AddTail(CStringList *list);
    /// Adds a string before the one at @p position; before the first one when it is null.
    /// @return the position of the new string.
    POSITION InsertBefore(POSITION position, const wchar_t *value);
    /// Adds a string before the one at @p position; before the first one when it is null.
    /// @return the position of the new string.
    POSITION InsertBefore(POSITION position, const CString &value);
    /// Adds a string behind the one at @p position; behind the last one when it is null.
    /// @return the position of the new string.
    POSITION InsertAfter(POSITION position, const wchar_t *value);
    /// Adds a string behind the one at @p position; behind the last one when it is null.
    /// @return the position of the new string.
    POSITION InsertAfter(POSITION position, const CString &value);
    /// Removes the first string. The list must not be empty.
    /// @return the removed string.
    CString RemoveHead();
    /// Removes the last string. The list must not be empty.
    /// @return the removed string.
    CString RemoveTail();
    /// Removes the string at @p position, which must not be null.
    void RemoveAt(POSITION position);
    /// Removes all strings and frees all blocks.
    void RemoveAll();
    /// @}

protected:
    /// A node of the list.
    struct CNode
    {
        CNode *pNext; ///< The next one in the list or in the free list.
        CNode *pPrev; ///< The one before.
        CString data; ///< The string.
    };

    CNode *m_pNodeHead = nullptr; ///< The first node; null when there is none.
    CNode *m_pNodeTail = nullptr; ///< The last node; null when there is none.
    INT_PTR m_nCount = 0;         ///< Nodes in the list.
    CNode *m_pNodeFree = nullptr; ///< Nodes to hand out.
    CPlex *m_pBlocks = nullptr;   ///< The blocks that hold all nodes.
    INT_PTR m_nBlockSize;         ///< Nodes per block.

private:
    static POSITION positionOf(CNode *node) { return reinterpret_cast<POSITION>(node); }
    static CNode *nodeAt(POSITION position) { return reinterpret_cast<CNode *>(position); }

    static CNode *checkedNode(POSITION position)
    {
        if (!position)
            AfxThrowInvalidArgException();
        return nodeAt(position);
    }
    static CNode *stepNext(POSITION &position)
    {
        CNode *node = checkedNode(position);
        position = positionOf(node->pNext);
        return node;
    }
    static CNode *stepPrev(POSITION &position)
    {
        CNode *node = checkedNode(position);
        position = positionOf(node->pPrev);
        return node;
    }

    inline CNode *NewNode(CNode *previous, CNode *next, CString &&data);
    inline void FreeNode(CNode *node);
    inline POSITION insert(CNode *previous, CNode *next, CString &&data);
    inline void unlink(CNode *node);
};
