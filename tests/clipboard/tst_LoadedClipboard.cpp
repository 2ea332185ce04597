#include "KxFiles.h"
#include "PlainChecks.h"
#include "SanitizedMemory.h"

#include <dlfcn.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

// Loads the library with the dynamic loader, leaves data on the clipboard, and then leaves the process in the
// way that the argument names: "leave" leaves the library loaded, "unattached" does so without having attached
// to the clipboard, "unload" unloads it first, "again" does all of it once more. A block as large as this one is mapped by itself, so that it shows when it is freed.

namespace {
constexpr std::size_t blockSize = 40'000'000;
void *block = nullptr;

bool isFreed()
{
    constexpr std::uintptr_t pageSize = 4096;
    const auto page = reinterpret_cast<std::uintptr_t>(block) / pageSize * pageSize;
    return msync(reinterpret_cast<void *>(page), 1, MS_ASYNC) != 0 && errno == ENOMEM;
}

template <class Function> Function *functionOf(void *library, const char *symbol)
{
    auto *function = reinterpret_cast<Function *>(dlsym(library, symbol));
    CHECK(function);
    return function;
}

void *newHandle(void *data)
{
    auto *memory = static_cast<KxGlobalMemory *>(std::malloc(sizeof(KxGlobalMemory)));
    *memory = {data, blockSize, 0};
    return memory;
}

// RegisterClipboardFormatW(name), COleDataSource().CacheGlobalData(format, handle) and
// g_platformClipboard.attachClipboard(). Nothing else registers a format, in any load of the library.
void useClipboard(void *library, bool attach)
{
    const unsigned format =
        functionOf<unsigned(const wchar_t *)>(library, "_Z24RegisterClipboardFormatWPKw")(L"a format");
    CHECK(format == 3456);

    char source = 0;
    block = std::malloc(blockSize);
    functionOf<void(void *, unsigned, void *)>(library, "_ZN14COleDataSource15CacheGlobalDataEjPv")(
        &source, format, newHandle(block));
    CHECK(!isFreed());
    if (!attach)
        return;

    void *clipboard = dlsym(library, "g_platformClipboard");
    CHECK(clipboard);
    CHECK(functionOf<bool(void *)>(library, "_ZN19KxPlatformClipboard15attachClipboardEv")(clipboard));
}

void *loadAndUse(bool attach = true)
{
    void *library = dlopen(KX_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        std::fprintf(stderr, "%s\n", dlerror());
        std::exit(EXIT_FAILURE);
    }
    useClipboard(library, attach);
    return library;
}

// Runs after the objects of all libraries are destroyed. Whether dlclose() destroys them is up to the loader.
__attribute__((destructor)) void checkAtTheEnd()
{
    CHECK(isMemorySanitized || isFreed());
    if (failedChecks() != 0)
        _exit(EXIT_FAILURE);
}
} // namespace

int main(int count, char **arguments)
{
    const char *way = count > 1 ? arguments[1] : "leave";
    const bool attach = std::strcmp(way, "unattached") != 0;
    void *library = loadAndUse(attach);
    if (!attach || std::strcmp(way, "leave") == 0)
        return EXIT_SUCCESS;

    CHECK(dlclose(library) == 0);
    if (std::strcmp(way, "again") == 0)
        loadAndUse();
    return EXIT_SUCCESS;
}
