#include "ResourceModules.h"

#include <KxPlatform.h>

int LoadStringW(HINSTANCE module, UINT id, wchar_t *buffer, int bufferMax)
{
    if (!buffer || bufferMax < 1)
        return 0;
    *buffer = L'\0';
    ResourceModule *resources = resourceModule(module);
    return resources ? copyString(*resources, id, buffer, bufferMax) : 0;
}
