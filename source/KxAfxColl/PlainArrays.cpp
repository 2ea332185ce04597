#include "KxArray_p.h"

template class KxArray<CWordArray, WORD, WORD>;
template class KxArray<CByteArray, BYTE, BYTE>;
template class KxArray<CPtrArray, void *, void *>;

static_assert(sizeof(CWordArray) == 32 && sizeof(CByteArray) == 32 && sizeof(CPtrArray) == 32);
