#include "ListModel.h"
#include "MapModel.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

// Every three bytes are one step of the model.
template <typename Model>
static void run(const char *name, std::size_t blockSize, const std::uint8_t *data, std::size_t size)
{
    Model model(blockSize);
    for (std::size_t i = 0; i + 2 < size; i += 3) {
        const char *fault = model.step(data[i], data[i + 1], data[i + 2]);
        if (!fault)
            continue;
        std::fprintf(stderr, "%s, step %zu: %s\n", name, i / 3, fault);
        std::abort();
    }
}

// The first byte chooses the block size and the collection, the others what is done to it.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::size_t blockSize = 1 + data[0] / 2 % 12;
    if (data[0] % 2)
        run<ListModel>("list", blockSize, data + 1, size - 1);
    else
        run<MapModel>("map", blockSize, data + 1, size - 1);
    return 0;
}
