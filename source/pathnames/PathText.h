/// @file PathText.h
/// @brief What the operations of path names share: result codes and positions in a text.
#pragma once

#include "KxString.h"

#include <cwctype>

/// Result codes of the editing operations.
/// @{
constexpr unsigned editDone = 0;
constexpr unsigned badArgument = 1;
constexpr unsigned notAPath = 2;
constexpr unsigned leavesRoot = 3;
constexpr unsigned noSeparator = 4;
/// @}

/// Room for a current directory, in characters, and the length that paths are kept below.
constexpr int maxPathLength = 1023;

inline bool endsWith(const CString &text, wchar_t ch)
{
    return !text.empty() && text.back() == ch;
}

/// @return where the name begins: behind the last separator, or else the last colon, or else at 0.
inline std::size_t nameStart(const CString &path, wchar_t separator)
{
    const std::size_t last = path.rfind(separator);
    return (last == CString::npos ? path.rfind(L':') : last) + 1;
}

/// @return whether a name, which begins at @p start, holds "*" or "?".
inline bool holdsWildcard(const CString &path, std::size_t start)
{
    return path.find(L'*', start) != CString::npos || path.find(L'?', start) != CString::npos;
}

inline bool isDrive(wchar_t first, wchar_t second)
{
    return second == L':' && std::iswalpha(static_cast<std::wint_t>(first));
}

inline wchar_t toDriveLetter(wchar_t ch)
{
    return static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(ch)));
}
