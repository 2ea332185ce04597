#include "KxLists.h"

#include <cstdint>
#include <new>

static_assert(sizeof(CPlex) == sizeof(void *), "the elements follow one pointer");

CPlex *CPlex::Create(CPlex *&head, std::size_t nMax, std::size_t cbElement)
{
    if (nMax == 0 || cbElement == 0)
        return nullptr;
    if (nMax > (SIZE_MAX - sizeof(CPlex)) / cbElement)
        throw std::bad_alloc();

    void *storage = ::operator new(sizeof(CPlex) + nMax * cbElement);
    head = new (storage) CPlex{head};
    return head;
}

void CPlex::FreeDataChain()
{
    for (CPlex *block = this; block;) {
        CPlex *next = block->pNext;
        ::operator delete(block);
        block = next;
    }
}
