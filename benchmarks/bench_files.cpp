#include "KxFiles.h"

#include <benchmark/benchmark.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <array>

// Each pair does the same work with the file classes and with the Qt classes that one would use instead.

static constexpr int blockCount = 25600;
static constexpr int lineCount = 1000000;
static const std::array<char, 4096> block = {};

static QString path(const char *name)
{
    static const QTemporaryDir directory;
    return directory.filePath(QLatin1String(name));
}

// The name of a file of 100 MB.
static QString blocks()
{
    const QString name = path("blocks");
    QFile file(name);
    if (!file.exists() && file.open(QIODevice::WriteOnly)) {
        for (int i = 0; i < blockCount; ++i)
            file.write(block.data(), qint64(block.size()));
    }
    return name;
}

// The name of a file of a million lines.
static QString lines()
{
    const QString name = path("lines");
    QFile file(name);
    if (!file.exists() && file.open(QIODevice::WriteOnly)) {
        for (int i = 0; i < lineCount; ++i)
            file.write("The quick brown fox jumps\n");
    }
    return name;
}

static void readKx(benchmark::State &state)
{
    const std::wstring name = blocks().toStdWString();
    std::array<char, 4096> buffer;
    for (auto _ : state) {
        CFile file(name.c_str(), CFile::modeRead);
        unsigned long long total = 0;
        while (const unsigned count = file.Read(buffer.data(), unsigned(buffer.size())))
            total += count;
        if (total != blockCount * block.size())
            state.SkipWithError("read too little");
    }
}
BENCHMARK(readKx)->Name("ReadFile/Kx")->Unit(benchmark::kMillisecond);

static void readPlain(benchmark::State &state)
{
    const QString name = blocks();
    std::array<char, 4096> buffer;
    for (auto _ : state) {
        QFile file(name);
        file.open(QIODevice::ReadOnly);
        unsigned long long total = 0;
        while (const qint64 count = file.read(buffer.data(), qint64(buffer.size())))
            total += static_cast<unsigned long long>(count);
        if (total != blockCount * block.size())
            state.SkipWithError("read too little");
    }
}
BENCHMARK(readPlain)->Name("ReadFile/plain")->Unit(benchmark::kMillisecond);

static void writeKx(benchmark::State &state)
{
    const std::wstring name = path("written").toStdWString();
    for (auto _ : state) {
        CFile file(name.c_str(), CFile::modeWrite | CFile::modeCreate);
        for (int i = 0; i < blockCount; ++i)
            file.Write(block.data(), unsigned(block.size()));
        file.Close();
    }
}
BENCHMARK(writeKx)->Name("WriteFile/Kx")->Unit(benchmark::kMillisecond);

static void writePlain(benchmark::State &state)
{
    const QString name = path("written");
    for (auto _ : state) {
        QFile file(name);
        file.open(QIODevice::WriteOnly);
        for (int i = 0; i < blockCount; ++i)
            file.write(block.data(), qint64(block.size()));
        file.close();
    }
}
BENCHMARK(writePlain)->Name("WriteFile/plain")->Unit(benchmark::kMillisecond);

static void readLinesKx(benchmark::State &state)
{
    const std::wstring name = lines().toStdWString();
    CString line;
    for (auto _ : state) {
        CStdioFile file;
        file.Open(name.c_str(), CFile::modeRead);
        for (int i = 0; i < lineCount; ++i)
            file.ReadString(line);
        if (line.GetLength() != 25)
            state.SkipWithError("read too little");
    }
}
BENCHMARK(readLinesKx)->Name("ReadLines/Kx")->Unit(benchmark::kMillisecond);

static void readLinesPlain(benchmark::State &state)
{
    const QString name = lines();
    QString line;
    for (auto _ : state) {
        QFile file(name);
        file.open(QIODevice::ReadOnly);
        QTextStream stream(&file);
        for (int i = 0; i < lineCount; ++i)
            line = stream.readLine();
        if (line.size() != 25)
            state.SkipWithError("read too little");
    }
}
BENCHMARK(readLinesPlain)->Name("ReadLines/plain")->Unit(benchmark::kMillisecond);

static void writeLinesKx(benchmark::State &state)
{
    const std::wstring name = path("text").toStdWString();
    for (auto _ : state) {
        CStdioFile file;
        file.Open(name.c_str(), CFile::modeWrite | CFile::modeCreate | CFile::typeText);
        for (int i = 0; i < lineCount; ++i)
            file.WriteString(L"The quick brown fox jumps\n");
        file.Close();
    }
}
BENCHMARK(writeLinesKx)->Name("WriteLines/Kx")->Unit(benchmark::kMillisecond);

static void writeLinesPlain(benchmark::State &state)
{
    const QString name = path("text");
    for (auto _ : state) {
        QFile file(name);
        file.open(QIODevice::WriteOnly | QIODevice::Text);
        QTextStream stream(&file);
        for (int i = 0; i < lineCount; ++i)
            stream << QStringLiteral("The quick brown fox jumps\n");
    }
}
BENCHMARK(writeLinesPlain)->Name("WriteLines/plain")->Unit(benchmark::kMillisecond);
