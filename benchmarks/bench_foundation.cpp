#include "KxString.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cwchar>
#include <cwctype>
#include <string>

// Each pair does the same work with CString and with the standard library code that one would write instead.

static const std::wstring sentence = L"The quick brown fox jumps over the lazy dog, and the dog sleeps on.";

static void formatKx(benchmark::State &state)
{
    CString string;
    for (auto _ : state) {
        string.Format(L"%d-%ls", 42, L"text");
        benchmark::DoNotOptimize(string.data());
    }
}
BENCHMARK(formatKx)->Name("Format/Kx");

static int printTo(wchar_t *buffer, std::size_t count, const wchar_t *format, ...)
{
    va_list args;
    va_start(args, format);
    const int result = std::vswprintf(buffer, count, format, args);
    va_end(args);
    return result;
}

static void formatPlain(benchmark::State &state)
{
    std::wstring string;
    for (auto _ : state) {
        wchar_t buffer[1030];
        const int count = printTo(buffer, std::size(buffer), L"%d-%ls", 42, L"text");
        string = std::wstring(buffer, std::size_t(std::max(count, 0)));
        benchmark::DoNotOptimize(string.data());
    }
}
BENCHMARK(formatPlain)->Name("Format/plain");

template <typename String> static void append(benchmark::State &state)
{
    for (auto _ : state) {
        String string;
        for (int i = 0; i < 64; ++i) {
            string += L"word";
            string += L' ';
        }
        benchmark::DoNotOptimize(string.data());
    }
}
BENCHMARK_TEMPLATE(append, CString)->Name("Append/Kx");
BENCHMARK_TEMPLATE(append, std::wstring)->Name("Append/plain");

static void findKx(benchmark::State &state)
{
    const CString string(sentence);
    for (auto _ : state) {
        benchmark::DoNotOptimize(string.Find(L"sleeps"));
        benchmark::DoNotOptimize(string.Find(L','));
    }
}
BENCHMARK(findKx)->Name("Find/Kx");

static void findPlain(benchmark::State &state)
{
    const std::wstring string(sentence);
    for (auto _ : state) {
        benchmark::DoNotOptimize(int(string.find(L"sleeps")));
        benchmark::DoNotOptimize(int(string.find(L',')));
    }
}
BENCHMARK(findPlain)->Name("Find/plain");

static void makeUpperKx(benchmark::State &state)
{
    CString string(sentence);
    for (auto _ : state) {
        string.MakeUpper();
        benchmark::DoNotOptimize(string.data());
    }
}
BENCHMARK(makeUpperKx)->Name("MakeUpper/Kx");

static void makeUpperPlain(benchmark::State &state)
{
    std::wstring string(sentence);
    for (auto _ : state) {
        std::transform(string.begin(), string.end(), string.begin(),
                       [](wchar_t ch) { return wchar_t(std::towupper(std::wint_t(ch))); });
        benchmark::DoNotOptimize(string.data());
    }
}
BENCHMARK(makeUpperPlain)->Name("MakeUpper/plain");

template <typename String> static void copy(benchmark::State &state)
{
    const String source(sentence);
    for (auto _ : state) {
        String string(source);
        benchmark::DoNotOptimize(string.data());
    }
}
BENCHMARK_TEMPLATE(copy, CString)->Name("Copy/Kx");
BENCHMARK_TEMPLATE(copy, std::wstring)->Name("Copy/plain");

template <typename String> static void concatenate(benchmark::State &state)
{
    const String left(sentence);
    const String right(L"Another one follows.");
    for (auto _ : state) {
        const String joined = left + L" - " + right;
        benchmark::DoNotOptimize(joined.data());
    }
}
BENCHMARK_TEMPLATE(concatenate, CString)->Name("Concatenate/Kx");
BENCHMARK_TEMPLATE(concatenate, std::wstring)->Name("Concatenate/plain");
