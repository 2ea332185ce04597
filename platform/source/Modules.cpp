#include "FileNames.h"
#include "LoadedModules.h"

#include <KxPlatform.h>
#include <dlfcn.h>
#include <link.h>
#include <unordered_map>

namespace {
struct Module
{
    const void *base;
    int uses = 0;
};

// A module that is not loaded is refused: the dynamic loader would read its memory.
std::unordered_map<HINSTANCE, Module> &loadedModules()
{
    static auto &modules = *new std::unordered_map<HINSTANCE, Module>;
    return modules;
}

// The dynamic section lies in the module, and every module has one.
const void *baseOfHandle(void *handle)
{
    link_map *map = nullptr;
    if (dlinfo(handle, RTLD_DI_LINKMAP, static_cast<void *>(&map)) != 0)
        return nullptr;
    return moduleBase(map->l_ld);
}
} // namespace

const void *moduleBase(const void *address)
{
    Dl_info info;
    return dladdr(address, &info) ? info.dli_fbase : nullptr;
}

const void *programBase()
{
    static const void *const base = baseOfHandle(dlopen(nullptr, RTLD_LAZY));
    return base;
}

const void *loadedModuleBase(HINSTANCE module)
{
    const auto found = loadedModules().find(module);
    return found == loadedModules().end() ? nullptr : found->second.base;
}

HINSTANCE LoadLibraryW(const wchar_t *name)
{
    const auto encoded = encodeFileName(name);
    // For the dynamic loader an empty name is the program itself.
    if (!encoded || encoded->isEmpty())
        return nullptr;
    auto *module = static_cast<HINSTANCE>(dlopen(encoded->constData(), RTLD_NOW | RTLD_LOCAL));
    if (module)
        ++loadedModules().try_emplace(module, Module{baseOfHandle(module)}).first->second.uses;
    return module;
}

BOOL FreeLibrary(HINSTANCE module)
{
    const auto found = loadedModules().find(module);
    if (found == loadedModules().end())
        return FALSE;
    if (--found->second.uses == 0)
        loadedModules().erase(found);
    return dlclose(module) == 0;
}
