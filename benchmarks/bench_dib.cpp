// Bitmap rows and a flood fill beside plain loops over 32-bit pixels.

#include "KxDibData.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <vector>

namespace {

constexpr unsigned paper = 0x112233;
constexpr unsigned ink = 0xAA5500;
constexpr unsigned absent = 0x112234;
constexpr std::uint32_t opaque = 0xFF000000;

struct Bitmap : CDibData
{
    Bitmap(int w, int h)
    {
        HDC dc = nullptr;
        HBITMAP bmp = nullptr;
        makeBitmap(dc, bmp, w, h, nullptr);
        for (int y = 0; y < h; ++y)
            DrawLineH(0, w - 1, y, opaque | paper);
    }
};

// The same on a vector, as one writes it without a library.
struct Pixels
{
    Pixels(int w, int h)
        : width(w)
        , height(h)
        , pixels(std::size_t(w) * std::size_t(h), opaque | paper)
    {
    }

    std::uint32_t *row(int y) { return pixels.data() + std::ptrdiff_t{y} * width; }

    int find(int x, int y, int xStop, unsigned value, bool equal, int step)
    {
        const std::uint32_t *row = this->row(y);
        while (x != xStop + step && ((row[x] & 0xFFFFFF) == value) != equal)
            x += step;
        return x;
    }

    int width;
    int height;
    std::vector<std::uint32_t> pixels;
};

using Walk = int (CDibData::*)(int x, int y, int xStop, unsigned v) const;

template <Walk walk, bool equal, int step> void walkKx(benchmark::State &state)
{
    const int width = int(state.range(0));
    const Bitmap bitmap(width, 1);
    int start = step > 0 ? 0 : width - 1;
    for (auto _ : state) {
        benchmark::DoNotOptimize(start);
        benchmark::DoNotOptimize((bitmap.*walk)(start, 0, width - 1 - start, equal ? absent : paper));
    }
}

template <bool equal, int step> void walkPlain(benchmark::State &state)
{
    const int width = int(state.range(0));
    Pixels pixels(width, 1);
    int start = step > 0 ? 0 : width - 1;
    for (auto _ : state) {
        benchmark::DoNotOptimize(start);
        benchmark::DoNotOptimize(
            pixels.find(start, 0, width - 1 - start, equal ? absent : paper, equal, step));
    }
}

BENCHMARK(walkKx<&CDibData::SearchLeft, true, -1>)->Name("CDibData SearchLeft/Kx")->Arg(100)->Arg(4000);
BENCHMARK(walkPlain<true, -1>)->Name("CDibData SearchLeft/plain")->Arg(100)->Arg(4000);
BENCHMARK(walkKx<&CDibData::SearchRight, true, 1>)->Name("CDibData SearchRight/Kx")->Arg(100)->Arg(4000);
BENCHMARK(walkPlain<true, 1>)->Name("CDibData SearchRight/plain")->Arg(100)->Arg(4000);
BENCHMARK(walkKx<&CDibData::ScanLeft, false, -1>)->Name("CDibData ScanLeft/Kx")->Arg(100)->Arg(4000);
BENCHMARK(walkPlain<false, -1>)->Name("CDibData ScanLeft/plain")->Arg(100)->Arg(4000);
BENCHMARK(walkKx<&CDibData::ScanRight, false, 1>)->Name("CDibData ScanRight/Kx")->Arg(100)->Arg(4000);
BENCHMARK(walkPlain<false, 1>)->Name("CDibData ScanRight/plain")->Arg(100)->Arg(4000);

void drawLineKx(benchmark::State &state)
{
    const int width = int(state.range(0));
    Bitmap bitmap(width, 1);
    for (auto _ : state) {
        benchmark::DoNotOptimize(bitmap.DrawLineH(0, width - 1, 0, ink));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(drawLineKx)->Name("CDibData DrawLineH/Kx")->Arg(100)->Arg(4000);

void drawLinePlain(benchmark::State &state)
{
    const int width = int(state.range(0));
    Pixels pixels(width, 1);
    for (auto _ : state) {
        std::fill_n(pixels.row(0), width, ink);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(drawLinePlain)->Name("CDibData DrawLineH/plain")->Arg(100)->Arg(4000);

constexpr int side = 2048;

// Obstacles that leave runs of all lengths between them.
template <typename DrawLine> void drawObstacles(DrawLine drawLine)
{
    std::mt19937 random(1);
    for (int i = 0; i < 400; ++i) {
        const int left = int(random() % side);
        const int right = std::min(side - 1, left + 5 + int(random() % 60));
        const int top = 1 + int(random() % side);
        for (int y = top; y < std::min(side, top + 40); ++y)
            drawLine(left, right, y);
    }
}

struct Seed
{
    int x;
    int y;
};

void fillKx(CDibData &bitmap, Seed first, unsigned value)
{
    const int last = bitmap.GetWidth() - 1;
    const unsigned old = bitmap.GetPixelValue(first.x, first.y);
    std::vector<Seed> seeds{first};
    while (!seeds.empty()) {
        const auto [x, y] = seeds.back();
        seeds.pop_back();
        if (bitmap.GetPixelValue(x, y) != old)
            continue;
        const int left = bitmap.ScanLeft(x, y, 0, old) + 1;
        const int right = bitmap.ScanRight(x, y, last, old) - 1;
        bitmap.DrawLineH(left, right, y, value);
        for (const int next : {y - 1, y + 1}) {
            for (int at = left; (at = bitmap.SearchRight(at, next, right, old)) <= right;) {
                seeds.push_back({at, next});
                at = bitmap.ScanRight(at, next, right, old);
            }
        }
    }
}

void fillPlain(Pixels &bitmap, Seed first, unsigned value)
{
    const int last = bitmap.width - 1;
    const unsigned old = bitmap.row(first.y)[first.x] & 0xFFFFFF;
    std::vector<Seed> seeds{first};
    while (!seeds.empty()) {
        const auto [x, y] = seeds.back();
        seeds.pop_back();
        if ((bitmap.row(y)[x] & 0xFFFFFF) != old)
            continue;
        const int left = bitmap.find(x, y, 0, old, false, -1) + 1;
        const int right = bitmap.find(x, y, last, old, false, 1) - 1;
        std::fill_n(bitmap.row(y) + left, right - left + 1, value);
        for (const int next : {y - 1, y + 1}) {
            if (next < 0 || next >= bitmap.height)
                continue;
            for (int at = left; at <= right && (at = bitmap.find(at, next, right, old, true, 1)) <= right;) {
                seeds.push_back({at, next});
                at = bitmap.find(at, next, right, old, false, 1);
            }
        }
    }
}

void floodFillKx(benchmark::State &state)
{
    Bitmap bitmap(side, side);
    drawObstacles([&](int left, int right, int y) { bitmap.DrawLineH(left, right, y, 0); });
    unsigned value = ink;
    for (auto _ : state) {
        fillKx(bitmap, {0, 0}, value);
        value = value == ink ? paper : ink;
    }
}
BENCHMARK(floodFillKx)->Name("CDibData flood fill of 4 megapixels/Kx");

void floodFillPlain(benchmark::State &state)
{
    Pixels pixels(side, side);
    drawObstacles(
        [&](int left, int right, int y) { std::fill(pixels.row(y) + left, pixels.row(y) + right + 1, 0); });
    unsigned value = ink;
    for (auto _ : state) {
        fillPlain(pixels, {0, 0}, value);
        value = value == ink ? paper : ink;
    }
}
BENCHMARK(floodFillPlain)->Name("CDibData flood fill of 4 megapixels/plain");

} // namespace
