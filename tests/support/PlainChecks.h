#ifndef PLAINCHECKS_H
#define PLAINCHECKS_H

#include <cstdio>

/// Checks for programs that must do without Qt Test: a failed one is written out, and failedChecks() counts it.
inline int &failedChecks()
{
    static int count = 0;
    return count;
}

inline void noteCheck(bool passed, const char *what, int line)
{
    if (passed)
        return;
    ++failedChecks();
    std::fprintf(stderr, "FAIL line %d: %s\n", line, what);
}

#define CHECK(condition) noteCheck(static_cast<bool>(condition), #condition, __LINE__)

#endif
