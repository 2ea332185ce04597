#include <KxPlatform.h>

int LoadStringW(HINSTANCE, UINT, wchar_t *buffer, int bufferMax)
{
    if (buffer && bufferMax > 0)
        *buffer = L'\0';
    return 0;
}

HANDLE LoadImageW(HINSTANCE, const wchar_t *, UINT, int, int, UINT)
{
    return nullptr;
}
