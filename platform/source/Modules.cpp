#include "FileNames.h"

#include <KxPlatform.h>
#include <dlfcn.h>
#include <set>

namespace {
// One entry for each use, so that a module that is not loaded is refused: the dynamic loader would read its
// memory.
std::multiset<HINSTANCE> &moduleUses()
{
    static auto &uses = *new std::multiset<HINSTANCE>;
    return uses;
}
} // namespace

HINSTANCE LoadLibraryW(const wchar_t *name)
{
    const auto encoded = encodeFileName(name);
    // For the dynamic loader an empty name is the program itself.
    if (!encoded || encoded->isEmpty())
        return nullptr;
    auto *module = static_cast<HINSTANCE>(dlopen(encoded->constData(), RTLD_NOW | RTLD_LOCAL));
    if (module)
        moduleUses().insert(module);
    return module;
}

BOOL FreeLibrary(HINSTANCE module)
{
    const auto use = moduleUses().find(module);
    if (use == moduleUses().end())
        return FALSE;
    moduleUses().erase(use);
    return dlclose(module) == 0;
}
