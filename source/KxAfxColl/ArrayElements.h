#pragma once

#include "KxLists.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <utility>

/// How slots are filled, emptied and moved: plain elements as bytes, strings by construction and destruction.

template <typename Element> std::size_t bytesOf(INT_PTR count)
{
    if (count > std::numeric_limits<INT_PTR>::max() / INT_PTR(sizeof(Element)))
        throw std::bad_alloc();
    return std::size_t(count) * sizeof(Element);
}

template <typename Element> void constructElements(Element *, INT_PTR) {}

inline void constructElements(CString *first, INT_PTR count)
{
    _ConstructElements(first, count);
}

/// Gives newly constructed elements their first value. Left out where they are about to be overwritten.
template <typename Element> void clearElements(Element *first, INT_PTR count)
{
    std::fill_n(first, count, Element());
}

inline void clearElements(CString *, INT_PTR) {}

template <typename Element> void destroyElements(Element *, INT_PTR) {}

inline void destroyElements(CString *first, INT_PTR count)
{
    _DestructElements(first, count);
}

template <typename Element> void copyElements(Element *to, const Element *from, INT_PTR count)
{
    std::copy_n(from, count, to);
}

inline void copyElements(CString *to, const CString *from, INT_PTR count)
{
    _CopyElements(to, from, count);
}

/// Moves elements within the storage. Slots that they leave and do not enter are unconstructed afterwards.
template <typename Element> void moveElements(Element *to, Element *from, INT_PTR count)
{
    if (count > 0)
        std::memmove(to, from, std::size_t(count) * sizeof(Element));
}

inline void moveElement(CString *to, CString *from)
{
    new (to) CString(std::move(*from));
    std::destroy_at(from);
}

inline void moveElements(CString *to, CString *from, INT_PTR count)
{
    if (to == from)
        return;
    if (to < from) {
        for (INT_PTR i = 0; i < count; ++i)
            moveElement(to + i, from + i);
        return;
    }
    for (INT_PTR i = count; i-- > 0;)
        moveElement(to + i, from + i);
}

/// Gives storage of @p capacity slots, at least 1, that begins with the first @p count elements of @p storage.
template <typename Element> Element *resizeStorage(Element *storage, INT_PTR, INT_PTR capacity)
{
    void *resized = std::realloc(storage, bytesOf<Element>(capacity));
    if (!resized)
        throw std::bad_alloc();
    return static_cast<Element *>(resized);
}

inline CString *resizeStorage(CString *storage, INT_PTR count, INT_PTR capacity)
{
    auto *resized = static_cast<CString *>(std::malloc(bytesOf<CString>(capacity)));
    if (!resized)
        throw std::bad_alloc();
    // A standard string may point into itself, so its bytes cannot be moved.
    std::uninitialized_move_n(storage, count, resized);
    std::destroy_n(storage, count);
    std::free(storage);
    return resized;
}
