#include "ArrayModel.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

// The first byte chooses the array and how large it gets, the others are the numbers that its operations take. A
// number that may be large takes two of them.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;

    std::size_t used = 1;
    const auto next = [&] { return used < size ? data[used++] : std::uint8_t(0); };
    const auto choose = [&](INT_PTR below) {
        const INT_PTR number = below > 256 ? next() * 256 + next() : next();
        return below > 0 ? number % below : 0;
    };

    const ArrayKind &kind = arrayKinds()[data[0] % arrayKinds().size()];
    ArrayRun run(kind, data[0] < 128 ? 60 : 300, choose);
    while (used < size) {
        if (run.step())
            continue;
        std::fprintf(stderr, "%s: array and model differ after %zu bytes\n", kind.name, used);
        std::abort();
    }
    return 0;
}
