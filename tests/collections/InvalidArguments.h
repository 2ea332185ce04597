#ifndef INVALIDARGUMENTS_H
#define INVALIDARGUMENTS_H

#include "KxLists.h"

/// How often an argument check has failed. The program's AfxThrowInvalidArgException() takes precedence over the
/// library's; include this in one source of a test only.
inline int invalidArguments = 0;

void AfxThrowInvalidArgException()
{
    ++invalidArguments;
}

/// Forgets the count.
inline int takeInvalidArguments()
{
    const int count = invalidArguments;
    invalidArguments = 0;
    return count;
}

#endif
