#include "KxLists.h"

#include <memory>
#include <new>

// Ported code goes on after a failed check, so a bad argument must not end the operation here.
void AfxThrowInvalidArgException() {}

void ConstructElement(CString *element)
{
    new (element) CString;
}

void DestructElement(CString *element)
{
    std::destroy_at(element);
}

void _ConstructElements(CString *elements, INT_PTR count)
{
    for (INT_PTR i = 0; i < count; ++i)
        ConstructElement(elements + i);
}

void _DestructElements(CString *elements, INT_PTR count)
{
    for (INT_PTR i = 0; i < count; ++i)
        DestructElement(elements + i);
}

void _CopyElements(CString *dst, const CString *src, INT_PTR count)
{
    for (INT_PTR i = 0; i < count; ++i)
        dst[i] = src[i];
}
