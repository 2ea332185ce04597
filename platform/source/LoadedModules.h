#pragma once

#include <KxWinTypes.h>

// A module is known by the address at which the dynamic loader placed it.

/// @return the base of the module that holds an address.
const void *moduleBase(const void *address);

/// @return the base of the program itself.
const void *programBase();

/// @return the base of the module behind a handle of LoadLibraryW(); null when it is no such handle or was released.
const void *loadedModuleBase(HINSTANCE module);
