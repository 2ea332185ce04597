#include "KxLists.h"
#include "KxMaps.h"

#include <benchmark/benchmark.h>

#include <list>
#include <string>
#include <unordered_map>
#include <vector>

// Each pair does the same work with a collection of the library and with the standard container.

static const std::vector<CString> &strings()
{
    static const std::vector<CString> texts = [] {
        std::vector<CString> made;
        for (int i = 0; i < 10000; ++i)
            made.emplace_back(L"item " + std::to_wstring(i));
        return made;
    }();
    return texts;
}

// What fits the nearest cache, and what does not.
static constexpr int few = 500;
static constexpr int many = 10000;

static void fill(CStringList &list, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        list.AddTail(strings()[i]);
}

static void fill(std::list<std::wstring> &list, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        list.push_back(strings()[i]);
}

template <typename List> static void listPush(benchmark::State &state)
{
    strings();
    for (auto _ : state) {
        List list;
        fill(list, std::size_t(state.range()));
        benchmark::DoNotOptimize(&list);
    }
}
BENCHMARK_TEMPLATE(listPush, CStringList)->Name("ListPushAndClear/Kx")->Arg(few)->Arg(many);
BENCHMARK_TEMPLATE(listPush, std::list<std::wstring>)->Name("ListPushAndClear/plain")->Arg(few)->Arg(many);

static void listQueueKx(benchmark::State &state)
{
    CStringList list;
    fill(list, few);
    std::size_t i = 0;
    for (auto _ : state) {
        list.AddTail(strings()[i++ % strings().size()]);
        benchmark::DoNotOptimize(list.RemoveHead().data());
    }
}
BENCHMARK(listQueueKx)->Name("ListPushAndPop/Kx");

static void listQueuePlain(benchmark::State &state)
{
    std::list<std::wstring> list;
    fill(list, few);
    std::size_t i = 0;
    for (auto _ : state) {
        list.push_back(strings()[i++ % strings().size()]);
        const std::wstring first = std::move(list.front());
        list.pop_front();
        benchmark::DoNotOptimize(first.data());
    }
}
BENCHMARK(listQueuePlain)->Name("ListPushAndPop/plain");

// The worst case of a list that returns its memory as soon as it is empty.
static void listOnOffKx(benchmark::State &state)
{
    CStringList list;
    for (auto _ : state) {
        list.AddTail(strings()[0]);
        benchmark::DoNotOptimize(list.RemoveHead().data());
    }
}
BENCHMARK(listOnOffKx)->Name("ListPushAndPopOfOne/Kx");

static void listOnOffPlain(benchmark::State &state)
{
    std::list<std::wstring> list;
    for (auto _ : state) {
        list.push_back(strings()[0]);
        const std::wstring first = std::move(list.front());
        list.pop_front();
        benchmark::DoNotOptimize(first.data());
    }
}
BENCHMARK(listOnOffPlain)->Name("ListPushAndPopOfOne/plain");

static void listIterateKx(benchmark::State &state)
{
    CStringList list;
    fill(list, std::size_t(state.range()));
    for (auto _ : state) {
        std::size_t total = 0;
        for (POSITION position = list.GetHeadPosition(); position;)
            total += list.GetNext(position).size();
        benchmark::DoNotOptimize(total);
    }
}
BENCHMARK(listIterateKx)->Name("ListIterate/Kx")->Arg(few)->Arg(many);

static void listIteratePlain(benchmark::State &state)
{
    std::list<std::wstring> list;
    fill(list, std::size_t(state.range()));
    for (auto _ : state) {
        std::size_t total = 0;
        for (const std::wstring &text : list)
            total += text.size();
        benchmark::DoNotOptimize(total);
    }
}
BENCHMARK(listIteratePlain)->Name("ListIterate/plain")->Arg(few)->Arg(many);

static void listFindKx(benchmark::State &state)
{
    CStringList list;
    fill(list, std::size_t(state.range()));
    for (auto _ : state)
        benchmark::DoNotOptimize(list.Find(L"item none"));
}
BENCHMARK(listFindKx)->Name("ListFind/Kx")->Arg(few)->Arg(many);

