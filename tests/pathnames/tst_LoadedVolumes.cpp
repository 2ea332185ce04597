#include "PlainChecks.h"

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>

// Loads the module, and the library with it, and leaves the process with or without unloading them.
int main(int count, char **arguments)
{
    const bool unloads = count > 1 && std::strcmp(arguments[1], "unload") == 0;
    for (int i = 0; i < (unloads ? 2 : 1); ++i) {
        void *module = dlopen(KX_MODULE, RTLD_NOW | RTLD_LOCAL);
        if (!module)
            std::fprintf(stderr, "%s\n", dlerror());
        CHECK(module);
        CHECK(!unloads || (module && dlclose(module) == 0));
    }
    return failedChecks() == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
