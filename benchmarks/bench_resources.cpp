#include <KxPlatform.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <cwchar>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

// A table of 10,000 strings, each copied out in an order that no cache foresees.

static constexpr int stringCount = 10000;

static std::vector<UINT> shuffledIds()
{
    std::vector<UINT> ids;
    for (UINT id = 1; id <= stringCount; ++id)
        ids.push_back(id);
    std::shuffle(ids.begin(), ids.end(), std::mt19937(1));
    return ids;
}

static void loadStringKx(benchmark::State &state)
{
    const std::vector<UINT> ids = shuffledIds();
    wchar_t buffer[1024];
    std::size_t next = 0;
    for (auto _ : state) {
        const int count = LoadStringW(nullptr, ids[next], buffer, int(std::size(buffer)));
        if (count == 0)
            std::abort();
        benchmark::DoNotOptimize(buffer);
        next = next + 1 < ids.size() ? next + 1 : 0;
    }
}
BENCHMARK(loadStringKx)->Name("LoadStringW/Kx")->Iterations(1000000);

static void loadStringPlain(benchmark::State &state)
{
    std::unordered_map<UINT, std::wstring> strings;
    for (UINT id = 1; id <= stringCount; ++id)
        strings.emplace(id, L"String number " + std::to_wstring(id) + L" of the table");
    const std::vector<UINT> ids = shuffledIds();
    wchar_t buffer[1024];
    std::size_t next = 0;
    for (auto _ : state) {
        const auto found = strings.find(ids[next]);
        if (found == strings.end())
            std::abort();
        const std::size_t count = std::min(found->second.size(), std::size(buffer) - 1);
        std::wmemcpy(buffer, found->second.data(), count);
        buffer[count] = L'\0';
        benchmark::DoNotOptimize(buffer);
        next = next + 1 < ids.size() ? next + 1 : 0;
    }
}
BENCHMARK(loadStringPlain)->Name("LoadStringW/plain")->Iterations(1000000);