static void listFindPlain(benchmark::State &state)
{
    std::list<std::wstring> list;
    fill(list, std::size_t(state.range()));
    const std::wstring text = L"item none";
    for (auto _ : state) {
        auto found = list.begin();
        while (found != list.end() && *found != text)
            ++found;
        benchmark::DoNotOptimize(&*found);
    }
}
BENCHMARK(listFindPlain)->Name("ListFind/plain")->Arg(few)->Arg(many);

using PlainMap = std::unordered_map<std::wstring, void *>;

// Each association of the library's map holds room for the longest key, two kilobytes; what that costs shows
// with many keys. The table has a prime number of buckets, near the number of keys.
static void fill(CMapStringToPtr &map, std::size_t count)
{
    map.InitHashTable(count == few ? 503 : 10007);
    for (std::size_t i = 0; i < count; ++i)
        map.SetAt(strings()[i], nullptr);
}

static void fill(PlainMap &map, std::size_t count)
{
    map.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        map[strings()[i]] = nullptr;
}

template <typename Map> static void mapFill(benchmark::State &state)
{
    strings();
    for (auto _ : state) {
        Map map;
        fill(map, std::size_t(state.range()));
        benchmark::DoNotOptimize(&map);
    }
}
BENCHMARK_TEMPLATE(mapFill, CMapStringToPtr)->Name("MapFillAndClear/Kx")->Arg(few)->Arg(many);
BENCHMARK_TEMPLATE(mapFill, PlainMap)->Name("MapFillAndClear/plain")->Arg(few)->Arg(many);

static bool found(const CMapStringToPtr &map, const CString &key)
{
    void *value = nullptr;
    return map.Lookup(key, value);
}

static bool found(const PlainMap &map, const std::wstring &key)
{
    return map.find(key) != map.end();
}

template <typename Map> static void mapLookup(benchmark::State &state)
{
    const auto count = std::size_t(state.range());
    Map map;
    fill(map, count);
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(found(map, strings()[i]));
        i = i + 1 < count ? i + 1 : 0;
    }
}
BENCHMARK_TEMPLATE(mapLookup, CMapStringToPtr)->Name("MapLookup/Kx")->Arg(few)->Arg(many);
BENCHMARK_TEMPLATE(mapLookup, PlainMap)->Name("MapLookup/plain")->Arg(few)->Arg(many);

// Ported code often holds its keys as plain texts, from which the standard map makes a string each time.
static void mapTextKx(benchmark::State &state)
{
    CMapStringToPtr map;
    fill(map, few);
    void *value = nullptr;
    for (auto _ : state)
        benchmark::DoNotOptimize(map.Lookup(L"item 471", value));
}
BENCHMARK(mapTextKx)->Name("MapLookupOfText/Kx");

static void mapTextPlain(benchmark::State &state)
{
    PlainMap map;
    fill(map, few);
    for (auto _ : state)
        benchmark::DoNotOptimize(map.find(L"item 471") != map.end());
}
BENCHMARK(mapTextPlain)->Name("MapLookupOfText/plain");

static void mapIterateKx(benchmark::State &state)
{
    CMapStringToPtr map;
    fill(map, std::size_t(state.range()));
    CString key;
    void *value = nullptr;
    for (auto _ : state) {
        for (POSITION position = map.GetStartPosition(); position;)
            map.GetNextAssoc(position, key, value);
        benchmark::DoNotOptimize(value);
    }
}
BENCHMARK(mapIterateKx)->Name("MapIterate/Kx")->Arg(few)->Arg(many);

static void mapIteratePlain(benchmark::State &state)
{
    PlainMap map;
    fill(map, std::size_t(state.range()));
    std::wstring key;
    void *value = nullptr;
    for (auto _ : state) {
        for (const auto &entry : map) {
            key = entry.first;
            value = entry.second;
        }
        benchmark::DoNotOptimize(value);
    }
}
BENCHMARK(mapIteratePlain)->Name("MapIterate/plain")->Arg(few)->Arg(many);
