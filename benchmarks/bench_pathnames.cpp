#include "KxPathNames.h"
#include "KxPlatformServices.h"

#include <benchmark/benchmark.h>

#include <QDir>

#include <algorithm>
#include <filesystem>
#include <vector>

// Each operation is done with CKdUiPathname, with std::filesystem::path and with QString and QDir, on the paths
// that documents of ported applications hold: with a drive, and with backslashes that become slashes.
// Nothing looks at the file system: paths with a drive are not looked up, and no path is corrected.

namespace fs = std::filesystem;

namespace {

constexpr std::size_t pathCount = 1000000;
constexpr std::size_t distinct = 1000;

// Installed for its own life.
class NoCorrection : public KxPlatformServices
{
public:
    NoCorrection() { setPlatformServices(this); }
    ~NoCorrection() override { setPlatformServices(nullptr); }
    NoCorrection(const NoCorrection &) = delete;
    NoCorrection &operator=(const NoCorrection &) = delete;

    KxKeyboardService &keyboard() override { return m_former.keyboard(); }
    KxImageService &image() override { return m_former.image(); }
    KxGdiObjectService &gdiObjects() override { return m_former.gdiObjects(); }
    KxPathCorrectionService &pathCorrection() override { return m_correction; }

private:
    class Correction : public KxPathCorrectionService
    {
    public:
        bool correct(const std::wstring &, std::wstring &) override { return false; }
    };

    KxPlatformServices &m_former = platformServices();
    Correction m_correction;
};

const std::vector<std::wstring> &wideTexts()
{
    static const std::vector<std::wstring> texts = [] {
        std::vector<std::wstring> made;
        for (std::size_t i = 0; i < distinct; ++i)
            made.push_back(L"C:\\projects\\customer " + std::to_wstring(i) + L"\\documents\\report.txt");
        return made;
    }();
    return texts;
}

const std::vector<QString> &qtTexts()
{
    static const std::vector<QString> texts = [] {
        std::vector<QString> made;
        for (const std::wstring &text : wideTexts())
            made.push_back(QString::fromStdWString(text));
        return made;
    }();
    return texts;
}

std::wstring withSlashes(std::wstring text)
{
    std::replace(text.begin(), text.end(), L'\\', L'/');
    return text;
}

QString withSlashes(QString text)
{
    return text.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

template <class Operation> void forEachPath(benchmark::State &state, Operation operation)
{
    for (auto _ : state) {
        for (std::size_t i = 0; i < pathCount; ++i)
            operation(i % distinct);
    }
    state.SetItemsProcessed(state.iterations() * std::int64_t(pathCount));
}

} // namespace

static void parseKx(benchmark::State &state)
{
    const NoCorrection none;
    const auto &texts = wideTexts();
    CKdUiPathname path;
    CString full;
    forEachPath(state, [&](std::size_t i) {
        path.ParseRelative(texts[i].c_str(), nullptr);
        path.GetFullPath(full);
        benchmark::DoNotOptimize(full.data());
    });
}
BENCHMARK(parseKx)->Name("ParseMillionPaths/Kx")->Unit(benchmark::kMillisecond);
BENCHMARK(parseKx)->Name("ParseMillionPathsQt/Kx")->Unit(benchmark::kMillisecond);

static void parseStd(benchmark::State &state)
{
    const auto &texts = wideTexts();
    forEachPath(state, [&](std::size_t i) {
        const std::wstring full = fs::path(withSlashes(texts[i])).lexically_normal().wstring();
        benchmark::DoNotOptimize(full.data());
    });
}
BENCHMARK(parseStd)->Name("ParseMillionPaths/plain")->Unit(benchmark::kMillisecond);

static void parseQt(benchmark::State &state)
{
    const auto &texts = qtTexts();
    forEachPath(state, [&](std::size_t i) {
        const QString full = QDir::cleanPath(withSlashes(texts[i]));
        benchmark::DoNotOptimize(full.constData());
    });
}
BENCHMARK(parseQt)->Name("ParseMillionPathsQt/plain")->Unit(benchmark::kMillisecond);

static void editKx(benchmark::State &state)
{
    const auto &texts = wideTexts();
    CKdUiPathname path;
    CString base;
    CString extension;
    forEachPath(state, [&](std::size_t i) {
        path.ParseRelative(texts[i].c_str(), nullptr);
        path.GetBasename(base);
        path.GetExtension(extension);
        path.TrimComponent();
        path.AppendComponent(base);
        path.ReplaceExtensionAlways(L"bak");
        benchmark::DoNotOptimize(path.GetPathString());
    });
}
BENCHMARK(editKx)->Name("EditMillionPaths/Kx")->Unit(benchmark::kMillisecond);
BENCHMARK(editKx)->Name("EditMillionPathsQt/Kx")->Unit(benchmark::kMillisecond);

static void editStd(benchmark::State &state)
{
    const auto &texts = wideTexts();
    forEachPath(state, [&](std::size_t i) {
        fs::path path(withSlashes(texts[i]));
        const std::wstring base = path.filename().wstring();
        const std::wstring extension = path.extension().wstring();
        path.remove_filename();
        path /= base;
        path.replace_extension("bak");
        benchmark::DoNotOptimize(extension.data());
        benchmark::DoNotOptimize(path.native().data());
    });
}
BENCHMARK(editStd)->Name("EditMillionPaths/plain")->Unit(benchmark::kMillisecond);

static void editQt(benchmark::State &state)
{
    const auto &texts = qtTexts();
    forEachPath(state, [&](std::size_t i) {
        QString path = QDir::cleanPath(withSlashes(texts[i]));
        const QString base = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
        const QString extension = base.mid(base.lastIndexOf(QLatin1Char('.')) + 1);
        path.truncate(path.lastIndexOf(QLatin1Char('/')));
        path += QLatin1Char('/') + base;
        path.truncate(path.lastIndexOf(QLatin1Char('.')));
        path += QLatin1String(".bak");
        benchmark::DoNotOptimize(extension.constData());
        benchmark::DoNotOptimize(path.constData());
    });
}
BENCHMARK(editQt)->Name("EditMillionPathsQt/plain")->Unit(benchmark::kMillisecond);

// A path of about so many characters, in components of ten.
static std::wstring longPath(std::int64_t length)
{
    std::wstring path = L"C:";
    while (std::int64_t(path.size()) < length)
        path += L"/component";
    return path;
}

static void displayKx(benchmark::State &state)
{
    CKdUiPathname path;
    path.ParseRelative(longPath(state.range(0)).c_str(), nullptr);
    CString name;
    for (auto _ : state) {
        path.GetDisplayName(name, 60);
        benchmark::DoNotOptimize(name.data());
    }
}
BENCHMARK(displayKx)->Name("GetDisplayName/Kx")->Arg(100)->Arg(1000)->Arg(10000);

static void displayQt(benchmark::State &state)
{
    const QString path = QString::fromStdWString(longPath(state.range(0)));
    for (auto _ : state) {
        const int tail = path.indexOf(QLatin1Char('/'), path.size() - 56);
        const QString name = QLatin1String("\\...") + path.mid(tail);
        benchmark::DoNotOptimize(name.constData());
    }
}
BENCHMARK(displayQt)->Name("GetDisplayName/plain")->Arg(100)->Arg(1000)->Arg(10000);
