#pragma once

#include "ResourceImage.h"

#include <KxWinTypes.h>

/// A module with the resources embedded in it.
class ResourceModule;

/// @return the module behind a handle, or the program for null; null when the handle is of no loaded module,
/// or when the module has no resources.
ResourceModule *resourceModule(HINSTANCE module);

/// @return the resource that suits the locale best; nothing when there is none.
Bytes findResource(const ResourceModule &module, ResourceType type, const ResourceName &name);

/// As LoadStringW(), with room for at least one character.
int copyString(ResourceModule &module, unsigned id, wchar_t *buffer, int room);
