// The plain arrays beside std::vector, and the string array beside a vector of standard strings.

#include "KxArrays.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace {

constexpr INT_PTR pushCount = 1000000;
constexpr INT_PTR insertCount = 1000;
constexpr INT_PTR copyCount = 1000000;
constexpr INT_PTR stringCount = 100000;

// Adds a million elements; a grow-by step of 0 lets the array compute its steps. Both containers are objects whose
// address is known elsewhere, as members of a document are: of a local vector that is not, the compiler keeps all
// fields in registers.
template <typename Array, typename Element, INT_PTR growBy> void pushKx(benchmark::State &state)
{
    for (auto _ : state) {
        Array array;
        array.SetSize(0, growBy);
        benchmark::DoNotOptimize(&array);
        for (INT_PTR i = 0; i < pushCount; ++i)
            array.Add(Element(i));
        benchmark::DoNotOptimize(array.GetData());
    }
}

template <typename Element> void pushPlain(benchmark::State &state)
{
    for (auto _ : state) {
        std::vector<Element> vector;
        benchmark::DoNotOptimize(&vector);
        for (INT_PTR i = 0; i < pushCount; ++i)
            vector.push_back(Element(i));
        benchmark::DoNotOptimize(vector.data());
    }
}

template <typename Element> void pushReservedPlain(benchmark::State &state)
{
    for (auto _ : state) {
        std::vector<Element> vector;
        vector.reserve(std::size_t(pushCount));
        benchmark::DoNotOptimize(&vector);
        for (INT_PTR i = 0; i < pushCount; ++i)
            vector.push_back(Element(i));
        benchmark::DoNotOptimize(vector.data());
    }
}

// Inserts a thousand elements, one at a time, in the middle of 100,000.
void insertKx(benchmark::State &state)
{
    CWordArray original;
    original.SetSize(100000);
    for (auto _ : state) {
        CWordArray array;
        array.Copy(original);
        for (INT_PTR i = 0; i < insertCount; ++i)
            array.InsertAt(array.GetSize() / 2, WORD(i));
        benchmark::DoNotOptimize(array.GetData());
    }
}

void insertPlain(benchmark::State &state)
{
    const std::vector<WORD> original(100000);
    for (auto _ : state) {
        std::vector<WORD> vector(original);
        for (INT_PTR i = 0; i < insertCount; ++i)
            vector.insert(vector.begin() + INT_PTR(vector.size()) / 2, WORD(i));
        benchmark::DoNotOptimize(vector.data());
    }
}

template <typename Array> void copyKx(benchmark::State &state)
{
    Array original;
    original.SetSize(copyCount);
    for (auto _ : state) {
        Array array;
        array.Copy(original);
        benchmark::DoNotOptimize(array.GetData());
    }
}

template <typename Element> void copyPlain(benchmark::State &state)
{
    const std::vector<Element> original(copyCount);
    for (auto _ : state) {
        std::vector<Element> vector(original);
        benchmark::DoNotOptimize(vector.data());
    }
}

template <INT_PTR growBy> void pushStringsKx(benchmark::State &state)
{
    const CString text(L"a text of more characters than fit inside");
    for (auto _ : state) {
        CStringArray array;
        array.SetSize(0, growBy);
        for (INT_PTR i = 0; i < stringCount; ++i)
            array.Add(text);
        benchmark::DoNotOptimize(&array);
    }
}

void pushStringsPlain(benchmark::State &state)
{
    const std::wstring text(L"a text of more characters than fit inside");
    for (auto _ : state) {
        std::vector<std::wstring> vector;
        for (INT_PTR i = 0; i < stringCount; ++i)
            vector.push_back(text);
        benchmark::DoNotOptimize(vector.data());
    }
}

} // namespace

BENCHMARK_TEMPLATE(pushKx, CByteArray, BYTE, 0)->Name("PushBytes/Kx");
BENCHMARK_TEMPLATE(pushPlain, BYTE)->Name("PushBytes/plain");
BENCHMARK_TEMPLATE(pushKx, CWordArray, WORD, 0)->Name("PushWords/Kx");
BENCHMARK_TEMPLATE(pushPlain, WORD)->Name("PushWords/plain");
BENCHMARK_TEMPLATE(pushKx, CPtrArray, void *, 0)->Name("PushPointers/Kx");
BENCHMARK_TEMPLATE(pushPlain, void *)->Name("PushPointers/plain");

BENCHMARK_TEMPLATE(pushKx, CByteArray, BYTE, pushCount)->Name("PushBytesStep/Kx");
BENCHMARK_TEMPLATE(pushReservedPlain, BYTE)->Name("PushBytesStep/plain");
BENCHMARK_TEMPLATE(pushKx, CWordArray, WORD, pushCount)->Name("PushWordsStep/Kx");
BENCHMARK_TEMPLATE(pushReservedPlain, WORD)->Name("PushWordsStep/plain");
BENCHMARK_TEMPLATE(pushKx, CPtrArray, void *, pushCount)->Name("PushPointersStep/Kx");
BENCHMARK_TEMPLATE(pushReservedPlain, void *)->Name("PushPointersStep/plain");

BENCHMARK(insertKx)->Name("InsertWordsInTheMiddle/Kx");
BENCHMARK(insertPlain)->Name("InsertWordsInTheMiddle/plain");
BENCHMARK_TEMPLATE(copyKx, CByteArray)->Name("CopyBytes/Kx");
BENCHMARK_TEMPLATE(copyPlain, BYTE)->Name("CopyBytes/plain");
BENCHMARK_TEMPLATE(copyKx, CPtrArray)->Name("CopyPointers/Kx");
BENCHMARK_TEMPLATE(copyPlain, void *)->Name("CopyPointers/plain");

BENCHMARK_TEMPLATE(pushStringsKx, 0)->Name("PushStrings/Kx");
BENCHMARK(pushStringsPlain)->Name("PushStrings/plain");
BENCHMARK_TEMPLATE(pushStringsKx, stringCount)->Name("PushStringsStep/Kx");
BENCHMARK(pushStringsPlain)->Name("PushStringsStep/plain");
