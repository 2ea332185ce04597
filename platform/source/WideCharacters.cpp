#include <KxPlatform.h>
#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <cwchar>

int _wtoi(const wchar_t *text)
{
    return int(std::clamp(_wtol(text), long{INT_MIN}, long{INT_MAX}));
}

long _wtol(const wchar_t *text)
{
    return text ? std::wcstol(text, nullptr, 10) : 0;
}

double _wtof(const wchar_t *text)
{
    return text ? std::wcstod(text, nullptr) : 0.0;
}

wchar_t *_wcsinc(const wchar_t *current)
{
    return current ? const_cast<wchar_t *>(current + 1) : nullptr;
}

unsigned int _wcsnextc(const wchar_t *current)
{
    return current ? unsigned(*current) : 0;
}

int memcpy_s(void *dest, std::size_t destSize, const void *src, std::size_t count)
{
    if (count == 0)
        return 0;
    if (!dest)
        return EINVAL;
    if (src && count <= destSize) {
        std::memcpy(dest, src, count);
        return 0;
    }
    std::memset(dest, 0, destSize);
    return src ? ERANGE : EINVAL;
}
