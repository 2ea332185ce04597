#pragma once

#include "KxLists.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <new>

/// The growth rules of the arrays.

/// @param size  not negative.
inline INT_PTR sumOfSizes(INT_PTR size, INT_PTR added)
{
    if (added > std::numeric_limits<INT_PTR>::max() - size)
        throw std::bad_alloc();
    return size + added;
}

/// Slots to add when the array has no step of its own.
template <typename Element> INT_PTR automaticStep(INT_PTR size)
{
    return std::clamp<INT_PTR>(std::int32_t(size) / 8, 4, 1024);
}

template <> inline INT_PTR automaticStep<CString>(INT_PTR size)
{
    return std::clamp<INT_PTR>(size / 8, 4, 1024);
}

inline INT_PTR grownCapacity(INT_PTR capacity, INT_PTR step, INT_PTR newSize)
{
    if (step > std::numeric_limits<INT_PTR>::max() - capacity)
        AfxThrowInvalidArgException();
    return std::max(sumOfSizes(capacity, step), newSize);
}
