/// @file TextBuffers.h
/// @brief Texts in buffers of the caller.
#pragma once

#include <cwchar>

/// Copies at most @p size - 1 characters, always ends the buffer with a null, and gives the length of what is
/// in it.
inline int copyToBuffer(const wchar_t *text, wchar_t *buffer, int size)
{
    if (!buffer || size < 1)
        return 0;
    std::wcsncpy(buffer, text, static_cast<std::size_t>(size) - 1);
    buffer[size - 1] = L'\0';
    return static_cast<int>(std::wcslen(buffer));
}
