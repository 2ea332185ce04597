#include "KxUser32.h"

namespace {

HINSTANCE g_resourceHandle = nullptr;

} // namespace

HINSTANCE AfxGetResourceHandle()
{
    return g_resourceHandle;
}

void AfxSetResourceHandle(HINSTANCE hInst)
{
    g_resourceHandle = hInst;
}
