#pragma once

#include "ArrayElements.h"
#include "ArrayGrowth.h"
#include "KxArrays.h"

#include <type_traits>

template <typename Array, typename Element, typename Value> KxArray<Array, Element, Value>::~KxArray()
{
    destroyElements(m_pData, m_nSize);
    std::free(m_pData);
}

template <typename Array, typename Element, typename Value>
void KxArray<Array, Element, Value>::SetSize(INT_PTR newSize, INT_PTR growBy)
{
    if (newSize < 0) {
        AfxThrowInvalidArgException();
        return;
    }

    const INT_PTR oldSize = m_nSize;
    Resize(newSize, growBy < 0 ? m_nGrowBy : growBy);
    if (newSize > oldSize)
        clearElements(m_pData + oldSize, newSize - oldSize);
}

template <typename Array, typename Element, typename Value>
void KxArray<Array, Element, Value>::Reserve(INT_PTR size, INT_PTR growBy)
{
    if (size <= m_nMaxSize)
        return;

    const INT_PTR step = growBy ? growBy : automaticStep<Element>(m_nSize);
    // The first allocation is exact, so that SetSize(n) on a new array wastes nothing.
    const INT_PTR capacity = m_pData ? grownCapacity(m_nMaxSize, step, size) : size;
    m_pData = resizeStorage(m_pData, m_nSize, capacity);
    m_nMaxSize = capacity;
}

template <typename Array, typename Element, typename Value>
void KxArray<Array, Element, Value>::Resize(INT_PTR newSize, INT_PTR growBy)
{
    Reserve(newSize, growBy);
    m_nGrowBy = growBy;
    if (newSize > m_nSize)
        constructElements(m_pData + m_nSize, newSize - m_nSize);
    else
        destroyElements(m_pData + newSize, m_nSize - newSize);
    m_nSize = newSize;
    if (newSize == 0)
        FreeExtra();
}

template <typename Array, typename Element, typename Value> void KxArray<Array, Element, Value>::FreeExtra()
{
    if (m_nSize == m_nMaxSize)
        return;

    if (m_nSize > 0) {
        m_pData = resizeStorage(m_pData, m_nSize, m_nSize);
    } else {
        std::free(m_pData);
        m_pData = nullptr;
    }
    m_nMaxSize = m_nSize;
}

template <typename Array, typename Element, typename Value>
INT_PTR KxArray<Array, Element, Value>::Append(const Array &other)
{
    if (&other == this)
        AfxThrowInvalidArgException();

    const INT_PTR oldSize = m_nSize;
    const INT_PTR count = other.m_nSize;
    Resize(sumOfSizes(oldSize, count), m_nGrowBy);
    // The other's storage is read only now, because it has moved if that is this array.
    copyElements(m_pData + oldSize, other.m_pData, count);
    return oldSize;
}

template <typename Array, typename Element, typename Value>
void KxArray<Array, Element, Value>::Copy(const Array &other)
{
    if (&other == this)
        return;

    Resize(other.m_nSize, m_nGrowBy);
    copyElements(m_pData, other.m_pData, other.m_nSize);
}

template <typename Array, typename Element, typename Value>
void KxArray<Array, Element, Value>::InsertAt(INT_PTR index, Value value, INT_PTR count)
{
    // The value may be one of the elements that are about to move.
    Element copy(value);
    InsertEmpty(index, count);
    if (index < 0 || count < 1)
        return;

    std::fill_n(m_pData + index, count - 1, copy);
    m_pData[index + count - 1] = std::move(copy);
}

template <typename Array, typename Element, typename Value>
void KxArray<Array, Element, Value>::InsertArray(INT_PTR index, const Array *other)
{
    if (!other || index < 0) {
        AfxThrowInvalidArgException();
        return;
    }
    if (other->IsEmpty())
        return;
    if (other == this) {
        Array copy;
        copy.Copy(*other);
        InsertArray(index, &copy);
        return;
    }

    InsertEmpty(index, other->m_nSize);
    copyElements(m_pData + index, other->m_pData, other->m_nSize);
}

template <typename Array, typename Element, typename Value>
void KxArray<Array, Element, Value>::InsertEmpty(INT_PTR index, INT_PTR count)
{
    if (index < 0 || count < 1)
        AfxThrowInvalidArgException();
    if (index < 0)
        return;
    // Ported code gets the size index + count here also for a count below 1.
    if (index >= m_nSize) {
        SetSize(sumOfSizes(index, count), -1);
        return;
    }
    if (count < 1)
        return;

    const INT_PTR oldSize = m_nSize;
    const INT_PTR moved = oldSize - index;
    const INT_PTR vacated = std::min(count, moved);
    Resize(sumOfSizes(oldSize, count), m_nGrowBy);
    destroyElements(m_pData + m_nSize - vacated, vacated);
    moveElements(m_pData + index + count, m_pData + index, moved);
    constructElements(m_pData + index, vacated);
    clearElements(m_pData + index, count);
}

template <typename Array, typename Element, typename Value>
void KxArray<Array, Element, Value>::RemoveAt(INT_PTR index, INT_PTR count)
{
    if (index < 0 || count < 0 || index > m_nSize - count) {
        AfxThrowInvalidArgException();
        // Plain elements need no destruction: nothing follows that would have to move, and ported code sees the
        // size go down.
        if (std::is_trivial_v<Element> && index >= 0 && count >= 0 && count <= m_nSize)
            m_nSize -= count;
        return;
    }

    Element *first = m_pData + index;
    destroyElements(first, count);
    moveElements(first, first + count, m_nSize - (index + count));
    m_nSize -= count;
}

template <typename Array, typename Element, typename Value>
void KxArray<Array, Element, Value>::StoreGrowing(INT_PTR index, Element value)
{
    if (index < 0) {
        AfxThrowInvalidArgException();
        return;
    }

    if (index >= m_nSize)
        SetSize(sumOfSizes(index, 1), -1);
    m_pData[index] = std::move(value);
}
