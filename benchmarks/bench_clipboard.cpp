#include "KxClipboard.h"
#include "KxFiles.h"

#include <benchmark/benchmark.h>

#include <QMimeData>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

// Each pair does the same work with the clipboard and with the Qt class that one would keep the data in.

static constexpr int contentSize = 64 * 1024 * 1024;
static constexpr int formatCount = 1000;

static const std::vector<unsigned char> &content()
{
    static const std::vector<unsigned char> bytes(contentSize, 'x');
    return bytes;
}

static unsigned char *source()
{
    return const_cast<unsigned char *>(content().data());
}

// What a paste reads: a byte of each page.
static unsigned touched(const char *data, std::uint64_t size)
{
    unsigned sum = 0;
    for (std::uint64_t i = 0; i < size; i += 4096)
        sum += static_cast<unsigned char>(data[i]);
    return sum;
}

static void copyAndPasteKx(benchmark::State &state)
{
    const auto format = static_cast<unsigned short>(RegisterClipboardFormatW(L"benchmark"));
    COleDataObject object;
    object.AttachClipboard();
    for (auto _ : state) {
        CSharedFile file;
        file.Write(source(), contentSize);
        COleDataSource().CacheGlobalData(format, file.Detach());
        const auto *memory = static_cast<const KxGlobalMemory *>(object.GetGlobalData(format));
        benchmark::DoNotOptimize(touched(static_cast<const char *>(memory->block), memory->size));
    }
}
BENCHMARK(copyAndPasteKx)->Name("CopyAndPaste64MB/Kx")->Unit(benchmark::kMillisecond);

static void copyAndPastePlain(benchmark::State &state)
{
    const QString format = QStringLiteral("benchmark");
    QMimeData store;
    for (auto _ : state) {
        store.setData(format, QByteArray(reinterpret_cast<const char *>(source()), contentSize));
        const QByteArray data = store.data(format);
        benchmark::DoNotOptimize(touched(data.constData(), std::uint64_t(data.size())));
    }
}
BENCHMARK(copyAndPastePlain)->Name("CopyAndPaste64MB/plain")->Unit(benchmark::kMillisecond);

static std::vector<std::wstring> names()
{
    std::vector<std::wstring> all(formatCount);
    std::generate(all.begin(), all.end(),
                  [i = 0]() mutable { return L"Application format number " + std::to_wstring(i++); });
    return all;
}

// Formats cannot be taken back, so that the first round alone registers them and all others look them up.
static void registeredKx(benchmark::State &state)
{
    const std::vector<std::wstring> all = names();
    for (auto _ : state) {
        for (const std::wstring &name : all)
            benchmark::DoNotOptimize(RegisterClipboardFormatW(name.c_str()));
    }
}
BENCHMARK(registeredKx)->Name("RegisterAgain1000/Kx")->Unit(benchmark::kMillisecond);

static void registeredPlain(benchmark::State &state)
{
    const std::vector<std::wstring> all = names();
    QMimeData store;
    std::map<int, QString> numbers;
    for (auto _ : state) {
        for (const std::wstring &wideName : all) {
            const QString name = QString::fromStdWString(wideName);
            if (!store.hasFormat(name)) {
                store.setData(name, QByteArray());
                numbers.emplace(int(numbers.size()), name);
            }
            const auto it = std::find_if(numbers.cbegin(), numbers.cend(),
                                         [&](const auto &entry) { return entry.second == name; });
            benchmark::DoNotOptimize(it->first);
        }
    }
}
BENCHMARK(registeredPlain)->Name("RegisterAgain1000/plain")->Unit(benchmark::kMillisecond);

static void lookUpKx(benchmark::State &state)
{
    std::vector<unsigned short> formats;
    for (const std::wstring &name : names())
        formats.push_back(static_cast<unsigned short>(RegisterClipboardFormatW(name.c_str())));
    COleDataSource().CacheGlobalData(formats.back(), CSharedFile().Detach());
    COleDataObject object;
    object.AttachClipboard();
    for (auto _ : state) {
        for (const unsigned short format : formats)
            benchmark::DoNotOptimize(object.IsDataAvailable(format));
    }
}
BENCHMARK(lookUpKx)->Name("LookUp1000/Kx")->Unit(benchmark::kMillisecond);

static void lookUpPlain(benchmark::State &state)
{
    QMimeData store;
    std::map<int, QString> numbers;
    for (const std::wstring &name : names()) {
        numbers.emplace(int(numbers.size()), QString::fromStdWString(name));
        store.setData(QString::fromStdWString(name), QByteArray());
    }
    store.setData(numbers.rbegin()->second, QByteArray("data"));
    for (auto _ : state) {
        for (int number = 0; number < formatCount; ++number) {
            const QString &name = numbers.at(number);
            benchmark::DoNotOptimize(!store.data(name).isEmpty());
        }
    }
}
BENCHMARK(lookUpPlain)->Name("LookUp1000/plain")->Unit(benchmark::kMillisecond);
