#include "KxWinTypes.h"
#include "PlainChecks.h"

#include <dlfcn.h>

#include <cstdlib>
#include <cstring>

// Loads the library with the dynamic loader and leaves the process, in the way that the argument names:
// "leave" leaves it loaded, "unload" unloads it first, "again" loads it once more, "use" calls into it.

class CWnd;

namespace {
void *load()
{
    void *library = dlopen(KX_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    if (!library)
        std::fprintf(stderr, "%s\n", dlerror());
    CHECK(library);
    return library;
}

void unload(void *library)
{
    CHECK(dlclose(library) == 0);
}

template <class Function> Function *functionOf(void *library, const char *symbol)
{
    auto *function = reinterpret_cast<Function *>(dlsym(library, symbol));
    CHECK(function);
    return function;
}

// The symbols of GetSystemMetrics(int), CWnd::FromHandle(HWND) and CreateCWndByHandle(HWND).
void use(void *library)
{
    CHECK(functionOf<int(int)>(library, "_Z16GetSystemMetricsi")(16) == 0);
    CHECK(!functionOf<CWnd *(HWND)>(library, "_ZN4CWnd10FromHandleEP6HWND__")(static_cast<HWND>(library)));
    CHECK(functionOf<CWnd *(HWND)>(library, "_Z18CreateCWndByHandleP6HWND__")(nullptr));
}
} // namespace

int main(int count, char **arguments)
{
    const char *way = count > 1 ? arguments[1] : "leave";
    void *library = load();
    if (failedChecks() != 0)
        return EXIT_FAILURE;

    if (std::strcmp(way, "use") == 0)
        use(library);
    if (std::strcmp(way, "unload") == 0 || std::strcmp(way, "again") == 0)
        unload(library);
    if (std::strcmp(way, "again") == 0)
        use(load());
    return failedChecks() == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
