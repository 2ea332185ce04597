#include "KxPlatformServices.h"
#include "KxUser32.h"

SHORT GetKeyState(int nVirtKey)
{
    return static_cast<SHORT>(platformServices().keyboard().keyState(nVirtKey));
}

SHORT GetAsyncKeyState(int vKey)
{
    return GetKeyState(vKey);
}

SHORT KxUser32::GetKeyState(int nVirtKey)
{
    return ::GetKeyState(nVirtKey);
}
