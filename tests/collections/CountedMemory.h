#ifndef COUNTEDMEMORY_H
#define COUNTEDMEMORY_H

#include <cstdlib>
#include <new>

/// Replaces the global allocation functions in the one program that includes this, to count what is allocated.
static long liveAllocations = 0;
static std::size_t lastAllocatedBytes = 0;

void *operator new(std::size_t bytes)
{
    void *storage = std::malloc(bytes ? bytes : 1);
    if (!storage)
        throw std::bad_alloc();
    ++liveAllocations;
    lastAllocatedBytes = bytes;
    return storage;
}

void operator delete(void *storage) noexcept
{
    if (storage)
        --liveAllocations;
    std::free(storage);
}

void operator delete(void *storage, std::size_t) noexcept
{
    operator delete(storage);
}

#endif
